#pragma once

#include "logo.h"
#include "paper.h"

#include <QString>

#include <vector>

/* Text in one style, set from a column on: characters of one column each, or a single one, such as a wide
 * letter or one with its accents, that is set by itself. */
struct PrintedRun
{
    QString text;
    int column = 0; // from 0
    int columns = 0;
    bool isSingle = false;
    TextStyle style;

    bool operator==(const PrintedRun &) const = default;
};

/* What takes a line's place on the paper: a line of text, the logo, a cut, or the moment when the drawer
 * opens.
 */
struct PrintedLine
{
    enum class Kind { text, logo, cut, drawer };

    Kind kind = Kind::text;
    bool continued = false; // it is the rest of the line above, which was too long
    std::vector<PrintedRun> runs;

    bool isDoubleHeight() const;

    /* The characters as they stand on the line, with blanks where nothing was printed. */
    QString text() const;

    bool operator==(const PrintedLine &) const = default;
};

/* A printout as it lies on the paper. */
struct Printout
{
    /* What is kept of a printout; the rest of a longer one is only counted. */
    static constexpr qsizetype maximumLines = 100'000;
    static constexpr qsizetype maximumCharacters = 10'000'000;

    /* The widest paper. */
    static constexpr int maximumColumns = 255;

    /* Makes the paper so many columns wide, or as wide as the nearest width that there is. */
    void setColumns(int wanted);

    int columns = 1; // of the paper
    std::vector<PrintedLine> lines;
    qint64 lineCount = 0; // with those that are not kept
    Raster logo; // that stands on each line of its kind; without rows it is kept in the printer
    QString logoFault; // why there is none that should be there
    Ending ending = Ending::complete;
    int copies = 1; // that come out

    bool isKeptWhole() const { return lineCount == static_cast<qint64>(lines.size()); }

    /* The text lines, each with a line feed at its end; logo, cuts and drawer leave nothing. */
    QString text() const;
};

/*
 * A paper that keeps what is printed on it, for whoever shows it. What is derived from it knows what a
 * printer makes of a text. A line that is too long goes on in the next, as on a printer.
 */
class PrintoutPaper : public Paper
{
public:
    /* Fills the printout, which outlives the paper, from its beginning. Its columns say where a line ends,
     * and may be set while it is filled. */
    PrintoutPaper(Printout &printout, int columns);

    void begin(PrintOutput &output) override;
    void endLine() override;
    void logo() override;
    void cut() override;
    void openDrawer() override;
    void end(Ending ending, int copies) override;

protected:
    Printout &printout() const { return m_printout; }

    /* Adds text of which each character takes one column, or a single character that takes so many. */
    void addCharacters(QStringView text, TextStyle style);
    void addSingle(const QString &character, int columns, TextStyle style);

private:
    void addRun(PrintedRun run);
    void goOn();
    void addSign(PrintedLine::Kind kind);
    void keepLine();

    Printout &m_printout;
    PrintedLine m_line;
    int m_column = 0; // that comes next on the line
    qsizetype m_characters = 0; // kept so far
};
