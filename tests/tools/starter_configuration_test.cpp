#include "starter_configuration.h"

#include "configuration_check.h"
#include "printer_settings.h"
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

    void widthForAPrinter_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("paperWidth");
        for (const auto &[columns, paperWidth] : {std::pair{1, 32},
                                                  {31, 32},
                                                  {32, 32},
                                                  {39, 32},
                                                  {40, 40},
                                                  {41, 40},
                                                  {42, 42},
                                                  {47, 42},
                                                  {48, 48},
                                                  {255, 48}})
            QTest::addRow("%d columns", columns) << columns << paperWidth;
    }
    void widthForAPrinter()
    {
        QFETCH(const int, columns);
        QTEST(starterPaperWidth(columns), "paperWidth");
    }

    void everyModel_data()
    {
        QTest::addColumn<QString>("model");
        for (const PrinterModel &model : printerModels)
            QTest::newRow(model.name.data()) << QString(model.name);
    }
    void everyModel()
    {
        QFETCH(const QString, model);
        const PrinterModel &printer = *findPrinterModel(model);
        const TemporaryHome home;
        const QByteArray text = starterConfiguration(starterPaperWidth(printer.columns),
                                                     StarterPrinter{printer.name, "/dev/lp0"});
        const QString file = home.writeFile(u"tavolux.conf"_s, text);
        const std::optional<PrinterSettings> started =
            printerForOutput(TXConfiguration(file, u"cfg"_s), u"/dev/lp0"_s);
        QVERIFY(started);
        QCOMPARE(started->model, &printer);
        QCOMPARE(started->outputs, QStringList(u"/dev/lp0"_s));
        for (const Finding &finding : checkConfiguration(text, u"cfg"_s))
            QFAIL(qPrintable(QString::number(finding.line) + ": "_L1 + finding.text));
    }

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
            QCOMPARE(value(u"descriptionWidth"_s),
                     profile == "fiscaldoc"_L1 ? QString::number(paperWidth) : QString());
        }
        // Empty, so that a lookup does not tell it from a missing one.
        QCOMPARE(text.count("style = \"\";"), profiles.size());

        for (const Finding &finding : checkConfiguration(text, u"cfg"_s))
            QFAIL(qPrintable(QString::number(finding.line) + ": "_L1 + finding.text));
    }

    void columns_data()
    {
        QTest::addColumn<int>("paperWidth");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QStringList>("widths"); // quantity, price, total, paper
        const auto row = [](int paper, const QString &profile, const QString &widths) {
            QTest::addRow("%s on %d columns", qPrintable(profile), paper)
                << paper << profile << widths.split(u' ');
        };
        row(42, u"receiptdoc"_s, u"5 7 8 42"_s);
        row(42, u"prefiscaldoc"_s, u"5 7 8 42"_s);
        row(42, u"reportdoc"_s, u"5 9 8 42"_s);
        row(42, u"solddoc"_s, u"5 0 8 42"_s);
        row(42, u"doc"_s, u"3 7 8 42"_s);
        // Below centred header lines a separator of 32 characters would be moved out of the paper.
        row(32, u"receiptdoc"_s, u"5 6 8 31"_s);
        row(32, u"doc"_s, u"3 6 8 31"_s);
        row(32, u"deliverydoc"_s, u"3 6 8 31"_s);
        row(32, u"invoicedoc"_s, u"5 6 8 32"_s);
        row(32, u"reportdoc"_s, u"5 7 8 32"_s);
        row(40, u"receiptdoc"_s, u"5 7 8 40"_s);
        row(48, u"receiptdoc"_s, u"5 8 9 48"_s);
        // The amounts of statements have the report's price column, and what is sold has none.
        row(40, u"reportdoc"_s, u"5 9 8 40"_s);
        row(48, u"reportdoc"_s, u"5 10 9 48"_s);
        row(32, u"solddoc"_s, u"5 0 8 32"_s);
        row(48, u"solddoc"_s, u"5 0 9 48"_s);
        row(48, u"doc"_s, u"3 8 9 48"_s);
    }
    void columns()
    {
        QFETCH(const int, paperWidth);
        QFETCH(const QString, profile);
        QFETCH(const QStringList, widths);
        const TemporaryHome home;
        const TXConfiguration configuration(
            home.writeFile(u"tavolux.conf"_s, starterConfiguration(paperWidth)), u"cfg"_s);
        QStringList found;
        for (const QString &setting :
             {u"quantityFieldWidth"_s, u"priceFieldWidth"_s, u"totalPriceFieldWidth"_s, u"paperWidth"_s})
            found.append(configuration.getStrValue("tavolux."_L1 + profile + u'.' + setting));
        QCOMPARE(found, widths);
    }

    // What people see in the printed examples is what they get when they begin. The example sets the
    // language, margins and what no document uses in its own way.
    void theExampleHasTheSameColumnsAndBlocks()
    {
        const TemporaryHome home;
        const TXConfiguration starter(home.writeFile(u"tavolux.conf"_s, starterConfiguration(42)), u"cfg"_s);
        const TXConfiguration example(QStringLiteral(TAVOLUX_SOURCE_DIR "/examples/tavolux.conf"), u"cfg"_s);
        QStringList settings = switches;
        settings << numbers;
        settings.removeAll(u"paperRows"_s);
        settings.removeAll(u"topMargin"_s);
        for (const QString &profile : profiles)
            for (const QString &setting : settings) {
                const QString key = "tavolux."_L1 + profile + u'.' + setting;
                QVERIFY2(!example.getStrValue(key).isEmpty(), qPrintable(key));
                QVERIFY2(example.getStrValue(key) == starter.getStrValue(key), qPrintable(key));
            }
    }

    void theDrawerOpensWhereMoneyIsTaken()
    {
        const TemporaryHome home;
        const TXConfiguration configuration(home.writeFile(u"tavolux.conf"_s, starterConfiguration(42)),
                                            u"cfg"_s);
        QStringList open;
        for (const QString &profile : profiles)
            if (configuration.getStrValue("tavolux."_L1 + profile + ".openCashDrawer"_L1) == "true"_L1)
                open.append(profile);
        QCOMPARE(open, (QStringList{u"fiscaldoc"_s, u"receiptdoc"_s, u"invoicedoc"_s}));
    }
};

QTEST_GUILESS_MAIN(StarterConfigurationTest)
#include "starter_configuration_test.moc"
