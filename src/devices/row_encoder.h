#pragma once

#include "code_pages.h"
#include "paper.h"

#include <QString>
#include <QStringView>

#include <array>
#include <span>
#include <vector>

/* The text of one line, in one style after another. */
class StyledLine
{
public:
    struct Run
    {
        qsizetype end; // after its last character
        TextStyle style;
    };

    void append(QStringView text, TextStyle style);
    void clear();

    const QString &text() const { return m_text; }
    std::span<const Run> runs() const { return m_runs; }

private:
    QString m_text;
    std::vector<Run> m_runs;
};

/* One column of a printed line. */
struct Cell
{
    char16_t shown; // what the printer prints
    quint8 byte; // what makes it print that
    quint8 page; // while this code page is in force, by its place in the printer's order
    TextStyle style;

    bool operator==(const Cell &) const = default;
};

/*
 * Turns lines of text into what a printer with one-byte code pages prints, column by column.
 *
 * A character is normalised (NFC) and taken from the first code page or, where that lacks it, from the next
 * one that has it. What no page has is replaced: by the letter without its marks or by ASCII of the same
 * meaning, such as EUR for the euro sign, else by a question mark. Control characters are question marks.
 *
 * Rows are laid out before that, with a column for each character (UTF-16 code unit). Where the replacement
 * is longer or shorter the next run of dots or blanks of the line makes up for it, so that the amounts after
 * stay in their columns. One dot or blank of the run always stays; what cannot be made up for there is left
 * to the run after it.
 */
class RowEncoder
{
public:
    /* For the code pages of a printer, in order of preference; the first is in force unless told otherwise.
     * Without any page all is ASCII. */
    explicit RowEncoder(std::span<const CodePage> pages);

    /* The cells of a line, valid until the next call. */
    std::span<const Cell> encode(const StyledLine &line);

    /* How many columns the text takes as a line of its own. */
    int width(QStringView text);

private:
    /* One column without its style. */
    struct Glyph
    {
        char16_t shown;
        quint8 byte;
        quint8 page;
    };

    /* What a character comes out as: up to four columns, or none. */
    struct Glyphs
    {
        static constexpr qsizetype most = 4;

        char16_t character = 0;
        quint8 count = 0;
        std::array<Glyph, most> columns = {};
    };

    const Glyphs &characterGlyphs(char16_t character);
    Glyphs clusterGlyphs(QStringView cluster);

    // Add what prints the text; false, and nothing added, when something in it cannot be printed.
    static bool append(Glyphs &glyphs, Glyph glyph);
    bool append(Glyphs &glyphs, QStringView text);
    bool append(Glyphs &glyphs, char16_t character);

    std::vector<CodePageEncoder> m_pages;
    std::vector<Cell> m_cells;
    StyledLine m_measured;
    // What was looked up lately. Each character has its place, which it shares with others.
    std::array<Glyphs, 256> m_lately;
};
