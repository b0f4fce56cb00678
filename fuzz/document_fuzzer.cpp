/*
 * A whole document through the plain-text printer. The input is the document and the user's configuration.
 */
#include "company_printer_driver.h"
#include "frugal.h"
#include "fuzzing.h"
#include "print_document.h"
#include "print_output.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

struct Printout
{
    QByteArray text;
    Reading reading;
};

Printout print(QByteArray document, const TXConfiguration &configuration)
{
    QByteArray text;
    QBuffer paper(&text);
    paper.open(QIODevice::WriteOnly);
    Frugal<CompanyPrinterDriver> printer(configuration, std::make_unique<PrintOutput>(paper, u"paper"_s));
    QBuffer source(&document);
    const Reading reading = printDocument(source, printer);
    return {text, reading};
}

bool isUtf8(const QByteArray &text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(text);
    return !decoder.hasError();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryHome home;
    const FuzzInput input(data, size);
    const TXConfiguration configuration(home.writeFile(u"tavolux.conf"_s, input.companion), u"cfg"_s);

    const Printout whole = print(input.file, configuration);
    require(isUtf8(whole.text), "a printout is UTF-8");
    require(whole.reading.complete() == whole.reading.reason.isEmpty(), "what is not complete has a reason");

    // Half a document is a whole one when only the other half has the fault; then it ends on its own.
    const Printout half = print(input.file.first(input.file.size() / 2), configuration);
    if (!half.reading.complete())
        require(whole.text.startsWith(half.text), "half a document prints the beginning of the whole");
    return 0;
}
