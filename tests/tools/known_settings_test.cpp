#include "known_settings.h"

#include "configuration_text.h"
#include "document_profile.h"
#include "printer_settings.h"
#include "read_file.h"
#include "starter_configuration.h"
#include "tx_configuration.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList names(const SettingList &settings)
{
    QStringList all;
    for (const KnownSetting *setting : settings)
        all << setting->name;
    return all;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

class KnownSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyProfileHasTheSettingsThatItsDocumentsRead_data()
    {
        QTest::addColumn<QString>("section");
        for (const DocumentType &type : documentTypes)
            QTest::newRow(type.name.data()) << QString(type.keyPrefix.chopped(1));
    }
    void everyProfileHasTheSettingsThatItsDocumentsRead()
    {
        QFETCH(const QString, section);
        QStringList expected{DocumentProfile::style, DocumentProfile::topMargin};
        if (section == "tavolux.fiscaldoc"_L1)
            expected << DocumentProfile::descriptionWidth;
        for (const auto &width : profileWidths)
            expected << width.name;
        for (const auto &onOff : profileSwitches)
            expected << onOff.name;
        QCOMPARE(sorted(names(settingsOf(section))), sorted(expected));
        for (const auto &width : profileWidths)
            QCOMPARE(findSetting(section + u'.' + width.name)->kind, SettingKind::number);
        for (const auto &onOff : profileSwitches)
            QCOMPARE(findSetting(section + u'.' + onOff.name)->kind, SettingKind::onOff);
        QVERIFY(std::ranges::count(knownSections(), section, &KnownSection::key) == 1);
    }

    void aPrinterHasTheSettingsThatAreRead()
    {
        QStringList expected;
        for (const PrinterSetting &setting : printerSettings)
            expected << setting.name;
        QCOMPARE(names(settingsOf(u"tavolux.printers.till"_s)), expected);
    }

    void sectionsThatAreNeverReadHaveNone_data()
    {
        QTest::addColumn<QString>("section");
        for (const char *section :
             {"", "tavolux", "tavolux.printers", "tavolux.printers.", "tavolux.printers.a.b", "tavolux.docs",
              "doc", "tavolux.doc.x", "tavolux.doc."})
            QTest::newRow(section) << QString::fromLatin1(section);
    }
    void sectionsThatAreNeverReadHaveNone()
    {
        QFETCH(const QString, section);
        QCOMPARE(names(settingsOf(section)), QStringList());
        QVERIFY(!findSetting(section));
    }

    void everythingIsExplainedInOneSentence()
    {
        TXConfiguration none{{}, {}};
        none.readText("tavolux : { printers : { till : { cut = none; }; }; };", u"cfg"_s);
        const QStringList keys = knownKeys(none);
        QVERIFY(keys.contains("tavolux.printers.till.model"_L1));
        QVERIFY(keys.contains("tavolux.language.file"_L1));
        for (const QString &key : keys) {
            const KnownSetting *const setting = findSetting(key);
            QVERIFY2(setting, qPrintable(key));
            const QString explanation = QString::fromLatin1(setting->explanation);
            QVERIFY2(explanation.endsWith(u'.') && explanation.front().isUpper()
                         && explanation.count(u". "_s) == 0,
                     qPrintable(key));
            QCOMPARE(choicesOf(*setting).isEmpty(), setting->kind != SettingKind::choice);
        }
    }

    void aStarterHasThemAll()
    {
        const QByteArray starter = starterConfiguration(42);
        const libconfig::ConfigurationText text(starter);
        TXConfiguration configuration{{}, {}};
        configuration.readText(starter, u"cfg"_s);
        QStringList started;
        for (int i = 1; i < static_cast<int>(text.entries().size()); ++i)
            if (text.entry(i).isSetting())
                started << text.keyOf(i);
        QCOMPARE(sorted(started), sorted(knownKeys(configuration)));
    }

    void choicesAreTaken()
    {
        for (const char *name : {"model", "cut", "drawerPin"}) {
            const KnownSetting &setting = *findSetting("tavolux.printers.till."_L1 + QLatin1StringView(name));
            for (const QString &choice : choicesOf(setting))
                QCOMPARE(valueFault(setting, choice), QString());
        }
    }

    void faults_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("fault");

        const QString width = u"tavolux.doc.paperWidth"_s;
        QTest::newRow("a number") << width << u"42"_s << QString();
        QTest::newRow("a number in words")
            << width << u"fortytwo"_s
            << u"\"paperWidth\" is \"fortytwo\", no usable whole number, so it counts as 0"_s;
        QTest::newRow("the least") << width << u"0"_s << QString();
        QTest::newRow("less") << width << u"-1"_s << u"\"paperWidth\" is \"-1\", a negative number"_s;
        QTest::newRow("the most") << width << u"100000"_s << QString();
        QTest::newRow("more") << width << u"100001"_s
                              << u"\"paperWidth\" is \"100001\", more than any paper holds"_s;
        QTest::newRow("on") << u"tavolux.doc.printTime"_s << u"true"_s << QString();
        QTest::newRow("off") << u"tavolux.doc.printTime"_s << u"false"_s << QString();
        QTest::newRow("neither")
            << u"tavolux.doc.printTime"_s << u"True"_s
            << u"\"printTime\" is \"True\", neither \"true\" nor \"false\", so it is off"_s;
        QTest::newRow("text") << u"tavolux.doc.style"_s << u"anything"_s << QString();
        QTest::newRow("the columns of a printer") << u"tavolux.printers.a.columns"_s << u"0"_s
                                                  << u"\"columns\" is \"0\", not a number from 1 to 255"_s;
        QTest::newRow("a printer's setting that is empty")
            << u"tavolux.printers.a.columns"_s << QString() << QString();
        QTest::newRow("a model")
            << u"tavolux.printers.a.model"_s << u"generic-81"_s
            << u"\"model\" is \"generic-81\", not the name of a model; did you mean \"generic-80\"?"_s;
    }
    void faults()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, value);
        QTEST(valueFault(*findSetting(key), value), "fault");
    }

    void whatHoldsWithoutASetting_data()
    {
        QTest::addColumn<QByteArray>("printer");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");

        QTest::newRow("a width") << QByteArray() << u"tavolux.doc.paperWidth"_s << u"0"_s;
        QTest::newRow("a switch") << QByteArray() << u"tavolux.doc.printTime"_s << u"false"_s;
        QTest::newRow("text") << QByteArray() << u"tavolux.language.file"_s << QString();
        QTest::newRow("no such setting") << QByteArray() << u"tavolux.doc.printtime"_s << QString();
        const QByteArray narrow = "model = generic-58; columns = 20;";
        QTest::newRow("the model's columns") << narrow << u"tavolux.printers.till.columns"_s << u"32"_s;
        QTest::newRow("the model's cut") << narrow << u"tavolux.printers.till.cut"_s << u"none"_s;
        QTest::newRow("lines to the tear bar") << narrow << u"tavolux.printers.till.feed"_s << u"4"_s;
        QTest::newRow("the drawer's pin") << narrow << u"tavolux.printers.till.drawerPin"_s << u"2"_s;
        QTest::newRow("the drawer's pulse")
            << narrow << u"tavolux.printers.till.drawerPulse"_s << u"50, 500"_s;
        QTest::newRow("a switch of a printer")
            << narrow << u"tavolux.printers.till.duplicate"_s << u"false"_s;
        QTest::newRow("plain text without a model")
            << QByteArray("cut = full;") << u"tavolux.printers.till.columns"_s << u"34"_s;
        QTest::newRow("another printer") << narrow << u"tavolux.printers.kitchen.columns"_s << u"34"_s;
    }
    void whatHoldsWithoutASetting()
    {
        QFETCH(const QByteArray, printer);
        QFETCH(const QString, key);
        TXConfiguration configuration{{}, {}};
        configuration.readText("tavolux : { printers : { till : { " + printer + " }; }; };", u"cfg"_s);
        QTEST(valueWhenMissing(key, configuration), "value");
    }

    // The rows of the reference page: "| `name` | type | when missing | effect |".
    void theReferencePageHasTheSameSettings_data()
    {
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("section");
        QTest::newRow("profiles") << u"## Settings of a profile"_s << u"tavolux.fiscaldoc"_s;
        QTest::newRow("printers") << u"## Printers"_s << u"tavolux.printers.till"_s;
        QTest::newRow("language") << u"## Language"_s << u"tavolux.language"_s;
    }
    void theReferencePageHasTheSameSettings()
    {
        QFETCH(const QString, heading);
        QFETCH(const QString, section);
        const QString page = QString::fromUtf8(
            readRegularFile(QStringLiteral(TAVOLUX_SOURCE_DIR "/docs/configuration.md")).bytes);
        const qsizetype begin = page.indexOf(heading + u'\n');
        QVERIFY(begin >= 0);
        const QString part = page.sliced(begin, page.indexOf("\n## "_L1, begin + 1) - begin);
        static const QRegularExpression row(u"^\\| `(?:[a-z]+\\.)*(\\w+)` \\| ([^|]+) \\|([^|]*)\\|"_s,
                                            QRegularExpression::MultilineOption);
        QStringList described;
        for (auto match = row.globalMatch(part); match.hasNext();) {
            const QRegularExpressionMatch found = match.next();
            described << found.captured(1);
            const KnownSetting *const setting = findSetting(section + u'.' + found.captured(1));
            QVERIFY2(setting, qPrintable(found.captured(1)));
            QCOMPARE(found.captured(2) == "switch"_L1, setting->kind == SettingKind::onOff);
            const QString bounds = u"%1 to %2"_s.arg(setting->least).arg(setting->most);
            const bool isNumber = found.captured(2) == "number"_L1 || found.captured(2) == bounds;
            QCOMPARE(isNumber, setting->kind == SettingKind::number);
            if (setting->kind == SettingKind::number && !setting->whenMissing.isEmpty())
                QCOMPARE(found.captured(3).trimmed(), setting->whenMissing);
        }
        QCOMPARE(sorted(described), sorted(names(settingsOf(section))));
    }
};

QTEST_GUILESS_MAIN(KnownSettingsTest)
#include "known_settings_test.moc"
