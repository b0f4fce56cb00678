#include "printer_models.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/* The table of models. */
class PrinterModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreSound()
    {
        QSet<QString> names;
        for (const PrinterModel &model : printerModels) {
            const QString name = model.name;
            static const QRegularExpression plainName(u"^[a-z0-9-]+$"_s);
            QVERIFY2(plainName.match(name).hasMatch(), qPrintable(name));
            QVERIFY2(!names.contains(name), qPrintable(name));
            names.insert(name);
            QCOMPARE(findPrinterModel(name), &model);
            QVERIFY2(model.columns >= 32 && model.columns <= 48, qPrintable(name));
            QVERIFY2(model.dots == 0 || model.dots % 8 == 0, qPrintable(name));
            QSet<CodePage> pages;
            QSet<int> numbers;
            for (const auto &[page, number] : model.codePages) {
                pages.insert(page);
                numbers.insert(number);
            }
            QCOMPARE(pages.size(), qsizetype(model.codePages.size()));
            QCOMPARE(numbers.size(), qsizetype(model.codePages.size()));
            // Every printer has this one, and under this number.
            if (!model.isPlainText())
                QCOMPARE(model.codePages.back(), (NumberedPage{CodePage::cp437, 0}));
        }
        QVERIFY(names.size() >= 21 + 3);
    }

    void rows_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("dots");
        QTest::addColumn<QString>("pages");
        QTest::addColumn<QString>("cut");
        QTest::addColumn<bool>("raster");

        const auto row = [](const char *name, int columns, int dots, const QString &pages, const QString &cut,
                            bool raster) {
            QTest::newRow(name) << QString::fromLatin1(name) << columns << dots << pages << cut << raster;
        };
        const QString epson = u"858=19 1252=16 8859-15=40 852=18 866=17 1251=46 850=2 437=0"_s;
        const QString common = u"858=19 1252=16 852=18 866=17 850=2 437=0"_s;
        row("epson-tm-t20iii", 48, 576, epson, u"full"_s, true);
        row("epson-tm-t88iv", 42, 512, common, u"full"_s, true);
        row("epson-tm-t70ii", 42, 512, epson, u"partial"_s, true);
        row("epson-tm-p20ii", 32, 384, epson, u"none"_s, true);
        row("epson-tm-u220b", 42, 400, u"437=0"_s, u"partial"_s, false);
        row("citizen-ct-s310ii", 48, 576, u"1252=16 852=6 866=7 437=0"_s, u"full"_s, true);
        row("munbyn-itpp047", 42, 512, u"858=19 1252=6 852=18 866=17 850=2 437=0"_s, u"full"_s, true);
        row("hp-a779", 44, 0, u"858=6 1252=8 852=2 866=7 1251=13 850=1 437=0"_s, u"full"_s, true);
        row("wincor-th230", 44, 576, u"858=6 1252=8 852=2 866=7 850=1 437=0"_s, u"full"_s, false);
        row("zj-5870", 32, 384, u"1252=16 852=18 866=17 850=2 437=0"_s, u"none"_s, true);
        row("generic-80", 48, 576, common, u"full"_s, true);
        row("generic-58", 32, 384, common, u"none"_s, true);
        row("plain-text", 34, 0, u""_s, u"none"_s, false);
    }

    void rows()
    {
        QFETCH(const QString, name);
        const PrinterModel *const model = findPrinterModel(name);
        QVERIFY(model);
        QTEST(model->columns, "columns");
        QTEST(model->dots, "dots");
        QTEST(QString(cutterName(model->cutter)), "cut");
        QTEST(model->raster, "raster");
        QStringList pages;
        for (const auto &[page, number] : model->codePages)
            pages.append(codePageName(page) + u'=' + QString::number(number));
        QTEST(pages.join(u' '), "pages");
    }

    void unknownNames()
    {
        QVERIFY(!findPrinterModel(u"epson"));
        QVERIFY(!findPrinterModel(u""));
        QVERIFY(!findPrinterModel(u"Generic-80"));
    }

    void plainText()
    {
        QCOMPARE(&plainTextModel(), findPrinterModel(u"plain-text"));
        QVERIFY(!findPrinterModel(u"generic-80")->isPlainText());
    }

    void cutters()
    {
        QCOMPARE(cutterOfName(u"full"), Cutter::full);
        QCOMPARE(cutterOfName(u"partial"), Cutter::partial);
        QCOMPARE(cutterOfName(u"none"), Cutter::none);
        QCOMPARE(cutterOfName(u"half"), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(PrinterModelsTest)
#include "printer_models_test.moc"
