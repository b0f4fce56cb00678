/*
 * What kitchen, bar and driver get: the full order with prices, the partial order without, and the delivery
 * order, which is a partial order.
 */
#include "printer_driver.h"

using namespace Qt::StringLiterals;

namespace {

// A variant adds to the item above it or takes away from it: it shows a sign in place of its quantity.
QString variantDescription(const QXmlAttributes &variant)
{
    const QString quantity = variant.value(u"quantity"_s);
    const double number = quantity.toDouble();
    const QString sign = number == -1 || number == 0 ? u"-"_s : number == 1 ? u"+"_s : quantity;
    return sign + u' ' + variant.value(u"name"_s);
}

} // namespace

void PrinterDriver::printFullOrder(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1) {
        // A name that begins with "=" keeps the item, and its column titles, off the paper.
        if (!attributes.value(u"name"_s).startsWith(u'='))
            printItem(attributes, u"qdpt"_s);
    } else if (qName == "variant"_L1) {
        println(descriptionRow(attributes.value(u"number"_s), variantDescription(attributes),
                               attributes.value(u"price"_s), attributes.value(u"totalPrice"_s), u'.',
                               u"qdpt"_s));
    } else if (qName == "total"_L1) {
        println(QString());
        setBold();
        printTotalRow(QObject::tr("TOTAL"), attributes.value(u"price"_s));
    }
}

void PrinterDriver::printPartialOrder(const QString &qName, const QXmlAttributes &attributes)
{
    const auto printRow = [&](const QString &description) {
        println(
            descriptionRow(attributes.value(u"number"_s), description, QString(), QString(), u'.', u"qd"_s));
    };

    if (printSections(qName, attributes))
        return;
    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1) {
        setCharSize();
        printRow(attributes.value(u"name"_s));
    } else if (qName == "otherreceipe"_L1) {
        setCharSize(1);
        printRow(attributes.value(u"name"_s));
    } else if (qName == "variant"_L1) {
        printRow(variantDescription(attributes));
    }
}

void PrinterDriver::printFullOrderDelivery(const QString &qName, const QXmlAttributes &attributes)
{
    // The customer is not left to the partial order, which a printer may have of its own.
    if (qName == "customer"_L1)
        printCustomerHeader(attributes);
    else
        printPartialOrder(qName, attributes);
}
