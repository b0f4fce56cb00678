#include "printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

class SoldItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void soldItems_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("each item in bold, nothing between and after them")
            << "<receipe quantity='12' description='Pizza Margherita' amount='66.00'/>"
               "<receipe quantity='3' description='Tiramisu' amount='13.50'/>"_ba
            << calls({
                   "setBold",
                   "println| 12 x Pizza Margherita..........   66.00|",
                   "setCharSize",
                   "setBold",
                   "println|  3 x Tiramisu..................   13.50|",
                   "setCharSize",
               });
        QTest::newRow("a receipt's attributes are not read")
            << "<receipe number='2' name='Pizza' price='5.50' totalPrice='11.00'/>"_ba
            << calls({"setBold", "println|    x ..........................        |", "setCharSize"});
        QTest::newRow("a description is cut, quantity and amount widen the line")
            << "<receipe quantity='1234' description='Spaghetti alle vongole' amount='123456.00'/>"_ba
            << calls({
                   "setBold",
                   "println|1234 x Spaghetti alle vong.......123456.00|",
                   "setCharSize",
               });
        QTest::newRow("non-ASCII text")
            << "<receipe quantity='1' description='Caff&#232; 日本' amount='€ 1,00'/>"_ba
            << calls({
                   "setBold",
                   "println|  1 x Caffè 日本..................  € 1,00|",
                   "setCharSize",
               });
        QTest::newRow("header elements")
            << "<geometry/><delivery serialnumber='5'/>"_ba
            << calls({"print 1|Delivery Number:|", "println 1|5|", "printSeparatorLine"});
        QTest::newRow("header elements only: nothing else") << "<logo/>"_ba << calls({"printLogo"});
        QTest::newRow("foreign elements")
            << "<customer name='Rossi'/><total price='1'/><receipe_type quantity='1'/><recipe/><Receipe/>"_ba
            << QStringList();
    }

    void soldItems()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        DocumentProfile profile = profileOfWidth(40);
        profile.printCustomer = true;
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printSold, elements), expected);
    }
};

QTEST_GUILESS_MAIN(SoldItemsTest)
#include "sold_items_test.moc"
