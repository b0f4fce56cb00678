#pragma once

#include "company_printer_driver.h"
#include "printout.h"

/*
 * The plain-text printer's text on a paper that is kept. Whatever prints it in the end, it takes one column
 * for each character, two for a wide one of East Asia or an emoji. Control characters, which would tell a
 * printer to do something, are shown as replacement characters.
 */
class TextPrintout : public PrintoutPaper
{
public:
    TextPrintout(Printout &printout, int columns);

    /* What the layout is made for, which is the plain-text printer's width on any paper. */
    int columns() const override;
    int width(QStringView text) const override;
    bool takesControlCharacters() const override;
    void text(QStringView text, TextStyle style) override;
    void logo() override;
    void cut() override;

    /* There is one copy, whatever the document asks for. */
    void end(Ending ending, int copies) override;
};

/* The plain-text printer that prints on a paper that is kept, and shows the drawer instead of its command. */
class PreviewedCompanyPrinter : public CompanyPrinterDriver
{
public:
    /* Fills the printout, on a paper of so many columns or else, for 0, as wide as the document's profile
     * says. Configuration and printout outlive the driver. */
    PreviewedCompanyPrinter(const TXConfiguration &settings, Printout &printout, int paperColumns);

    void openCashDrawer() override;
    void startSection() override;

private:
    Printout &m_printout;
    const int m_paperColumns;
};
