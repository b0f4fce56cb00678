#include "make_driver.h"

#include "company_printer_driver.h"
#include "print_output.h"

std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          std::unique_ptr<PrintOutput> output)
{
    return std::make_unique<CompanyPrinterDriver>(configuration, std::move(output));
}
