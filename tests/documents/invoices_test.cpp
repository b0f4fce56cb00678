#include "catalogue.h"
#include "printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* Rows that hold for the full and for the abstract invoice. */
void addCommonRows()
{
    QTest::newRow("totals") << "<totals taxable='11.82' taxrate='10' tax='1.18' total='13.00'/>"_ba
                            << calls({
                                   "setBold",
                                   "println||",
                                   "println|    Taxable.....................   11.82|",
                                   "println|    TaxRate.....................      10|",
                                   "println|    Tax.........................    1.18|",
                                   "println|    TOTAL.......................   13.00|",
                                   "setCharSize",
                               });
    QTest::newRow("totals without attributes") << "<totals/>"_ba
                                               << calls({
                                                      "setBold",
                                                      "println||",
                                                      "println|    Taxable.....................        |",
                                                      "println|    TaxRate.....................        |",
                                                      "println|    Tax.........................        |",
                                                      "println|    TOTAL.......................        |",
                                                      "setCharSize",
                                                  });
    QTest::newRow("customer after the totals") << "<totals total='123456789.00'/><customer name='Rossi'/>"_ba
                                               << calls({
                                                      "setBold",
                                                      "println||",
                                                      "println|    Taxable.....................        |",
                                                      "println|    TaxRate.....................        |",
                                                      "println|    Tax.........................        |",
                                                      "println|    TOTAL.......................123456789.00|",
                                                      "setCharSize",
                                                      "println|CUSTOMER|",
                                                      "println 1|Rossi|",
                                                      "printSeparatorLine",
                                                  });
    QTest::newRow("header elements") << "<invoice serialnumber='18'/><printers name='Bar'/>"_ba
                                     << calls({
                                            "print 1|Invoice Number:|",
                                            "println 1|18|",
                                            "printSeparatorLine",
                                            "initPrinter",
                                        });
    QTest::newRow("foreign elements") << "<total price='1'/><notPaid price='1'/><recipe/><Totals/>"
                                         "<otherreceipe/><variant name='x'/>"_ba
                                      << QStringList();
}

} // namespace

class InvoicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        profile = profileOfWidth(40);
        profile.printCustomer = true;
    }

    void fullInvoice_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");
        addCommonRows();

        QTest::newRow("items below one row of titles")
            << "<receipe number='2' name='Pizza' price='6.50' totalPrice='13.00'/>"
               "<receipe number='1' name='Spaghetti alle vongole' price='12.00' totalPrice='12.00'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "setBold",
                   "println|Num Description            Price  Amount|",
                   "setCharSize",
                   "println|  2 Pizza...................6.50   13.00|",
                   "printColumnsHeader|Num|Description|Price|Amount|",
                   "println|  1 Spaghetti alle vongol..12.00   12.00|",
               });
        QTest::newRow("item without attributes") << "<receipe/>"_ba
                                                 << calls({
                                                        "printColumnsHeader|Num|Description|Price|Amount|",
                                                        "setBold",
                                                        "println|Num Description            Price  Amount|",
                                                        "setCharSize",
                                                        "println|    ............................        |",
                                                    });
        QTest::newRow("kinds of item are the abstract invoice's")
            << "<receipe_type number='2' name='Pizza' price='13.00'/>"_ba << QStringList();
    }

    void fullInvoice()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrderInvoice, elements), expected);
    }

    void abstractInvoice_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");
        addCommonRows();

        QTest::newRow("kinds of item below one row of titles")
            << "<receipe_type number='2' name='Pizza' price='13.00' totalPrice='99.00'/>"
               "<receipe_type number='10' name='Coperto' price='20.00'/>"_ba
            << calls({
                   "printColumnsHeader|Num|Description||Price|",
                   "setBold",
                   "println|Num Description                    Price|",
                   "setCharSize",
                   "println|  2 x Pizza.....................   13.00|",
                   "printColumnsHeader|Num|Description||Price|",
                   "println| 10 x Coperto...................   20.00|",
               });
        QTest::newRow("items are the full invoice's")
            << "<receipe number='2' name='Pizza' price='6.50' totalPrice='13.00'/>"_ba << QStringList();
    }

    void abstractInvoice()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printAbstractOrderInvoice, elements), expected);
    }

    void customerNeedsItsSwitch()
    {
        const QByteArray customer = "<customer name='Rossi'/>";
        const DocumentProfile off = profileOfWidth(40);
        QCOMPARE(recordedCalls(off, &PrinterDriver::printFullOrderInvoice, customer), QStringList());
        QCOMPARE(recordedCalls(off, &PrinterDriver::printAbstractOrderInvoice, customer), QStringList());
    }

    void labelsAreTranslated()
    {
        const Catalogue italian({{"Num", u"Nr"_s},
                                 {"Description", u"Voce"_s},
                                 {"Price", u"Prezzo"_s},
                                 {"Amount", u"Importo"_s},
                                 {"Taxable", u"Imponibile"_s},
                                 {"TaxRate", u"Aliquota"_s},
                                 {"Tax", u"IVA"_s},
                                 {"TOTAL", u"TOTALE"_s}});
        const QStringList totals = calls({
            "setBold",
            "println||",
            "println|    Imponibile..................    1.00|",
            "println|    Aliquota....................       4|",
            "println|    IVA.........................    0.04|",
            "println|    TOTALE......................    1.04|",
            "setCharSize",
        });
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printFullOrderInvoice,
                               "<receipe/><totals taxable='1.00' taxrate='4' tax='0.04' total='1.04'/>"),
                 calls({
                     "printColumnsHeader|Nr|Voce|Prezzo|Importo|",
                     "setBold",
                     "println| Nr Voce                  Prezzo Importo|",
                     "setCharSize",
                     "println|    ............................        |",
                 }) + totals);
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printAbstractOrderInvoice,
                               "<receipe_type/><totals taxable='1.00' taxrate='4' tax='0.04' total='1.04'/>"),
                 calls({
                     "printColumnsHeader|Nr|Voce||Prezzo|",
                     "setBold",
                     "println| Nr Voce                          Prezzo|",
                     "setCharSize",
                     "println|    x ..........................        |",
                 }) + totals);
    }

private:
    DocumentProfile profile;
};

QTEST_GUILESS_MAIN(InvoicesTest)
#include "invoices_test.moc"
