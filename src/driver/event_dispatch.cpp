#include "printer_driver.h"

#include "diagnostic.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

struct PrinterDriver::DocumentMethod
{
    QLatin1StringView name;
    QLatin1StringView documentType;
    std::optional<bool> duplicate; // empty: stays as it is
    void (PrinterDriver::*printElement)(const QString &, const QXmlAttributes &);
};

const PrinterDriver::DocumentMethod *PrinterDriver::documentMethod(const QString &name)
{
    // Deliberate: the full order prints with the pre-fiscal profile, and the statement of account with the
    // report's.
    static constexpr DocumentMethod methods[] = {
        {"printPartialOrder"_L1, "order"_L1, {}, &PrinterDriver::printPartialOrder},
        {"printFullOrder"_L1, "prefiscal"_L1, {}, &PrinterDriver::printFullOrder},
        {"printFullOrderReceipt"_L1, "receipt"_L1, {}, &PrinterDriver::printFullOrderReceipt},
        {"printFullOrderInvoice"_L1, "invoice"_L1, true, &PrinterDriver::printFullOrderInvoice},
        {"printFullOrderDelivery"_L1, "delivery"_L1, {}, &PrinterDriver::printFullOrderDelivery},
        {"printFullOrderFiscal"_L1, "fiscal"_L1, false, &PrinterDriver::printFullOrderFiscal},
        {"printAbstractOrder"_L1, "order"_L1, {}, &PrinterDriver::printAbstractOrder},
        {"printAbstractOrderReceipt"_L1, "receipt"_L1, {}, &PrinterDriver::printAbstractOrderReceipt},
        {"printAbstractOrderInvoice"_L1, "invoice"_L1, true, &PrinterDriver::printAbstractOrderInvoice},
        {"printAbstractOrderFiscal"_L1, "fiscal"_L1, false, &PrinterDriver::printAbstractOrderFiscal},
        {"printReport"_L1, "report"_L1, {}, &PrinterDriver::printReport},
        {"printSold"_L1, "sold"_L1, {}, &PrinterDriver::printSold},
        {"printStatementOfAccount"_L1, "report"_L1, {}, &PrinterDriver::printStatementOfAccount},
    };
    const auto *method = std::ranges::find(methods, name, &DocumentMethod::name);
    return method == std::end(methods) ? nullptr : method;
}

QLatin1StringView PrinterDriver::documentTypeOf(const QString &method)
{
    const DocumentMethod *const known = documentMethod(method);
    return known ? known->documentType : QLatin1StringView();
}

bool PrinterDriver::startDocument()
{
    reset();
    return true;
}

bool PrinterDriver::endDocument()
{
    endSection();
    return true;
}

bool PrinterDriver::startElement(const QString &, const QString &, const QString &qName,
                                 const QXmlAttributes &attributes)
{
    if (qName != "method"_L1) {
        if (m_currentMethod)
            (this->*m_currentMethod->printElement)(qName, attributes);
        return true;
    }

    m_currentMethod = documentMethod(attributes.value(u"name"_s));
    if (!m_currentMethod) {
        printDiagnostic("File Format Not Supported");
        return false;
    }
    loadValues(m_currentMethod->documentType);
    m_duplicate = m_currentMethod->duplicate.value_or(m_duplicate);
    startSection();
    return true;
}

bool PrinterDriver::endElement(const QString &, const QString &, const QString &)
{
    return true;
}
