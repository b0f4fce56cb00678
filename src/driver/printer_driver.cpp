#include "printer_driver.h"

#include "diagnostic.h"
#include "print_output.h"
#include "sync_singleton.h"
#include "tx_configuration.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

PrinterDriver::PrinterDriver(const QString &outputPath, bool append)
    : PrinterDriver(SyncSingleton<TXConfiguration>::instance(),
                    std::make_unique<PrintOutput>(
                        outputPath, append ? PrintOutput::Opening::append : PrintOutput::Opening::truncate))
{
}

PrinterDriver::PrinterDriver(const TXConfiguration &settings, std::unique_ptr<PrintOutput> output)
    : configuration(settings)
    , m_output(output ? std::move(output) : std::make_unique<PrintOutput>())
{
}

PrinterDriver::~PrinterDriver() = default;

void PrinterDriver::finish(Ending)
{
    m_output->close();
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

bool PrinterDriver::takesMore() const
{
    return !m_output->failed();
}

void PrinterDriver::reset() { }

void PrinterDriver::initPrinter() { }

void PrinterDriver::printRowFiscal(const QString &, const QXmlAttributes &) { }

void PrinterDriver::printRowFiscal(const QString &, const QString &, const QString &, const QString &) { }

void PrinterDriver::printAbstractOrder(const QString &, const QXmlAttributes &) { }

bool PrinterDriver::printDuplicate()
{
    return m_duplicate;
}
