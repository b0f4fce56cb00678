#include "test_page.h"

#include "escpos_decoder.h"
#include "print_output.h"
#include "printer_settings.h"
#include "temporary_home.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

DecodedPrintout printed(const PrinterSettings &settings)
{
    QByteArray bytes;
    QBuffer printer(&bytes);
    printer.open(QIODevice::WriteOnly);
    {
        PrintOutput output(printer, u"printer"_s);
        printTestPage(settings, output);
    }
    DecodedPrinter decoded{{}, settings.codePages.front().number, settings.columns};
    for (const auto &[page, number] : settings.codePages)
        decoded.pages.insert(number, codePageName(page));
    return decodeEscpos(bytes, decoded);
}

PrinterSettings till(QStringView model)
{
    PrinterSettings settings(*findPrinterModel(model));
    settings.name = u"till"_s;
    return settings;
}

QString logoFile(const QString &name)
{
    return QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/devices/logos/") + name;
}

} // namespace

class TestPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void page();
    void everyCodePage();
    void charactersAreThoseOfTheManual_data();
    void charactersAreThoseOfTheManual();
    void logo_data();
    void logo();
    void everyModel_data();
    void everyModel();
};

void TestPageTest::page()
{
    PrinterSettings settings = till(u"epson-tm-u220b");
    settings.columns = 20;
    settings.drawerPin = 5;
    settings.feed = 3;
    const DecodedPrintout page = printed(settings);
    QCOMPARE(page.fault, QString());
    QCOMPARE(page.lines(),
             (QStringList{u"TEST PAGE"_s,
                          u"till: epson-tm-u220b"_s,
                          QString(),
                          u"columns = 20"_s,
                          u"         1         2"_s,
                          u"12345678901234567890"_s,
                          QString(),
                          u"Normal type"_s,
                          u"Bold type"_s,
                          u"Double height"_s,
                          QString(),
                          u"codePages: 437=0, no"_s,
                          u" euro sign"_s,
                          u"£°àèéìòùáíóúñçâêîôûä"_s,
                          u"öüÄÖÜßåæ¿¡┌─┐█"_s,
                          QString(),
                          u"No logo"_s,
                          QString(),
                          u"feed = 3"_s,
                          u"cut = partial"_s,
                          u"drawerPin = 5"_s,
                          u"drawerPulse = 50, 50"_s,
                          u"0"_s}));
    QCOMPARE(page.commands,
             (QStringList{u"initialise"_s, u"leave Kanji mode"_s, u"international set"_s,
                          u"code page 0 (437)"_s, u"bold on"_s, u"height 2"_s, u"bold off"_s, u"height 1"_s,
                          u"bold on"_s, u"bold off"_s, u"height 2"_s, u"height 1"_s, u"feed 3"_s,
                          u"partial cut"_s, u"pulse on pin 5, 50 ms on, 500 ms off"_s}));
}

// What is in several pages is printed with each of them.
void TestPageTest::everyCodePage()
{
    PrinterSettings settings = till(u"generic-80");
    settings.codePages = {{CodePage::cp1252, 16}, {CodePage::cp866, 7}, {CodePage::cp858, 19}};
    const DecodedPrintout page = printed(settings);
    QCOMPARE(page.fault, QString());
    const qsizetype begin = page.dump.indexOf(u"line \"codePages: 1252=16\""_s);
    QVERIFY(begin >= 0);
    QCOMPARE(
        page.dump.sliced(begin, 14),
        (QStringList{u"line \"codePages: 1252=16\""_s, u"line \"€£°§àèéìòùáíóúñçâêîôûäöüÄÖÜßãõåæøœšžÓ¿¡\""_s,
                     u"line \"\""_s, u"line \"codePages: 866=7, no euro sign\""_s, u"code page 7 (866)"_s,
                     u"line \"°БДЖЯбджяё┌─┐█\""_s, u"line \"\""_s, u"code page 16 (1252)"_s,
                     u"line \"codePages: 858=19\""_s, u"code page 19 (858)"_s,
                     u"line \"€£°§àèéìòùáíóúñçâêîôûäöüÄÖÜßãõåæøÓ¿¡┌─┐█\""_s, u"line \"\""_s,
                     u"code page 16 (1252)"_s, u"line \"No logo\""_s}));
}

void TestPageTest::charactersAreThoseOfTheManual_data()
{
    QTest::addColumn<QString>("page");
    for (const char *page :
         {"437", "850", "852", "858", "866", "1250", "1251", "1252", "1253", "1254", "1257", "8859-15"})
        QTest::newRow(page) << QString::fromLatin1(page);
}

void TestPageTest::charactersAreThoseOfTheManual()
{
    QFETCH(const QString, page);
    static const QString manual =
        QString::fromUtf8(fileBytes(QStringLiteral(TAVOLUX_SOURCE_DIR "/docs/real-printer.md")));
    const QString characters = manual.section("\n| "_L1 + page + " | `"_L1, 1).section(u'`', 0, 0);
    QVERIFY(!characters.isEmpty());

    PrinterSettings settings = till(u"generic-80");
    settings.codePages = {{*codePageOfName(page), 1}};
    const DecodedPrintout printout = printed(settings);
    QCOMPARE(printout.fault, QString());
    QVERIFY2(printout.lines().contains(characters), qPrintable(printout.lines().join(u'\n')));
}

void TestPageTest::logo_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("commands");

    QTest::newRow("stored") << u"epson-tm-u220b"_s << QString() << 7 << QStringList{u"logo = stored:7"_s}
                            << QStringList{u"stored logo 7"_s};
    QTest::newRow("missing") << u"generic-80"_s << u"/no/logo.png"_s << 0
                             << QStringList{u"logo = /no/logo.png"_s,
                                            u"is not printed: No such file or directory"_s}
                             << QStringList();
    QTest::newRow("32 x 4 dots, in the middle of 576")
        << u"generic-80"_s << logoFile(u"32x4-halves.png"_s) << 0 << QStringList()
        << QStringList{u"raster 576 x 4 dots"_s};
    QTest::newRow("a printer without pictures")
        << u"wincor-th230"_s << logoFile(u"32x4-halves.png"_s) << 0
        << QStringList{u"is not printed: the printer prints no pictures"_s} << QStringList();
}

void TestPageTest::logo()
{
    QFETCH(const QString, model);
    QFETCH(const QString, file);
    QFETCH(const int, stored);
    QFETCH(const QStringList, lines);
    QFETCH(const QStringList, commands);
    PrinterSettings settings = till(model);
    settings.logoFile = file;
    settings.storedLogo = stored;
    settings.columns = 255; // so that no name is broken
    const DecodedPrintout page = printed(settings);
    QCOMPARE(page.fault, QString());
    for (const QString &line : lines)
        QVERIFY2(page.lines().contains(line), qPrintable(page.lines().join(u'\n')));
    QStringList pictures = page.commands;
    pictures.removeIf([](const QString &command) {
        return !command.startsWith("raster"_L1) && !command.startsWith("stored"_L1);
    });
    QCOMPARE(pictures, commands);
}

void TestPageTest::everyModel_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("columns");
    for (const PrinterModel &model : printerModels)
        if (!model.isPlainText())
            for (const int columns : {model.columns, 3})
                QTest::addRow("%s, %d columns", model.name.data(), columns) << QString(model.name) << columns;
}

void TestPageTest::everyModel()
{
    QFETCH(const QString, model);
    QFETCH(const int, columns);
    PrinterSettings settings = till(model);
    settings.columns = columns;
    const DecodedPrintout page = printed(settings);
    QCOMPARE(page.fault, QString());
    QCOMPARE(page.widestLine, columns);
    QCOMPARE(page.cuts, settings.cut == Cutter::none ? 0 : 1);
    QCOMPARE(page.pulses, 1);
    for (const auto &[codePage, number] : settings.codePages)
        QVERIFY(page.commands.contains(u"code page %1 (%2)"_s.arg(number).arg(codePageName(codePage))));
}

QTEST_GUILESS_MAIN(TestPageTest)
#include "test_page_test.moc"
