#include "printer_driver.h"

using namespace Qt::StringLiterals;

void PrinterDriver::printFullOrderInvoice(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1) {
        printItem(attributes, u"qdpt"_s); // Deliberate: the full receipt has "qxdpt".
    } else if (qName == "totals"_L1) {
        printTaxTotals(attributes);
    }
}

void PrinterDriver::printAbstractOrderInvoice(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe_type"_L1) {
        printItemType(attributes);
    } else if (qName == "totals"_L1) {
        printTaxTotals(attributes);
    }
}

void PrinterDriver::printTaxTotals(const QXmlAttributes &totals)
{
    setBold();
    println(QString());
    printTotalRow(QObject::tr("Taxable"), totals.value(u"taxable"_s));
    printTotalRow(QObject::tr("TaxRate"), totals.value(u"taxrate"_s));
    printTotalRow(QObject::tr("Tax"), totals.value(u"tax"_s));
    printTotalRow(QObject::tr("TOTAL"), totals.value(u"total"_s));
    setCharSize();
}
