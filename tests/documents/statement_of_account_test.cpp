#include "catalogue.h"
#include "printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

class StatementOfAccountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statement_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("list and movement")
            << "<statement_list/><statement date='2008-03-01' type='deposit' amount='50.00'/>"_ba
            << calls({
                   "setBold",
                   "println|Date           Description     Amount|",
                   "reset",
                   "println|2008-03-01:    deposit..........50.00|",
               });
        QTest::newRow("movements without a list have no titles")
            << "<statement date='1/2' type='deposit' amount='1'/><statement date='1/3' type='debt' amount='2'/>"_ba
            << calls({
                   "println|1/2:           deposit..............1|",
                   "println|1/3:           debt.................2|",
               });
        QTest::newRow("two lists have two rows of titles")
            << "<statement_list amount='ignored'/><statement_list/>"_ba
            << calls({
                   "setBold",
                   "println|Date           Description     Amount|",
                   "reset",
                   "setBold",
                   "println|Date           Description     Amount|",
                   "reset",
               });
        QTest::newRow("no date") << "<statement type='deposit' amount='50.00'/>"_ba
                                 << calls({"println|:              deposit..........50.00|"});
        QTest::newRow("no type") << "<statement date='2008-03-01' amount='50.00'/>"_ba
                                 << calls({"println|2008-03-01:    .................50.00|"});
        QTest::newRow("no amount") << "<statement date='2008-03-01' type='deposit'/>"_ba
                                   << calls({"println|2008-03-01:    deposit...............|"});
        QTest::newRow("no attributes")
            << "<statement/>"_ba << calls({"println|:              ......................|"});
        QTest::newRow("a date of 13 characters leaves no gap")
            << "<statement date='1 March 2008*' type='deposit' amount='50.00'/>"_ba
            << calls({"println|1 March 2008*: deposit..........50.00|"});
        QTest::newRow("a longer date moves the rest")
            << "<statement date='1 February 2008' type='deposit' amount='50.00'/>"_ba
            << calls({"println|1 February 2008: deposit..........50.00|"});
        QTest::newRow("a long type is cut")
            << "<statement date='2008-03-01' type='deposit by credit card' amount='50.00'/>"_ba
            << calls({"println|2008-03-01:    deposit by cred..50.00|"});
        QTest::newRow("a long amount widens the line")
            << "<statement date='2008-03-01' type='deposit' amount='1234567.89'/>"_ba
            << calls({"println|2008-03-01:    deposit........1234567.89|"});
        QTest::newRow("header elements") << "<headers/><orderinfo/>"_ba
                                         << calls({"setCenterJustify", "println||", "printSeparatorLine",
                                                   "setCharSize", "printSeparatorLine"});
        QTest::newRow("foreign elements")
            << "<customer name='Rossi'/><Statement/><statements/><statement_List/><total/><receipe/>"_ba
            << QStringList();
    }

    void statement()
    {
        QFETCH(const QByteArray, elements);
        QFETCH(const QStringList, expected);
        DocumentProfile profile = profileOfWidth(40);
        profile.printCustomer = true;
        QCOMPARE(recordedCalls(profile, &PrinterDriver::printStatementOfAccount, elements), expected);
    }

    void titlesAndTypesAreTranslated()
    {
        const Catalogue italian({{"Date", u"Data"_s},
                                 {"Description", u"Causale"_s},
                                 {"Amount", u"Importo"_s},
                                 {"deposit", u"versamento"_s},
                                 {"Rückzahlung", u"rimborso"_s},
                                 {"50.00", u"never"_s}});
        QCOMPARE(recordedCalls(profileOfWidth(40), &PrinterDriver::printStatementOfAccount,
                               "<statement_list/>"
                               "<statement date='Date' type='deposit' amount='50.00'/>"
                               "<statement date='Date' type='Rückzahlung' amount='50.00'/>"
                               "<statement date='Date' type='Überweisung' amount='50.00'/>"),
                 calls({
                     "setBold", "println|Data           Causale        Importo|", "reset",
                     "println|Date:          versamento.......50.00|",
                     "println|Date:          rimborso.........50.00|",
                     "println|Date:          Überweisung......50.00|", // not in the catalogue
                 }));
    }
};

QTEST_GUILESS_MAIN(StatementOfAccountTest)
#include "statement_of_account_test.moc"
