#pragma once

#include "paper_driver.h"

/*
 * The plain-text printer: 34 characters wide, with a cash drawer. It places text on the line and leaves bold,
 * character sizes, logo, cuts and pulses out.
 */
class CompanyPrinterDriver : public PaperDriver
{
public:
    static constexpr int deviceColumns = 34;

    /* Prints to the file, truncated or, with append, from its end on, with the user's configuration. If the
     * file cannot be opened one line is printed on standard output and nothing will be written anywhere. */
    CompanyPrinterDriver(const QString &outputPath, bool append);

    /* Prints to the output, or nowhere without one, with a configuration that outlives the driver. */
    CompanyPrinterDriver(const TXConfiguration &settings, std::unique_ptr<PrintOutput> output);

    /* The same on another paper of deviceColumns. */
    CompanyPrinterDriver(const TXConfiguration &settings, std::unique_ptr<PrintOutput> output,
                         std::unique_ptr<Paper> paper);

    /* Prints the drawer command, like any text and without a line end. Called by endSection. */
    void openCashDrawer() override;

protected:
    /* The device's columns, whatever the profile's paper. */
    unsigned int lineWidth() const override;
};
