#include "captured_output.h"
#include "paper_driver.h"
#include "print_document.h"
#include "print_output.h"
#include "recording_driver.h"
#include "recording_paper.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class OpenDriver : public PaperDriver
{
public:
    using PaperDriver::PaperDriver;
    using PrinterDriver::profile;
};

/* What the operation brings to the paper, with a profile of 16 columns. */
QStringList brought(const std::function<void(OpenDriver &)> &operation)
{
    const TXConfiguration configuration({}, {});
    QStringList calls;
    {
        OpenDriver driver(configuration, nullptr, std::make_unique<RecordingPaper>(calls));
        driver.profile.paperWidth = 16;
        operation(driver);
    }
    return calls;
}

} // namespace

class PaperDriverTest : public QObject
{
    Q_OBJECT

private:
    /* What a whole document brings to the paper. */
    QStringList broughtBy(QByteArray document) const
    {
        const TXConfiguration configuration(m_file, u"cfg"_s);
        const CapturedOutput diagnostics;
        QStringList calls;
        OpenDriver driver(configuration, nullptr, std::make_unique<RecordingPaper>(calls));
        QBuffer source(&document);
        printDocument(source, driver);
        return calls;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_file = m_home.writeFile(u"test.conf"_s,
                                  "tavolux : { receiptdoc : { paperWidth = 16; openCashDrawer = true; };"
                                  " invoicedoc : { printGeometry = true; topMargin = 2000000000; }; };");
    }

    void nothingIsBegunWithoutNeed()
    {
        QCOMPARE(brought([](OpenDriver &driver) {
                     driver.startDocument();
                     driver.setBold();
                     driver.setCharSize(1);
                     driver.setCenterJustify();
                     driver.startSection();
                     driver.endSection();
                     driver.finish(Ending::complete);
                 }),
                 QStringList());
    }

    void paperIsBegunOnceAndEndedOnce()
    {
        QCOMPARE(brought([](OpenDriver &driver) {
                     driver.print(0, u"a"_s);
                     driver.println(u"b"_s);
                     driver.finish(Ending::complete);
                 }),
                 calls({"begin", "|a|", "|b|", "endLine", "end complete 1"}));
    }

    void paperThatNobodyEndedIsIncomplete()
    {
        QCOMPARE(brought([](OpenDriver &driver) { driver.print(0, u"a"_s); }),
                 calls({"begin", "|a|", "end incomplete 1"}));
    }

    void nothingPrintedAndIncompleteIsToldOnPaper()
    {
        QCOMPARE(brought([](OpenDriver &driver) { driver.finish(Ending::incomplete); }),
                 calls({"begin", "end incomplete 1"}));
    }

    void documents_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("expected");

        const QByteArray receipt = "<d><method name='printFullOrderReceipt'/><notPaid price='1'/>";
        QTest::newRow("complete, with the drawer")
            << receipt + "</d>"
            << calls({"begin", "||", "endLine", "|    Amount not paid: 1|", "endLine", "openDrawer",
                      "end complete 1"});
        QTest::newRow("fault, without the drawer")
            << receipt
            << calls({"begin", "||", "endLine", "|    Amount not paid: 1|", "endLine", "end incomplete 1"});
        QTest::newRow("unknown method")
            << "<d><method name='x'/></d>"_ba << calls({"begin", "end incomplete 1"});
        QTest::newRow("nothing printed") << "<d><method name='printSold'/></d>"_ba << QStringList();
        QTest::newRow("twice") << "<d><method name='printAbstractOrderInvoice'/><logo/></d>"_ba
                               << calls({"begin", "logo", "end complete 2"});
        QTest::newRow("control characters")
            << "<d><method name='printSold'/><delivery serialnumber='a&#10;b&#27;c&#9;d&#127;e&#155;'/></d>"_ba
            << calls({"begin", "| |", "|Delivery Number:|", "| |", "|a?b?c?d?e?|", "endLine",
                      "|====================|", "endLine", "end complete 1"});
    }

    void documents()
    {
        QFETCH(const QByteArray, document);
        QTEST(broughtBy(document), "expected");
    }

    void longWorkEndsWithThePaper()
    {
        QCOMPARE(broughtBy("<d><method name='printFullOrderInvoice'/><geometry/></d>").count(u"endLine"_s),
                 1000);
    }

    void placing_data()
    {
        QTest::addColumn<bool>("centred");
        QTest::addColumn<int>("profileWidth");
        QTest::addColumn<unsigned int>("indent");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("blanks");

        QTest::newRow("left") << false << 16 << 0U << u"12345"_s << 0;
        QTest::newRow("indented") << false << 16 << 3U << u"12345"_s << 3;
        QTest::newRow("indented, as wide as the line") << false << 16 << 3U << u"1234567890123456"_s << 3;
        QTest::newRow("indented, wider than the line") << false << 16 << 3U << u"12345678901234567"_s << 0;
        QTest::newRow("centred in the profile's paper") << true << 16 << 9U << u"12345"_s << 5; // 11 / 2
        QTest::newRow("centred in the device's paper") << true << 48 << 9U << u"12345"_s << 7; // 15 / 2
        QTest::newRow("centred without a profile") << true << 0 << 9U << u"12345"_s << 7;
        QTest::newRow("centred, a negative width") << true << -5 << 9U << u"12345"_s << 7;
        QTest::newRow("centred by columns, not characters")
            << true << 16 << 0U << u"1\u20AC34"_s << 5; // 10 / 2
        QTest::newRow("centred, wider than the line") << true << 16 << 0U << u"12345678901234567"_s << 0;
        QTest::newRow("centred, nothing") << true << 16 << 0U << u""_s << 8;
    }

    void placing()
    {
        QFETCH(const bool, centred);
        QFETCH(const int, profileWidth);
        QFETCH(const unsigned int, indent);
        QFETCH(const QString, text);
        QFETCH(const int, blanks);

        QStringList expected = {u"begin"_s};
        if (blanks > 0)
            expected += u'|' + QString(blanks, u' ') + u'|';
        expected += {u'|' + text + u'|', u"end complete 1"_s};
        QCOMPARE(brought([&](OpenDriver &driver) {
                     driver.profile.paperWidth = profileWidth;
                     if (centred)
                         driver.setCenterJustify();
                     driver.print(indent, text);
                     driver.finish(Ending::complete);
                 }),
                 expected);
    }

    // Centred as one text, and then a line end ends the line.
    void twoLinesInOneText()
    {
        QCOMPARE(brought([](OpenDriver &driver) {
                     driver.println(2, u"2 x 1.50\nPizza"_s);
                     driver.finish(Ending::complete);
                 }),
                 calls({"begin", "|  |", "|2 x 1.50|", "endLine", "|Pizza|", "endLine", "end complete 1"}));
    }

    void style_data()
    {
        QTest::addColumn<std::function<void(OpenDriver &)>>("set");
        QTest::addColumn<QString>("style");
        using Set = std::function<void(OpenDriver &)>;
        QTest::newRow("none") << Set([](OpenDriver &) {}) << QString();
        QTest::newRow("bold") << Set([](OpenDriver &driver) { driver.setBold(); }) << u"bold"_s;
        QTest::newRow("size 1") << Set([](OpenDriver &driver) { driver.setCharSize(1); }) << u"high"_s;
        QTest::newRow("size 0") << Set([](OpenDriver &driver) { driver.setCharSize(0); }) << QString();
        QTest::newRow("bold in size 1") << Set([](OpenDriver &driver) {
            driver.setCharSize(1);
            driver.setBold();
        }) << u"boldhigh"_s;
        QTest::newRow("a size ends bold") << Set([](OpenDriver &driver) {
            driver.setBold();
            driver.setCharSize(1);
        }) << u"high"_s;
        QTest::newRow("the first size ends all") << Set([](OpenDriver &driver) {
            driver.setBold();
            driver.setCharSize(1);
            driver.setBold();
            driver.setCharSize();
        }) << QString();
        QTest::newRow("a reset ends all") << Set([](OpenDriver &driver) {
            driver.setCharSize(1);
            driver.setBold();
            driver.reset();
        }) << QString();
    }

    void style()
    {
        QFETCH(const std::function<void(OpenDriver &)>, set);
        QFETCH(const QString, style);
        QCOMPARE(brought([&](OpenDriver &driver) {
                     set(driver);
                     driver.print(1, u"a"_s);
                     driver.finish(Ending::complete);
                 }),
                 (QStringList{u"begin"_s, style + u"| |"_s, style + u"|a|"_s, u"end complete 1"_s}));
    }

    void resetKeepsCentring()
    {
        QCOMPARE(brought([](OpenDriver &driver) {
                     driver.setCenterJustify();
                     driver.reset();
                     driver.print(0, u"ab"_s);
                     driver.setCharSize(2);
                     driver.print(0, u"ab"_s);
                     driver.finish(Ending::complete);
                 }),
                 calls({"begin", "|       |", "|ab|", "high|ab|", "end complete 1"}));
    }

    void deviceOperations()
    {
        QCOMPARE(brought([](OpenDriver &driver) {
                     driver.printLogo();
                     driver.fullCut();
                     driver.generatePulse();
                     driver.openCashDrawer();
                     driver.finish(Ending::complete);
                 }),
                 calls({"begin", "logo", "cut", "openDrawer", "openDrawer", "end complete 1"}));
    }

private:
    TemporaryHome m_home;
    QString m_file;
};

QTEST_GUILESS_MAIN(PaperDriverTest)
#include "paper_driver_test.moc"
