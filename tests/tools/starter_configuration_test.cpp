#include "starter_configuration.h"

#include "configuration_check.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList profiles{u"doc"_s,        u"prefiscaldoc"_s, u"fiscaldoc"_s, u"receiptdoc"_s,
                           u"invoicedoc"_s, u"deliverydoc"_s,  u"reportdoc"_s, u"solddoc"_s};

const QStringList numbers{u"quantityFieldWidth"_s, u"priceFieldWidth"_s, u"totalPriceFieldWidth"_s,
                          u"paperWidth"_s,         u"paperRows"_s,       u"topMargin"_s};

const QStringList switches{u"printGeometry"_s,
                           u"printHeader"_s,
                           u"printLogo"_s,
                           u"printCompany"_s,
                           u"printDeliveryAddress"_s,
                           u"printBillingAddress"_s,
                           u"printTelephone"_s,
                           u"printDate"_s,
                           u"printTime"_s,
                           u"printTable"_s,
                           u"printCustomer"_s,
                           u"printLicenseNumber"_s,
                           u"printFiscalCode"_s,
                           u"printCredit"_s,
                           u"printWaiter"_s,
                           u"printNote"_s,
                           u"openCashDrawer"_s};

} // namespace

class StarterConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paperWidths() { QCOMPARE(starterPaperWidths(), (QList<int>{32, 40, 42, 48})); }

    void everyWidth_data()
    {
        QTest::addColumn<int>("paperWidth");
        for (const int width : starterPaperWidths())
            QTest::addRow("%d columns", width) << width;
    }
    void everyWidth()
    {
        QFETCH(const int, paperWidth);
        const TemporaryHome home;
        const QByteArray text = starterConfiguration(paperWidth);
        const QString file = home.writeFile(u"tavolux.conf"_s, text);
        const TXConfiguration configuration(file, u"cfg"_s);

        QVERIFY(configuration.getStrValue(u"tavolux.language.basedir"_s)
                    .endsWith("/tavolux-printer/translations"_L1));
        QCOMPARE(configuration.getStrValue(u"tavolux.language.file"_s), u"/"_s);
        for (const QString &profile : profiles) {
            const auto value = [&](const QString &setting) {
                return configuration.getStrValue("tavolux."_L1 + profile + u'.' + setting);
            };
            for (const QString &number : numbers) {
                bool isNumber = false;
                value(number).toInt(&isNumber);
                QVERIFY2(isNumber, qPrintable(profile + u'.' + number));
            }
            for (const QString &onOff : switches)
                QVERIFY2(value(onOff) == "true"_L1 || value(onOff) == "false"_L1,
                         qPrintable(profile + u'.' + onOff));
            QCOMPARE(value(u"paperWidth"_s), QString::number(paperWidth));
            QCOMPARE(value(u"descriptionWidth"_s),
                     profile == "fiscaldoc"_L1 ? QString::number(paperWidth) : QString());
        }
        // Empty, so that a lookup does not tell it from a missing one.
        QCOMPARE(text.count("style = \"\";"), profiles.size());

        for (const Finding &finding : checkConfiguration(file, u"cfg"_s, text))
            QFAIL(qPrintable(QString::number(finding.line) + ": "_L1 + finding.text));
    }

    void widthsByPaper_data()
    {
        QTest::addColumn<int>("paperWidth");
        QTest::addColumn<QString>("price");
        QTest::addColumn<QString>("total");
        // Two blanks before 100.00, 1000.00 and so on, the more the wider the paper.
        QTest::newRow("58 mm") << 32 << u"7"_s << u"7"_s;
        QTest::newRow("76 mm") << 40 << u"8"_s << u"8"_s;
        QTest::newRow("80 mm") << 42 << u"8"_s << u"9"_s;
        QTest::newRow("80 mm, small type") << 48 << u"9"_s << u"10"_s;
    }
    void widthsByPaper()
    {
        QFETCH(const int, paperWidth);
        const TemporaryHome home;
        const TXConfiguration configuration(
            home.writeFile(u"tavolux.conf"_s, starterConfiguration(paperWidth)), u"cfg"_s);
        for (const QString &profile : profiles) {
            const auto value = [&](const QString &setting) {
                return configuration.getStrValue("tavolux."_L1 + profile + u'.' + setting);
            };
            QCOMPARE(value(u"quantityFieldWidth"_s), u"3"_s);
            QTEST(value(u"priceFieldWidth"_s), "price");
            QTEST(value(u"totalPriceFieldWidth"_s), "total");
            QCOMPARE(value(u"paperRows"_s), u"0"_s);
            QCOMPARE(value(u"topMargin"_s), u"0"_s);
        }
    }

    // On every paper: what a person expects at the top of each kind of document.
    void switchesByDocument_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QStringList>("on"); // beside those that all have on
        QTest::newRow("kitchen ticket")
            << u"doc"_s << QStringList{u"printTable"_s, u"printWaiter"_s, u"printNote"_s};
        QTest::newRow("bill") << u"prefiscaldoc"_s
                              << QStringList{u"printCompany"_s, u"printTable"_s, u"printWaiter"_s};
        QTest::newRow("fiscal document") << u"fiscaldoc"_s << QStringList{u"openCashDrawer"_s};
        QTest::newRow("receipt") << u"receiptdoc"_s
                                 << QStringList{u"printCompany"_s, u"printTable"_s, u"printWaiter"_s,
                                                u"openCashDrawer"_s};
        QTest::newRow("invoice") << u"invoicedoc"_s
                                 << QStringList{u"printCompany"_s,       u"printCustomer"_s,
                                                u"printTelephone"_s,     u"printBillingAddress"_s,
                                                u"printLicenseNumber"_s, u"printFiscalCode"_s,
                                                u"openCashDrawer"_s};
        QTest::newRow("delivery") << u"deliverydoc"_s
                                  << QStringList{u"printNote"_s, u"printCustomer"_s, u"printTelephone"_s,
                                                 u"printDeliveryAddress"_s};
        QTest::newRow("report") << u"reportdoc"_s << QStringList{u"printCompany"_s};
        QTest::newRow("sold items") << u"solddoc"_s << QStringList();
    }
    void switchesByDocument()
    {
        QFETCH(const QString, profile);
        QFETCH(QStringList, on);
        on << u"printGeometry"_s << u"printHeader"_s << u"printDate"_s << u"printTime"_s;
        on.sort();
        for (const int paperWidth : starterPaperWidths()) {
            const TemporaryHome home;
            const TXConfiguration configuration(
                home.writeFile(u"tavolux.conf"_s, starterConfiguration(paperWidth)), u"cfg"_s);
            QStringList found;
            for (const QString &name : switches)
                if (configuration.getStrValue("tavolux."_L1 + profile + u'.' + name) == "true"_L1)
                    found.append(name);
            found.sort();
            QCOMPARE(found, on);
        }
    }
};

QTEST_GUILESS_MAIN(StarterConfigurationTest)
#include "starter_configuration_test.moc"
