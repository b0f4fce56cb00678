#include "printer_driver.h"

#include "tx_configuration.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/* A line of a header block that the profile switches on: a label and an attribute's text. */
struct LabelledLine
{
    bool DocumentProfile::*wanted;
    const char *label;
    QLatin1StringView attribute;
};

constexpr LabelledLine orderInfoLines[] = {
    {&DocumentProfile::printDate, QT_TRANSLATE_NOOP("QObject", "Date:"), "date"_L1},
    {&DocumentProfile::printTime, QT_TRANSLATE_NOOP("QObject", "Time:"), "time"_L1},
    {&DocumentProfile::printTable, QT_TRANSLATE_NOOP("QObject", "Table:"), "table"_L1},
    {&DocumentProfile::printWaiter, QT_TRANSLATE_NOOP("QObject", "Waiter:"), "waiter"_L1},
    {&DocumentProfile::printNote, QT_TRANSLATE_NOOP("QObject", "Note:"), "note"_L1},
    {&DocumentProfile::printCredit, QT_TRANSLATE_NOOP("QObject", "Credit:"), "credit"_L1},
};

constexpr LabelledLine customerLines[] = {
    {&DocumentProfile::printTelephone, QT_TRANSLATE_NOOP("QObject", "Telephone:"), "telephone"_L1},
    {&DocumentProfile::printLicenseNumber, QT_TRANSLATE_NOOP("QObject", "License Number:"),
     "licensenumber"_L1},
    {&DocumentProfile::printFiscalCode, QT_TRANSLATE_NOOP("QObject", "Fiscal Code:"), "fiscalcode"_L1},
};

} // namespace

bool PrinterDriver::printSections(const QString &qName, const QXmlAttributes &attributes)
{
    struct Section
    {
        QLatin1StringView element;
        void (*print)(PrinterDriver &, const QXmlAttributes &);
    };
    static constexpr Section sections[] = {
        {"printers"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &printer) {
             driver.printerName = printer.value(u"name"_s);
             driver.printerCharSize = printer.value(u"charsize"_s);
             driver.printerIpAddress = printer.value(u"ipaddress"_s);
             driver.printerPort = printer.value(u"port"_s);
             driver.initPrinter();
         }},
        {"geometry"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) { driver.printGeometry(texts); }},
        {"headers"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) {
             driver.printHeaders(texts);
             driver.printPrinterInfo(); // whatever the profile says of header lines
         }},
        {"logo"_L1, [](PrinterDriver &driver, const QXmlAttributes &) { driver.printLogo(); }},
        {"company"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) { driver.printCompanyHeader(texts); }},
        {"receipt"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) { driver.printReceiptHeader(texts); }},
        {"invoice"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) { driver.printInvoiceHeader(texts); }},
        {"delivery"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) { driver.printDeliveryHeader(texts); }},
        {"orderinfo"_L1,
         [](PrinterDriver &driver, const QXmlAttributes &texts) { driver.printOrderInfo(texts); }},
    };

    const auto *section = std::ranges::find(sections, qName, &Section::element);
    if (section == std::end(sections))
        return false;
    section->print(*this, attributes);
    return true;
}

void PrinterDriver::printGeometry(const QXmlAttributes &)
{
    if (!profile.printGeometry)
        return;
    const int lines = configuration.getStrValue(documentPrefix + DocumentProfile::topMargin).toInt();
    for (int line = 0; line < lines; ++line)
        println(QString());
}

void PrinterDriver::printPrinterInfo()
{
    setCenterJustify();
    println(printerName);
    printSeparatorLine();
}

void PrinterDriver::printHeaders(const QXmlAttributes &attributes)
{
    if (!profile.printHeader)
        return;
    for (int i = 0; i < attributes.count(); ++i)
        println(attributes.value(i));
    printSeparatorLine();
}

void PrinterDriver::printCompanyHeader(const QXmlAttributes &attributes)
{
    if (!profile.printCompany)
        return;
    setCharSize();
    setCenterJustify();
    for (int i = 0; i < attributes.count(); ++i)
        println(attributes.value(i));
    setCharSize();
    printSeparatorLine();
}

// Meant so: label and number are one text here and two in the next two blocks, which shows when they are
// centred.
void PrinterDriver::printReceiptHeader(const QXmlAttributes &attributes)
{
    println(1, QObject::tr("Serial Number: ") + attributes.value(u"serialnumber"_s));
    printSeparatorLine();
}

void PrinterDriver::printInvoiceHeader(const QXmlAttributes &attributes)
{
    printLabelled(QObject::tr("Invoice Number:"), attributes.value(u"serialnumber"_s));
    printSeparatorLine();
}

void PrinterDriver::printDeliveryHeader(const QXmlAttributes &attributes)
{
    printLabelled(QObject::tr("Delivery Number:"), attributes.value(u"serialnumber"_s));
    printSeparatorLine();
}

void PrinterDriver::printOrderInfo(const QXmlAttributes &attributes)
{
    setCharSize();
    for (const auto &[wanted, label, attribute] : orderInfoLines)
        if (profile.*wanted)
            printLabelled(QObject::tr(label), attributes.value(attribute));
    if (profile.printCredit)
        credit = attributes.value(u"credit"_s);
    printSeparatorLine();
}

void PrinterDriver::printCustomerHeader(const QXmlAttributes &attributes)
{
    if (!profile.printCustomer)
        return;
    println(QObject::tr("CUSTOMER"));
    println(1, attributes.value(u"name"_s));
    if (profile.printBillingAddress)
        printAddress(attributes.value(u"billingaddress"_s));
    if (profile.printDeliveryAddress)
        printAddress(attributes.value(u"deliveryaddress"_s));
    for (const auto &[wanted, label, attribute] : customerLines)
        if (profile.*wanted)
            printLabelled(QObject::tr(label), attributes.value(attribute));
    printSeparatorLine();
}

// An empty field ends the address; one of blanks alone is an empty line of it.
void PrinterDriver::printAddress(const QString &address)
{
    for (const QStringView field : QStringView(address).split(u',')) {
        if (field.isEmpty())
            return;
        println(1, field.trimmed().toString());
    }
}
