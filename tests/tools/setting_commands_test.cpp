#include "program_run.h"
#include "temporary_home.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray configuration = "tavolux : {\n"
                                 "  printers : {\n"
                                 "    till : { model = generic-58; output = \"/dev/lp0\"; };\n"
                                 "  };\n"
                                 "  receiptdoc : {\n"
                                 "    paperWidth = 30;\n"
                                 "    printTable = true;\n"
                                 "    the paper of the till\n"
                                 "  };\n"
                                 "};\n"
                                 "after the end\n";

} // namespace

class SettingCommandsTest : public QObject
{
    Q_OBJECT

private:
    ProgramResult run(const QStringList &arguments) const
    {
        return runProgram(QStringLiteral(TAVOLUX_CONFIG), arguments, {{u"HOME"_s, home->path()}});
    }

    QByteArray text() const { return fileBytes(home->filePath(u".tavolux/conf/tavolux.conf"_s)); }

    std::unique_ptr<TemporaryHome> home;

private Q_SLOTS:
    void init()
    {
        home = std::make_unique<TemporaryHome>();
        home->writeConfiguration(configuration);
    }

    void getOfAnUnknownKeySaysSo_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("misspelt")
            << u"tavolux.receiptdoc.paperwidth"_s
            << "tavolux-config: there is no setting \"tavolux.receiptdoc.paperwidth\"; did you "
               "mean \"tavolux.receiptdoc.paperWidth\"?\n"_ba;
        QTest::newRow("without the first section")
            << u"receiptdoc.paperWidth"_s
            << "tavolux-config: there is no setting \"receiptdoc.paperWidth\"; did you mean "
               "\"tavolux.receiptdoc.paperWidth\"?\n"_ba;
        QTest::newRow("like no other") << u"a.b.c"_s << "tavolux-config: there is no setting \"a.b.c\"\n"_ba;
        QTest::newRow("known, but not set") << u"tavolux.receiptdoc.printTime"_s << ""_ba;
        QTest::newRow("known for a printer") << u"tavolux.printers.till.logo"_s << ""_ba;
    }
    void getOfAnUnknownKeySaysSo()
    {
        QFETCH(const QString, key);
        const ProgramResult result = run({u"get"_s, key});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, "\n");
        QTEST(result.standardError, "message");
    }

    void setChangesThatValueAlone_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");

        QTest::newRow("a value") << QStringList{u"tavolux.receiptdoc.printTable"_s, u"false"_s}
                                 << "printTable = true;"_ba
                                 << "printTable = false;"_ba;
        QTest::newRow("a new setting")
            << QStringList{u"tavolux.receiptdoc.printTime"_s, u"true"_s} << "    printTable = true;\n"_ba
            << "    printTable = true;\n    printTime = true;\n"_ba;
        QTest::newRow("several at once")
            << QStringList{u"tavolux.printers.bar.model"_s, u"generic-80"_s, u"tavolux.printers.bar.output"_s,
                           u"/dev/lp1"_s}
            << "\"/dev/lp0\"; };\n"_ba
            << "\"/dev/lp0\"; };\n    bar : { model = generic-80; output = \"/dev/lp1\"; };\n"_ba;
        QTest::newRow("a file name is bytes")
            << QStringList{u"tavolux.printers.till.output"_s, u"/dev/l\u00e9"_s} << "\"/dev/lp0\""_ba
            << "\"/dev/l\xC3\xA9\""_ba;
        QTest::newRow("text is Latin-1")
            << QStringList{u"tavolux.receiptdoc.style"_s, u"caf\u00e9"_s} << "    printTable = true;\n"_ba
            << "    printTable = true;\n    style = caf\xE9;\n"_ba;
        QTest::newRow("what is set already")
            << QStringList{u"tavolux.receiptdoc.paperWidth"_s, u"30"_s} << ""_ba
            << ""_ba;
        QTest::newRow("an unknown one by force")
            << QStringList{u"tavolux.receiptdoc.colour"_s, u"red"_s, u"--force"_s}
            << "    printTable = true;\n"_ba
            << "    printTable = true;\n    colour = red;\n"_ba;
        QTest::newRow("a wrong one by force")
            << QStringList{u"tavolux.receiptdoc.printTable"_s, u"yes"_s, u"--force"_s}
            << "printTable = true;"_ba
            << "printTable = yes;"_ba;
    }
    void setChangesThatValueAlone()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, after);
        // What check has found before is nobody's concern here: the remark in the section.
        const ProgramResult result = run(QStringList{u"set"_s} + arguments);
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.exitStatus, 0);
        QByteArray expected = configuration;
        QCOMPARE(text(), before.isEmpty() ? configuration : expected.replace(before, after));
    }

    void setRefuses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("messages");

        QTest::newRow("an unknown setting")
            << QStringList{u"tavolux.receiptdoc.printTabel"_s, u"true"_s}
            << "tavolux-config: there is no setting \"tavolux.receiptdoc.printTabel\"; did you mean "
               "\"tavolux.receiptdoc.printTable\"?\ntavolux-config: --force sets it all the same\n"_ba;
        QTest::newRow("what check complains of") << QStringList{u"tavolux.receiptdoc.printTable"_s, u"yes"_s}
                                                 << "tavolux-config: tavolux.receiptdoc.printTable: "
                                                    "\"printTable\" is \"yes\", neither \"true\" nor "
                                                    "\"false\", so it is off\n"_ba;
        QTest::newRow("what does not fit another setting")
            << QStringList{u"tavolux.receiptdoc.paperWidth"_s, u"33"_s}
            << "tavolux-config: tavolux.receiptdoc.paperWidth: \"paperWidth\" is \"33\", more than the 32 "
               "columns of "
               "the printer \"till\"\n"_ba;
        QTest::newRow("a printer without output")
            << QStringList{u"tavolux.printers.bar.model"_s, u"generic-80"_s}
            << "tavolux-config: tavolux.printers.bar: \"tavolux.printers.bar\" names no output, so no "
               "document comes "
               "to it\n"_ba;
        QTest::newRow("a semicolon, even by force")
            << QStringList{u"tavolux.receiptdoc.style"_s, u"a;b"_s, u"--force"_s}
            << "tavolux-config: tavolux.receiptdoc.style stays as it is: a value cannot have a semicolon: "
               "\"a;b\"\n"_ba;
        QTest::newRow("characters that would be lost")
            << QStringList{u"tavolux.receiptdoc.style"_s, u"5 \u20ac"_s}
            << "tavolux-config: tavolux.receiptdoc.style stays as it is: the value \"5 \xE2\x82\xAC\" has "
               "characters "
               "outside of Latin-1, which would be lost\n"_ba;
        QTest::newRow("the second of two")
            << QStringList{u"tavolux.receiptdoc.printTable"_s, u"false"_s, u"tavolux.receiptdoc.style"_s,
                           u"a\"b"_s}
            << "tavolux-config: tavolux.receiptdoc.style stays as it is: a value cannot "
               "have a double quote: \"a\"b\"\n"_ba;
    }
    void setRefuses()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, messages);
        const ProgramResult result = run(QStringList{u"set"_s} + arguments);
        QCOMPARE(result.exitStatus, 1);
        QVERIFY2(result.standardError.startsWith(messages), result.standardError.constData());
        QCOMPARE(text(), configuration);
    }

    void unset_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("a setting") << "t : { d : { x = 1; y = 2; }; };"_ba
                                   << "t : { d : { y = 2; }; };"_ba;
        QTest::newRow("given twice") << "t : { d : { x = 1; x = 2; y = 3; }; };"_ba
                                     << "t : { d : { y = 3; }; };"_ba;
        QTest::newRow("in two sections of one name")
            << "t : { d : { x = 1; y = 2; }; d : { x = 3; z = 4; }; };"_ba
            << "t : { d : { y = 2; }; d : { z = 4; }; };"_ba;
        QTest::newRow("empty") << "t : { d : { x = ; y = 2; }; };"_ba
                               << "t : { d : { y = 2; }; };"_ba;
        QTest::newRow("xml") << "<t><d x='1' y='2'/></t>"_ba
                             << "<t><d y='2'/></t>"_ba;
    }
    void unset()
    {
        QFETCH(const QByteArray, before);
        home->writeConfiguration(before);
        const ProgramResult result = run({u"unset"_s, u"t.d.x"_s});
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.exitStatus, 0);
        QTEST(text(), "after");
    }

    void unsetOfWhatIsNotThere_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("not set") << u"tavolux.receiptdoc.printTime"_s
                                 << "tavolux-config: tavolux.receiptdoc.printTime is not set\n"_ba;
        QTest::newRow("unknown")
            << u"tavolux.receiptdoc.printtime"_s
            << "tavolux-config: there is no setting \"tavolux.receiptdoc.printtime\"; did you mean "
               "\"tavolux.receiptdoc.printTime\"?\n"_ba;
    }
    void unsetOfWhatIsNotThere()
    {
        QFETCH(const QString, key);
        const ProgramResult result = run({u"unset"_s, key});
        QCOMPARE(result.exitStatus, 1);
        QTEST(result.standardError, "message");
        QCOMPARE(text(), configuration);
    }

    void list()
    {
        home->writeConfiguration(
            "tavolux : { printers : { till : { model = generic-58; colour = red; }; }; };");
        const ProgramResult result = run({u"list"_s, u"printers.till"_s});
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.exitStatus, 0);
        const QList<QByteArray> lines = result.standardOutput.split('\n');
        QCOMPARE(lines.at(0).simplified(), "SETTING VALUE WITHOUT IT MEANING"_ba);
        QCOMPARE(lines.at(1), "tavolux.printers.till"_ba);
        QCOMPARE(lines.at(2).simplified(),
                 "model generic-58 - The model of the printer, which says all that follows."_ba);
        QCOMPARE(lines.at(4).simplified(), "columns - 32 The length of a line of normal type."_ba);
        QVERIFY(lines.at(2).startsWith("    model "));
        QCOMPARE(lines.at(lines.size() - 2).simplified(), "colour red - (never read)"_ba);
    }

    void listOfEverything()
    {
        const ProgramResult result = run({u"list"_s});
        QCOMPARE(result.exitStatus, 0);
        QVERIFY(result.standardOutput.contains("\ntavolux.doc (Kitchen tickets)\n"));
        QVERIFY(result.standardOutput.contains("\ntavolux.language (Language)\n"));
        QVERIFY(result.standardOutput.contains("\ntavolux.printers.till\n"));
    }

    void listOfOneSetting_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::newRow("by its key") << u"tavolux.receiptdoc.paperWidth"_s;
        QTest::newRow("without the first section") << u"receiptdoc.paperWidth"_s;
    }
    void listOfOneSetting()
    {
        QFETCH(const QString, asked);
        const ProgramResult result = run({u"list"_s, asked, u"--json"_s});
        QCOMPARE(result.exitStatus, 0);
        const QJsonArray array = QJsonDocument::fromJson(result.standardOutput).array();
        QCOMPARE(array.size(), 1);
        QCOMPARE(
            array.first().toObject(),
            (QJsonObject{
                {u"key"_s, u"tavolux.receiptdoc.paperWidth"_s},
                {u"value"_s, u"30"_s},
                {u"line"_s, 6},
                {u"read"_s, true},
                {u"default"_s, u"0"_s},
                {u"kind"_s, u"number"_s},
                {u"least"_s, 0},
                {u"most"_s, 100000},
                {u"unit"_s, u"characters"_s},
                {u"explanation"_s,
                 u"The length of a line; 0 stands for the printer's own, which is 34 for plain text."_s}}));
    }

    void listAsJson()
    {
        const QJsonArray array =
            QJsonDocument::fromJson(run({u"list"_s, u"--json"_s}).standardOutput).array();
        QMap<QString, QJsonObject> byKey;
        for (const QJsonValue &value : array)
            byKey.insert(value[u"key"_s].toString(), value.toObject());
        QCOMPARE(byKey.size(), array.size());
        QVERIFY(byKey[u"tavolux.receiptdoc.printTime"_s][u"value"_s].isNull());
        QCOMPARE(byKey[u"tavolux.receiptdoc.printTime"_s][u"default"_s].toString(), u"false"_s);
        QCOMPARE(byKey[u"tavolux.printers.till.cut"_s][u"choices"_s].toArray(),
                 (QJsonArray{u"full"_s, u"partial"_s, u"none"_s}));
    }

    void listOfWhatIsNotThere()
    {
        const ProgramResult result = run({u"list"_s, u"receiptdoc.paper"_s});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.standardError,
                 "tavolux-config: there is no section or setting \"receiptdoc.paper\"\n");
    }

    void namesBeforeThereIsAConfiguration()
    {
        const ProgramResult result =
            run({u"list"_s, u"--names"_s, u"--file"_s, home->filePath(u"missing.conf"_s)});
        QCOMPARE(result.exitStatus, 2);
        QVERIFY(result.standardOutput.contains("tavolux.receiptdoc.paperWidth\n"));
        QVERIFY(!result.standardOutput.contains("printers"));
    }

    void xmlIsKnownByItsContent_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("a tag") << "<tavolux><doc paperWidth='40'/></tavolux>"_ba
                               << "40"_ba;
        QTest::newRow("blanks before it") << "\n <tavolux><doc paperWidth='40'/></tavolux>"_ba
                                          << "40"_ba;
        QTest::newRow("a byte order mark") << "\xEF\xBB\xBF<tavolux><doc paperWidth='40'/></tavolux>"_ba
                                           << "40"_ba;
        QTest::newRow("a comment, and then cfg")
            << "<!-- no --> tavolux : { doc : { paperWidth = 40; }; };"_ba
            << ""_ba;
        QTest::newRow("cfg") << "tavolux : { doc : { paperWidth = 40; }; };"_ba
                             << "40"_ba;
    }
    void xmlIsKnownByItsContent()
    {
        QFETCH(const QByteArray, text);
        home->writeConfiguration(text);
        const ProgramResult result = run({u"get"_s, u"tavolux.doc.paperWidth"_s});
        QTEST(result.standardOutput.trimmed(), "value");
    }

    void checkOfXmlSaysThatItIsNotPrintedWith()
    {
        home->writeConfiguration("<tavolux><doc paperWidth='40'/></tavolux>");
        const ProgramResult result = run({u"check"_s});
        QCOMPARE(result.exitStatus, 1);
        QVERIFY(result.standardOutput.contains(": this is XML; the printing program reads cfg alone\n"));
        QVERIFY(!run({u"check"_s, u"--type"_s, u"xml"_s}).standardOutput.contains("cfg alone"));
    }

    void cannotBeChanged_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("exitStatus");
        QTest::newRow("missing") << u"missing.conf"_s << 2;
        QTest::newRow("a folder") << u".tavolux"_s << 2;
        QTest::newRow("a FIFO") << u"fifo"_s << 2;
    }
    void cannotBeChanged()
    {
        QFETCH(const QString, file);
        home->makeFifo(u"fifo"_s);
        for (const QStringList &command : {QStringList{u"set"_s, u"tavolux.doc.style"_s, u"x"_s},
                                           QStringList{u"unset"_s, u"tavolux.doc.style"_s}}) {
            const ProgramResult result = run(command + QStringList{u"--file"_s, home->filePath(file)});
            QTEST(result.exitStatus, "exitStatus");
            QVERIFY(result.standardError.startsWith("tavolux-config: cannot read "));
        }
    }
};

QTEST_GUILESS_MAIN(SettingCommandsTest)
#include "setting_commands_test.moc"
