#include "company_printer_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* What the printer puts on paper while the operation runs, with the drawer switched off and on. */
QByteArray printed(const std::function<void(CompanyPrinterDriver &)> &operation)
{
    return printedText(profileOfWidth(40), operation);
}
QByteArray printedWithDrawer(const std::function<void(CompanyPrinterDriver &)> &operation)
{
    DocumentProfile profile = profileOfWidth(40);
    profile.openCashDrawer = true;
    return printedText(profile, operation);
}

constexpr auto ten = "1234567890";

} // namespace

class CompanyPrinterDriverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paperWidthIsTheDevices()
    {
        printed([](const CompanyPrinterDriver &printer) { QCOMPARE(printer.getPaperWidth(), 34U); });
    }

    void placement_data()
    {
        QTest::addColumn<bool>("centred");
        QTest::addColumn<unsigned int>("indent");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("expected");

        const QString text33 = QString(33, u'x');
        const QString text34 = QString(34, u'x');
        const QString text35 = QString(35, u'x');
        const QString text40 = QString(40, u'x');

        QTest::newRow("left, no indent") << false << 0U << u"pizza"_s << "pizza"_ba;
        QTest::newRow("left, indent") << false << 4U << u"abc"_s << "    abc"_ba;
        QTest::newRow("left, indent of an empty text") << false << 1U << QString() << " "_ba;
        QTest::newRow("left, nothing") << false << 0U << QString() << ""_ba;
        QTest::newRow("left, as wide as the paper") << false << 5U << text34 << "     " + text34.toLatin1();
        QTest::newRow("left, wider by one: no indent") << false << 5U << text35 << text35.toLatin1();
        QTest::newRow("left, wider: no indent") << false << 5U << text40 << text40.toLatin1();
        QTest::newRow("left, indent beyond the paper") << false << 40U << u"x"_s << QByteArray(40, ' ') + "x";
        QTest::newRow("centred, odd length: rounded down")
            << true << 0U << u"seven77"_s << "             seven77"_ba; // 13
        QTest::newRow("centred, even length, indent ignored")
            << true << 9U << u"ab"_s << "                ab"_ba; // 16
        QTest::newRow("centred, one character") << true << 0U << u"x"_s << "                x"_ba; // 16
        QTest::newRow("centred, nothing") << true << 1U << QString() << QByteArray(17, ' ');
        QTest::newRow("centred, 32 characters")
            << true << 0U << QString(32, u'x') << " " + QByteArray(32, 'x');
        QTest::newRow("centred, one less than the paper") << true << 0U << text33 << text33.toLatin1();
        QTest::newRow("centred, as wide as the paper") << true << 0U << text34 << text34.toLatin1();
        QTest::newRow("centred, wider, indent ignored") << true << 5U << text35 << text35.toLatin1();
        QTest::newRow("centred, characters and not bytes count")
            << true << 0U << u"però €"_s << "              però €"_ba; // 14
    }

    void placement()
    {
        QFETCH(const bool, centred);
        QFETCH(const unsigned int, indent);
        QFETCH(const QString, text);
        QFETCH(const QByteArray, expected);

        const auto justify = [&](CompanyPrinterDriver &printer) {
            if (centred)
                printer.setCenterJustify();
        };
        QCOMPARE(printed([&](CompanyPrinterDriver &printer) {
                     justify(printer);
                     printer.print(indent, text);
                 }),
                 expected);
        QCOMPARE(printed([&](CompanyPrinterDriver &printer) {
                     justify(printer);
                     printer.println(indent, text);
                 }),
                 expected + "\n");
    }

    void lineWithoutIndent()
    {
        QCOMPARE(printed([](CompanyPrinterDriver &printer) { printer.println(u"pizza"_s); }), "pizza\n"_ba);
        QCOMPARE(printed([](CompanyPrinterDriver &printer) {
                     printer.setCenterJustify();
                     printer.println(u"pizza"_s);
                 }),
                 "              pizza\n"_ba); // (34 - 5) / 2 = 14
    }

    void emptyLine()
    {
        QCOMPARE(printed([](CompanyPrinterDriver &printer) { printer.println(u""_s); }), "\n"_ba);
        QCOMPARE(printed([](CompanyPrinterDriver &printer) {
                     printer.setCenterJustify();
                     printer.println(u""_s);
                 }),
                 QByteArray(17, ' ') + "\n");
    }

    void severalTextsOnOneLine()
    {
        QCOMPARE(printed([](CompanyPrinterDriver &printer) {
                     printer.print(1, u"Date:"_s);
                     printer.println(1, u"today"_s);
                     printer.print(0, u"end"_s);
                 }),
                 " Date: today\nend"_ba);
    }

    void bothSizesEndCentring()
    {
        QCOMPARE(printed([](CompanyPrinterDriver &printer) {
                     printer.setCenterJustify();
                     printer.setCharSize();
                     printer.println(QString::fromLatin1(ten));
                     printer.setCenterJustify();
                     printer.println(QString::fromLatin1(ten));
                     printer.setCharSize(2);
                     printer.println(QString::fromLatin1(ten));
                 }),
                 "1234567890\n"
                 "            1234567890\n" // (34 - 10) / 2 = 12
                 "1234567890\n"_ba);
    }

    void printsNothingForWhatTextCannotShow()
    {
        QCOMPARE(printedWithDrawer([](CompanyPrinterDriver &printer) {
                     printer.reset();
                     printer.initPrinter();
                     printer.startSection();
                     printer.setBold();
                     printer.setCharSize();
                     printer.setCharSize(1);
                     printer.printLogo();
                     printer.fullCut();
                     printer.generatePulse();
                     printer.printRowFiscal(u"total"_s, QXmlAttributes());
                     printer.printRowFiscal(u"1"_s, u"2"_s, u"Pizza"_s, u"3"_s);
                     printer.setCenterJustify();
                 }),
                 ""_ba);
    }

    void justificationOutlivesWhatPrintsNothing()
    {
        QCOMPARE(printed([](CompanyPrinterDriver &printer) {
                     printer.setCenterJustify();
                     printer.reset();
                     printer.initPrinter();
                     printer.startSection();
                     printer.setBold();
                     printer.printLogo();
                     printer.fullCut();
                     printer.generatePulse();
                     printer.endSection();
                     printer.print(0, QString::fromLatin1(ten));
                 }),
                 "            1234567890"_ba);
    }

    void drawerOpensWhenTheProfileSaysSo()
    {
        const auto endSection = [](CompanyPrinterDriver &printer) {
            printer.println(u"text"_s);
            printer.endSection();
        };
        QCOMPARE(printed(endSection), "text\n"_ba);
        QCOMPARE(printedWithDrawer(endSection), "text\n\x1Bp0"_ba);
    }

    void drawerCommandIsCentredLikeAnyText()
    {
        QCOMPARE(printedWithDrawer([](CompanyPrinterDriver &printer) {
                     printer.setCenterJustify();
                     printer.endSection();
                 }),
                 "               \x1Bp0"_ba); // 15
    }

    void drawerOpensAsOftenAsSectionsEnd()
    {
        QCOMPARE(printedWithDrawer([](CompanyPrinterDriver &printer) {
                     printer.endSection();
                     printer.endSection();
                 }),
                 "\x1Bp0\x1Bp0"_ba);
    }

    void drawerOpensOnItsOwn()
    {
        QCOMPARE(printed([](CompanyPrinterDriver &printer) { printer.openCashDrawer(); }), "\x1Bp0"_ba);
    }

    // A pair of halves is one character even when two texts have one each; a half alone is none.
    void halfACharacter()
    {
        const QString first(1, QChar(0xD83D));
        const QString second(1, QChar(0xDE00));
        QCOMPARE(printed([&](CompanyPrinterDriver &printer) {
                     printer.print(0, first);
                     printer.println(second);
                     printer.println(first);
                     printer.println(second);
                 }),
                 "\xF0\x9F\x98\x80\n\xEF\xBF\xBD\n\xEF\xBF\xBD\n"_ba);
    }

    // Around what is encoded at once, which is 512 characters, and with one that is not whole before it.
    void textOfAnyLength_data()
    {
        QTest::addColumn<int>("length");
        for (const int length : {511, 512, 513, 1024, 5000})
            QTest::addRow("%d", length) << length;
    }

    void textOfAnyLength()
    {
        QFETCH(const int, length);
        QCOMPARE(printed([&](CompanyPrinterDriver &printer) {
                     printer.print(0, QString(1, QChar(0xD83D)));
                     printer.print(0, QString(length, u'\u20AC'));
                 }),
                 "\xEF\xBF\xBD" + QByteArray("\xE2\x82\xAC").repeated(length));
    }

    void allTextPassesThroughPrint()
    {
        class Listening : public CompanyPrinterDriver
        {
        public:
            Listening()
                : CompanyPrinterDriver(u"/dev/null"_s, false)
            {
                profile.paperWidth = 3;
                profile.openCashDrawer = true;
            }
            void print(unsigned int indent, const QString &text) override
            {
                printed += QString::number(indent) + u' ' + text;
            }
            QStringList printed;
        };

        Listening printer;
        printer.println(u"a"_s);
        printer.println(2, u"b"_s);
        printer.printSeparatorLine();
        printer.endSection();
        QCOMPARE(printer.printed, (QStringList{u"0 a"_s, u"2 b"_s, u"0 ==="_s, u"0 \x1Bp0"_s}));
    }

    void drawerOpeningCanBeReplaced()
    {
        class OtherDrawer : public CompanyPrinterDriver
        {
        public:
            OtherDrawer()
                : CompanyPrinterDriver(u"/dev/null"_s, false)
            {
                profile.openCashDrawer = true;
            }
            void openCashDrawer() override { ++opened; }
            int opened = 0;
        };

        OtherDrawer printer;
        printer.endSection();
        QCOMPARE(printer.opened, 1);
    }
};

QTEST_GUILESS_MAIN(CompanyPrinterDriverTest)
#include "company_printer_driver_test.moc"
