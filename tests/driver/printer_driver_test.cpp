#include "captured_output.h"
#include "company_printer_driver.h"
#include "file_size_limit.h"
#include "recording_driver.h"
#include "sync_singleton.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct TypeAndSection
{
    const char *name;
    const char *section;
};

constexpr TypeAndSection typesAndSections[] = {
    {"order", "doc"},          {"prefiscal", "prefiscaldoc"}, {"fiscal", "fiscaldoc"},
    {"receipt", "receiptdoc"}, {"invoice", "invoicedoc"},     {"delivery", "deliverydoc"},
    {"report", "reportdoc"},   {"sold", "solddoc"},
};

template <typename Value>
struct Setting
{
    const char *name;
    Value DocumentProfile::*field;
};

constexpr Setting<int> widths[] = {
    {"quantityFieldWidth", &DocumentProfile::quantityFieldWidth},
    {"priceFieldWidth", &DocumentProfile::priceFieldWidth},
    {"totalPriceFieldWidth", &DocumentProfile::totalPriceFieldWidth},
    {"paperWidth", &DocumentProfile::paperWidth},
    {"paperRows", &DocumentProfile::paperRows},
};

constexpr Setting<bool> switches[] = {
    {"printGeometry", &DocumentProfile::printGeometry},
    {"printHeader", &DocumentProfile::printHeader},
    {"printLogo", &DocumentProfile::printLogo},
    {"printCompany", &DocumentProfile::printCompany},
    {"printDeliveryAddress", &DocumentProfile::printDeliveryAddress},
    {"printBillingAddress", &DocumentProfile::printBillingAddress},
    {"printTelephone", &DocumentProfile::printTelephone},
    {"printDate", &DocumentProfile::printDate},
    {"printTime", &DocumentProfile::printTime},
    {"printTable", &DocumentProfile::printTable},
    {"printCustomer", &DocumentProfile::printCustomer},
    {"printLicenseNumber", &DocumentProfile::printLicenseNumber},
    {"printFiscalCode", &DocumentProfile::printFiscalCode},
    {"printCredit", &DocumentProfile::printCredit},
    {"printWaiter", &DocumentProfile::printWaiter},
    {"printNote", &DocumentProfile::printNote},
    {"openCashDrawer", &DocumentProfile::openCashDrawer},
};

} // namespace

class PrinterDriverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Before the configuration is used for the first time.
    void initTestCase()
    {
        home.writeConfiguration("tavolux : { receiptdoc : { paperWidth = 40; }; };");
        home.enter();
    }

    void configurationIsTheUsersOwn()
    {
        RecordingDriver driver;
        driver.loadValues(u"receipt"_s);
        QCOMPARE(driver.profile.paperWidth, 40);
    }

    void newDriver()
    {
        RecordingDriver driver;
        QCOMPARE(driver.calls, QStringList());
        QCOMPARE(driver.documentPrefix, QString());
        QVERIFY(!driver.printDuplicate());
        QVERIFY(driver.oneTime());
    }

    void output_data()
    {
        QTest::addColumn<bool>("append");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("truncated") << false << "new\n"_ba;
        QTest::newRow("appended to") << true << "old\nnew\n"_ba;
    }

    void output()
    {
        QFETCH(const bool, append);
        QFETCH(const QByteArray, expected);

        const QString path = home.writeFile(u"output"_s, "old\n");
        {
            CompanyPrinterDriver driver(path, append);
            driver.println(u"new"_s);
        }
        QCOMPARE(fileBytes(path), expected);
    }

    void outputIsTruncatedEvenWhenNothingIsPrinted()
    {
        const QString path = home.writeFile(u"output"_s, "old\n");
        const CompanyPrinterDriver driver(path, false);
        QCOMPARE(fileBytes(path), ""_ba);
    }

    void outputIsUtf8WithoutAMark()
    {
        const QString path = home.filePath(u"output"_s);
        {
            CompanyPrinterDriver driver(path, false);
            driver.print(0, u"Caffè € 😀"_s);
        }
        QCOMPARE(fileBytes(path), "Caff\xC3\xA8 \xE2\x82\xAC \xF0\x9F\x98\x80"_ba);
    }

    void longOutputIsWholeAndInOrder()
    {
        const QString path = home.filePath(u"output"_s);
        QByteArray expected;
        {
            CompanyPrinterDriver driver(path, false);
            for (int line = 0; line < 20'000; ++line) {
                driver.println(QString::number(line));
                expected += QByteArray::number(line) + '\n';
            }
        }
        QVERIFY(fileBytes(path) == expected);
    }

    void outputThatCannotBeOpened()
    {
        const QString path = home.filePath(u"missing/output"_s);
        const CapturedOutput diagnostics;
        {
            CompanyPrinterDriver driver(path, false);
            driver.loadValues(u"receipt"_s);
            driver.startDocument();
            driver.setCenterJustify();
            driver.print(3, u"text"_s);
            driver.println(u"text"_s);
            driver.printSeparatorLine();
            driver.openCashDrawer();
            driver.endDocument();
        }
        QCOMPARE(diagnostics.text(), "PrintManager::printAbstractOrder(...): Unable To Open File\n"_ba);
        QVERIFY(!QFile::exists(path));
    }

    // The first text fails when the driver goes, the others as soon as the stream's buffer is full.
    void outputThatCannotBeWritten_data()
    {
        QTest::addColumn<int>("lines");
        QTest::newRow("one line") << 1;
        QTest::newRow("more than any buffer") << 100'000;
    }

    void outputThatCannotBeWritten()
    {
        QFETCH(const int, lines);
        const CapturedOutput diagnostics;
        {
            CompanyPrinterDriver driver(u"/dev/full"_s, false);
            for (int line = 0; line < lines; ++line)
                driver.println(u"a line that finds no room"_s);
        }
        QCOMPARE(diagnostics.text(),
                 "Error in the method PrinterDriver::print( /dev/full ): No space left on device\n"_ba);
    }

    // Not even when there is room again: a printout with a gap in it would look whole.
    void nothingIsWrittenBehindAFailure()
    {
        const QString path = home.filePath(u"output"_s);
        const QByteArray failure =
            "Error in the method PrinterDriver::print( " + QFile::encodeName(path) + " ): File too large\n";
        const CapturedOutput diagnostics;
        {
            CompanyPrinterDriver driver(path, false);
            {
                const FileSizeLimit limit(10);
                for (int line = 0; line < 10'000; ++line)
                    driver.println(u"a line that finds no room"_s);
            }
            QCOMPARE(diagnostics.text(), failure);
            for (int line = 0; line < 10'000; ++line)
                driver.println(u"a line that would find it"_s);
        }
        QCOMPARE(diagnostics.text(), failure);
        QCOMPARE(fileBytes(path), "a line tha"_ba);
    }

    void nothingWrittenToAFullDeviceIsNoError()
    {
        const CapturedOutput diagnostics;
        {
            const CompanyPrinterDriver driver(u"/dev/full"_s, false);
        }
        QCOMPARE(diagnostics.text(), ""_ba);
    }

    void documentPath_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("prefix");

        QTest::newRow("order") << u"order"_s << u"tavolux.doc."_s;
        QTest::newRow("prefiscal") << u"prefiscal"_s << u"tavolux.prefiscaldoc."_s;
        QTest::newRow("fiscal") << u"fiscal"_s << u"tavolux.fiscaldoc."_s;
        QTest::newRow("receipt") << u"receipt"_s << u"tavolux.receiptdoc."_s;
        QTest::newRow("invoice") << u"invoice"_s << u"tavolux.invoicedoc."_s;
        QTest::newRow("delivery") << u"delivery"_s << u"tavolux.deliverydoc."_s;
        QTest::newRow("report") << u"report"_s << u"tavolux.reportdoc."_s;
        QTest::newRow("sold") << u"sold"_s << u"tavolux.solddoc."_s;
        QTest::newRow("capital letter") << u"Invoice"_s << u"tavolux.invoicedoc."_s;
        QTest::newRow("capitals") << u"ORDER"_s << u"tavolux.doc."_s;
    }

    void documentPath()
    {
        QFETCH(const QString, type);
        QFETCH(const QString, prefix);

        const RecordingDriver driver;
        const CapturedOutput diagnostics;
        QCOMPARE(driver.documentPath(type), prefix);
        QCOMPARE(diagnostics.text(), ""_ba);
    }

    void unknownDocumentPath_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QByteArray>("named");

        QTest::newRow("unknown") << u"bill"_s << "bill"_ba;
        QTest::newRow("named in lower case") << u"BILL"_s << "bill"_ba;
        QTest::newRow("empty") << QString() << ""_ba;
        QTest::newRow("not trimmed") << u" order"_s << " order"_ba;
        QTest::newRow("a key's part") << u"receiptdoc"_s << "receiptdoc"_ba;
    }

    void unknownDocumentPath()
    {
        QFETCH(const QString, type);
        QFETCH(const QByteArray, named);

        const RecordingDriver driver;
        const CapturedOutput diagnostics;
        QCOMPARE(driver.documentPath(type), u"tavolux.prefiscaldoc."_s);
        QCOMPARE(diagnostics.text(), "Error into PrinterDriver::documentPath:  " + named + "\n");
    }

    void eachWidthOfEachProfile_data() { addSettings(widths); }
    void eachWidthOfEachProfile()
    {
        QFETCH(const QByteArray, type);
        QFETCH(const QByteArray, section);
        QFETCH(const QByteArray, setting);

        configure("tavolux : { " + section + " : { " + setting + " = 57; }; };");
        RecordingDriver driver;
        driver.loadValues(QString::fromLatin1(type));
        QCOMPARE(driver.documentPrefix.toLatin1(), "tavolux." + section + ".");
        for (const auto &[name, field] : widths) {
            const int other = field == &DocumentProfile::paperWidth ? 34 : 0;
            QCOMPARE(driver.profile.*field, name == setting ? 57 : other);
        }
        for (const auto &[name, field] : switches)
            QVERIFY2(!(driver.profile.*field), name);
    }

    void eachSwitchOfEachProfile_data() { addSettings(switches); }
    void eachSwitchOfEachProfile()
    {
        QFETCH(const QByteArray, type);
        QFETCH(const QByteArray, section);
        QFETCH(const QByteArray, setting);

        configure("tavolux : { " + section + " : { " + setting + " = true; }; };");
        RecordingDriver driver;
        driver.loadValues(QString::fromLatin1(type));
        for (const auto &[name, field] : switches)
            QVERIFY2(driver.profile.*field == (name == setting), name);
        QCOMPARE(driver.profile.paperWidth, 34);
    }

    void switchValue_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("on");

        QTest::newRow("true") << "true"_ba << true;
        QTest::newRow("quoted") << "\"true\""_ba << true;
        QTest::newRow("false") << "false"_ba << false;
        QTest::newRow("capital letter") << "True"_ba << false;
        QTest::newRow("capitals") << "TRUE"_ba << false;
        QTest::newRow("1") << "1"_ba << false;
        QTest::newRow("yes") << "yes"_ba << false;
        QTest::newRow("on") << "on"_ba << false;
        QTest::newRow("quoted blank") << "\"true \""_ba << false;
        QTest::newRow("more letters") << "truest"_ba << false;
        QTest::newRow("fewer letters") << "tru"_ba << false;
        QTest::newRow("empty") << ""_ba << false;
    }

    void switchValue()
    {
        QFETCH(const QByteArray, value);
        QFETCH(const bool, on);

        configure("tavolux : { invoicedoc : { printLogo = " + value + "; }; };");
        RecordingDriver driver;
        driver.loadValues(u"invoice"_s);
        QCOMPARE(driver.profile.printLogo, on);
    }

    void widthValue_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("width");

        QTest::newRow("digits") << "40"_ba << 40;
        QTest::newRow("leading zero is no octal") << "010"_ba << 10;
        QTest::newRow("plus") << "+40"_ba << 40;
        QTest::newRow("negative") << "-7"_ba << -7;
        QTest::newRow("surrounding blanks") << "\" 40 \""_ba << 40;
        QTest::newRow("0") << "0"_ba << 0;
        QTest::newRow("empty") << ""_ba << 0;
        QTest::newRow("word") << "abc"_ba << 0;
        QTest::newRow("word after digits") << "40px"_ba << 0;
        QTest::newRow("blank between digits") << "4 0"_ba << 0;
        QTest::newRow("fraction") << "40.5"_ba << 0;
        QTest::newRow("hexadecimal") << "0x20"_ba << 0;
        QTest::newRow("two signs") << "--7"_ba << 0;
        QTest::newRow("widest line") << "100000"_ba << 100'000;
        QTest::newRow("wider") << "100001"_ba << 100'000;
        QTest::newRow("widest number") << "2147483647"_ba << 100'000;
        QTest::newRow("no number any more") << "2147483648"_ba << 0;
        QTest::newRow("most negative line") << "-100000"_ba << -100'000;
        QTest::newRow("more negative") << "-2147483648"_ba << -100'000;
        QTest::newRow("no negative number any more") << "-2147483649"_ba << 0;
    }

    void widthValue()
    {
        QFETCH(const QByteArray, value);
        QFETCH(const int, width);

        configure("tavolux : { doc : { quantityFieldWidth = " + value + "; }; };");
        RecordingDriver driver;
        driver.loadValues(u"order"_s);
        QCOMPARE(driver.profile.quantityFieldWidth, width);
    }

    void paperWidth_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<unsigned int>("deviceWidth");
        QTest::addColumn<int>("width");

        QTest::newRow("given") << "paperWidth = 40;"_ba << 34U << 40;
        QTest::newRow("absent: the device's") << ""_ba << 34U << 34;
        QTest::newRow("0: the device's") << "paperWidth = \"0\";"_ba << 34U << 34;
        QTest::newRow("word: the device's") << "paperWidth = abc;"_ba << 34U << 34;
        QTest::newRow("absent: another device's") << ""_ba << 21U << 21;
        QTest::newRow("negative: kept") << "paperWidth = -7;"_ba << 34U << -7;
        QTest::newRow("too wide") << "paperWidth = 2000000000;"_ba << 34U << 100'000;
        QTest::newRow("wider than a number: the device's") << "paperWidth = 9999999999;"_ba << 34U << 34;
    }

    void paperWidth()
    {
        QFETCH(const QByteArray, setting);
        QFETCH(const unsigned int, deviceWidth);
        QFETCH(const int, width);

        configure("tavolux : { doc : { style = large; " + setting + " }; };");
        RecordingDriver driver;
        driver.deviceWidth = deviceWidth;
        driver.loadValues(u"order"_s);
        QCOMPARE(driver.profile.paperWidth, width);
    }

    void paperWidthOfThePlainTextPrinter()
    {
        configure("tavolux : { doc : { paperWidth = abc; }; };");
        const QString path = home.filePath(u"output"_s);
        {
            CompanyPrinterDriver driver(path, false);
            driver.loadValues(u"order"_s);
            driver.printSeparatorLine();
        }
        QCOMPARE(fileBytes(path), "==================================\n"_ba);
    }

    // A device may replace any of them, those that only other operations call as well.
    void headerBlocksAndSectionsCanBeReplaced()
    {
        class OtherBlocks : public RecordingDriver
        {
        public:
            void printGeometry(const QXmlAttributes &) override { note(u"geometry"_s); }
            void printPrinterInfo() override { note(u"printer info"_s); }
            void printHeaders(const QXmlAttributes &) override { note(u"headers"_s); }
            void printCompanyHeader(const QXmlAttributes &) override { note(u"company"_s); }
            void printReceiptHeader(const QXmlAttributes &) override { note(u"receipt"_s); }
            void printInvoiceHeader(const QXmlAttributes &) override { note(u"invoice"_s); }
            void printDeliveryHeader(const QXmlAttributes &) override { note(u"delivery"_s); }
            void printCustomerHeader(const QXmlAttributes &) override { note(u"customer"_s); }
            void printOrderInfo(const QXmlAttributes &) override { note(u"order info"_s); }
            bool printDuplicate() override { return true; }
        };
        OtherBlocks device;
        PrinterDriver &driver = device;
        for (const QString &element :
             {u"printers"_s, u"geometry"_s, u"headers"_s, u"logo"_s, u"company"_s, u"receipt"_s, u"invoice"_s,
              u"delivery"_s, u"orderinfo"_s, u"customer"_s})
            driver.printFullOrder(element, {});
        QCOMPARE(device.calls,
                 calls({"initPrinter", "geometry", "headers", "printer info", "printLogo", "company",
                        "receipt", "invoice", "delivery", "order info", "customer"}));
        QVERIFY(driver.printDuplicate());
    }

    void sectionsCanBeReplaced()
    {
        class OtherSections : public RecordingDriver
        {
        public:
            bool printSections(const QString &qName, const QXmlAttributes &) override
            {
                note(u"section "_s + qName);
                return true;
            }
        };
        OtherSections device;
        PrinterDriver &driver = device;
        driver.printSold(u"receipe"_s, {});
        QCOMPARE(device.calls, calls({"section receipe"}));
    }

    void settingsAreReadInTheirOrder()
    {
        QStringList asked;
        DocumentProfile::load([&](QLatin1StringView setting) {
            asked += setting;
            return QString();
        });
        QCOMPARE(asked,
                 calls({"quantityFieldWidth",
                        "priceFieldWidth",
                        "totalPriceFieldWidth",
                        "paperWidth",
                        "paperRows",
                        "style",
                        "printGeometry",
                        "printHeader",
                        "printLogo",
                        "printCompany",
                        "printDeliveryAddress",
                        "printBillingAddress",
                        "printTelephone",
                        "printDate",
                        "printTime",
                        "printTable",
                        "printCustomer",
                        "printLicenseNumber",
                        "printFiscalCode",
                        "printCredit",
                        "printWaiter",
                        "printNote",
                        "openCashDrawer"}));
    }

    void laterProfileReplacesAllOfAnEarlierOne()
    {
        QByteArray everything;
        for (const auto &[name, field] : widths)
            everything += name + " = 57; "_ba;
        for (const auto &[name, field] : switches)
            everything += name + " = true; "_ba;
        configure("tavolux : { receiptdoc : { " + everything + " }; };");

        RecordingDriver driver;
        driver.loadValues(u"receipt"_s);
        for (const auto &[name, field] : widths)
            QVERIFY2(driver.profile.*field == 57, name);
        for (const auto &[name, field] : switches)
            QVERIFY2(driver.profile.*field, name);

        driver.loadValues(u"sold"_s);
        QCOMPARE(driver.documentPrefix, u"tavolux.solddoc."_s);
        for (const auto &[name, field] : widths)
            QVERIFY2(driver.profile.*field == (field == &DocumentProfile::paperWidth ? 34 : 0), name);
        for (const auto &[name, field] : switches)
            QVERIFY2(!(driver.profile.*field), name);
    }

    void unknownTypeLoadsThePreFiscalProfile()
    {
        configure("tavolux : { doc : { paperWidth = 20; }; prefiscaldoc : { paperWidth = 50; }; };");
        RecordingDriver driver;
        const CapturedOutput diagnostics;
        driver.loadValues(u"bill"_s);
        QCOMPARE(driver.profile.paperWidth, 50);
        QCOMPARE(diagnostics.text(), "Error into PrinterDriver::documentPath:  bill\n"_ba);
    }

private:
    /* Puts a configuration in place of the one that was read before. */
    void configure(const QByteArray &text) const
    {
        home.writeConfiguration(text);
        SyncSingleton<TXConfiguration>::instance().readFile(TXConfiguration::userFile(), u"cfg"_s);
    }

    template <typename Settings>
    static void addSettings(const Settings &settings)
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QByteArray>("setting");
        for (const auto &[type, section] : typesAndSections)
            for (const auto &setting : settings)
                QTest::addRow("%s, %s", type, setting.name)
                    << QByteArray(type) << QByteArray(section) << QByteArray(setting.name);
    }

    const TemporaryHome home;
};

QTEST_GUILESS_MAIN(PrinterDriverTest)
#include "printer_driver_test.moc"
