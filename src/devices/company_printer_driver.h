#pragma once

#include "printer_driver.h"

/*
 * The plain-text printer: 34 characters wide, with a cash drawer. It places text on the line and leaves bold,
 * character sizes, logo, cuts and pulses out.
 */
class CompanyPrinterDriver : public PrinterDriver
{
public:
    using PrinterDriver::PrinterDriver;

    unsigned int getPaperWidth() const override;

    /* Both sizes end centring, and do nothing else. */
    void setCharSize() override;
    void setCharSize(int size) override;
    void setCenterJustify() override;

    /* Indents by the given blanks or, while centring, to the middle of the device's paper, whatever the
     * profile's width. A text wider than the device is not indented. */
    void print(unsigned int indent, const QString &text) override;
    void println(unsigned int indent, const QString &text) override;
    void println(const QString &text) override;

    /* Opens the drawer when the profile says so. */
    void endSection() override;

    /* Prints the drawer command, like any text and without a line end. Called by endSection. */
    virtual void openCashDrawer();

    // Nothing that text could show.
    void setBold() override;
    void fullCut() override;
    void generatePulse() override;
    void startSection() override;
    void printLogo() override;
};
