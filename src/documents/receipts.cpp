#include "printer_driver.h"

using namespace Qt::StringLiterals;

void PrinterDriver::printFullOrderReceipt(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1) {
        printItem(attributes, u"qxdpt"_s);
    } else if (qName == "total"_L1) {
        println(QString());
        printTotalRow(QObject::tr("TOTAL"), attributes.value(u"price"_s));
    } else if (qName == "notPaid"_L1) {
        println(QString());
        println(QObject::tr("    Amount not paid: ") + attributes.value(u"price"_s));
    }
}

void PrinterDriver::printAbstractOrderReceipt(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "receipe_type"_L1) {
        printItemType(attributes);
    } else if (qName == "total"_L1) {
        println(QString());
        printTotalRow(QObject::tr("TOTAL"), attributes.value(u"price"_s));
    } else if (qName == "notPaid"_L1) {
        println(QString());
        // Deliberate: this label is Italian in every language, and indented by one blank less.
        println("   Corrispettivo non pagato: "_L1 + attributes.value(u"price"_s));
    }
}
