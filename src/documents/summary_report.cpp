#include "printer_driver.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/* The blocks of a period report, each printed from the attributes of one element. */
class SummaryReport
{
public:
    SummaryReport(PrinterDriver &driver, int labelWidth, const QXmlAttributes &attributes)
        : m_driver(driver)
        , m_labelWidth(labelWidth)
        , m_attributes(attributes)
    {
    }

    // Deliberate: both empty lines are centred here, and only the first in the headings below.
    void printTitle()
    {
        m_driver.setBold();
        m_driver.setCenterJustify();
        m_driver.println(QString());
        m_driver.println(QObject::tr("SUMMARIES"));
        m_driver.println(QString());
        m_driver.setCharSize();
        m_driver.print(0, QObject::tr("BeginDate: "));
        m_driver.println(m_attributes.value(u"begindate"_s));
        m_driver.print(0, QObject::tr("EndDate: "));
        m_driver.println(m_attributes.value(u"enddate"_s));
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
        m_driver.println(QObject::tr("Amount not paid: ") + m_attributes.value(u"notPaid"_s));
        m_driver.println(QObject::tr("Cash: ") + m_attributes.value(u"cash"_s));
        m_driver.println(QObject::tr("Credit Card: ") + m_attributes.value(u"creditCard"_s));
        m_driver.println(QObject::tr("Bancomat: ") + m_attributes.value(u"bancomat"_s));
        m_driver.println(QObject::tr("Other: ") + m_attributes.value(u"other"_s));
        printFigure(QObject::tr("TOTAL"), u"total"_s);
        m_driver.println(QString());
        m_driver.printSeparatorLine();
        m_driver.println(
            QObject::tr("TAXRATE").rightJustified(6) + u' ' + QObject::tr("TAXABLE").rightJustified(10) + u' '
            + QObject::tr("TAX").rightJustified(10) + u' ' + QObject::tr("AMOUNT").rightJustified(10));
    }

    // Deliberate: "% " puts the rows one character to the right of their titles, and each ends with a blank.
    void printTaxRate()
    {
        m_driver.println(m_attributes.value(u"taxrate"_s).rightJustified(6) + "% "_L1
                         + m_attributes.value(u"taxable"_s).rightJustified(10) + u' '
                         + m_attributes.value(u"tax"_s).rightJustified(10) + u' '
                         + m_attributes.value(u"amount"_s).rightJustified(10) + u' ');
    }

    void printInvoices()
    {
        m_driver.printSeparatorLine();
        m_driver.println(QString());
        printHeading(QObject::tr("INVOICES SUMMARY"));
        printFigure(QObject::tr("Number"), u"number"_s);
        printSerials();
        printFigure(QObject::tr("Taxable"), u"taxable"_s);
        printFigure(QObject::tr("Tax"), u"tax"_s);
        printFigure(QObject::tr("TOTAL"), u"total"_s);
    }

    // Bold stays on after this block.
    void printCancelled()
    {
        printHeading(QObject::tr("CANCELLED DOC SUMMARY"));
        printFigure(QObject::tr("Number"), u"number"_s);
        printFigure(QObject::tr("TOTAL"), u"totals"_s); // Deliberate: the other summaries have "total".
        m_driver.setBold();
        m_driver.println(QString());
        printCancelledRow(QObject::tr("SERIAL"), QObject::tr("TOTAL"), QObject::tr("TAXRATE"));
        // After number and totals, each three attributes are one document, whatever their names.
        for (int i = 2; i < m_attributes.count(); i += 3)
            printCancelledRow(textAt(i), textAt(i + 1), textAt(i + 2));
    }

private:
    void printHeading(const QString &title)
    {
        m_driver.setBold();
        m_driver.setCenterJustify();
        m_driver.println(QString());
        m_driver.println(title);
        m_driver.setCharSize();
        m_driver.println(QString());
    }

    void printLabel(const QString &label) { m_driver.print(0, label.leftJustified(m_labelWidth, u'.')); }

    void printFigure(const QString &label, const QString &attribute)
    {
        printLabel(label);
        m_driver.println(m_attributes.value(attribute));
    }

    void printSerials()
    {
        printLabel(QObject::tr("Serials"));
        m_driver.print(0, m_attributes.value(u"firstserial"_s));
        m_driver.print(0, u" - "_s);
        m_driver.println(m_attributes.value(u"lastserial"_s));
    }

    // Empty after the last attribute, where QXmlAttributes would read past its end.
    QString textAt(int position) const
    {
        return position < m_attributes.count() ? m_attributes.value(position) : QString();
    }

    void printCancelledRow(const QString &serial, const QString &total, const QString &taxRate)
    {
        m_driver.print(0, serial.leftJustified(10));
        m_driver.print(0, total.leftJustified(11));
        m_driver.println(taxRate.leftJustified(10));
    }

    PrinterDriver &m_driver;
    const int m_labelWidth; // not cut: below 1 the label stands alone
    const QXmlAttributes &m_attributes;
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
    SummaryReport report(*this, profile.besideFigures(), attributes);
    (report.*block->print)();
}
