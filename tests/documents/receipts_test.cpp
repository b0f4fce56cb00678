#include "catalogue.h"
#include "printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ReceiptsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        profile = profileOfWidth(40);
        profile.printCustomer = true;
    }

    void fullReceipt_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("item, total, amount not paid")
            << "<receipe number='2' name='Pizza Margherita' price='5.50' totalPrice='11.00'/>"
               "<total price='11.00'/><notPaid price='11.00'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|  2 x Pizza Margherita......5.50   11.00|",
                   "println||",
                   "println|    TOTAL.......................   11.00|",
                   "println||",
                   "println|    Amount not paid: 11.00|",
               });
        QTest::newRow("several items below one row of titles")
            << "<receipe number='1' name='Acqua' price='2.00' totalPrice='2.00'/>"
               "<receipe number='12' name='Caffè' price='1.20' totalPrice='14.40'/>"
               "<receipe number='1' name='Pane' price='0' totalPrice='0'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|  1 x Acqua.................2.00    2.00|",
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "println| 12 x Caffè.................1.20   14.40|",
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "println|  1 x Pane.....................0       0|",
               });
        QTest::newRow("a name is cut, amounts widen the line")
            << "<receipe number='1000' name='Spaghetti alle vongole veraci' price='1234.567'"
               " totalPrice='123456.789'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|1000 x Spaghetti alle vong1234.567123456.789|",
               });
        QTest::newRow("item without attributes") << "<receipe/>"_ba
                                                 << calls({
                                                        "printColumnsHeader|Num|Description|Price|Amount|",
                                                        "setBold",
                                                        "println|Num Description            Price  Amount|",
                                                        "setCharSize",
                                                        "println|    x ..........................        |",
                                                    });
        QTest::newRow("total before any item, without titles")
            << "<total price='0.00'/>"_ba
            << calls({"println||", "println|    TOTAL.......................    0.00|"});
        QTest::newRow("each total on its own") << "<total price='1.00'/><total price='2.00'/>"_ba
                                               << calls({
                                                      "println||",
                                                      "println|    TOTAL.......................    1.00|",
                                                      "println||",
                                                      "println|    TOTAL.......................    2.00|",
                                                  });
        QTest::newRow("amount not paid is any text")
            << "<notPaid price='  EUR 3,-- of 1&lt;2 &#x20AC; and quite a long explanation'/>"_ba
            << calls({"println||",
                      "println|    Amount not paid:   EUR 3,-- of 1<2 € and quite a long explanation|"});
        QTest::newRow("amount not paid without attributes")
            << "<notPaid/>"_ba << calls({"println||", "println|    Amount not paid: |"});
        QTest::newRow("customer") << "<customer name='Rossi'/>"_ba
                                  << calls({"println|CUSTOMER|", "println 1|Rossi|", "printSeparatorLine"});
        QTest::newRow("header elements") << "<receipt serialnumber='17'/><invoice serialnumber='18'/>"_ba
                                         << calls({
                                                "println 1|Serial Number: 17|",
                                                "printSeparatorLine",
                                                "print 1|Invoice Number:|",
                                                "println 1|18|",
                                                "printSeparatorLine",
                                            });
        QTest::newRow("foreign elements")
            << "<receipe_type number='1' name='x' price='1'/><recipe/><notpaid price='1'/><Total/>"
               "<totals/><variant/><otherreceipe/>"_ba
            << QStringList();
    }

    void fullReceipt()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrderReceipt, elements), expected);
    }

    void abstractReceipt_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("kind of item, total, amount not paid")
            << "<receipe_type number='2' name='Coperto' price='4.00' totalPrice='8.00'/>"
               "<total price='4.00'/><notPaid price='11.00'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description||Price|",
                   "setBold",
                   "println|Num Description                    Price|",
                   "setCharSize",
                   "println|  2 x Coperto...................    4.00|",
                   "println||",
                   "println|    TOTAL.......................    4.00|",
                   "println||",
                   "println|   Corrispettivo non pagato: 11.00|",
               });
        QTest::newRow("several kinds below one row of titles")
            << "<receipe_type number='1' name='Bar' price='2.00'/>"
               "<receipe_type number='3' name='Cucina' price='33.00'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description||Price|",
                   "setBold",
                   "println|Num Description                    Price|",
                   "setCharSize",
                   "println|  1 x Bar.......................    2.00|",
                   "printColumnsHeader|Num|Description||Price|",
                   "println|  3 x Cucina....................   33.00|",
               });
        QTest::newRow("amount not paid before any row, without titles")
            << "<notPaid price='n/a'/>"_ba
            << calls({"println||", "println|   Corrispettivo non pagato: n/a|"});
        QTest::newRow("each total on its own") << "<total/><total price='2.00'/>"_ba
                                               << calls({
                                                      "println||",
                                                      "println|    TOTAL.......................        |",
                                                      "println||",
                                                      "println|    TOTAL.......................    2.00|",
                                                  });
        QTest::newRow("header element") << "<company a='x'/><receipt serialnumber='17'/>"_ba
                                        << calls({"println 1|Serial Number: 17|", "printSeparatorLine"});
        QTest::newRow("customer and items of the full receipt")
            << "<customer name='Rossi'/><receipe number='2' name='Pizza' price='1' totalPrice='2'/>"_ba
            << QStringList();
        QTest::newRow("foreign elements")
            << "<receipe_Type/><recipe_type/><notpaid/><totals/>"_ba << QStringList();
    }

    void abstractReceipt()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printAbstractOrderReceipt, elements), expected);
    }

    void worksOnPaper()
    {
        QCOMPARE(printedText(profile, &PrinterDriver::printFullOrderReceipt,
                             "<receipe number='2' name='Pizza Margherita' price='5.50' totalPrice='11.00'/>"
                             "<total price='11.00'/><notPaid price='11.00'/>"),
                 "Num Description            Price  Amount\n"
                 "  2 x Pizza Margherita......5.50   11.00\n"
                 "\n"
                 "    TOTAL.......................   11.00\n"
                 "\n"
                 "    Amount not paid: 11.00\n"_ba);
    }

    void labelsAreTranslated()
    {
        const Catalogue italian({{"Num", u"Nr"_s},
                                 {"Description", u"Voce"_s},
                                 {"Price", u"Prezzo"_s},
                                 {"Amount", u"Importo"_s},
                                 {"TOTAL", u"TOTALE"_s},
                                 {"    Amount not paid: ", u"Da pagare: "_s},
                                 {"   Corrispettivo non pagato: ", u"never"_s}});
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrderReceipt,
                               "<receipe/><total price='3.00'/><notPaid price='3.00'/>"),
                 calls({
                     "printColumnsHeader|Nr|Voce|Prezzo|Importo|",
                     "setBold",
                     "println| Nr Voce                  Prezzo Importo|",
                     "setCharSize",
                     "println|    x ..........................        |",
                     "println||",
                     "println|    TOTALE......................    3.00|",
                     "println||",
                     "println|Da pagare: 3.00|",
                 }));
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printAbstractOrderReceipt,
                               "<receipe_type/><total price='3.00'/><notPaid price='3.00'/>"),
                 calls({
                     "printColumnsHeader|Nr|Voce||Prezzo|", "setBold",
                     "println| Nr Voce                          Prezzo|", "setCharSize",
                     "println|    x ..........................        |", "println||",
                     "println|    TOTALE......................    3.00|", "println||",
                     "println|   Corrispettivo non pagato: 3.00|", // Italian in every language
                 }));
    }

private:
    DocumentProfile profile;
};

QTEST_GUILESS_MAIN(ReceiptsTest)
#include "receipts_test.moc"
