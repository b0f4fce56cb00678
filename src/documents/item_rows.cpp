/*
 * The rows that several documents share.
 */
#include "printer_driver.h"

using namespace Qt::StringLiterals;

const PrinterDriver::ColumnTitles &PrinterDriver::titles()
{
    if (!m_columnTitles)
        m_columnTitles = {QObject::tr("Num"), QObject::tr("Description"), QObject::tr("Price"),
                          QObject::tr("Amount")};
    return *m_columnTitles;
}

void PrinterDriver::printItem(const QXmlAttributes &item, const QString &format)
{
    const auto &[number, description, price, amount] = titles();
    printColumnsHeader(number, description, price, amount);
    println(descriptionRow(item.value(u"number"_s), item.value(u"name"_s), item.value(u"price"_s),
                           item.value(u"totalPrice"_s), u'.', format));
}

void PrinterDriver::printItemType(const QXmlAttributes &itemType)
{
    printColumnsHeader(titles().number, titles().description, QString(), titles().price);
    println(descriptionRow(itemType.value(u"number"_s), itemType.value(u"name"_s), QString(),
                           itemType.value(u"price"_s), u'.', u"qxdpt"_s));
}

void PrinterDriver::printTotalRow(const QString &label, const QString &amount)
{
    println(descriptionRow(QString(), label, QString(), amount, u'.', u"qdpt"_s));
}
