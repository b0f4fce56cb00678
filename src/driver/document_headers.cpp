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

struct PrinterDriver::Section
{
    QLatin1StringView element;
    void (PrinterDriver::*print)(const QXmlAttributes &);
};

const PrinterDriver::Section *PrinterDriver::section(const QString &qName)
{
    static constexpr Section sections[] = {
        {"printers"_L1, &PrinterDriver::takePrinter},
        {"geometry"_L1, &PrinterDriver::printGeometry},
        {"headers"_L1, &PrinterDriver::printHeadersAndPrinter},
        {"logo"_L1, &PrinterDriver::printLogoSection},
        {"company"_L1, &PrinterDriver::printCompanyHeader},
        {"receipt"_L1, &PrinterDriver::printReceiptHeader},
        {"invoice"_L1, &PrinterDriver::printInvoiceHeader},
        {"delivery"_L1, &PrinterDriver::printDeliveryHeader},
        {"orderinfo"_L1, &PrinterDriver::printOrderInfo},
    };
    const auto *found = std::ranges::find(sections, qName, &Section::element);
    return found == std::end(sections) ? nullptr : found;
}

bool PrinterDriver::printSections(const QString &qName, const QXmlAttributes &attributes)
{
    const Section *const known = section(qName);
    if (known)
        (this->*known->print)(attributes);
    return known;
}

void PrinterDriver::takePrinter(const QXmlAttributes &attributes)
{
    printerName = attributes.value(u"name"_s);
    printerCharSize = attributes.value(u"charsize"_s);
    printerIpAddress = attributes.value(u"ipaddress"_s);
    printerPort = attributes.value(u"port"_s);
    initPrinter();
}

void PrinterDriver::printHeadersAndPrinter(const QXmlAttributes &attributes)
{
    printHeaders(attributes);
    printPrinterInfo(); // whatever the profile says of header lines
}

// Whatever the profile says of the logo.
void PrinterDriver::printLogoSection(const QXmlAttributes &)
{
    printLogo();
}

void PrinterDriver::printGeometry(const QXmlAttributes &)
{
    if (!profile.printGeometry)
        return;
    const int lines = configuration.getStrValue(documentPrefix + DocumentProfile::topMargin).toInt();
    for (int line = 0; line < lines && takesMore(); ++line)
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

// Deliberate: label and number are one text here and two in the next two blocks, which shows when they are
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
