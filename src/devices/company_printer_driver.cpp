#include "company_printer_driver.h"

#include "print_output.h"
#include "sync_singleton.h"
#include "text_paper.h"
#include "tx_configuration.h"

using namespace Qt::StringLiterals;

CompanyPrinterDriver::CompanyPrinterDriver(const QString &outputPath, bool append)
    : CompanyPrinterDriver(
        SyncSingleton<TXConfiguration>::instance(),
        std::make_unique<PrintOutput>(outputPath,
                                      append ? PrintOutput::Opening::append : PrintOutput::Opening::truncate))
{
}

CompanyPrinterDriver::CompanyPrinterDriver(const TXConfiguration &settings,
                                           std::unique_ptr<PrintOutput> output)
    : CompanyPrinterDriver(settings, std::move(output), std::make_unique<TextPaper>(deviceColumns))
{
}

CompanyPrinterDriver::CompanyPrinterDriver(const TXConfiguration &settings,
                                           std::unique_ptr<PrintOutput> output, std::unique_ptr<Paper> paper)
    : PaperDriver(settings, std::move(output), std::move(paper))
{
}

void CompanyPrinterDriver::openCashDrawer()
{
    print(0, u"\x1Bp0"_s);
}

unsigned int CompanyPrinterDriver::lineWidth() const
{
    return getPaperWidth();
}
