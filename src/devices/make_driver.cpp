#include "make_driver.h"

#include "company_printer_driver.h"
#include "escpos_paper.h"
#include "escpos_printout.h"
#include "print_output.h"
#include "printer_settings.h"
#include "text_printout.h"

#include <utility>

std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          std::unique_ptr<PrintOutput> output)
{
    const std::optional<PrinterSettings> printer = printerForOutput(configuration, output->name());
    return makeDriver(configuration, printer.value_or(PrinterSettings()), std::move(output));
}

std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          const PrinterSettings &printer, std::unique_ptr<PrintOutput> output)
{
    if (printer.model->isPlainText())
        return std::make_unique<CompanyPrinterDriver>(configuration, std::move(output));
    return std::make_unique<PaperDriver>(configuration, std::move(output),
                                         std::make_unique<EscposPaper>(printer));
}

std::unique_ptr<PrinterDriver> makePreviewDriver(const TXConfiguration &configuration,
                                                 PrinterSettings printer, int columns, Printout &printout)
{
    if (printer.model->isPlainText())
        return std::make_unique<PreviewedCompanyPrinter>(configuration, printout, columns);
    if (columns > 0)
        printer.columns = columns;
    return std::make_unique<PaperDriver>(configuration, nullptr,
                                         std::make_unique<EscposPrintout>(printout, std::move(printer)));
}
