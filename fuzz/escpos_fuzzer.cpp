/*
 * A whole document on a receipt printer. The input is the document and a configuration, whose printer for the
 * output "printer" is taken, or one that prints on 80 mm.
 */
#include "escpos_decoder.h"
#include "escpos_paper.h"
#include "frugal.h"
#include "fuzzing.h"
#include "paper_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace {

PrinterSettings printerOf(const TXConfiguration &configuration)
{
    const std::optional<PrinterSettings> printer = printerForOutput(configuration, u"printer"_s);
    return printer && !printer->model->isPlainText() ? *printer
                                                     : PrinterSettings(*findPrinterModel(u"generic-80"));
}

DecodedPrinter decodedPrinter(const PrinterSettings &settings)
{
    DecodedPrinter printer;
    for (const auto &[page, number] : settings.codePages)
        printer.pages.insert(number, codePageName(page));
    printer.firstPage = settings.codePages.front().number;
    return printer;
}

// Two pages of one number cannot be told apart.
bool numbersDiffer(const PrinterSettings &settings)
{
    return decodedPrinter(settings).pages.size() == settings.codePages.size();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryHome home;
    const FuzzInput input(data, size);
    const TXConfiguration configuration(home.writeFile(u"tavolux.conf"_s, input.companion), u"cfg"_s);
    const PrinterSettings settings = printerOf(configuration);
    if (!numbersDiffer(settings))
        return 0;

    QByteArray bytes;
    QBuffer printer(&bytes);
    printer.open(QIODevice::WriteOnly);
    QByteArray document = input.file;
    QBuffer source(&document);
    Frugal<PaperDriver> driver(configuration, std::make_unique<PrintOutput>(printer, u"printer"_s),
                               std::make_unique<EscposPaper>(settings));
    const Reading reading = printDocument(source, driver);

    const DecodedPrintout printed = decodeEscpos(bytes, decodedPrinter(settings));
    require(printed.fault.isEmpty(), "only commands of the device reach the printer");
    const bool printsTwice = settings.duplicate && driver.printDuplicate() && reading.complete();
    require(printed.initialisations <= (printsTwice ? 2 : 1), "a printout begins once");
    require(printed.cuts <= (printsTwice ? 2 : 1), "a printout is cut once");
    require(printed.pulses <= (reading.complete() ? 1 : 0), "the drawer opens once, after whole documents");
    if (!reading.complete())
        require(!printed.printed.isEmpty() && printed.lines().last() == "*** INCOMPLETE ***"_L1,
                "what is incomplete says so last");
    return 0;
}
