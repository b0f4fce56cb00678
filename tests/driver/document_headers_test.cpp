#include "catalogue.h"
#include "company_printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* Hands elements to the section dispatcher, and says of the last whether it was handled. */
bool printSections(PrinterDriver &driver, const QByteArray &elements)
{
    bool handled = false;
    readElements(elements, [&](const QString &qName, const QXmlAttributes &attributes) {
        handled = driver.printSections(qName, attributes);
    });
    return handled;
}

DocumentProfile profileWith(std::initializer_list<bool DocumentProfile::*> switches)
{
    DocumentProfile profile = profileOfWidth(20);
    for (const auto wanted : switches)
        profile.*wanted = true;
    return profile;
}

/* Every switch of the header blocks that is not given. */
DocumentProfile profileWithout(std::initializer_list<bool DocumentProfile::*> switches)
{
    DocumentProfile profile = profileWith(
        {&DocumentProfile::printGeometry, &DocumentProfile::printHeader, &DocumentProfile::printLogo,
         &DocumentProfile::printCompany, &DocumentProfile::printDeliveryAddress,
         &DocumentProfile::printTelephone, &DocumentProfile::printDate, &DocumentProfile::printTime,
         &DocumentProfile::printTable, &DocumentProfile::printCustomer, &DocumentProfile::printBillingAddress,
         &DocumentProfile::printLicenseNumber, &DocumentProfile::printFiscalCode,
         &DocumentProfile::printCredit, &DocumentProfile::printWaiter, &DocumentProfile::printNote,
         &DocumentProfile::openCashDrawer});
    for (const auto unwanted : switches)
        profile.*unwanted = false;
    return profile;
}

QStringList customerCalls(const DocumentProfile &profile, const QByteArray &customer)
{
    RecordingDriver driver;
    driver.profile = profile;
    readElements(customer, [&](const QString &, const QXmlAttributes &attributes) {
        driver.printCustomerHeader(attributes);
    });
    return driver.calls;
}

} // namespace

class DocumentHeadersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        home.writeConfiguration("tavolux : {"
                                "  three : { topMargin = 3; };"
                                "  zero : { topMargin = 0; };"
                                "  negative : { topMargin = -2; };"
                                "  word : { topMargin = three; };"
                                "  blanks : { topMargin = \" 2 \"; };"
                                "  octal : { topMargin = 010; };"
                                "  hexadecimal : { topMargin = 0x3; };"
                                "  huge : { topMargin = 4294967297; };"
                                "};");
        home.enter();
    }

    void handledElements_data()
    {
        QTest::addColumn<bool>("handled");

        for (const char *element : {"printers", "geometry", "headers", "logo", "company", "receipt",
                                    "invoice", "delivery", "orderinfo"})
            QTest::newRow(element) << true;
        for (const char *element : {"customer", "Headers", "header", "receipts", "orderInfo", "receipe",
                                    "total", "method", "document"})
            QTest::newRow(element) << false;
    }

    void handledElements()
    {
        QFETCH(const bool, handled);
        const QByteArray element = QByteArray("<") + QTest::currentDataTag() + " name='x' serialnumber='1'/>";

        // Whatever the switches say.
        RecordingDriver off;
        off.profile = profileWith({});
        QCOMPARE(printSections(off, element), handled);
        RecordingDriver on;
        on.profile = profileWithout({});
        QCOMPARE(printSections(on, element), handled);
        if (!handled)
            QCOMPARE(on.calls, QStringList());
    }

    void sections_data()
    {
        QTest::addColumn<DocumentProfile>("profile");
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        const DocumentProfile off = profileWith({});
        const DocumentProfile on = profileWithout({});

        QTest::newRow("printers") << on
                                  << "<printers name='Bar' charsize='2' ipaddress='10.0.0.1' port='9100'/>"_ba
                                  << calls({"initPrinter"});
        QTest::newRow("printer's name without header lines")
            << profileWithout({&DocumentProfile::printHeader})
            << "<printers name='Bar'/><headers a='one' b='two'/>"_ba
            << calls({"initPrinter", "setCenterJustify", "println|Bar|", "printSeparatorLine"});
        QTest::newRow("header lines") << profileWith({&DocumentProfile::printHeader})
                                      << "<printers name='Bar'/><headers z='one' a='' header='three'/>"_ba
                                      << calls({
                                             "initPrinter",
                                             "println|one|",
                                             "println||",
                                             "println|three|",
                                             "printSeparatorLine",
                                             "setCenterJustify",
                                             "println|Bar|",
                                             "printSeparatorLine",
                                         });
        QTest::newRow("headers before any printer")
            << off << "<headers/>"_ba << calls({"setCenterJustify", "println||", "printSeparatorLine"});
        QTest::newRow("printer without a name after one with")
            << off << "<printers name='Bar'/><printers charsize='1'/><headers/>"_ba
            << calls({"initPrinter", "initPrinter", "setCenterJustify", "println||", "printSeparatorLine"});
        QTest::newRow("name stays for every headers element")
            << off << "<printers name='Bar'/><headers/><headers/>"_ba
            << calls({"initPrinter", "setCenterJustify", "println|Bar|", "printSeparatorLine",
                      "setCenterJustify", "println|Bar|", "printSeparatorLine"});

        QTest::newRow("logo, switched on")
            << profileWith({&DocumentProfile::printLogo}) << "<logo/>"_ba << calls({"printLogo"});
        QTest::newRow("logo, whatever its switch")
            << profileWithout({&DocumentProfile::printLogo}) << "<logo/>"_ba << calls({"printLogo"});

        QTest::newRow("company") << profileWith({&DocumentProfile::printCompany})
                                 << "<company name='Da Mario' street='' city=' Roma '/>"_ba
                                 << calls({"setCharSize", "setCenterJustify", "println|Da Mario|",
                                           "println||", "println| Roma |", "setCharSize",
                                           "printSeparatorLine"});
        QTest::newRow("company without attributes")
            << profileWith({&DocumentProfile::printCompany}) << "<company/>"_ba
            << calls({"setCharSize", "setCenterJustify", "setCharSize", "printSeparatorLine"});
        QTest::newRow("company, switched off") << profileWithout({&DocumentProfile::printCompany})
                                               << "<company name='Da Mario'/>"_ba << QStringList();

        QTest::newRow("receipt: label and number in one")
            << off << "<receipt serialnumber='17'/>"_ba
            << calls({"println 1|Serial Number: 17|", "printSeparatorLine"});
        QTest::newRow("receipt without a number")
            << off << "<receipt/>"_ba << calls({"println 1|Serial Number: |", "printSeparatorLine"});
        QTest::newRow("invoice: label and number in two")
            << off << "<invoice serialnumber='18'/>"_ba
            << calls({"print 1|Invoice Number:|", "println 1|18|", "printSeparatorLine"});
        QTest::newRow("delivery: label and number in two")
            << off << "<delivery serialnumber='19'/>"_ba
            << calls({"print 1|Delivery Number:|", "println 1|19|", "printSeparatorLine"});

        const QByteArray orderInfo =
            "<orderinfo credit='6' note='5' waiter='4' table='3' time='2' date='1'/>";
        QTest::newRow("orderinfo, all on") << on << orderInfo
                                           << calls({
                                                  "setCharSize",
                                                  "print 1|Date:|",
                                                  "println 1|1|",
                                                  "print 1|Time:|",
                                                  "println 1|2|",
                                                  "print 1|Table:|",
                                                  "println 1|3|",
                                                  "print 1|Waiter:|",
                                                  "println 1|4|",
                                                  "print 1|Note:|",
                                                  "println 1|5|",
                                                  "print 1|Credit:|",
                                                  "println 1|6|",
                                                  "printSeparatorLine",
                                              });
        QTest::newRow("orderinfo, all off") << profileWithout(
            {&DocumentProfile::printDate, &DocumentProfile::printTime, &DocumentProfile::printTable,
             &DocumentProfile::printWaiter, &DocumentProfile::printNote, &DocumentProfile::printCredit})
                                            << orderInfo << calls({"setCharSize", "printSeparatorLine"});
        QTest::newRow("orderinfo, missing attribute")
            << profileWith({&DocumentProfile::printTable}) << "<orderinfo date='1'/>"_ba
            << calls({"setCharSize", "print 1|Table:|", "println 1||", "printSeparatorLine"});

        const auto orderInfoLine = [&](const char *name, bool DocumentProfile::*wanted, const char *label,
                                       const char *value) {
            QTest::newRow(name) << profileWith({wanted}) << orderInfo
                                << calls({"setCharSize", label, value, "printSeparatorLine"});
        };
        orderInfoLine("orderinfo, date", &DocumentProfile::printDate, "print 1|Date:|", "println 1|1|");
        orderInfoLine("orderinfo, time", &DocumentProfile::printTime, "print 1|Time:|", "println 1|2|");
        orderInfoLine("orderinfo, table", &DocumentProfile::printTable, "print 1|Table:|", "println 1|3|");
        orderInfoLine("orderinfo, waiter", &DocumentProfile::printWaiter, "print 1|Waiter:|", "println 1|4|");
        orderInfoLine("orderinfo, note", &DocumentProfile::printNote, "print 1|Note:|", "println 1|5|");
        orderInfoLine("orderinfo, credit", &DocumentProfile::printCredit, "print 1|Credit:|", "println 1|6|");
    }

    void sections()
    {
        QFETCH(const DocumentProfile, profile);
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);

        RecordingDriver driver;
        driver.profile = profile;
        QVERIFY(printSections(driver, elements));
        QCOMPARE(driver.calls, expected);
    }

    void deviceLearnsWhichPrinterItIs()
    {
        class NetworkPrinter : public RecordingDriver
        {
        public:
            void initPrinter() override
            {
                note(u"initPrinter"_s, {printerName, printerCharSize, printerIpAddress, printerPort});
            }
        };
        NetworkPrinter driver;
        QVERIFY(printSections(driver,
                              "<printers port='9100' ipaddress='10.0.0.1' name='Bar' charsize='2'/>"
                              "<printers port='9101'/>"));
        QCOMPARE(driver.calls, calls({"initPrinter|Bar|2|10.0.0.1|9100|", "initPrinter||||9101|"}));
    }

    void deviceLearnsTheCreditThatIsPrinted()
    {
        class CreditPrinter : public RecordingDriver
        {
        public:
            using PrinterDriver::credit;
        };
        CreditPrinter driver;
        QVERIFY(printSections(driver, "<orderinfo credit='5'/>"));
        QCOMPARE(driver.credit, QString());
        driver.profile.printCredit = true;
        QVERIFY(printSections(driver, "<orderinfo credit='6'/>"));
        QCOMPARE(driver.credit, u"6"_s);
    }

    void topMargin_data()
    {
        QTest::addColumn<bool>("wanted");
        QTest::addColumn<QString>("documentPrefix");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("3") << true << u"tavolux.three."_s << calls({"println||", "println||", "println||"});
        QTest::newRow("switched off") << false << u"tavolux.three."_s << QStringList();
        QTest::newRow("0") << true << u"tavolux.zero."_s << QStringList();
        QTest::newRow("negative") << true << u"tavolux.negative."_s << QStringList();
        QTest::newRow("no number") << true << u"tavolux.word."_s << QStringList();
        QTest::newRow("missing") << true << u"tavolux.none."_s << QStringList();
        QTest::newRow("surrounding blanks")
            << true << u"tavolux.blanks."_s << calls({"println||", "println||"});
        QTest::newRow("leading zero is no octal")
            << true << u"tavolux.octal."_s << QStringList(10, u"println||"_s);
        QTest::newRow("hexadecimal") << true << u"tavolux.hexadecimal."_s << QStringList();
        QTest::newRow("wider than a number") << true << u"tavolux.huge."_s << QStringList();
    }

    void topMargin()
    {
        QFETCH(const bool, wanted);
        QFETCH(const QString, documentPrefix);
        QFETCH(const QStringList, expected);

        RecordingDriver driver;
        driver.documentPrefix = documentPrefix;
        driver.profile.printGeometry = wanted;
        QVERIFY(printSections(driver, "<geometry topMargin='7' lines='8' x='text'/>"));
        QCOMPARE(driver.calls, expected);
    }

    void customer_data()
    {
        QTest::addColumn<DocumentProfile>("profile");
        QTest::addColumn<QStringList>("expected");

        const auto add = [](const char *name, const DocumentProfile &profile, const QStringList &lines) {
            QTest::newRow(name) << profile
                                << calls({"println|CUSTOMER|", "println 1|Rossi|"}) + lines
                    + calls({"printSeparatorLine"});
        };
        using Profile = DocumentProfile;

        QTest::newRow("switched off") << profileWithout({&Profile::printCustomer}) << QStringList();
        add("name alone", profileWith({&Profile::printCustomer}), {});
        add("everything", profileWithout({}),
            calls({
                "println 1|Via Roma 1|",
                "println 1|Pisa|",
                "println 1|Via Po 2|",
                "print 1|Telephone:|",
                "println 1|555|",
                "print 1|License Number:|",
                "println 1|L1|",
                "print 1|Fiscal Code:|",
                "println 1|F1|",
            }));
        add("billing address", profileWith({&Profile::printCustomer, &Profile::printBillingAddress}),
            calls({"println 1|Via Roma 1|", "println 1|Pisa|"}));
        add("delivery address", profileWith({&Profile::printCustomer, &Profile::printDeliveryAddress}),
            calls({"println 1|Via Po 2|"}));
        add("telephone", profileWith({&Profile::printCustomer, &Profile::printTelephone}),
            calls({"print 1|Telephone:|", "println 1|555|"}));
        add("license number", profileWith({&Profile::printCustomer, &Profile::printLicenseNumber}),
            calls({"print 1|License Number:|", "println 1|L1|"}));
        add("fiscal code", profileWith({&Profile::printCustomer, &Profile::printFiscalCode}),
            calls({"print 1|Fiscal Code:|", "println 1|F1|"}));
    }

    void customer()
    {
        QFETCH(const DocumentProfile, profile);
        QFETCH(const QStringList, expected);
        QCOMPARE(customerCalls(profile,
                               "<customer fiscalcode='F1' licensenumber='L1' telephone='555'"
                               " deliveryaddress='Via Po 2' billingaddress='Via Roma 1,Pisa' name='Rossi'/>"),
                 expected);
    }

    void customerWithoutAttributes()
    {
        QCOMPARE(customerCalls(profileWithout({}), "<customer/>"),
                 calls({
                     "println|CUSTOMER|",
                     "println 1||",
                     "print 1|Telephone:|",
                     "println 1||",
                     "print 1|License Number:|",
                     "println 1||",
                     "print 1|Fiscal Code:|",
                     "println 1||",
                     "printSeparatorLine",
                 }));
    }

    void address_data()
    {
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("empty") << ""_ba << QStringList();
        QTest::newRow("one part") << "Via Roma 1"_ba << calls({"println 1|Via Roma 1|"});
        QTest::newRow("blanks around commas")
            << " Via Roma 1 , 56100 Pisa ,  Italia  "_ba
            << calls({"println 1|Via Roma 1|", "println 1|56100 Pisa|", "println 1|Italia|"});
        QTest::newRow("other white space") << "&#9;Via Roma 1&#10;,&#160;Pisa&#13;"_ba
                                           << calls({"println 1|Via Roma 1|", "println 1|Pisa|"});
        QTest::newRow("adjacent commas end it") << "Via Roma 1,,Pisa"_ba << calls({"println 1|Via Roma 1|"});
        QTest::newRow("trailing comma")
            << "Via Roma 1,Pisa,"_ba << calls({"println 1|Via Roma 1|", "println 1|Pisa|"});
        QTest::newRow("leading comma") << ",Via Roma 1"_ba << QStringList();
        QTest::newRow("comma alone") << ","_ba << QStringList();
        QTest::newRow("a part of blanks is an empty line")
            << "Via Roma 1,  ,Pisa"_ba << calls({"println 1|Via Roma 1|", "println 1||", "println 1|Pisa|"});
        QTest::newRow("blanks alone") << " "_ba << calls({"println 1||"});
        QTest::newRow("no other separator")
            << "Via Roma 1; Pisa / Italia"_ba << calls({"println 1|Via Roma 1; Pisa / Italia|"});
    }

    void address()
    {
        QFETCH(const QByteArray, address);
        QFETCH(const QStringList, lines);

        const QStringList expected =
            calls({"println|CUSTOMER|", "println 1||"}) + lines + calls({"printSeparatorLine"});
        using Profile = DocumentProfile;
        QCOMPARE(customerCalls(profileWith({&Profile::printCustomer, &Profile::printBillingAddress}),
                               "<customer billingaddress='" + address + "' deliveryaddress='other'/>"),
                 expected);
        QCOMPARE(customerCalls(profileWith({&Profile::printCustomer, &Profile::printDeliveryAddress}),
                               "<customer deliveryaddress='" + address + "' billingaddress='other'/>"),
                 expected);
    }

    void labelsAreTranslated()
    {
        const Catalogue italian({{"Serial Number: ", u"Numero "_s},
                                 {"Invoice Number:", u"Fattura:"_s},
                                 {"Delivery Number:", u"Bolla:"_s},
                                 {"Date:", u"Data:"_s},
                                 {"Time:", u"Ora:"_s},
                                 {"Table:", u"Tavolo:"_s},
                                 {"Waiter:", u"Cameriere:"_s},
                                 {"Note:", u"Nota:"_s},
                                 {"Credit:", u"Credito:"_s},
                                 {"CUSTOMER", u"CLIENTE"_s},
                                 {"Telephone:", u"Telefono:"_s},
                                 {"License Number:", u"Partita IVA:"_s},
                                 {"Fiscal Code:", u"Codice fiscale:"_s}});
        RecordingDriver driver;
        driver.profile = profileWithout({});
        printSections(driver, "<receipt/><invoice/><delivery/><orderinfo/>");
        QCOMPARE(driver.calls,
                 calls({
                     "println 1|Numero |", "printSeparatorLine", "print 1|Fattura:|", "println 1||",
                     "printSeparatorLine", "print 1|Bolla:|",    "println 1||",       "printSeparatorLine",
                     "setCharSize",        "print 1|Data:|",     "println 1||",       "print 1|Ora:|",
                     "println 1||",        "print 1|Tavolo:|",   "println 1||",       "print 1|Cameriere:|",
                     "println 1||",        "print 1|Nota:|",     "println 1||",       "print 1|Credito:|",
                     "println 1||",        "printSeparatorLine",
                 }));
        QCOMPARE(customerCalls(profileWithout({}), "<customer/>"),
                 calls({
                     "println|CLIENTE|",
                     "println 1||",
                     "print 1|Telefono:|",
                     "println 1||",
                     "print 1|Partita IVA:|",
                     "println 1||",
                     "print 1|Codice fiscale:|",
                     "println 1||",
                     "printSeparatorLine",
                 }));
    }

    // On a paper of 20, a centred separator stands after 7 blanks; other texts after half of 34 less
    // theirs.
    void onPaper_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("numbers")
            << "<receipt serialnumber='17'/><invoice serialnumber='18'/><delivery serialnumber='19'/>"_ba
            << " Serial Number: 17\n"
               "====================\n"
               " Invoice Number: 18\n"
               "====================\n"
               " Delivery Number: 19\n"
               "====================\n"_ba;
        QTest::newRow("headers leave centring on: numbers are centred, the receipt's as a whole")
            << "<printers name='Bar'/><headers a='Benvenuti'/><receipt serialnumber='17'/>"
               "<invoice serialnumber='18'/>"_ba
            << "Benvenuti\n"
               "====================\n"
               "               Bar\n" // 15
               "       ====================\n"
               "        Serial Number: 17\n" // 8
               "       ====================\n"
               "         Invoice Number:                18\n" // 9 and 16
               "       ====================\n"_ba;
        QTest::newRow("second headers are centred by the first")
            << "<headers a='Benvenuti'/><headers a='Benvenuti'/>"_ba
            << "Benvenuti\n"
               "====================\n"
               "                 \n" // 17
               "       ====================\n"
               "            Benvenuti\n" // 12
               "       ====================\n"
               "                 \n"
               "       ====================\n"_ba;
        QTest::newRow("orderinfo ends centring") << "<headers/><orderinfo table='4'/>"_ba
                                                 << "====================\n"
                                                    "                 \n"
                                                    "       ====================\n"
                                                    " Table: 4\n"
                                                    "====================\n"_ba;
        QTest::newRow("company ends centring after its lines")
            << "<headers/><company name='Da Mario'/><delivery serialnumber='19'/>"_ba
            << "====================\n"
               "                 \n"
               "       ====================\n"
               "             Da Mario\n" // 13
               "====================\n"
               " Delivery Number: 19\n"
               "====================\n"_ba;
    }

    void onPaper()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QByteArray, expected);
        using Profile = DocumentProfile;
        QCOMPARE(
            printedText(profileWith({&Profile::printHeader, &Profile::printCompany, &Profile::printTable}),
                        [&](CompanyPrinterDriver &printer) { printSections(printer, elements); }),
            expected);
    }

private:
    const TemporaryHome home;
};

QTEST_GUILESS_MAIN(DocumentHeadersTest)
#include "document_headers_test.moc"
