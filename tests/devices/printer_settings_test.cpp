#include "captured_output.h"
#include "printer_settings.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/* A configuration of the given printers' sections. */
class Configuration
{
public:
    explicit Configuration(const QByteArray &printers)
        : configuration(home.writeFile(u"tavolux.conf"_s, "tavolux : { printers : {" + printers + "}; };"),
                        u"cfg"_s)
    {
    }

    const TemporaryHome home;
    const TXConfiguration configuration;
};

/* All that can be set, as one text. */
QString shown(const PrinterSettings &settings)
{
    QStringList pages;
    for (const auto &[page, number] : settings.codePages)
        pages.append(codePageName(page) + u'=' + QString::number(number));
    return u"%1: %2 columns, %3, cut %4, feed %5, pin %6, %7/%8 ms, logo %9"_s.arg(settings.model->name)
               .arg(settings.columns)
               .arg(pages.join(u' '), cutterName(settings.cut))
               .arg(settings.feed)
               .arg(settings.drawerPin)
               .arg(settings.drawerPulse.onMilliseconds)
               .arg(settings.drawerPulse.offMilliseconds)
               .arg(settings.storedLogo > 0 ? u"stored %1"_s.arg(settings.storedLogo)
                                            : u'"' + settings.logoFile + u'"')
        + (settings.duplicate ? u", duplicate"_s : QString()) + (settings.status ? u", status"_s : QString());
}

const QString zj5870 = u"zj-5870: 32 columns, 1252=16 852=18 866=17 850=2 437=0, cut none, feed 4, pin 2, "
                       "50/500 ms, logo \"\""_s;

} // namespace

class PrinterSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data();
    void settings();
    void everySettingIsTold();
    void overridesWinOverTheSectionAndTheSectionOverDefaults();
    void selection_data();
    void selection();
    void selectionFollowsLinks();
    void selectionByBytes();
    void noPrinters();
    void names();
};

void PrinterSettingsTest::settings_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QByteArray>("messages");

    const auto good = [](const char *name, const QByteArray &section, const QString &expected) {
        QTest::newRow(name) << section << expected << QByteArray();
    };
    good("the model alone", "model = zj-5870;", zj5870);
    good(
        "a cutter feeds by itself", "model = citizen-ct-s310ii;",
        u"citizen-ct-s310ii: 48 columns, 1252=16 852=6 866=7 437=0, cut full, feed 0, pin 2, 50/500 ms, logo \"\""_s);
    good(
        "everything",
        "columns = 42; codePages = \" 858 = 19,1252=16 \"; cut = partial; feed = 0; drawerPin = 5;"
        "drawerPulse = \"100, 200\"; logo = /etc/l.png; duplicate = true; status = true; model = zj-5870;",
        u"zj-5870: 42 columns, 858=19 1252=16, cut partial, feed 0, pin 5, 100/200 ms, logo \"/etc/l.png\", duplicate, status"_s);
    good(
        "stored logo", "model = zj-5870; logo = stored:7;",
        u"zj-5870: 32 columns, 1252=16 852=18 866=17 850=2 437=0, cut none, feed 4, pin 2, 50/500 ms, logo stored 7"_s);
    good("not asked", "model = zj-5870; status = false;", zj5870);
    good("no duplicates", "model = zj-5870; duplicate = false;", zj5870);
    good("the bounds",
         "model = zj-5870; columns = 255; codePages = 437=255; feed = 255; drawerPulse = \"2,510\"; logo = "
         "stored:255;",
         u"zj-5870: 255 columns, 437=255, cut none, feed 255, pin 2, 2/510 ms, logo stored 255"_s);
    good("empty values count as missing", "model = zj-5870; columns = ; logo = \"\";", zj5870);
    good("plain text", "model = plain-text;",
         u"plain-text: 34 columns, , cut none, feed 4, pin 2, 50/500 ms, logo \"\""_s);

    const auto bad = [](const char *name, const QByteArray &setting, const QByteArray &value,
                        const QByteArray &expected) {
        QTest::newRow(name) << "model = zj-5870; " + setting + " = \"" + value + "\";" << zj5870
                            << "Error in the setting tavolux.printers.till." + setting + "( " + value
                + " ): not " + expected + "\n";
    };
    bad("columns: no number", "columns", "wide", "a number from 1 to 255");
    bad("columns: 0", "columns", "0", "a number from 1 to 255");
    bad("columns: too many", "columns", "256", "a number from 1 to 255");
    bad("feed: negative", "feed", "-1", "a number from 0 to 255");
    bad("feed: too far", "feed", "256", "a number from 0 to 255");
    bad("code pages: unknown one", "codePages", "858=19, 865=5", "a list of code pages with their numbers");
    bad("code pages: without a number", "codePages", "858", "a list of code pages with their numbers");
    bad("code pages: number beyond a byte", "codePages", "858=256",
        "a list of code pages with their numbers");
    bad("code pages: only a comma", "codePages", ",", "a list of code pages with their numbers");
    bad("cut: unknown", "cut", "Full", "full, partial or none");
    bad("pin: 3", "drawerPin", "3", "2 or 5");
    bad("pulse: one time", "drawerPulse", "50", "two times from 2 to 510 ms");
    bad("pulse: three times", "drawerPulse", "50, 50, 50", "two times from 2 to 510 ms");
    bad("pulse: too short", "drawerPulse", "1, 500", "two times from 2 to 510 ms");
    bad("pulse: too long", "drawerPulse", "50, 511", "two times from 2 to 510 ms");
    bad("logo: stored without a number", "logo",
        "stored:", "a PNG file, or stored: with a number from 1 to 255");
    bad("logo: stored number beyond a byte", "logo", "stored:256",
        "a PNG file, or stored: with a number from 1 to 255");
    bad("duplicate: neither on nor off", "duplicate", "yes", "true or false");
    bad("status: neither on nor off", "status", "1", "true or false");

    const QString plain = u"plain-text: 34 columns, , cut none, feed 4, pin 2, 50/500 ms, logo \"\""_s;
    QTest::newRow("unknown model")
        << "model = tm-t20;"_ba << plain
        << "Error in the setting tavolux.printers.till.model( tm-t20 ): not the name of a model\n"_ba;
    QTest::newRow("no model")
        << "columns = 34;"_ba << plain
        << "Error in the setting tavolux.printers.till.model(  ): not the name of a model\n"_ba;
    QTest::newRow("a value of two lines")
        << "model = zj-5870; cut = full\n feed = 3;"_ba << zj5870
        << "Error in the setting tavolux.printers.till.cut( full? feed = 3 ): not full, partial or none\n"_ba;
}

void PrinterSettingsTest::settings()
{
    QFETCH(const QByteArray, section);
    QFETCH(const QString, expected);
    QFETCH(const QByteArray, messages);
    const Configuration configuration("till : {" + section + "};");
    QString settings;
    QCOMPARE(capturedOutput([&] { settings = shown(printerOfName(configuration.configuration, u"till"_s)); }),
             messages);
    QCOMPARE(settings, expected);
}

// One line for each, in the order of the table.
void PrinterSettingsTest::everySettingIsTold()
{
    const Configuration configuration(
        "till : { model = x; output = \",\"; columns = x; codePages = x; cut = x; feed = x; drawerPin = x;"
        "drawerPulse = x; logo = stored:x; duplicate = x; status = x; };");
    const QByteArray messages =
        capturedOutput([&] { printerOfName(configuration.configuration, u"till"_s); });
    const QList<QByteArray> lines = messages.split('\n');
    QCOMPARE(lines.size(), qsizetype(printerSettings.size()) + 1);
    for (std::size_t i = 0; i < printerSettings.size(); ++i) {
        const QByteArray expected = "Error in the setting tavolux.printers.till."
            + QByteArray(printerSettings[i].name.data(), printerSettings[i].name.size()) + "( ";
        QVERIFY2(lines[qsizetype(i)].startsWith(expected), lines[qsizetype(i)].constData());
    }
}

void PrinterSettingsTest::overridesWinOverTheSectionAndTheSectionOverDefaults()
{
    const Configuration configuration("till : { columns = 40; cut = full; };");
    const PrinterSettings settings = printerOfName(
        configuration.configuration, u"till"_s, printSettingFault, {{u"columns"_s, u"44"_s}},
        {{u"model"_s, u"zj-5870"_s}, {u"columns"_s, u"36"_s}, {u"cut"_s, u"none"_s}, {u"feed"_s, u"9"_s}});
    QCOMPARE(settings.model->name, "zj-5870"_L1);
    QCOMPARE(settings.columns, 44);
    QCOMPARE(settings.cut, Cutter::full);
    QCOMPARE(settings.feed, 9);
}

void PrinterSettingsTest::selection_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("printer");

    QTest::newRow("name") << u"/dev/usb/lp0"_s << u"till"_s;
    QTest::newRow("second name of the list") << u"/dev/ttyS0"_s << u"till"_s;
    QTest::newRow("pattern") << u"/dev/usb/lp7"_s << u"kitchen"_s;
    QTest::newRow("set of characters") << u"/dev/usb/lp2"_s << u"bar"_s;
    QTest::newRow("a star takes slashes") << u"/spool/a/b"_s << u"files"_s;
    QTest::newRow("the beginning of a name") << u"/dev/usb/lp"_s << QString();
    QTest::newRow("another name") << u"/dev/lp0"_s << QString();
    QTest::newRow("empty name") << QString() << QString();
    QTest::newRow("relative name that is not there") << u"x.spool"_s << u"relative"_s;
}

void PrinterSettingsTest::selection()
{
    QFETCH(const QString, output);
    const Configuration configuration(
        "no-output : { model = generic-80; };"
        "till : { output = \"/dev/usb/lp0, ,/dev/ttyS0\"; model = generic-80; };"
        "bar : { output = /dev/usb/lp[12]; model = generic-80; };"
        "kitchen : { output = /dev/usb/lp?; model = generic-80; };"
        "files : { output = /spool/*; model = generic-80; };"
        "relative : { output = *.spool; model = generic-80; };");
    const std::optional<PrinterSettings> printer = printerForOutput(configuration.configuration, output);
    QTEST(printer ? printer->name : QString(), "printer");
}

void PrinterSettingsTest::selectionFollowsLinks()
{
    const TemporaryHome home;
    const QString device = home.writeFile(u"lp0"_s, {});
    const QString link = home.filePath(u"receipts"_s);
    QVERIFY(QFile::link(device, link));
    const Configuration byDevice("a : { model = generic-80; output = */lp0; };");
    QCOMPARE(printerForOutput(byDevice.configuration, link)->name, u"a"_s);
    const Configuration byLink("a : { model = generic-80; output = */receipts; };");
    QCOMPARE(printerForOutput(byLink.configuration, link)->name, u"a"_s);
    QVERIFY(!printerForOutput(byLink.configuration, device));
}

// The file is read as Latin-1, names of files are bytes: both are the same in the end.
void PrinterSettingsTest::selectionByBytes()
{
    const Configuration configuration(
        "a : { model = generic-80; output = /spool/Küche; logo = /Küche.png; };");
    const std::optional<PrinterSettings> printer =
        printerForOutput(configuration.configuration, u"/spool/Küche"_s);
    QVERIFY(printer);
    QCOMPARE(printer->logoFile, u"/Küche.png"_s);
}

void PrinterSettingsTest::noPrinters()
{
    const TemporaryHome home;
    const TXConfiguration configuration(
        home.writeFile(u"conf"_s, "tavolux : { doc : { paperWidth = 40; }; };"), u"cfg"_s);
    QCOMPARE(printerNames(configuration), QStringList());
    QVERIFY(!printerForOutput(configuration, u"/dev/usb/lp0"_s));
}

void PrinterSettingsTest::names()
{
    const Configuration configuration(
        "till : { model = generic-80; }; kitchen : { feed = 1; }; till : { cut = none; };");
    QCOMPARE(printerNames(configuration.configuration), QStringList({u"till"_s, u"kitchen"_s}));
    // Of two sections of one name the first with a value counts, as for every setting.
    QCOMPARE(printerOfName(configuration.configuration, u"till"_s).cut, Cutter::none);
}

QTEST_GUILESS_MAIN(PrinterSettingsTest)
#include "printer_settings_test.moc"
