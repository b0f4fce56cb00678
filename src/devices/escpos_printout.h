#pragma once

#include "printer_settings.h"
#include "printout.h"
#include "row_encoder.h"

/*
 * What an ESC/POS printer prints, on a paper that is kept: the characters that its code pages make of the
 * text, its logo, and the cut where it has a cutter.
 */
class EscposPrintout : public PrintoutPaper
{
public:
    /* For a printer that has code pages. */
    EscposPrintout(Printout &printout, PrinterSettings settings);

    int columns() const override;
    int width(QStringView text) const override;
    void text(QStringView text, TextStyle style) override;
    void endLine() override;
    void logo() override;
    void cut() override;

    /* The drawer opens at the end, and only of a complete document. */
    void openDrawer() override;
    void end(Ending ending, int copies) override;

private:
    void setLine();

    const PrinterSettings m_settings;
    mutable RowEncoder m_encoder; // keeps what it looked up
    StyledLine m_line;
    bool m_opensDrawer = false;
    bool m_isBlank = true; // the paper since the last cut
};
