#include "catalogue.h"
#include "printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void addVariantRows()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QByteArray>("sign");

    const auto row = [](const char *name, const QByteArray &attribute, const QByteArray &sign) {
        QTest::newRow(name) << attribute << sign;
    };
    row("0", "quantity='0'", "-");
    row("minus 0", "quantity='-0'", "-");
    row("-1", "quantity='-1'", "-");
    row("-1.0", "quantity='-1.0'", "-");
    row("1", "quantity='1'", "+");
    row("1.0", "quantity='1.0'", "+");
    row("1e0", "quantity='1e0'", "+");
    row("2", "quantity='2'", "2");
    row("2.50 stays as written", "quantity='2.50'", "2.50");
    row("-2", "quantity='-2'", "-2");
    row("0.5", "quantity='0.5'", "0.5");
    row("missing", "", "-");
    row("empty", "quantity=''", "-");
    row("no number", "quantity='two'", "-");
    row("comma, which is no decimal point", "quantity='1,0'", "-");
}

} // namespace

class OrderTicketsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        profile = profileOfWidth(40);
        profile.printCustomer = true;
    }

    void fullOrder_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("first item below the titles, second below the first")
            << "<receipe number='2' name='Pizza Margherita' price='5.50' totalPrice='11.00'/>"
               "<receipe number='1' name='Tiramisù' price='4.50' totalPrice='4.50'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|  2 Pizza Margherita........5.50   11.00|",
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "println|  1 Tiramisù................4.50    4.50|",
               });
        QTest::newRow("a name that begins with = hides the item and leaves the titles to the next")
            << "<receipe number='9' name='=Menu' price='0.00' totalPrice='0.00'/>"
               "<receipe number='1' name='Acqua' price='2.00' totalPrice='2.00'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|  1 Acqua...................2.00    2.00|",
               });
        QTest::newRow("only the first character hides")
            << "<receipe number='1' name=' =x' price='1' totalPrice='1'/>"
               "<receipe number='1' name='x=y' price='1' totalPrice='1'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|  1  =x........................1       1|",
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "println|  1 x=y........................1       1|",
               });
        QTest::newRow("item without attributes") << "<receipe/>"_ba
                                                 << calls({
                                                        "printColumnsHeader|Num|Description|Price|Amount|",
                                                        "setBold",
                                                        "println|Num Description            Price  Amount|",
                                                        "setCharSize",
                                                        "println|    ............................        |",
                                                    });
        QTest::newRow("variant, without titles")
            << "<variant quantity='1' name='Olives' number='3' price='0.50' totalPrice='1.50'/>"_ba
            << calls({"println|  3 + Olives................0.50    1.50|"});
        QTest::newRow("variant whose name begins with =")
            << "<variant quantity='1' name='=x'/>"_ba
            << calls({"println|    + =x........................        |"});
        QTest::newRow("total: empty line, bold left on, only its price")
            << "<total price='11.00' number='7' name='Sum' totalPrice='99.00'/>"_ba
            << calls({
                   "println||",
                   "setBold",
                   "println|    TOTAL.......................   11.00|",
               });
        QTest::newRow("total without attributes") << "<total/>"_ba
                                                  << calls({
                                                         "println||",
                                                         "setBold",
                                                         "println|    TOTAL.......................        |",
                                                     });
        QTest::newRow("customer") << "<customer name='Rossi'/>"_ba
                                  << calls({"println|CUSTOMER|", "println 1|Rossi|", "printSeparatorLine"});
        QTest::newRow("header elements")
            << "<printers name='Bar'/><headers/><logo/><delivery serialnumber='5'/><orderinfo date='1'/>"_ba
            << calls({
                   "initPrinter",
                   "setCenterJustify",
                   "println|Bar|",
                   "printSeparatorLine",
                   "printLogo",
                   "print 1|Delivery Number:|",
                   "println 1|5|",
                   "printSeparatorLine",
                   "setCharSize",
                   "printSeparatorLine",
               });
        QTest::newRow("foreign elements") << "<otherreceipe number='1' name='x'/><receipe_type/><Receipe/>"
                                             "<recipe/><notPaid price='1'/><totals/>"_ba
                                          << QStringList();
    }

    void fullOrder()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrder, elements), expected);
    }

    void partialOrder_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("item: no titles, no prices")
            << "<receipe number='2' name='Pizza Margherita' price='5.50' totalPrice='11.00'/>"_ba
            << calls({"setCharSize", "println|  2 Pizza Margherita                  |"});
        QTest::newRow("other item, in size 1")
            << "<otherreceipe number='2' name='Pizza Margherita' price='5.50'/>"_ba
            << calls({"setCharSize 1", "println|  2 Pizza Margherita                  |"});
        QTest::newRow("variant") << "<variant quantity='-1' name='Olives' number='3' price='0.50'/>"_ba
                                 << calls({"println|  3 - Olives                          |"});
        QTest::newRow("a name that begins with = is printed here")
            << "<receipe number='1' name='=Menu'/>"_ba
            << calls({"setCharSize", "println|  1 =Menu                             |"});
        QTest::newRow("item without attributes")
            << "<receipe/>"_ba << calls({"setCharSize", "println|                                      |"});
        QTest::newRow("total") << "<total price='11.00'/>"_ba << QStringList();
        QTest::newRow("customer") << "<customer name='Rossi'/>"_ba
                                  << calls({"println|CUSTOMER|", "println 1|Rossi|", "printSeparatorLine"});
        QTest::newRow("header element")
            << "<orderinfo table='4'/>"_ba << calls({"setCharSize", "printSeparatorLine"});
        QTest::newRow("foreign elements")
            << "<receipe_type number='1' name='x'/><Otherreceipe/><otherRecipe/><notPaid/>"_ba
            << QStringList();
    }

    void partialOrder()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printPartialOrder, elements), expected);
    }

    void deliveryIsPartialOrder_data() { partialOrder_data(); }
    void deliveryIsPartialOrder()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrderDelivery, elements), expected);
    }

    // A printer with partial orders of its own gets everything else of a delivery as well.
    void customerOfADeliveryIsNoPartialOrders()
    {
        class OwnPartialOrders : public RecordingDriver
        {
        public:
            void printPartialOrder(const QString &qName, const QXmlAttributes &attributes) override
            {
                note(u"printPartialOrder"_s, {qName, attributes.value(u"name"_s)});
            }
        };

        OwnPartialOrders driver;
        driver.profile = profile;
        readElements("<orderinfo/><customer name='Rossi'/><receipe name='Pizza'/>",
                     [&](const QString &qName, const QXmlAttributes &attributes) {
                         driver.printFullOrderDelivery(qName, attributes);
                     });
        QCOMPARE(driver.calls,
                 calls({
                     "printPartialOrder|orderinfo||",
                     "println|CUSTOMER|",
                     "println 1|Rossi|",
                     "printSeparatorLine",
                     "printPartialOrder|receipe|Pizza|",
                 }));
    }

    void customerNeedsItsSwitch()
    {
        const QByteArray customer = "<customer name='Rossi'/>";
        const DocumentProfile off = profileOfWidth(40);
        QCOMPARE(recordedCalls(off, &PrinterDriver::printFullOrder, customer), QStringList());
        QCOMPARE(recordedCalls(off, &PrinterDriver::printPartialOrder, customer), QStringList());
        QCOMPARE(recordedCalls(off, &PrinterDriver::printFullOrderDelivery, customer), QStringList());
    }

    void variantSignInFullOrder_data() { addVariantRows(); }
    void variantSignInFullOrder()
    {
        QFETCH(const QByteArray, attribute);
        QFETCH(const QByteArray, sign);
        const QStringList printed = recordedCalls(profile, &PrinterDriver::printFullOrder,
                                                  "<variant name='Olives' " + attribute + "/>");
        QCOMPARE(printed.size(), 1);
        const QByteArray expected = "println|    " + sign + " Olives.";
        QCOMPARE(printed.first().toUtf8().left(expected.size()), expected);
    }

    void variantSignInPartialOrder_data() { addVariantRows(); }
    void variantSignInPartialOrder()
    {
        QFETCH(const QByteArray, attribute);
        QFETCH(const QByteArray, sign);
        const QStringList printed = recordedCalls(profile, &PrinterDriver::printPartialOrder,
                                                  "<variant name='Olives' " + attribute + "/>");
        QCOMPARE(printed.size(), 1);
        const QByteArray expected = "println|    " + sign + " Olives ";
        QCOMPARE(printed.first().toUtf8().left(expected.size()), expected);
    }

    void labelsAreTranslated()
    {
        const Catalogue italian({{"Num", u"Nr"_s},
                                 {"Description", u"Voce"_s},
                                 {"Price", u"Prezzo"_s},
                                 {"Amount", u"Importo"_s},
                                 {"TOTAL", u"TOTALE"_s}});
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrder,
                               "<receipe number='1' name='TOTAL'/><total price='3.00'/>"),
                 calls({
                     "printColumnsHeader|Nr|Voce|Prezzo|Importo|",
                     "setBold",
                     "println| Nr Voce                  Prezzo Importo|",
                     "setCharSize",
                     "println|  1 TOTAL.......................        |",
                     "println||",
                     "setBold",
                     "println|    TOTALE......................    3.00|",
                 }));
    }

private:
    DocumentProfile profile;
};

QTEST_GUILESS_MAIN(OrderTicketsTest)
#include "order_tickets_test.moc"
