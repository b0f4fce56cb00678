/*
 * A whole document through the plain-text printer. The input is the document and the user's configuration.
 */
#include "bounded_document.h"
#include "company_printer_driver.h"
#include "fuzzing.h"
#include "sync_singleton.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QStringDecoder>
#include <QXmlSimpleReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/*
 * The plain-text printer with little paper: margins and widths may be as large as the configuration likes,
 * which takes time and leads nowhere new.
 */
class FrugalPrinter : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;

    void startSection() override
    {
        for (const auto width : {&DocumentProfile::quantityFieldWidth, &DocumentProfile::priceFieldWidth,
                                 &DocumentProfile::totalPriceFieldWidth, &DocumentProfile::paperWidth})
            profile.*width = std::clamp(profile.*width, -enough, enough);
    }

    void printGeometry(const QXmlAttributes &attributes) override
    {
        if (configuration.getStrValue(documentPrefix + DocumentProfile::topMargin).toInt() <= enough)
            CompanyPrinterDriver::printGeometry(attributes);
    }

private:
    static constexpr int enough = 200;
};

/* Prints a document to the file; true when the reader came to its end without a fault. */
bool print(QByteArray document, const QString &file)
{
    FrugalPrinter printer(file, false);
    QBuffer buffer(&document);
    BoundedDocument source(&buffer);
    QXmlSimpleReader reader;
    reader.setContentHandler(&printer);
    reader.setDeclHandler(&source);
    return reader.parse(source);
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
    home.writeConfiguration(input.companion);
    home.enter();
    SyncSingleton<TXConfiguration>::instance().readFile(TXConfiguration::userFile(), u"cfg"_s);

    const QString file = home.filePath(u"printout"_s);
    print(input.file, file);
    const QByteArray printout = fileBytes(file);
    require(isUtf8(printout), "a printout is UTF-8");

    // Half a document is a whole one when only the other half has the fault; then it ends on its own.
    if (!print(input.file.first(input.file.size() / 2), file))
        require(printout.startsWith(fileBytes(file)), "half a document prints the beginning of the whole");
    return 0;
}
