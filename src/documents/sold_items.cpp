#include "printer_driver.h"

using namespace Qt::StringLiterals;

void PrinterDriver::printSold(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    if (qName == "receipe"_L1) {
        setBold();
        println(descriptionRow(attributes.value(u"quantity"_s), attributes.value(u"description"_s), QString(),
                               attributes.value(u"amount"_s), u'.', u"qxdpt"_s));
        setCharSize();
    }
}
