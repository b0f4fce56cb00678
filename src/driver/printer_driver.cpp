#include "printer_driver.h"

#include "diagnostic.h"
#include "sync_singleton.h"
#include "tx_configuration.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

// Unbuffered: the stream has a buffer of its own, and what could not be written must not be tried again.
PrinterDriver::PrinterDriver(const QString &outputPath, bool append)
    : configuration(SyncSingleton<TXConfiguration>::instance())
    , outputFile(outputPath)
{
    QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    mode.setFlag(QIODevice::Append, append);
    if (outputFile.open(mode))
        outputStream = std::make_unique<QTextStream>(&outputFile);
    else
        printDiagnostic("PrintManager::printAbstractOrder(...): Unable To Open File");
}

PrinterDriver::~PrinterDriver()
{
    if (!outputStream)
        return;
    outputStream->flush();
    if (outputStream->status() != QTextStream::Ok)
        reportFailedOutput();
}

QString PrinterDriver::documentPath(const QString &docType) const
{
    const QString type = docType.toLower();
    if (const auto known = std::ranges::find(documentTypes, type, &DocumentType::name);
        known != documentTypes.end())
        return known->keyPrefix;
    printDiagnostic("Error into PrinterDriver::documentPath:  " + type.toLocal8Bit());
    return u"tavolux.prefiscaldoc."_s;
}

void PrinterDriver::loadValues(const QString &docType)
{
    documentPrefix = documentPath(docType);
    profile = DocumentProfile::load(
        [this](QLatin1StringView setting) { return configuration.getStrValue(documentPrefix + setting); });
    if (profile.paperWidth == 0)
        profile.paperWidth = static_cast<int>(getPaperWidth());
}

void PrinterDriver::write(const QString &text)
{
    if (!outputStream)
        return;
    *outputStream << text;
    if (outputStream->status() != QTextStream::Ok) {
        reportFailedOutput();
        // A stream in error would keep all further text in memory.
        outputStream.reset();
    }
}

// The file knows no reason when the failed write was the rest of one that succeeded in part; the system does.
void PrinterDriver::reportFailedOutput()
{
    const QByteArray reason = std::strerror(errno);
    printDiagnostic("Error in the method PrinterDriver::print( " + QFile::encodeName(outputFile.fileName())
                    + " ): " + reason);
}

void PrinterDriver::reset() { }

void PrinterDriver::initPrinter() { }

void PrinterDriver::printRowFiscal(const QString &, const QXmlAttributes &) { }

void PrinterDriver::printRowFiscal(const QString &, const QString &, const QString &, const QString &) { }

void PrinterDriver::printAbstractOrder(const QString &, const QXmlAttributes &) { }

bool PrinterDriver::printDuplicate()
{
    return duplicate;
}
