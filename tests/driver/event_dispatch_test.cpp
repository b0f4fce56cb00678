#include "captured_output.h"
#include "company_printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* Lists which document routine gets which element, and the profile that a section starts with. */
class DispatchRecorder : public RecordingDriver
{
public:
    void startSection() override
    {
        note(u"startSection"_s, {documentPrefix, QString::number(profile.paperWidth)});
    }

#define ROUTINE(name)                                                                                        \
    void name(const QString &qName, const QXmlAttributes &attributes) override                               \
    {                                                                                                        \
        note(u## #name##_s, {qName, attributes.value(u"name"_s)});                                           \
    }
    ROUTINE(printPartialOrder)
    ROUTINE(printFullOrder)
    ROUTINE(printFullOrderReceipt)
    ROUTINE(printFullOrderInvoice)
    ROUTINE(printFullOrderDelivery)
    ROUTINE(printFullOrderFiscal)
    ROUTINE(printAbstractOrder)
    ROUTINE(printAbstractOrderReceipt)
    ROUTINE(printAbstractOrderInvoice)
    ROUTINE(printAbstractOrderFiscal)
    ROUTINE(printReport)
    ROUTINE(printSold)
    ROUTINE(printStatementOfAccount)
#undef ROUTINE
};

bool startElement(PrinterDriver &driver, const QString &qName, const QString &name = {})
{
    QXmlAttributes attributes;
    if (!name.isNull())
        attributes.append(u"name"_s, QString(), u"name"_s, name);
    return driver.startElement(QString(), qName, qName, attributes);
}

} // namespace

class EventDispatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        home.writeConfiguration("tavolux : {"
                                "  doc : { paperWidth = 41; };"
                                "  prefiscaldoc : { paperWidth = 42; };"
                                "  fiscaldoc : { paperWidth = 43; };"
                                "  receiptdoc : { paperWidth = 44; openCashDrawer = true; };"
                                "  invoicedoc : { paperWidth = 45; };"
                                "  deliverydoc : { paperWidth = 46; };"
                                "  reportdoc : { paperWidth = 47; };"
                                "  solddoc : { paperWidth = 48; };"
                                "};");
        home.enter();
    }

    void methods_data()
    {
        QTest::addColumn<QString>("prefixAndWidth");
        QTest::addColumn<bool>("duplicateAfterInvoice");
        QTest::addColumn<bool>("duplicateAfterFiscal");

        const auto unchanged = [](const char *method, const QString &prefixAndWidth) {
            QTest::newRow(method) << prefixAndWidth << true << false;
        };
        unchanged("printPartialOrder", u"tavolux.doc.|41"_s);
        unchanged("printFullOrder", u"tavolux.prefiscaldoc.|42"_s);
        unchanged("printFullOrderReceipt", u"tavolux.receiptdoc.|44"_s);
        QTest::newRow("printFullOrderInvoice") << u"tavolux.invoicedoc.|45"_s << true << true;
        unchanged("printFullOrderDelivery", u"tavolux.deliverydoc.|46"_s);
        QTest::newRow("printFullOrderFiscal") << u"tavolux.fiscaldoc.|43"_s << false << false;
        unchanged("printAbstractOrder", u"tavolux.doc.|41"_s);
        unchanged("printAbstractOrderReceipt", u"tavolux.receiptdoc.|44"_s);
        QTest::newRow("printAbstractOrderInvoice") << u"tavolux.invoicedoc.|45"_s << true << true;
        QTest::newRow("printAbstractOrderFiscal") << u"tavolux.fiscaldoc.|43"_s << false << false;
        unchanged("printReport", u"tavolux.reportdoc.|47"_s);
        unchanged("printSold", u"tavolux.solddoc.|48"_s);
        unchanged("printStatementOfAccount", u"tavolux.reportdoc.|47"_s);
    }

    void methods()
    {
        QFETCH(const QString, prefixAndWidth);
        QFETCH(const bool, duplicateAfterInvoice);
        QFETCH(const bool, duplicateAfterFiscal);
        const QString method = QString::fromLatin1(QTest::currentDataTag());

        DispatchRecorder driver;
        QVERIFY(startElement(driver, u"method"_s, method));
        QVERIFY(startElement(driver, u"receipe"_s, u"Pizza"_s));
        QVERIFY(startElement(driver, u"whatever"_s, u"x"_s));
        QCOMPARE(driver.calls,
                 (QStringList{u"startSection|"_s + prefixAndWidth + u'|', method + u"|receipe|Pizza|"_s,
                              method + u"|whatever|x|"_s}));

        startElement(driver, u"method"_s, u"printFullOrderInvoice"_s);
        startElement(driver, u"method"_s, method);
        QCOMPARE(driver.printDuplicate(), duplicateAfterInvoice);

        startElement(driver, u"method"_s, u"printFullOrderFiscal"_s);
        startElement(driver, u"method"_s, method);
        QCOMPARE(driver.printDuplicate(), duplicateAfterFiscal);
    }

    void sectionStartsWithWhetherToPrintTwice()
    {
        class SectionDriver : public RecordingDriver
        {
        public:
            void startSection() override { note(printDuplicate() ? u"twice"_s : u"once"_s); }
        };
        SectionDriver driver;
        startElement(driver, u"method"_s, u"printFullOrderInvoice"_s);
        startElement(driver, u"method"_s, u"printFullOrderFiscal"_s);
        QCOMPARE(driver.calls, calls({"twice", "once"}));
    }

    void invoiceAndThenFiscalIsNoDuplicate()
    {
        DispatchRecorder driver;
        QVERIFY(!driver.printDuplicate());
        startElement(driver, u"method"_s, u"printAbstractOrderInvoice"_s);
        QVERIFY(driver.printDuplicate());
        startElement(driver, u"method"_s, u"printAbstractOrderFiscal"_s);
        QVERIFY(!driver.printDuplicate());
    }

    void wholeDocument()
    {
        DispatchRecorder driver;
        QVERIFY(
            readDocument("<order name='root'><receipe name='too early'/>"
                         "<method name='printFullOrder'>text <receipe name='Pizza'>text</receipe></method>"
                         "<list name='outer'><variant name='inner'/></list>text</order>",
                         driver));
        QCOMPARE(driver.calls,
                 calls({
                     "reset",
                     "startSection|tavolux.prefiscaldoc.|42|",
                     "printFullOrder|receipe|Pizza|",
                     "printFullOrder|list|outer|",
                     "printFullOrder|variant|inner|",
                     "endSection",
                 }));
    }

    void documentWithoutMethod()
    {
        DispatchRecorder driver;
        QVERIFY(readDocument("<order><headers name='x'/><receipe name='Pizza'/><Method name='printSold'/>"
                             "<total/></order>",
                             driver));
        QCOMPARE(driver.calls, calls({"reset", "endSection"}));
    }

    void secondMethodSwitchesRoutineAndProfile()
    {
        DispatchRecorder driver;
        QVERIFY(driver.oneTime());
        QVERIFY(readDocument("<order><method name='printFullOrderInvoice'/><receipe name='a'/>"
                             "<method name='printSold'/><receipe name='b'/></order>",
                             driver));
        QCOMPARE(driver.calls,
                 calls({
                     "reset",
                     "startSection|tavolux.invoicedoc.|45|",
                     "printFullOrderInvoice|receipe|a|",
                     "startSection|tavolux.solddoc.|48|",
                     "printSold|receipe|b|",
                     "endSection",
                 }));
        QVERIFY(driver.printDuplicate()); // the invoice's
        QVERIFY(!driver.oneTime()); // used up for the whole run
    }

    void methodIsTheRootElement()
    {
        DispatchRecorder driver;
        QVERIFY(readDocument("<method name='printSold'><receipe name='a'/></method>", driver));
        QCOMPARE(driver.calls,
                 calls({"reset", "startSection|tavolux.solddoc.|48|", "printSold|receipe|a|", "endSection"}));
    }

    void namesLikeMethodAreOrdinaryElements()
    {
        DispatchRecorder driver;
        QVERIFY(readDocument(
            "<order><method name='printSold'/><Method name='printReport'/>"
            "<methods name='printReport'/><t:method xmlns:t='urn:t' name='printReport'/></order>",
            driver));
        QCOMPARE(driver.calls,
                 calls({
                     "reset",
                     "startSection|tavolux.solddoc.|48|",
                     "printSold|Method|printReport|",
                     "printSold|methods|printReport|",
                     "printSold|t:method|printReport|",
                     "endSection",
                 }));
    }

    void unknownMethodStops_data()
    {
        QTest::addColumn<QByteArray>("method");

        QTest::newRow("lower case") << "<method name='printfullorder'/>"_ba;
        QTest::newRow("unknown") << "<method name='printMenu'/>"_ba;
        QTest::newRow("trailing blank") << "<method name='printSold '/>"_ba;
        QTest::newRow("leading blank") << "<method name=' printSold'/>"_ba;
        QTest::newRow("beginning of a name") << "<method name='printFull'/>"_ba;
        QTest::newRow("an operation that is no document") << "<method name='printHeaders'/>"_ba;
        QTest::newRow("empty") << "<method name=''/>"_ba;
        QTest::newRow("no name") << "<method/>"_ba;
        QTest::newRow("misspelt attribute") << "<method Name='printSold'/>"_ba;
    }

    void unknownMethodStops()
    {
        QFETCH(const QByteArray, method);

        DispatchRecorder driver;
        const CapturedOutput diagnostics;
        QVERIFY(!readDocument("<order>" + method + "<receipe name='Pizza'/></order>", driver));
        QCOMPARE(diagnostics.text(), "File Format Not Supported\n"_ba);
        QCOMPARE(driver.calls, calls({"reset"})); // no section, neither begun nor ended
    }

    void unknownMethodAfterAKnownOne()
    {
        DispatchRecorder driver;
        const CapturedOutput diagnostics;
        QVERIFY(startElement(driver, u"method"_s, u"printFullOrderInvoice"_s));
        QVERIFY(!startElement(driver, u"method"_s, u"printfullorderinvoice"_s));
        // A reader that went on would print nothing more.
        QVERIFY(startElement(driver, u"receipe"_s, u"Pizza"_s));
        QCOMPARE(driver.calls, calls({"startSection|tavolux.invoicedoc.|45|"}));
        QCOMPARE(driver.documentPrefix, u"tavolux.invoicedoc."_s);
        QVERIFY(driver.printDuplicate());
        QCOMPARE(diagnostics.text(), "File Format Not Supported\n"_ba);
    }

    void everyEventButAnUnknownMethodGoesOn()
    {
        DispatchRecorder driver;
        QVERIFY(driver.startDocument());
        QVERIFY(startElement(driver, u"order"_s));
        QVERIFY(driver.endElement(QString(), u"order"_s, u"order"_s));
        QVERIFY(driver.endDocument());
        QCOMPARE(driver.calls, calls({"reset", "endSection"}));
    }

    void abstractOrderPrintsNothing()
    {
        RecordingDriver driver;
        QVERIFY(
            readDocument("<order><method name='printAbstractOrder'/><headers a='x'/><receipe name='Pizza'/>"
                         "<total price='1'/></order>",
                         driver));
        QCOMPARE(driver.calls, calls({"reset", "startSection", "endSection"}));
    }

    void drawerOpensBehindAllText_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("switched on")
            << "<order><method name='printFullOrderReceipt'/><notPaid price='1'/></order>"_ba
            << "\n    Amount not paid: 1\n\x1Bp0"_ba;
        QTest::newRow("switched off")
            << "<order><method name='printSold'/><delivery serialnumber='5'/></order>"_ba
            << " Delivery Number: 5\n"
               "================================================\n"_ba;
        QTest::newRow("switched on by the last method")
            << "<order><method name='printSold'/><method name='printFullOrderReceipt'/></order>"_ba
            << "\x1Bp0"_ba;
        QTest::newRow("switched off by the last method")
            << "<order><method name='printFullOrderReceipt'/><method name='printSold'/></order>"_ba
            << ""_ba;
        QTest::newRow("no method") << "<order><notPaid price='1'/></order>"_ba
                                   << ""_ba;
        QTest::newRow("fault in the document")
            << "<order><method name='printFullOrderReceipt'/><notPaid price='1'/></Order>"_ba
            << "\n    Amount not paid: 1\n"_ba;
        QTest::newRow("fault after the document")
            << "<order><method name='printFullOrderReceipt'/><notPaid price='1'/></order>more"_ba
            << "\n    Amount not paid: 1\n"_ba;
        QTest::newRow("unknown method after a known one")
            << "<order><method name='printFullOrderReceipt'/><notPaid price='1'/><method name='x'/>"
               "<notPaid price='2'/></order>"_ba
            << "\n    Amount not paid: 1\n"_ba;
    }

    void drawerOpensBehindAllText()
    {
        QFETCH(const QByteArray, document);
        QFETCH(const QByteArray, expected);

        const CapturedOutput ignored;
        const QString paper = home.filePath(u"paper"_s);
        {
            CompanyPrinterDriver driver(paper, false);
            readDocument(document, driver);
        }
        QCOMPARE(fileBytes(paper), expected);
    }

private:
    const TemporaryHome home;
};

QTEST_GUILESS_MAIN(EventDispatchTest)
#include "event_dispatch_test.moc"
