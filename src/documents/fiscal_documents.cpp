/*
 * Fiscal documents are not laid out here: a fiscal printer takes them row by row through the printRowFiscal
 * hooks, and knows nothing of header blocks or customers.
 */
#include "printer_driver.h"

#include "tx_configuration.h"

using namespace Qt::StringLiterals;

void PrinterDriver::printFullOrderFiscal(const QString &qName, const QXmlAttributes &attributes)
{
    int descriptionWidth =
        configuration.getStrValue(documentPrefix + DocumentProfile::descriptionWidth).toInt();
    if (descriptionWidth == 0)
        descriptionWidth = static_cast<int>(getPaperWidth());

    if (qName == "receipe"_L1)
        printRowFiscal(attributes.value(u"department"_s), attributes.value(u"number"_s),
                       attributes.value(u"name"_s).left(descriptionWidth), attributes.value(u"price"_s));
    else if (qName == "total"_L1)
        printRowFiscal(qName, attributes);
}

// Deliberate: one row for each kind of item, always in the quantity 1, with its name in full.
void PrinterDriver::printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &attributes)
{
    if (qName == "receipe_type"_L1)
        printRowFiscal(attributes.value(u"department"_s), u"1"_s, attributes.value(u"name"_s),
                       attributes.value(u"price"_s));
    else if (qName == "total"_L1)
        printRowFiscal(qName, attributes);
}
