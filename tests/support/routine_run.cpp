#include "routine_run.h"

#include "company_printer_driver.h"
#include "recording_driver.h"
#include "temporary_home.h"

#include <QXmlInputSource>
#include <QXmlSimpleReader>

using namespace Qt::StringLiterals;

namespace {

class ElementReader : public QXmlDefaultHandler
{
public:
    explicit ElementReader(const std::function<void(const QString &, const QXmlAttributes &)> &taker)
        : take(taker)
    {
    }

    bool startElement(const QString &, const QString &, const QString &qName,
                      const QXmlAttributes &attributes) override
    {
        if (insideRoot)
            take(qName, attributes);
        insideRoot = true;
        return true;
    }

private:
    const std::function<void(const QString &, const QXmlAttributes &)> &take;
    bool insideRoot = false;
};

class OpenPrinter : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;
    using PrinterDriver::profile;
};

} // namespace

DocumentProfile profileOfWidth(int paperWidth)
{
    DocumentProfile profile;
    profile.quantityFieldWidth = 3;
    profile.priceFieldWidth = 7;
    profile.totalPriceFieldWidth = 8;
    profile.paperWidth = paperWidth;
    return profile;
}

bool readDocument(const QByteArray &document, QXmlDefaultHandler &handler)
{
    QXmlInputSource source;
    source.setData(document);
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    return reader.parse(source);
}

void readElements(const QByteArray &elements,
                  const std::function<void(const QString &, const QXmlAttributes &)> &take)
{
    ElementReader reader(take);
    if (!readDocument("<document>" + elements + "</document>", reader))
        qFatal("not well-formed: %s", elements.constData());
}

QStringList recordedCalls(const DocumentProfile &profile, DocumentRoutine routine, const QByteArray &elements)
{
    RecordingDriver driver;
    driver.profile = profile;
    readElements(elements, [&](const QString &qName, const QXmlAttributes &attributes) {
        (driver.*routine)(qName, attributes);
    });
    return driver.calls;
}

QByteArray printedText(const DocumentProfile &profile,
                       const std::function<void(CompanyPrinterDriver &)> &operation)
{
    const TemporaryHome folder;
    const QString paper = folder.filePath(u"paper"_s);
    {
        OpenPrinter printer(paper, false);
        printer.profile = profile;
        operation(printer);
    }
    return fileBytes(paper);
}

QByteArray printedText(const DocumentProfile &profile, DocumentRoutine routine, const QByteArray &elements)
{
    return printedText(profile, [&](CompanyPrinterDriver &printer) {
        readElements(elements, [&](const QString &qName, const QXmlAttributes &attributes) {
            (printer.*routine)(qName, attributes);
        });
    });
}
