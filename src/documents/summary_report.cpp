#include "printer_driver.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/* The blocks of a period report, each printed from the attributes of one element. */
class SummaryReport
{
public:
    SummaryReport(PrinterDriver &printer, int paperWidth, const QXmlAttributes &texts)
        : driver(printer)
        , labelWidth(paperWidth - 15)
        , attributes(texts)
    {
    }

    // Deliberate: both empty lines are centred here, and only the first in the headings below.
    void printTitle()
    {
        driver.setBold();
        driver.setCenterJustify();
        driver.println(QString());
        driver.println(QObject::tr("SUMMARIES"));
        driver.println(QString());
        driver.setCharSize();
        driver.print(0, QObject::tr("BeginDate: "));
        driver.println(attributes.value(u"begindate"_s));
        driver.print(0, QObject::tr("EndDate: "));
        driver.println(attributes.value(u"enddate"_s));
    }

    void printPrefiscals()
    {
        printHeading(QObject::tr("PREFISCAL SUMMARY"));
        printFigure(QObject::tr("Number"), u"number"_s);
        printFigure(QObject::tr("TOTAL"), u"total"_s);
    }

    void printReceipts()
    {
        printHeading(QObject::tr("RECEIPTS SUMMARY"));
        printFigure(QObject::tr("Number"), u"number"_s);
        printSerials();
        driver.println(QObject::tr("Amount not paid: ") + attributes.value(u"notPaid"_s));
        driver.println(QObject::tr("Cash: ") + attributes.value(u"cash"_s));
        driver.println(QObject::tr("Credit Card: ") + attributes.value(u"creditCard"_s));
        driver.println(QObject::tr("Bancomat: ") + attributes.value(u"bancomat"_s));
        driver.println(QObject::tr("Other: ") + attributes.value(u"other"_s));
        printFigure(QObject::tr("TOTAL"), u"total"_s);
        driver.println(QString());
        driver.printSeparatorLine();
        driver.println(
            QObject::tr("TAXRATE").rightJustified(6) + u' ' + QObject::tr("TAXABLE").rightJustified(10) + u' '
            + QObject::tr("TAX").rightJustified(10) + u' ' + QObject::tr("AMOUNT").rightJustified(10));
    }

    // Deliberate: "% " puts the rows one character to the right of their titles, and each ends with a blank.
    void printTaxRate()
    {
        driver.println(attributes.value(u"taxrate"_s).rightJustified(6) + "% "_L1
                       + attributes.value(u"taxable"_s).rightJustified(10) + u' '
                       + attributes.value(u"tax"_s).rightJustified(10) + u' '
                       + attributes.value(u"amount"_s).rightJustified(10) + u' ');
    }

    void printInvoices()
    {
        driver.printSeparatorLine();
        driver.println(QString());
        printHeading(QObject::tr("INVOICES SUMMARY"));
        printFigure(QObject::tr("Number"), u"number"_s);
        printSerials();
        printFigure(QObject::tr("Taxable"), u"taxable"_s);
        printFigure(QObject::tr("Tax"), u"tax"_s);
        printFigure(QObject::tr("TOTAL"), u"total"_s);
    }

    // Bold stays on behind this block.
    void printCancelled()
    {
        printHeading(QObject::tr("CANCELLED DOC SUMMARY"));
        printFigure(QObject::tr("Number"), u"number"_s);
        printFigure(QObject::tr("TOTAL"), u"totals"_s); // Deliberate: the other summaries have "total".
        driver.setBold();
        driver.println(QString());
        printCancelledRow(QObject::tr("SERIAL"), QObject::tr("TOTAL"), QObject::tr("TAXRATE"));
        // Behind number and totals, each three attributes are one document, whatever their names.
        for (int i = 2; i < attributes.count(); i += 3)
            printCancelledRow(textAt(i), textAt(i + 1), textAt(i + 2));
    }

private:
    void printHeading(const QString &title)
    {
        driver.setBold();
        driver.setCenterJustify();
        driver.println(QString());
        driver.println(title);
        driver.setCharSize();
        driver.println(QString());
    }

    void printLabel(const QString &label) { driver.print(0, label.leftJustified(labelWidth, u'.')); }

    void printFigure(const QString &label, const QString &attribute)
    {
        printLabel(label);
        driver.println(attributes.value(attribute));
    }

    void printSerials()
    {
        printLabel(QObject::tr("Serials"));
        driver.print(0, attributes.value(u"firstserial"_s));
        driver.print(0, u" - "_s);
        driver.println(attributes.value(u"lastserial"_s));
    }

    // Empty behind the last attribute, where QXmlAttributes would read past its end.
    QString textAt(int position) const
    {
        return position < attributes.count() ? attributes.value(position) : QString();
    }

    void printCancelledRow(const QString &serial, const QString &total, const QString &taxRate)
    {
        driver.print(0, serial.leftJustified(10));
        driver.print(0, total.leftJustified(11));
        driver.println(taxRate.leftJustified(10));
    }

    PrinterDriver &driver;
    const int labelWidth; // not cut: below 1 the label stands alone
    const QXmlAttributes &attributes;
};

struct ReportBlock
{
    QLatin1StringView element;
    void (SummaryReport::*print)();
};

// Deliberate: "prefiscalssummary" has a doubled "s".
constexpr ReportBlock reportBlocks[] = {
    {"date"_L1, &SummaryReport::printTitle},
    {"prefiscalssummary"_L1, &SummaryReport::printPrefiscals},
    {"receiptssummary"_L1, &SummaryReport::printReceipts},
    {"taxrate_item"_L1, &SummaryReport::printTaxRate},
    {"invoicessummary"_L1, &SummaryReport::printInvoices},
    {"cancelledsummary"_L1, &SummaryReport::printCancelled},
};

} // namespace

void PrinterDriver::printReport(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;
    const auto *block = std::ranges::find(reportBlocks, qName, &ReportBlock::element);
    if (block == std::end(reportBlocks))
        return;
    SummaryReport report(*this, profile.paperWidth, attributes);
    (report.*block->print)();
}
