#include "company_printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Header elements of every kind, a customer, and rows of other documents.
constexpr auto foreignElements = "<printers name='Bar'/><geometry/><headers a='x'/><logo/><company a='x'/>"
                                 "<receipt serialnumber='1'/><invoice serialnumber='1'/>"
                                 "<delivery serialnumber='1'/><orderinfo date='1'/><customer name='Rossi'/>"
                                 "<variant name='x'/><totals total='1'/><Total/><recipe/><notPaid/>";

} // namespace

class FiscalDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        home.writeConfiguration("tavolux : {"
                                "  wide : { descriptionWidth = 40; };"
                                "  narrow : { descriptionWidth = 5; };"
                                "  zero : { descriptionWidth = 0; };"
                                "  word : { descriptionWidth = wide; };"
                                "  negative : { descriptionWidth = -5; };"
                                "};");
        home.enter();
    }

    void fullFiscalDocument_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("item")
            << "<receipe department='3' number='2' name='Pizza' price='5.50' totalPrice='11.00'/>"_ba
            << calls({"printRowFiscal|3|2|Pizza|5.50|"});
        QTest::newRow("item without attributes") << "<receipe/>"_ba << calls({"printRowFiscal|||||"});
        QTest::newRow("total, with every attribute in its place")
            << "<total price='11.00' cash='20.00' another='x y' change='9.00'/>"_ba
            << calls({"printRowFiscal total|price=11.00|cash=20.00|another=x y|change=9.00|"});
        QTest::newRow("total without attributes") << "<total/>"_ba << calls({"printRowFiscal total"});
        QTest::newRow("in document order")
            << "<receipe number='1'/><total/><receipe number='2'/>"_ba
            << calls({"printRowFiscal||1|||", "printRowFiscal total", "printRowFiscal||2|||"});
        QTest::newRow("kinds of item are the abstract document's")
            << "<receipe_type department='1' number='2' name='Pizza' price='1'/>"_ba << QStringList();
        QTest::newRow("foreign elements") << QByteArray(foreignElements) << QStringList();
    }

    void fullFiscalDocument()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(everythingOn(), &PrinterDriver::printFullOrderFiscal, elements), expected);
    }

    void abstractFiscalDocument_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("kind of item, in the quantity 1")
            << "<receipe_type department='3' number='2' name='Pizza' price='11.00'/>"_ba
            << calls({"printRowFiscal|3|1|Pizza|11.00|"});
        QTest::newRow("kind of item without attributes")
            << "<receipe_type/>"_ba << calls({"printRowFiscal||1|||"});
        QTest::newRow("total, with every attribute in its place")
            << "<total price='11.00' cash='20.00' another='x y' change='9.00'/>"_ba
            << calls({"printRowFiscal total|price=11.00|cash=20.00|another=x y|change=9.00|"});
        QTest::newRow("items are the full document's")
            << "<receipe department='1' number='2' name='Pizza' price='1'/>"_ba << QStringList();
        QTest::newRow("foreign elements") << QByteArray(foreignElements) << QStringList();
    }

    void abstractFiscalDocument()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(everythingOn(), &PrinterDriver::printAbstractOrderFiscal, elements), expected);
    }

    void descriptionWidth_data()
    {
        QTest::addColumn<QString>("documentPrefix");
        QTest::addColumn<unsigned int>("deviceWidth");
        QTest::addColumn<QString>("description");

        QTest::newRow("from the configuration") << u"tavolux.narrow."_s << 34U << u"Spagh"_s;
        QTest::newRow("wider than the device")
            << u"tavolux.wide."_s << 34U << u"Spaghetti alle vongole veraci, senza p"_s;
        QTest::newRow("none: the device's")
            << u"tavolux.none."_s << 34U << u"Spaghetti alle vongole veraci, sen"_s;
        QTest::newRow("none: another device's") << u"tavolux.none."_s << 14U << u"Spaghetti alle"_s;
        QTest::newRow("0: the device's")
            << u"tavolux.zero."_s << 34U << u"Spaghetti alle vongole veraci, sen"_s;
        QTest::newRow("no number: the device's")
            << u"tavolux.word."_s << 34U << u"Spaghetti alle vongole veraci, sen"_s;
        QTest::newRow("negative: not cut")
            << u"tavolux.negative."_s << 34U << u"Spaghetti alle vongole veraci, senza p"_s;
    }

    void descriptionWidth()
    {
        QFETCH(const QString, documentPrefix);
        QFETCH(const unsigned int, deviceWidth);
        QFETCH(const QString, description);

        RecordingDriver driver;
        driver.documentPrefix = documentPrefix;
        driver.deviceWidth = deviceWidth;
        driver.profile = profileOfWidth(20); // of no consequence
        readElements("<receipe name='Spaghetti alle vongole veraci, senza p'/>",
                     [&](const QString &qName, const QXmlAttributes &attributes) {
                         driver.printFullOrderFiscal(qName, attributes);
                     });
        QCOMPARE(driver.calls, QStringList{u"printRowFiscal|||"_s + description + u"||"_s});
    }

    void abstractDescriptionIsNeverCut()
    {
        RecordingDriver driver;
        driver.documentPrefix = u"tavolux.narrow."_s;
        readElements("<receipe_type name='Spaghetti alle vongole veraci, senza p'/>",
                     [&](const QString &qName, const QXmlAttributes &attributes) {
                         driver.printAbstractOrderFiscal(qName, attributes);
                     });
        QCOMPARE(driver.calls, calls({"printRowFiscal||1|Spaghetti alle vongole veraci, senza p||"}));
    }

    void plainTextPrinterPrintsNothing()
    {
        const QByteArray elements = QByteArray(foreignElements)
            + "<receipe name='Pizza' number='1' price='1'/><receipe_type name='Pizza'/><total price='1'/>";
        QCOMPARE(printedText(everythingOn(), &PrinterDriver::printFullOrderFiscal, elements), ""_ba);
        QCOMPARE(printedText(everythingOn(), &PrinterDriver::printAbstractOrderFiscal, elements), ""_ba);
    }

private:
    static DocumentProfile everythingOn()
    {
        DocumentProfile profile = profileOfWidth(40);
        profile.printHeader = true;
        profile.printCompany = true;
        profile.printDate = true;
        profile.printCustomer = true;
        return profile;
    }

    const TemporaryHome home;
};

QTEST_GUILESS_MAIN(FiscalDocumentsTest)
#include "fiscal_documents_test.moc"
