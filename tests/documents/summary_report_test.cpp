#include "catalogue.h"
#include "printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* A heading's calls, and what follows it. */
QStringList heading(const char *title, std::initializer_list<const char *> rest)
{
    return calls({"setBold", "setCenterJustify", "println||"})
        + QStringList{u"println|"_s + QString::fromUtf8(title) + u'|'} + calls({"setCharSize", "println||"})
        + calls(rest);
}

} // namespace

class SummaryReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void report_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("title") << "<date enddate='31/01' begindate='01/01'/>"_ba
                               << calls({
                                      "setBold",
                                      "setCenterJustify",
                                      "println||",
                                      "println|SUMMARIES|",
                                      "println||",
                                      "setCharSize",
                                      "print 0|BeginDate: |",
                                      "println|01/01|",
                                      "print 0|EndDate: |",
                                      "println|31/01|",
                                  });
        QTest::newRow("title without dates") << "<date/>"_ba
                                             << calls({
                                                    "setBold",
                                                    "setCenterJustify",
                                                    "println||",
                                                    "println|SUMMARIES|",
                                                    "println||",
                                                    "setCharSize",
                                                    "print 0|BeginDate: |",
                                                    "println||",
                                                    "print 0|EndDate: |",
                                                    "println||",
                                                });
        QTest::newRow("pre-fiscal documents") << "<prefiscalssummary number='12' total='345.60'/>"_ba
                                              << heading("PREFISCAL SUMMARY",
                                                         {
                                                             "print 0|Number...................|",
                                                             "println|12|",
                                                             "print 0|TOTAL....................|",
                                                             "println|345.60|",
                                                         });
        QTest::newRow("pre-fiscal documents, missing attributes")
            << "<prefiscalssummary/>"_ba
            << heading("PREFISCAL SUMMARY",
                       {
                           "print 0|Number...................|",
                           "println||",
                           "print 0|TOTAL....................|",
                           "println||",
                       });
        QTest::newRow("receipts")
            << "<receiptssummary number='31' firstserial='100' lastserial='130' notPaid='1.00' cash='2.00'"
               " creditCard='3.00' bancomat='4.00' other='5.00' total='15.00'/>"_ba
            << heading("RECEIPTS SUMMARY",
                       {
                           "print 0|Number...................|",
                           "println|31|",
                           "print 0|Serials..................|",
                           "print 0|100|",
                           "print 0| - |",
                           "println|130|",
                           "println|Amount not paid: 1.00|",
                           "println|Cash: 2.00|",
                           "println|Credit Card: 3.00|",
                           "println|Bancomat: 4.00|",
                           "println|Other: 5.00|",
                           "print 0|TOTAL....................|",
                           "println|15.00|",
                           "println||",
                           "printSeparatorLine",
                           "println|TAXRATE    TAXABLE        TAX     AMOUNT|",
                       });
        QTest::newRow("receipts, missing attributes")
            << "<receiptssummary/>"_ba
            << heading("RECEIPTS SUMMARY",
                       {
                           "print 0|Number...................|",
                           "println||",
                           "print 0|Serials..................|",
                           "print 0||",
                           "print 0| - |",
                           "println||",
                           "println|Amount not paid: |",
                           "println|Cash: |",
                           "println|Credit Card: |",
                           "println|Bancomat: |",
                           "println|Other: |",
                           "print 0|TOTAL....................|",
                           "println||",
                           "println||",
                           "printSeparatorLine",
                           "println|TAXRATE    TAXABLE        TAX     AMOUNT|",
                       });
        QTest::newRow("tax rates, in their order")
            << "<taxrate_item taxrate='10' taxable='100.00' tax='10.00' amount='110.00'/>"
               "<taxrate_item taxrate='4' taxable='50.00' tax='2.00' amount='52.00'/>"_ba
            << calls({
                   "println|    10%     100.00      10.00     110.00 |",
                   "println|     4%      50.00       2.00      52.00 |",
               });
        QTest::newRow("tax rate, missing attributes")
            << "<taxrate_item/>"_ba << calls({"println|      %                                  |"});
        QTest::newRow("tax rate, texts wider than their columns")
            << "<taxrate_item taxrate='reduced' taxable='12345678.00' tax='12345678.01'"
               " amount='12345678.02'/>"_ba
            << calls({"println|reduced% 12345678.00 12345678.01 12345678.02 |"});
        QTest::newRow("invoices")
            << "<invoicessummary number='2' firstserial='7' lastserial='8' taxable='10.00' tax='1.00'"
               " total='11.00'/>"_ba
            << calls({"printSeparatorLine", "println||"})
                + heading("INVOICES SUMMARY",
                          {
                              "print 0|Number...................|",
                              "println|2|",
                              "print 0|Serials..................|",
                              "print 0|7|",
                              "print 0| - |",
                              "println|8|",
                              "print 0|Taxable..................|",
                              "println|10.00|",
                              "print 0|Tax......................|",
                              "println|1.00|",
                              "print 0|TOTAL....................|",
                              "println|11.00|",
                          });
        QTest::newRow("cancelled documents: none") << "<cancelledsummary number='0' totals='0.00'/>"_ba
                                                   << heading("CANCELLED DOC SUMMARY",
                                                              {
                                                                  "print 0|Number...................|",
                                                                  "println|0|",
                                                                  "print 0|TOTAL....................|",
                                                                  "println|0.00|",
                                                                  "setBold",
                                                                  "println||",
                                                                  "print 0|SERIAL    |",
                                                                  "print 0|TOTAL      |",
                                                                  "println|TAXRATE   |",
                                                              });
        QTest::newRow("cancelled documents: two, by position")
            << "<cancelledsummary number='2' totals='30.00' c='101' b='10.00' a='10%' z='102' y='20.00'"
               " x='4%'/>"_ba
            << heading("CANCELLED DOC SUMMARY",
                       {
                           "print 0|Number...................|",
                           "println|2|",
                           "print 0|TOTAL....................|",
                           "println|30.00|",
                           "setBold",
                           "println||",
                           "print 0|SERIAL    |",
                           "print 0|TOTAL      |",
                           "println|TAXRATE   |",
                           "print 0|101       |",
                           "print 0|10.00      |",
                           "println|10%       |",
                           "print 0|102       |",
                           "print 0|20.00      |",
                           "println|4%        |",
                       });
        QTest::newRow("cancelled documents: incomplete, wide, and \"total\" is not read")
            << "<cancelledsummary a='x' total='y' b='serial of 20 letters' c='12.00'/>"_ba
            << heading("CANCELLED DOC SUMMARY",
                       {
                           "print 0|Number...................|",
                           "println||",
                           "print 0|TOTAL....................|",
                           "println||",
                           "setBold",
                           "println||",
                           "print 0|SERIAL    |",
                           "print 0|TOTAL      |",
                           "println|TAXRATE   |",
                           "print 0|serial of 20 letters|",
                           "print 0|12.00      |",
                           "println|          |",
                       });
        QTest::newRow("cancelled documents: one attribute too many")
            << "<cancelledsummary number='1' totals='2' a='101'/>"_ba
            << heading("CANCELLED DOC SUMMARY",
                       {
                           "print 0|Number...................|",
                           "println|1|",
                           "print 0|TOTAL....................|",
                           "println|2|",
                           "setBold",
                           "println||",
                           "print 0|SERIAL    |",
                           "print 0|TOTAL      |",
                           "println|TAXRATE   |",
                           "print 0|101       |",
                           "print 0|           |",
                           "println|          |",
                       });
        QTest::newRow("header elements")
            << "<receipt serialnumber='17'/><printers/>"_ba
            << calls({"println 1|Serial Number: 17|", "printSeparatorLine", "initPrinter"});
        QTest::newRow("foreign elements")
            << "<prefiscalsummary/><receiptsummary/><taxrate/><Date/><customer name='x'/><receipe/><total/>"_ba
            << QStringList();
    }

    void report()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        DocumentProfile profile = profileOfWidth(40);
        profile.printCustomer = true;
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printReport, elements), expected);
    }

    void labelWidth_data()
    {
        QTest::addColumn<int>("paperWidth");
        QTest::addColumn<QByteArray>("number");

        QTest::newRow("34") << 34 << "print 0|Number.............|"_ba;
        QTest::newRow("one dot") << 22 << "print 0|Number.|"_ba;
        QTest::newRow("as wide as the label") << 21 << "print 0|Number|"_ba;
        QTest::newRow("narrower than the label") << 20 << "print 0|Number|"_ba;
        QTest::newRow("narrower than the amounts") << 14 << "print 0|Number|"_ba;
        QTest::newRow("0") << 0 << "print 0|Number|"_ba;
        QTest::newRow("negative") << -100'000 << "print 0|Number|"_ba;
    }

    void labelWidth()
    {
        QFETCH(const int, paperWidth);
        QFETCH(const QByteArray, number);
        const QStringList printed = recordedCalls(profileOfWidth(paperWidth), &PrinterDriver::printReport,
                                                  "<prefiscalssummary number='1' total='2'/>");
        QCOMPARE(printed.value(6).toUtf8(), number);
        QCOMPARE(printed.value(7), u"println|1|"_s);
    }

    void onlySomeEmptyLinesAreCentred()
    {
        const QByteArray centredEmptyLine = QByteArray(17, ' ') + "\n";
        QCOMPARE(printedText(profileOfWidth(40), &PrinterDriver::printReport,
                             "<date begindate='01/01' enddate='31/01'/>"
                             "<prefiscalssummary number='12' total='345.60'/>"),
                 centredEmptyLine + "            SUMMARIES\n" // (34 - 9) / 2 = 12 blanks
                     + centredEmptyLine
                     + "BeginDate: 01/01\n"
                       "EndDate: 31/01\n"
                     + centredEmptyLine
                     + "        PREFISCAL SUMMARY\n" // (34 - 17) / 2 = 8 blanks
                       "\n"
                       "Number...................12\n"
                       "TOTAL....................345.60\n");
    }

    void labelsAreTranslated()
    {
        const Catalogue marked({{"SUMMARIES", u"1"_s},
                                {"BeginDate: ", u"2"_s},
                                {"EndDate: ", u"3"_s},
                                {"PREFISCAL SUMMARY", u"4"_s},
                                {"Number", u"5"_s},
                                {"TOTAL", u"6"_s},
                                {"RECEIPTS SUMMARY", u"7"_s},
                                {"Serials", u"8"_s},
                                {"Amount not paid: ", u"9"_s},
                                {"Cash: ", u"10"_s},
                                {"Credit Card: ", u"11"_s},
                                {"Bancomat: ", u"12"_s},
                                {"Other: ", u"13"_s},
                                {"TAXRATE", u"14"_s},
                                {"TAXABLE", u"15"_s},
                                {"TAX", u"16"_s},
                                {"AMOUNT", u"17"_s},
                                {"INVOICES SUMMARY", u"18"_s},
                                {"Taxable", u"19"_s},
                                {"Tax", u"20"_s},
                                {"CANCELLED DOC SUMMARY", u"21"_s},
                                {"SERIAL", u"22"_s}});
        QCOMPARE(
            recordedCalls(profileOfWidth(18), &PrinterDriver::printReport,
                          "<date/><prefiscalssummary/><receiptssummary/><invoicessummary/>"
                          "<cancelledsummary/>"),
            calls({
                "setBold",
                "setCenterJustify",
                "println||",
                "println|1|",
                "println||",
                "setCharSize",
                "print 0|2|",
                "println||",
                "print 0|3|",
                "println||",
            }) + heading("4", {"print 0|5..|", "println||", "print 0|6..|", "println||"})
                + heading("7",
                          {"print 0|5..|", "println||", "print 0|8..|", "print 0||", "print 0| - |",
                           "println||", "println|9|", "println|10|", "println|11|", "println|12|",
                           "println|13|", "print 0|6..|", "println||", "println||", "printSeparatorLine",
                           "println|    14         15         16         17|"})
                + calls({"printSeparatorLine", "println||"})
                + heading("18",
                          {"print 0|5..|", "println||", "print 0|8..|", "print 0||", "print 0| - |",
                           "println||", "print 0|19.|", "println||", "print 0|20.|", "println||",
                           "print 0|6..|", "println||"})
                + heading("21",
                          {"print 0|5..|", "println||", "print 0|6..|", "println||", "setBold", "println||",
                           "print 0|22        |", "print 0|6          |", "println|14        |"}));
    }
};

QTEST_GUILESS_MAIN(SummaryReportTest)
#include "summary_report_test.moc"
