#include "company_printer_driver.h"
#include "recording_driver.h"
#include "routine_run.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* The profile of most rows here: columns of 3, 7 and 8 characters on a paper of 34. */
DocumentProfile narrow()
{
    return profileOfWidth(34);
}

DocumentProfile widths(int quantity, int price, int total, int paper)
{
    DocumentProfile profile;
    profile.quantityFieldWidth = quantity;
    profile.priceFieldWidth = price;
    profile.totalPriceFieldWidth = total;
    profile.paperWidth = paper;
    return profile;
}

QString row(const DocumentProfile &profile, const QString &quantity, const QString &description,
            const QString &price, const QString &total, QChar fill, const QString &format)
{
    RecordingDriver driver;
    driver.profile = profile;
    return driver.descriptionRow(quantity, description, price, total, fill, format);
}

} // namespace

class LineLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("blanks");
        QTest::addColumn<QString>("dots");

        QTest::newRow("qdpt") << u"qdpt"_s << u"  2 Pizza Margherit   5.50   11.00"_s
                              << u"  2 Pizza Margherit...5.50   11.00"_s;
        QTest::newRow("qxdpt") << u"qxdpt"_s << u"  2 x Pizza Margher   5.50   11.00"_s
                               << u"  2 x Pizza Margher...5.50   11.00"_s;
        QTest::newRow("qxdtDoubleLine")
            << u"qxdtDoubleLine"_s << u"2 x 5.50\nPizza Margherita extra       11.00"_s
            << u"2 x 5.50\nPizza Margherita extra.......11.00"_s;
        QTest::newRow("qxd") << u"qxd"_s << u"  2 x Pizza Margherita extra      "_s
                             << u"  2 x Pizza Margherita extra......"_s;
        QTest::newRow("qd") << u"qd"_s << u"  2 Pizza Margherita extra      "_s
                            << u"  2 Pizza Margherita extra      "_s; // no fill but blanks
        QTest::newRow("unknown") << u"qdp"_s << QString() << QString();
        QTest::newRow("misspelt") << u"qxdtDoubleline"_s << QString() << QString();
        QTest::newRow("capitals") << u"QDPT"_s << QString() << QString();
        QTest::newRow("trailing blank") << u"qdpt "_s << QString() << QString();
        QTest::newRow("none") << QString() << QString() << QString();
    }

    void formats()
    {
        QFETCH(const QString, format);
        QFETCH(const QString, blanks);
        QFETCH(const QString, dots);
        const auto pizza = [&](QChar fill) {
            return row(narrow(), u"2"_s, u"Pizza Margherita extra"_s, u"5.50"_s, u"11.00"_s, fill, format);
        };
        QCOMPARE(pizza(u' '), blanks);
        QCOMPARE(pizza(u'.'), dots);
    }

    void dateAmountType_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("blanks");
        QTest::addColumn<QString>("dots");

        QTest::newRow("all fit") << u"12/03/2009"_s << u"Payment"_s << u"20.00"_s
                                 << u"12/03/2009     Payment    20.00"_s
                                 << u"12/03/2009     Payment....20.00"_s;
        QTest::newRow("date of 15") << u"12 March 2009 :"_s << u"Payment"_s << u"20.00"_s
                                    << u"12 March 2009 :Payment    20.00"_s
                                    << u"12 March 2009 :Payment....20.00"_s;
        QTest::newRow("longer date is not cut")
            << u"12 March 2009  :"_s << u"Payment"_s << u"20.00"_s << u"12 March 2009  :Payment    20.00"_s
            << u"12 March 2009  :Payment....20.00"_s;
        QTest::newRow("longer kind is cut, longer amount is not")
            << u"12/03/2009"_s << u"Payments by card"_s << u"12345678"_s
            << u"12/03/2009     Payments 12345678"_s << u"12/03/2009     Payments 12345678"_s;
        QTest::newRow("empty") << QString() << QString() << QString() << QString(31, u' ')
                               << QString(15, u' ') + QString(16, u'.');
    }

    void dateAmountType()
    {
        QFETCH(const QString, date);
        QFETCH(const QString, kind);
        QFETCH(const QString, amount);
        QFETCH(const QString, blanks);
        QFETCH(const QString, dots);
        const QString format = u"date-amount-type"_s;
        QCOMPARE(row(narrow(), date, kind, amount, u"99"_s, u' ', format), blanks);
        QCOMPARE(row(narrow(), date, kind, amount, u"99"_s, u'.', format), dots);
    }

    void columns_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("price");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("expected");

        const auto add = [](const char *name, const char16_t *format, const char16_t *quantity,
                            const char16_t *description, const char16_t *price, const char16_t *total,
                            const char16_t *expected) {
            QTest::newRow(name) << QString::fromUtf16(format) << QString::fromUtf16(quantity)
                                << QString::fromUtf16(description) << QString::fromUtf16(price)
                                << QString::fromUtf16(total) << QString::fromUtf16(expected);
        };

        add("qdpt: description one short", u"qdpt", u"2", u"Pizza Margheri", u"5.50", u"11.00",
            u"  2 Pizza Margheri....5.50   11.00");
        add("qdpt: description fits", u"qdpt", u"2", u"Pizza Margherit", u"5.50", u"11.00",
            u"  2 Pizza Margherit...5.50   11.00");
        add("qdpt: description one longer", u"qdpt", u"2", u"Pizza Margherita", u"5.50", u"11.00",
            u"  2 Pizza Margherit...5.50   11.00");
        add("qdpt: quantity fits", u"qdpt", u"100", u"Pizza", u"5.50", u"11.00",
            u"100 Pizza.............5.50   11.00");
        add("qdpt: quantity one longer", u"qdpt", u"1000", u"Pizza", u"5.50", u"11.00",
            u"1000 Pizza.............5.50   11.00");
        add("qdpt: price fits", u"qdpt", u"2", u"Pizza", u"1000.50", u"11.00",
            u"  2 Pizza..........1000.50   11.00");
        add("qdpt: price wider by three", u"qdpt", u"2", u"Pizza", u"1234567.89", u"11.00",
            u"  2 Pizza..........1234567.89   11.00");
        add("qdpt: total fits", u"qdpt", u"2", u"Pizza", u"5.50", u"12345.00",
            u"  2 Pizza.............5.5012345.00");
        add("qdpt: total one longer", u"qdpt", u"2", u"Pizza", u"5.50", u"123456.00",
            u"  2 Pizza.............5.50123456.00");
        add("qdpt: nothing", u"qdpt", u"", u"", u"", u"", u"    ......................        ");
        add("qdpt: blanks are text", u"qdpt", u" 2 ", u" Pizza ", u" 1 ", u" 2 ",
            u" 2   Pizza ............ 1       2 ");
        add("qxdpt: description fits", u"qxdpt", u"2", u"Pizza Margher", u"5.50", u"11.00",
            u"  2 x Pizza Margher...5.50   11.00");
        add("qxdpt: description one short", u"qxdpt", u"2", u"Pizza Marghe", u"5.50", u"11.00",
            u"  2 x Pizza Marghe....5.50   11.00");
        add("qxdpt: price and total too wide", u"qxdpt", u"2", u"Pizza", u"12345.50", u"123456.00",
            u"  2 x Pizza........12345.50123456.00");
        add("qxdpt: nothing", u"qxdpt", u"", u"", u"", u"", u"    x ....................        ");
        add("qxdtDoubleLine: description cut", u"qxdtDoubleLine", u"12345", u"Pizza Margherita extra large",
            u"1", u"2", u"12345 x 1\nPizza Margherita extra lar.......2");
        add("qxdtDoubleLine: total too wide", u"qxdtDoubleLine", u"1", u"Pizza", u"1", u"123456789",
            u"1 x 1\nPizza.....................123456789");
        add("qxdtDoubleLine: nothing", u"qxdtDoubleLine", u"", u"", u"", u"",
            u" x \n..................................");
        add("qxd: prices are not read", u"qxd", u"2", u"Pizza", u"1234567890", u"1234567890",
            u"  2 x Pizza.......................");
        add("qxd: description cut", u"qxd", u"1000", u"Pizza Margherita extra large!", u"", u"",
            u"1000 x Pizza Margherita extra large");
        add("qd: prices are not read", u"qd", u"2", u"Pizza", u"1234567890", u"1234567890",
            u"  2 Pizza                       ");
        add("qd: description cut", u"qd", u"1000", u"Pizza Margherita extra large!", u"", u"",
            u"1000 Pizza Margherita extra large");
        add("characters and not bytes count", u"qdpt", u"½", u"Caffè corretto d'estate", u"5 €", u"11 €",
            u"  ½ Caffè corretto ....5 €    11 €");
    }

    void columns()
    {
        QFETCH(const QString, format);
        QFETCH(const QString, quantity);
        QFETCH(const QString, description);
        QFETCH(const QString, price);
        QFETCH(const QString, total);
        QFETCH(const QString, expected);
        QCOMPARE(row(narrow(), quantity, description, price, total, u'.', format), expected);
    }

    // Where nothing is left for the description, it is as if it were empty.
    void oddWidths_data()
    {
        QTest::addColumn<DocumentProfile>("profile");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("expected");

        const auto add = [](const char *name, const DocumentProfile &profile, const QString &format,
                            const QString &expected) {
            QTest::newRow(name) << profile << format << expected;
        };

        add("qdpt: no column but the description", widths(0, 0, 0, 10), u"qdpt"_s, u"2 Pizza Mar5.5011.00"_s);
        add("qdpt: one character left", widths(3, 7, 8, 20), u"qdpt"_s, u"  2 P...5.50   11.00"_s);
        add("qdpt: nothing left", widths(3, 7, 8, 19), u"qdpt"_s, u"  2 ...5.50   11.00"_s);
        add("qdpt: less than nothing left", widths(3, 7, 8, 5), u"qdpt"_s, u"  2 ...5.50   11.00"_s);
        add("qdpt: negative columns give room", widths(-1, -2, -3, 4), u"qdpt"_s, u"2 Pizza Mar5.5011.00"_s);
        add("qdpt: negative paper", widths(3, 7, 8, -34), u"qdpt"_s, u"  2 ...5.50   11.00"_s);
        add("qdpt: all negative", widths(-3, -7, -8, -34), u"qdpt"_s, u"2 5.5011.00"_s);
        add("qxdpt: one character left", widths(3, 7, 8, 22), u"qxdpt"_s, u"  2 x P...5.50   11.00"_s);
        add("qxdpt: less than nothing left", widths(3, 7, 8, 10), u"qxdpt"_s, u"  2 x ...5.50   11.00"_s);
        add("qxdtDoubleLine: less than nothing left", widths(3, 7, 8, 5), u"qxdtDoubleLine"_s,
            u"2 x 5.50\n...11.00"_s);
        add("qxd: less than nothing left", widths(3, 7, 8, 5), u"qxd"_s, u"  2 x "_s);
        add("qd: nothing left", widths(3, 7, 8, 6), u"qd"_s, u"  2 "_s);
        add("qd: one character left", widths(3, 7, 8, 7), u"qd"_s, u"  2 P"_s);
        add("date-amount-type: less than nothing left", widths(3, 7, 8, 10), u"date-amount-type"_s,
            u"2              ...5.50"_s);
        add("date-amount-type: negative price column gives room", widths(3, -2, 8, 20), u"date-amount-type"_s,
            u"2              Pizz5.50"_s);
    }

    void oddWidths()
    {
        QFETCH(const DocumentProfile, profile);
        QFETCH(const QString, format);
        QFETCH(const QString, expected);
        QCOMPARE(row(profile, u"2"_s, u"Pizza Margherita"_s, u"5.50"_s, u"11.00"_s, u'.', format), expected);
    }

    void widestPaper()
    {
        const QString text = row(widths(100'000, 100'000, 100'000, 100'000), u"2"_s, u"Pizza"_s, u"1"_s,
                                 u"2"_s, u'.', u"qdpt"_s);
        QCOMPARE(text.size(), 300'001);
        const QString negative = row(widths(-100'000, -100'000, -100'000, 100'000), u"2"_s, u"Pizza"_s,
                                     u"1"_s, u"2"_s, u'.', u"qdpt"_s);
        QCOMPARE(negative.size(), 400'003); // "2 ", the description in 399,999 characters, "12"
    }

    void unknownFormatIsAnEmptyLine()
    {
        QCOMPARE(printedText(narrow(),
                             [](CompanyPrinterDriver &printer) {
                                 printer.println(printer.descriptionRow(u"2"_s, u"Pizza"_s, u"1"_s, u"2"_s,
                                                                        u'.', u"qtpd"_s));
                             }),
                 "\n"_ba);
    }

    // A pair counts as two characters; half a pair comes out as the replacement character.
    void surrogatePairs()
    {
        const auto line = [](const QString &description) {
            return printedText(widths(1, 1, 1, 10), [&](CompanyPrinterDriver &printer) {
                printer.println(printer.descriptionRow(u"1"_s, description, u"2"_s, u"3"_s, u'.', u"qdpt"_s));
            });
        };
        QCOMPARE(line(u"grappa"_s), "1 grappa23\n"_ba);
        QCOMPARE(line(u"grap\U0001F377"_s),
                 "1 grap\xF0\x9F\x8D\xB7"
                 "23\n"_ba);
        QCOMPARE(line(u"grapp\U0001F377"_s),
                 "1 grapp\xEF\xBF\xBD"
                 "23\n"_ba);
        QCOMPARE(line(u"\U0001F377"_s), "1 \xF0\x9F\x8D\xB7....23\n"_ba);
    }

    void columnTitles()
    {
        RecordingDriver driver;
        driver.profile = narrow();
        driver.PrinterDriver::printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s);
        const QStringList once =
            calls({"setBold", "println|Qty Description      Price   Total|", "setCharSize"});
        QCOMPARE(driver.calls, once);
        driver.PrinterDriver::printColumnsHeader(u"Other"_s, u"Titles"_s, u"And"_s, u"So on"_s);
        QCOMPARE(driver.calls, once);
    }

    void columnTitlesUseUpTheOneTime()
    {
        RecordingDriver driver;
        driver.printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s);
        QVERIFY(!driver.oneTime());
    }

    void oneTimeUsesUpTheColumnTitles()
    {
        RecordingDriver driver;
        QVERIFY(driver.oneTime());
        driver.PrinterDriver::printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u"Total"_s);
        QCOMPARE(driver.calls, QStringList());
    }

    void oneTimeIsTrueOnce()
    {
        RecordingDriver driver;
        QVERIFY(driver.oneTime());
        QVERIFY(!driver.oneTime());
        QVERIFY(!driver.oneTime());
    }

    void columnTitlesEndCentring()
    {
        QCOMPARE(printedText(widths(3, 7, 0, 26),
                             [](CompanyPrinterDriver &printer) {
                                 printer.setCenterJustify();
                                 printer.printColumnsHeader(u"Qty"_s, u"Description"_s, u"Price"_s, u""_s);
                                 printer.println(u"left"_s);
                             }),
                 "    Qty Description      Price\n" // (34 - 26) / 2 = 4
                 "left\n"_ba);
    }

    void separator_data()
    {
        QTest::addColumn<int>("paperWidth");
        QTest::addColumn<QByteArray>("line");

        QTest::newRow("34") << 34 << "println|==================================|"_ba;
        QTest::newRow("the profile's and not the device's width")
            << 40 << "println|========================================|"_ba;
        QTest::newRow("1") << 1 << "println|=|"_ba;
        QTest::newRow("0") << 0 << "println||"_ba;
        QTest::newRow("negative") << -5 << "println||"_ba;
    }

    void separator()
    {
        QFETCH(const int, paperWidth);
        QFETCH(const QByteArray, line);
        RecordingDriver driver;
        driver.profile.paperWidth = paperWidth;
        driver.PrinterDriver::printSeparatorLine();
        QCOMPARE(driver.calls, QStringList{QString::fromLatin1(line)});
    }

    void separatorIsCentredWhileCentring()
    {
        QCOMPARE(printedText(profileOfWidth(20),
                             [](CompanyPrinterDriver &printer) {
                                 printer.setCenterJustify();
                                 printer.printSeparatorLine();
                                 printer.setCharSize();
                                 printer.printSeparatorLine();
                             }),
                 "       ====================\n" // (34 - 20) / 2 = 7
                 "====================\n"_ba);
    }
};

QTEST_GUILESS_MAIN(LineLayoutTest)
#include "line_layout_test.moc"
