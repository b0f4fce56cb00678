#pragma once

#include "paper.h"
#include "printer_settings.h"
#include "row_encoder.h"

#include <QByteArray>

#include <memory>

struct Logo;

/*
 * The paper of an ESC/POS receipt printer. What it writes are complete commands and text in the printer's
 * code pages, nothing else: no text of a document becomes a command. It leaves the printer as it found it, in
 * its normal state with the paper cut or at the tear bar.
 *
 * A logo that cannot be read prints one line on standard output and is left out.
 */
class EscposPaper : public Paper
{
public:
    /* A line of this length is wider than any paper. It is printed as far as it goes, so as not to fill the
     * memory. */
    static constexpr qsizetype longestLine = 4096;

    /* What stands beneath a document that is incomplete. */
    static QString incompleteMark();

    /* The logo that the printer is sent, read from its file. */
    static Logo logoOf(const PrinterSettings &settings);

    /* For a printer that has code pages. */
    explicit EscposPaper(PrinterSettings settings);
    ~EscposPaper() override;

    int columns() const override;
    int width(QStringView text) const override;
    void begin(PrintOutput &output) override;
    void text(QStringView text, TextStyle style) override;
    void endLine() override;
    void logo() override;
    void cut() override;

    /* The drawer opens at the end, and only of a complete document. */
    void openDrawer() override;

    /* A line of those characters of the text above ASCII that a code page has, printed with that page alone:
     * for test pages, where text would take any page that has the character. The page is told by its place
     * in the settings. */
    void codePageLine(quint8 page, QStringView text);

    /* Where the settings ask for duplicates and there are two copies, the whole printout comes twice, and the
     * drawer opens once. A document that printed nothing moves no paper. One that is incomplete ends with a
     * line that says so, and comes once. */
    void end(Ending ending, int copies) override;

private:
    void use(TextStyle style);
    void usePage(quint8 page);
    void printLine();
    void printPicture();
    void handOver();

    const PrinterSettings m_settings;
    mutable RowEncoder m_encoder; // keeps what it looked up
    StyledLine m_line;
    std::unique_ptr<Logo> m_logo; // read when it is first printed
    QByteArray m_bytes; // not handed over yet: all of a printout that may come twice
    PrintOutput *m_output = nullptr;
    TextStyle m_style; // in force
    quint8 m_page = 0; // in force, by its place in the settings
    bool m_opensDrawer = false;
    bool m_isBlank = true; // the paper since the last cut
};
