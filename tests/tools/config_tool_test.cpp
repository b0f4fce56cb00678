#include "escpos_decoder.h"
#include "program_run.h"
#include "temporary_home.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString configTool = QStringLiteral(TAVOLUX_CONFIG);

const QByteArray configurationText = "tavolux : { doc : { paperWidth = 42; style = \"\"; }; };\n";

} // namespace

class ConfigToolTest : public QObject
{
    Q_OBJECT

private:
    ProgramResult run(const QStringList &arguments, QMap<QString, QString> environment = {}) const
    {
        environment.insert(u"HOME"_s, home->path());
        return runProgram(configTool, arguments, environment);
    }

    QString userFile() const { return home->filePath(u".tavolux/conf/tavolux.conf"_s); }

private Q_SLOTS:
    void init() { home = std::make_unique<TemporaryHome>(); }

    void help_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("long") << u"--help"_s;
        QTest::newRow("short") << u"-h"_s;
    }
    void help()
    {
        QFETCH(const QString, option);
        const ProgramResult result = run({option});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardError, "");
        for (const char *text : {"list [SECTION]",
                                 "get KEY",
                                 "set KEY VALUE...",
                                 "unset KEY",
                                 "tree",
                                 "write OUT",
                                 "write-xml OUT",
                                 "check",
                                 "check-document DOC",
                                 "init",
                                 "models",
                                 "status [DEVICE]",
                                 "test-page [OUT]",
                                 "edit",
                                 "--file <FILE>",
                                 "--type <cfg|xml>",
                                 "--columns <32|40|42|48>",
                                 "--printer <MODEL|NAME>",
                                 "--output <FILE>",
                                 "--force",
                                 "--json",
                                 "--names",
                                 "--quiet",
                                 "--help",
                                 "--version"})
            QVERIFY2(result.standardOutput.contains(text), text);
    }

    void version()
    {
        const ProgramResult result = run({u"--version"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, "tavolux-config " TAVOLUX_VERSION "\n");
        QCOMPARE(result.standardError, "");
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("message");

        QTest::newRow("no command") << QStringList() << QByteArray("a command is missing");
        QTest::newRow("misspelt command")
            << QStringList{u"chekc"_s}
            << QByteArray("there is no command \"chekc\"; did you mean \"check\"?");
        QTest::newRow("unknown command")
            << QStringList{u"frobnicate"_s} << QByteArray("there is no command \"frobnicate\"");
        QTest::newRow("get without a key") << QStringList{u"get"_s} << QByteArray("get needs KEY");
        QTest::newRow("set without a value")
            << QStringList{u"set"_s, u"a.b"_s} << QByteArray("set needs KEY VALUE...");
        QTest::newRow("set of two with one value")
            << QStringList{u"set"_s, u"a.b"_s, u"1"_s, u"a.c"_s} << QByteArray("the value of a.c is missing");
        QTest::newRow("unset of two")
            << QStringList{u"unset"_s, u"a.b"_s, u"a.c"_s} << QByteArray("unset does not take \"a.c\"");
        QTest::newRow("JSON where there is none")
            << QStringList{u"tree"_s, u"--json"_s} << QByteArray("--json is for list");
        QTest::newRow("write without a file") << QStringList{u"write"_s} << QByteArray("write needs OUT");
        QTest::newRow("write to an empty name")
            << QStringList{u"write"_s, QString()} << QByteArray("the name of the file to write is empty");
        QTest::newRow("an empty name of the configuration")
            << QStringList{u"--file"_s, QString(), u"init"_s}
            << QByteArray("the name of the configuration is empty");
        QTest::newRow("what would break the line")
            << QStringList{u"a\nb\u001B[2J"_s} << QByteArray("there is no command \"a?b?[2J\"");
        QTest::newRow("too many words")
            << QStringList{u"tree"_s, u"x"_s} << QByteArray("tree does not take \"x\"");
        QTest::newRow("unknown option")
            << QStringList{u"--fil"_s, u"tree"_s} << QByteArray("Unknown option 'fil'.");
        QTest::newRow("unknown type") << QStringList{u"--type"_s, u"ini"_s, u"tree"_s}
                                      << QByteArray("the type \"ini\" is neither cfg nor xml");
        QTest::newRow("columns where they mean nothing")
            << QStringList{u"check"_s, u"--columns"_s, u"42"_s} << QByteArray("--columns is for init");
        QTest::newRow("force where it means nothing")
            << QStringList{u"check"_s, u"--force"_s} << QByteArray("--force is for set, write and write-xml");
        QTest::newRow("quiet where it means nothing")
            << QStringList{u"tree"_s, u"--quiet"_s} << QByteArray("--quiet is for check and check-document");
        QTest::newRow("check of no document")
            << QStringList{u"check-document"_s} << QByteArray("check-document needs DOC");
        QTest::newRow("check of two documents") << QStringList{u"check-document"_s, u"x"_s, u"y"_s}
                                                << QByteArray("check-document does not take \"y\"");
        QTest::newRow("columns of no paper") << QStringList{u"init"_s, u"--columns"_s, u"41"_s}
                                             << QByteArray("\"41\" columns are none of 32|40|42|48");
        QTest::newRow("columns that are no number") << QStringList{u"init"_s, u"--columns"_s, u"wide"_s}
                                                    << QByteArray("\"wide\" columns are none of 32|40|42|48");
        QTest::newRow("printer where it means nothing")
            << QStringList{u"check"_s, u"--printer"_s, u"till"_s}
            << QByteArray("--printer is for init, status and test-page");
        QTest::newRow("output where it means nothing")
            << QStringList{u"test-page"_s, u"--printer"_s, u"till"_s, u"--output"_s, u"x"_s}
            << QByteArray("--output is for init");
        QTest::newRow("init with a printer alone")
            << QStringList{u"init"_s, u"--printer"_s, u"generic-80"_s}
            << QByteArray("init needs --printer and --output together");
        QTest::newRow("init with an output alone")
            << QStringList{u"init"_s, u"--output"_s, u"/dev/lp0"_s}
            << QByteArray("init needs --printer and --output together");
        const auto initWith = [](const QString &model, const QString &output) {
            return QStringList{u"init"_s, u"--printer"_s, model, u"--output"_s, output};
        };
        QTest::newRow("init with a misspelt model")
            << initWith(u"epson-tm-t20-iii"_s, u"x"_s)
            << QByteArray("there is no model \"epson-tm-t20-iii\"; did you mean \"epson-tm-t20iii\"?");
        QTest::newRow("init with a model like no other")
            << initWith(u"laser"_s, u"x"_s) << QByteArray("there is no model \"laser\"");
        QTest::newRow("init with an empty output")
            << initWith(u"generic-80"_s, u" "_s)
            << QByteArray("the output \" \" cannot be written in a configuration");
        QTest::newRow("init with an output that would end early")
            << initWith(u"generic-80"_s, u"a;b"_s)
            << QByteArray("the output \"a;b\" cannot be written in a configuration");
        QTest::newRow("init with more columns than the printer has")
            << initWith(u"generic-58"_s, u"x"_s) + QStringList{u"--columns"_s, u"40"_s}
            << QByteArray("the model generic-58 has 32 columns only");
        QTest::newRow("test page of no printer")
            << QStringList{u"test-page"_s} << QByteArray("test-page needs --printer");
        QTest::newRow("init of the other kind") << QStringList{u"init"_s, u"--type"_s, u"xml"_s}
                                                << QByteArray("a starter configuration is of the kind cfg");
    }
    void wrongUsage()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, message);
        const ProgramResult result = run(arguments);
        QCOMPARE(result.exitStatus, 2);
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.standardError, "tavolux-config: " + message + "\nTry \"tavolux-config --help\".\n");
        QVERIFY(!QFile::exists(userFile()));
    }

    void get_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("value");

        const QString cfg = u"cfg"_s;
        QTest::newRow("a value") << configurationText << cfg << u"tavolux.doc.paperWidth"_s
                                 << QByteArray("42");
        QTest::newRow("an empty value") << configurationText << cfg << u"tavolux.doc.style"_s << QByteArray();
        QTest::newRow("a missing key")
            << configurationText << cfg << u"tavolux.doc.paperRows"_s << QByteArray();
        QTest::newRow("an empty key") << configurationText << cfg << QString() << QByteArray();
        QTest::newRow("an empty file") << QByteArray() << cfg << u"tavolux.doc.style"_s << QByteArray();
        QTest::newRow("Latin-1 comes out in the terminal's encoding")
            << QByteArray("s : { k = \xE4; };") << cfg << u"s.k"_s << QByteArray("\xC3\xA4");
        QTest::newRow("NUL") << QByteArray("s : { k = a\0b; };", 17) << cfg << u"s.k"_s
                             << QByteArray("a\0b", 3);
        QTest::newRow("xml") << QByteArray("<s k='v'/>") << u"xml"_s << u"s.k"_s << QByteArray("v");
        QTest::newRow("xml, beyond Latin-1")
            << QByteArray("<s k='\xE2\x82\xAC'/>") << u"xml"_s << u"s.k"_s << QByteArray("?");
    }
    void get()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, kind);
        QFETCH(const QString, key);
        QFETCH(const QByteArray, value);
        const QString file = home->writeFile(u"some.conf"_s, text);
        const ProgramResult result = run({u"--file"_s, file, u"--type"_s, kind, u"get"_s, key});
        QCOMPARE(result.standardOutput, value + '\n');
        QCOMPARE(result.standardError, key.isEmpty() ? "tavolux-config: there is no setting \"\"\n" : "");
        QCOMPARE(result.exitStatus, value.isEmpty() ? 1 : 0);
    }

    void usersOwnConfigurationIsTheDefault()
    {
        home->writeConfiguration(configurationText);
        QCOMPARE(run({u"get"_s, u"tavolux.doc.paperWidth"_s}).standardOutput, "42\n");
    }

    void tree()
    {
        const QString file = home->writeFile(u"some.conf"_s, configurationText);
        const ProgramResult result = run({u"tree"_s, u"--file"_s, file});
        QCOMPARE(result.standardOutput,
                 "Tree \n" + file.toLatin1() + "\ntavolux\ndoc\npaperWidth = 42\nstyle = \n");
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.exitStatus, 0);
    }

    // In quadratic time it would take longer than a program may run here.
    void manySettingsInOneSection()
    {
        QByteArray text = "s : {";
        QByteArray tree = "s\n";
        for (int i = 100'000; i < 200'000; ++i) {
            const QByteArray name = 'k' + QByteArray::number(i);
            text += name + "=v;";
            tree += name + " = v\n";
        }
        const QString file = home->writeFile(u"some.conf"_s, text + "};");
        const ProgramResult result = run({u"tree"_s, u"--file"_s, file});
        QVERIFY(!result.crashed);
        QVERIFY(result.standardOutput == "Tree \n" + file.toLatin1() + '\n' + tree);
    }

    void write_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QByteArray>("written");

        QTest::newRow("cfg") << u"write"_s
                             << QByteArray("tavolux: \n{\n    doc: \n    {\n        paperWidth = \"42\";\n   "
                                           "     style = \"\";\n    };\n\n};\n\n");
        QTest::newRow("xml") << u"write-xml"_s
                             << QByteArray("\n<tavolux>\n\n    <doc\n        paperWidth = \"42\"\n        "
                                           "style = \"\">\n    </doc>\n</tavolux>\n");
    }
    void write()
    {
        QFETCH(const QString, command);
        home->writeConfiguration(configurationText);
        const QString out = home->filePath(u"out"_s);
        const ProgramResult result = run({command, out});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.standardError, "");
        QTEST(fileBytes(out), "written");
        QCOMPARE(fileBytes(userFile()), configurationText);

        const QMap<QString, QByteArray> unwritable{
            {home->filePath(u"nowhere/out"_s), "No such file or directory"},
            {u"/dev/full"_s, "No space left on device"},
            {home->path(), "Is a directory"}};
        for (const auto &[name, fault] : unwritable.asKeyValueRange()) {
            const ProgramResult failed = run({command, name});
            QCOMPARE(failed.exitStatus, 1);
            QCOMPARE(failed.standardOutput, "");
            QCOMPARE(failed.standardError,
                     "tavolux-config: cannot write " + name.toLatin1() + ": " + fault + '\n');
        }
    }

    void writeTellsWhatWouldBeLost_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QByteArray>("loss"); // FILE is the configuration
        QTest::addColumn<QByteArray>("forced");

        const QString cfg = u"cfg"_s;
        const QString xml = u"xml"_s;
        QTest::newRow("xml that begins with a declaration")
            << xml << QByteArray("<?xml version='1.0'?><s k='v'/>") << u"write-xml"_s
            << QByteArray("Everything is lost: the first node of FILE is not its root element.")
            << QByteArray("\n<>\n</>\n");
        QTest::newRow("xml with a comment")
            << xml << QByteArray("<s k='v'/><!-- c -->") << u"write"_s
            << QByteArray("Text that is no setting, such as a comment, is lost.")
            << QByteArray("s: \n{\n    k = \"v\";\n};\n\n");
        QTest::newRow("a remark") << cfg << QByteArray("s : { k = v; } remark;") << u"write"_s
                                  << QByteArray("Text that is no setting, such as a comment, is lost.")
                                  << QByteArray("s: \n{\n    k = \"v\";\n};\n\n");
        QTest::newRow("second section at the top")
            << cfg << QByteArray("s : { k = v; }; t : { k = v; };") << u"write"_s
            << QByteArray("The section t is lost: only the first section at the top is saved.")
            << QByteArray("s: \n{\n    k = \"v\";\n};\n\n");
        QTest::newRow("a value that ends early") << xml << QByteArray("<s k='a;b'/>") << u"write"_s
                                                 << QByteArray("The value of s.k, \"a;b\", becomes \"a\".")
                                                 << QByteArray("s: \n{\n    k = \"a;b\";\n};\n\n");
    }
    void writeTellsWhatWouldBeLost()
    {
        QFETCH(const QString, kind);
        QFETCH(const QByteArray, text);
        QFETCH(const QString, command);
        QFETCH(QByteArray, loss);
        // The configuration itself is in danger as well.
        for (const QString &out : {u"out"_s, u"some.conf"_s}) {
            const QString file = home->writeFile(u"some.conf"_s, text);
            const QStringList arguments{u"--file"_s, file, u"--type"_s, kind, command, home->filePath(out)};
            ProgramResult result = run(arguments);
            QCOMPARE(result.exitStatus, 1);
            QCOMPARE(result.standardOutput, "");
            QCOMPARE(result.standardError,
                     "tavolux-config: " + loss.replace("FILE", file.toLatin1())
                         + "\ntavolux-config: " + home->filePath(out).toLatin1()
                         + " is not written; --force writes it all the same\n");
            QVERIFY(!QFile::exists(home->filePath(u"out"_s)));
            QCOMPARE(fileBytes(file), text);

            result = run(arguments + QStringList(u"--force"_s));
            QCOMPARE(result.standardError, "");
            QCOMPARE(result.exitStatus, 0);
            QTEST(fileBytes(home->filePath(out)), "forced");
            QVERIFY(QFile::remove(home->filePath(out)));
        }
    }

    void starterConfigurationLosesNothing()
    {
        QCOMPARE(run({u"init"_s}).exitStatus, 0);
        for (const QString &command : {u"write-xml"_s, u"write"_s}) {
            const ProgramResult result = run({command, home->filePath(command)});
            QCOMPARE(result.standardError, "");
            QCOMPARE(result.exitStatus, 0);
        }
        QCOMPARE(run({u"--file"_s, home->filePath(u"write-xml"_s), u"--type"_s, u"xml"_s, u"write"_s,
                      home->filePath(u"back"_s)})
                     .exitStatus,
                 0);
        QCOMPARE(fileBytes(home->filePath(u"back"_s)), fileBytes(home->filePath(u"write"_s)));
    }

    void xmlThatIsNotWellFormed_data()
    {
        QTest::addColumn<QStringList>("command");

        QTest::newRow("get") << QStringList{u"get"_s, u"tavolux.doc.paperWidth"_s};
        QTest::newRow("tree") << QStringList{u"tree"_s};
        QTest::newRow("write") << QStringList{u"write"_s, u"OUT"_s};
        QTest::newRow("write-xml") << QStringList{u"write-xml"_s, u"OUT"_s};
    }
    void unreadable_data()
    {
        xmlThatIsNotWellFormed_data();
        QTest::newRow("check") << QStringList{u"check"_s};
    }
    void unreadable()
    {
        QFETCH(QStringList, command);
        const QString out = home->filePath(u"out"_s);
        command.replaceInStrings(u"OUT"_s, out);
        const auto verify = [&](const QStringList &options, const QString &message) {
            const ProgramResult result = run(options + command);
            QCOMPARE(result.exitStatus, 2);
            QCOMPARE(result.standardOutput, "");
            QCOMPARE(result.standardError, "tavolux-config: cannot read " + message.toLatin1() + '\n');
            QVERIFY(!QFile::exists(out));
        };

        verify({},
               userFile()
                   + ": No such file or directory\n"
                     "tavolux-config: \"tavolux-config init\" writes a configuration to start from"_L1);
        verify({u"--file"_s, home->path()}, home->path() + ": Not a regular file"_L1);
        const QString pipe = home->makeFifo(u"pipe"_s); // reading it would wait for a writer
        verify({u"--file"_s, pipe}, pipe + ": Not a regular file"_L1);
    }

    // To a check that is a finding.
    void xmlThatIsNotWellFormed()
    {
        QFETCH(QStringList, command);
        const QString out = home->filePath(u"out"_s);
        command.replaceInStrings(u"OUT"_s, out);
        const QString file = home->writeFile(u"some.xml"_s, "<s>\n<t>\n</s>");
        const ProgramResult result = run(QStringList{u"--type"_s, u"xml"_s, u"--file"_s, file} + command);
        QCOMPARE(result.exitStatus, 2);
        QCOMPARE(result.standardOutput, "");
        QVERIFY(
            result.standardError.startsWith("tavolux-config: cannot read " + file.toLatin1() + ", line 3: "));
        QVERIFY(!QFile::exists(out));
    }

    void check()
    {
        const QString file =
            home->writeFile(u"some.conf"_s, "tavolux : {\ndoc : { paperWidth = wide; }; };\n");
        ProgramResult result = run({u"check"_s, u"--file"_s, file});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput,
                 file.toLatin1()
                     + ":2: \"paperWidth\" is \"wide\", no usable whole number, so it counts as 0\n");
        QCOMPARE(result.standardError, "");

        result = run({u"check"_s, u"--file"_s, file, u"--quiet"_s});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, "");

        const QString empty = home->writeFile(u"empty.conf"_s, "");
        result = run({u"check"_s, u"--file"_s, empty});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput,
                 empty.toLatin1()
                     + ": there is no section \"tavolux\" with settings in it, so nothing is found\n");

        home->writeConfiguration(configurationText);
        result = run({u"check"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.standardError, "");
    }

    // With a user's own configuration, which hides the waiter, and without one.
    void checkDocument_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("configured");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("exitStatus");
        QTest::addColumn<QByteArray>("findings");

        const QByteArray begin = "<d>\n<method name='printSold'/>\n<orderinfo date='1'\n waiter='2'/>\n";
        const QByteArray right = begin + "</d>\n";
        const QByteArray wrong = begin + "<sold><recipe/></sold></d>\n";
        const QByteArray hidden = "DOC:4: \"waiter\" is not printed: tavolux.solddoc.printWaiter is off\n";
        const QByteArray finding =
            "DOC:5: \"recipe\" is no element that printSold reads; did you mean \"receipe\"?\n";

        QTest::newRow("right") << right << false << QStringList() << 0 << ""_ba;
        QTest::newRow("wrong") << wrong << false << QStringList() << 1 << finding;
        QTest::newRow("wrong, quietly") << wrong << false << QStringList{u"--quiet"_s} << 1 << ""_ba;
        QTest::newRow("hidden is not wrong") << right << true << QStringList() << 0 << hidden;
        QTest::newRow("hidden, quietly") << right << true << QStringList{u"-q"_s} << 0 << ""_ba;
        QTest::newRow("hidden and wrong") << wrong << true << QStringList() << 1 << hidden + finding;
    }
    void checkDocument()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const bool, configured);
        QFETCH(const QStringList, options);
        QFETCH(const int, exitStatus);
        QFETCH(QByteArray, findings);
        if (configured)
            home->writeConfiguration("tavolux : { solddoc : { printDate = true; }; };");
        const QString document = home->writeFile(u"order.xml"_s, text);
        const ProgramResult result = run(options + QStringList{u"check-document"_s, document});
        QCOMPARE(result.standardOutput, findings.replace("DOC", document.toUtf8()));
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.exitStatus, exitStatus);
    }

    void unreadableDocument()
    {
        const auto verify = [&](const QStringList &options, const QString &document, const QString &message) {
            const ProgramResult result = run(options + QStringList{u"check-document"_s, document});
            QCOMPARE(result.exitStatus, 2);
            QCOMPARE(result.standardOutput, "");
            QCOMPARE(result.standardError, "tavolux-config: cannot read " + message.toUtf8() + '\n');
        };
        const QString missing = home->filePath(u"missing"_s);
        verify({}, missing, missing + ": No such file or directory"_L1);
        verify({}, QString(), u": No such file or directory"_s);
        verify({}, home->path(), home->path() + ": Not a regular file"_L1);
        const QString pipe = home->makeFifo(u"pipe"_s); // reading it would wait for a writer
        verify({}, pipe, pipe + ": Not a regular file"_L1);

        // A configuration that is asked for.
        const QString document = home->writeFile(u"order.xml"_s, "<d/>");
        verify({u"--file"_s, home->path()}, document, home->path() + ": Not a regular file"_L1);
        verify({u"--file"_s, missing}, document,
               missing
                   + ": No such file or directory\n"
                     "tavolux-config: \"tavolux-config init\" writes a configuration to start from"_L1);
    }

    void checkOfTheTranslation_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("basedir");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("missing");

        // The folder DIR holds tavolux_it.qm and nothing else.
        QTest::newRow("none wanted") << u"it_IT.UTF-8"_s << QString() << QString() << QString();
        QTest::newRow("by locale, found by its language")
            << u"it_IT.UTF-8"_s << u"DIR"_s << u"/"_s << QString();
        QTest::newRow("by locale, missing")
            << u"de_DE.UTF-8"_s << u"DIR"_s << u"/"_s << u"DIR/tavolux_de_DE"_s;
        QTest::newRow("by locale, English needs none") << u"en_GB.UTF-8"_s << u"DIR"_s << u"/"_s << QString();
        QTest::newRow("by locale, nor does the neutral one") << u"C"_s << u"DIR"_s << u"/"_s << QString();
        QTest::newRow("by name") << u"C"_s << u"DIR"_s << u"/tavolux_it.qm"_s << QString();
        QTest::newRow("by name, without the suffix") << u"C"_s << u"DIR"_s << u"/tavolux_it"_s << QString();
        QTest::newRow("by name, missing") << u"C"_s << u"DIR"_s << u"/xx.qm"_s << u"DIR/xx.qm"_s;
        QTest::newRow("by name, without a slash")
            << u"C"_s << u"DIR"_s << u"tavolux_it.qm"_s << u"DIRtavolux_it.qm"_s;
        QTest::newRow("folder alone") << u"C"_s << u"DIR"_s << QString() << u"DIR"_s;
        QTest::newRow("file alone") << u"C"_s << QString() << u"DIR/tavolux_it.qm"_s << QString();
    }
    void checkOfTheTranslation()
    {
        QFETCH(const QString, locale);
        QFETCH(QString, basedir);
        QFETCH(QString, file);
        QFETCH(QString, missing);

        // A catalogue of one message: the magic number, the table of hashes and the messages.
        const QByteArray catalogue = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd"
                                                         "42"
                                                         "00000008"
                                                         "0123456700000000"
                                                         "69"
                                                         "00000001"
                                                         "01");
        const QString folder = QFileInfo(home->writeFile(u"lang/tavolux_it.qm"_s, catalogue)).path();
        for (QString *text : {&basedir, &file, &missing})
            text->replace("DIR"_L1, folder);
        home->writeConfiguration("tavolux : { language : {\nbasedir = \"" + basedir.toLatin1()
                                 + "\";\nfile = \"" + file.toLatin1() + "\"; }; };");

        const ProgramResult result = run({u"check"_s}, {{u"LC_ALL"_s, locale}});
        QCOMPARE(result.standardOutput,
                 missing.isEmpty() ? QByteArray()
                                   : userFile().toLatin1() + ":3: the translation \"" + missing.toLatin1()
                         + "\" is not found\n");
        QCOMPARE(result.exitStatus, missing.isEmpty() ? 0 : 1);
    }

    void begin()
    {
        ProgramResult result = run({u"init"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, userFile().toLatin1() + '\n');
        QCOMPARE(result.standardError, "");
        QCOMPARE(run({u"get"_s, u"tavolux.receiptdoc.paperWidth"_s}).standardOutput, "42\n");
        QCOMPARE(run({u"check"_s}).exitStatus, 0);

        // What a person has changed since stays.
        home->writeConfiguration(configurationText);
        result = run({u"init"_s});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.standardError,
                 "tavolux-config: " + userFile().toLatin1() + " exists already and stays as it is\n");
        QCOMPARE(fileBytes(userFile()), configurationText);
    }

    void beginWithAPrinter_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("width");
        QTest::newRow("48 columns") << u"epson-tm-t20iii"_s << QStringList() << QByteArray("48");
        QTest::newRow("44 columns") << u"hp-a779"_s << QStringList() << QByteArray("42");
        QTest::newRow("42 columns") << u"epson-tm-t88v"_s << QStringList() << QByteArray("42");
        QTest::newRow("36 columns") << u"seiko-rp-f10-58"_s << QStringList() << QByteArray("32");
        QTest::newRow("32 columns") << u"generic-58"_s << QStringList() << QByteArray("32");
        QTest::newRow("fewer than it has")
            << u"generic-80"_s << QStringList{u"--columns"_s, u"40"_s} << QByteArray("40");
    }
    void beginWithAPrinter()
    {
        QFETCH(const QString, model);
        QFETCH(const QStringList, options);
        QFETCH(const QByteArray, width);
        const QString output = u"/dev/till, /dev/usb/lp\u00E4*"_s;
        const ProgramResult result =
            run(QStringList{u"init"_s, u"--printer"_s, model, u"--output"_s, output} + options);
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardError, "");
        QCOMPARE(run({u"get"_s, u"tavolux.solddoc.paperWidth"_s}).standardOutput, width + '\n');
        QVERIFY(
            fileBytes(userFile())
                .startsWith(
                    "tavolux : {\n    printers : {\n        till : { model = " + model.toLatin1()
                    + "; output = \"/dev/till, /dev/usb/lp\xC3\xA4*\"; };\n    };\n\n    language : {\n"));
    }

    void models()
    {
        const ProgramResult result = run({u"models"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardError, "");
        const QList<QByteArray> rows = result.standardOutput.split('\n');
        QCOMPARE(rows.size(), 34); // titles, 32 models and the end
        QCOMPARE(rows.first(), "MODEL               COLUMNS  DOTS  CUT      PICTURES  CODE PAGES");
        for (const char *row :
             {"epson-tm-u220b           42   400  partial  no        437=0",
              "citizen-ct-s310ii        48   576  full     yes       1252=16, 852=6, 866=7, 437=0",
              "hp-a779                  44     -  full     yes       858=6, 1252=8, 852=2, 866=7, 1251=13, "
              "850=1, 437=0",
              "zj-5870                  32   384  none     yes       1252=16, 852=18, 866=17, 850=2, 437=0",
              "plain-text               34     -  none     no        -"})
            QVERIFY2(rows.contains(row), row);
    }

    void testPage_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("out");
        QTest::addColumn<QString>("file"); // that is printed; none: standard output
        QTest::newRow("to the printer") << QByteArray("DIR/lp0") << QStringList() << u"lp0"_s;
        QTest::newRow("to its first name")
            << QByteArray("DIR/lp*, DIR/lp1, DIR/lp2") << QStringList() << u"lp1"_s;
        QTest::newRow("elsewhere") << QByteArray("DIR/lp0") << QStringList{u"DIR/page"_s} << u"page"_s;
        QTest::newRow("to standard output") << QByteArray("DIR/lp*") << QStringList{u"-"_s} << QString();
    }
    void testPage()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, out);
        QFETCH(const QString, file);
        output.replace("DIR", home->path().toLatin1());
        out.replaceInStrings(u"DIR"_s, home->path());
        home->writeConfiguration("tavolux : { printers : { kitchen : { output = x; model = generic-80; };\n"
                                 "till : { model = citizen-ct-s310ii; logo = /no/logo.png; output = \""
                                 + output + "\"; }; }; };");
        const ProgramResult result = run(QStringList{u"test-page"_s, u"--printer"_s, u"till"_s} + out);
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.exitStatus, 0);
        const QByteArray page = file.isEmpty() ? result.standardOutput : fileBytes(home->filePath(file));
        const DecodedPrintout printed =
            decodeEscpos(page, {{{16, u"1252"_s}, {6, u"852"_s}, {7, u"866"_s}, {0, u"437"_s}}, 16, 48});
        QCOMPARE(printed.fault, QString());
        QVERIFY(printed.lines().contains("till: citizen-ct-s310ii"_L1));
        QVERIFY(printed.lines().contains("is not printed: No such file or directory"_L1));
        QCOMPARE(printed.widestLine, 48);
        QCOMPARE(printed.cuts, 1);
        QCOMPARE(printed.pulses, 1);
        if (!file.isEmpty())
            QCOMPARE(result.standardOutput, "");
    }

    void testPageFails_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitStatus");
        QTest::addColumn<QByteArray>("standardOutput");
        QTest::addColumn<QByteArray>("standardError");
        const auto row = [](const char *name, const QStringList &arguments, int exitStatus,
                            const QByteArray &standardOutput, const QByteArray &standardError) {
            QTest::newRow(name) << arguments << exitStatus << standardOutput << standardError;
        };
        row("misspelt printer", {u"tlil"_s}, 2, "", "FILE has no printer \"tlil\"; did you mean \"till\"?\n");
        row("unknown printer", {u"cellar"_s}, 2, "", "FILE has no printer \"cellar\"\n");
        row("plain text", {u"proof"_s, u"-"_s}, 2, "",
            "the printer \"proof\" prints plain text, for which there is no test page\n");
        row("unknown model", {u"old"_s, u"-"_s}, 2, "",
            "tavolux.printers.old.model is \"laser\", not the name of a model\n"
            "tavolux-config: the printer \"old\" prints plain text, for which there is no test page\n");
        row("patterns alone", {u"any"_s}, 2, "",
            "the printer \"any\" names no output but patterns; name one as OUT\n");
        row("full device", {u"till"_s, u"/dev/full"_s}, 1,
            "Error in the method PrinterDriver::print( /dev/full ): No space left on device\n", "");
    }
    void testPageFails()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(QByteArray, standardError);
        home->writeConfiguration("tavolux : { printers : {"
                                 "till : { output = x; model = generic-80; };"
                                 "any : { output = \"/dev/lp?\"; model = generic-80; };"
                                 "old : { output = y; model = laser; };"
                                 "proof : { output = z; model = plain-text; }; }; };");
        const ProgramResult result = run(QStringList{u"test-page"_s, u"--printer"_s} + arguments);
        QTEST(result.exitStatus, "exitStatus");
        QTEST(result.standardOutput, "standardOutput");
        standardError.replace("FILE", userFile().toLatin1());
        QCOMPARE(result.standardError, standardError.isEmpty() ? "" : "tavolux-config: " + standardError);
    }

    // The value of a setting that is no use is told, and the page shows the model's.
    void testPageTellsOfSettings()
    {
        home->writeConfiguration(
            "tavolux : { printers : { till : { output = x; model = generic-80; columns = wide; }; }; };");
        const ProgramResult result = run({u"test-page"_s, u"--printer"_s, u"till"_s, u"-"_s});
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardError,
                 "tavolux-config: tavolux.printers.till.columns is \"wide\", not a number from 1 to 255\n");
        QVERIFY(result.standardOutput.startsWith("\x1B@"));
        QVERIFY(result.standardOutput.contains("\ncolumns = 48\n"));
    }

    void beginElsewhere()
    {
        const QString file = home->filePath(u"new/folders/some.conf"_s);
        QCOMPARE(run({u"--file"_s, file, u"init"_s, u"--columns"_s, u"32"_s}).exitStatus, 0);
        QCOMPARE(run({u"--file"_s, file, u"get"_s, u"tavolux.solddoc.paperWidth"_s}).standardOutput, "32\n");
        QVERIFY(!QFile::exists(userFile()));
    }

    void beginDoesNotFollowADanglingLink()
    {
        const QString link = home->filePath(u"link"_s);
        QVERIFY(QFile::link(home->filePath(u"target"_s), link));
        QCOMPARE(run({u"--file"_s, link, u"init"_s}).exitStatus, 1);
        QVERIFY(!QFile::exists(home->filePath(u"target"_s)));
    }

    void beginWhereNothingCanBe()
    {
        const auto verify = [&](const QString &file, const QString &message) {
            const ProgramResult result = run({u"--file"_s, file, u"init"_s});
            QCOMPARE(result.exitStatus, 2);
            QCOMPARE(result.standardOutput, "");
            QCOMPARE(result.standardError, "tavolux-config: cannot " + message.toLatin1() + '\n');
        };
        const QString file = home->writeFile(u"file"_s, "");
        verify(file + "/some.conf"_L1, "make the folder "_L1 + file + ": Not a directory"_L1);
        verify(u"/proc/self/some.conf"_s, u"write /proc/self/some.conf: No such file or directory"_s);
    }

    // A limit that is not told by signal: the system's own way is to end the program.
    void fullDisk_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("exitStatus");
        QTest::newRow("init") << u"init"_s << 2;
        QTest::newRow("write") << u"--file ../some.conf write .tavolux/conf/tavolux.conf"_s << 1;
        QTest::newRow("write-xml") << u"--file ../some.conf write-xml .tavolux/conf/tavolux.conf"_s << 1;
    }
    void fullDisk()
    {
        QFETCH(const QString, command);
        QVERIFY(QDir().mkpath(QFileInfo(userFile()).path()));
        home->writeFile(u"../some.conf"_s, "tavolux : { k = " + QByteArray(10'000, 'x') + "; };");
        const ProgramResult result =
            runProgram(u"/bin/sh"_s, {u"-c"_s, "ulimit -f 1; exec \"$0\" "_L1 + command, configTool},
                       {{u"HOME"_s, home->path()}}, {}, inFolder(home->path()));
        QVERIFY(!result.crashed);
        QTEST(result.exitStatus, "exitStatus");
        QVERIFY2(result.standardError.endsWith("tavolux.conf: File too large\n"),
                 result.standardError.constData());
        // Nothing is left, so that the next attempt begins anew.
        QCOMPARE(QDir(QFileInfo(userFile()).path())
                     .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
                 QStringList());
        QCOMPARE(run({u"init"_s}).exitStatus, 0);
    }

    void saysWhatOfAFileIsNotKept()
    {
        if (geteuid() != 0)
            QSKIP("only root can leave files to others");
        home->writeConfiguration(configurationText);
        const QByteArray out = home->writeFile(u"out"_s, "old").toLatin1();
        const QByteArray folder = home->path().toLatin1();
        for (const QByteArray &open : {folder, folder + "/..", out})
            QCOMPARE(chmod(open.constData(), 0777), 0);
        // Nobody else may be allowed into the folder of the build.
        const QString program = home->filePath(u"tavolux-config"_s);
        QVERIFY(QFile::copy(configTool, program));
        const ProgramResult result =
            runProgram(program, {u"write"_s, home->filePath(u"out"_s)}, {{u"HOME"_s, home->path()}}, {}, [] {
                constexpr id_t nobody = 65534;
                if (setgid(nobody) != 0 || setuid(nobody) != 0)
                    _exit(127);
            });
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardError,
                 "tavolux-config: " + out
                     + " is written, but its owner and group could not be kept: Operation not permitted\n");
    }

    void namesAreBytes()
    {
        // In the shell, since a test's own arguments are text.
        const auto shell = [this](const QString &script) {
            return runProgram(u"/bin/sh"_s,
                              {u"-ec"_s, "b=$(printf 'b\\344r'); export b; "_L1 + script, configTool},
                              {{u"HOME"_s, home->path()}}, {}, inFolder(home->path()));
        };
        ProgramResult result = shell(u"\"$0\" --file \"$b/$b\" init; test -f \"$b/$b\""_s);
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.standardOutput, "b\xE4r/b\xE4r\n");
        QCOMPARE(result.exitStatus, 0);
        result = shell(u"\"$0\" --file \"$b/$b\" write \"$b/$b.out\"; test -f \"$b/$b.out\""_s);
        QCOMPARE(result.standardError, "");
        QCOMPARE(result.exitStatus, 0);
        result = shell(u"mkdir \"$b\"/home; HOME=\"$HOME/$b/home\"; \"$0\" init;"
                       "test -f \"$b\"/home/.tavolux/conf/tavolux.conf; \"$0\" get tavolux.doc.paperWidth"_s);
        QCOMPARE(result.standardError, "");
        QVERIFY(result.standardOutput.endsWith("b\xE4r/home/.tavolux/conf/tavolux.conf\n42\n"));
        QCOMPARE(result.exitStatus, 0);
        result = shell(u"\"$0\" --file \"$b\"/none check || true; \"$0\" write \"$b\"/none/none"_s);
        QCOMPARE(result.standardError.split('\n').first(),
                 "tavolux-config: cannot read b\xE4r/none: No such file or directory");
        result =
            shell(u"PATH=$PWD; printf '#!/bin/sh\\necho \"$2\"\\n' > tavolux-config-editor;"
                  "/bin/chmod +x tavolux-config-editor; /bin/cp \"$0\" \"$b\"; exec \"$b\"/tavolux-config"
                  " --file \"$b/$b\" edit"_s);
        QCOMPARE(result.standardOutput, "b\xE4r/b\xE4r\n");
        shell(u"rm -r \"$b\""_s); // which the test's own folder could not
    }

    void edit()
    {
        // Stands in for the editor: it says who it is and what it was given.
        const QByteArray editor = "#!/bin/sh\necho \"$0 $*\"\nexit 7\n";
        const auto install = [&](const QString &name) {
            QString file = home->writeFile(name, editor);
            if (!QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
                qFatal("cannot make %s a program", qPrintable(file));
            return file;
        };
        const QString tool = home->filePath(u"bin/tavolux-config"_s);
        QVERIFY(QDir().mkpath(QFileInfo(tool).path()));
        QVERIFY(QFile::copy(configTool, tool));
        const QMap<QString, QString> environment{
            {u"HOME"_s, home->path()}, {u"PATH"_s, home->filePath(u"path"_s) + ":/usr/bin:/bin"_L1}};

        ProgramResult result = runProgram(tool, {u"edit"_s}, environment);
        QCOMPARE(result.exitStatus, 2);
        QCOMPARE(result.standardOutput, "");
        QCOMPARE(result.standardError,
                 "tavolux-config: the editor, tavolux-config-editor, is not installed\n");

        const QString inPath = install(u"path/tavolux-config-editor"_s);
        result = runProgram(tool, {u"edit"_s}, environment);
        QCOMPARE(result.standardOutput,
                 inPath.toLatin1() + " --file " + userFile().toLatin1() + " --type cfg\n");
        QCOMPARE(result.exitStatus, 7);

        const QString beside = install(u"bin/tavolux-config-editor"_s);
        result =
            runProgram(tool, {u"--file"_s, u"some.xml"_s, u"--type"_s, u"xml"_s, u"edit"_s}, environment);
        QCOMPARE(result.standardOutput, beside.toLatin1() + " --file some.xml --type xml\n");
    }

    void outputThatCannotBeWritten()
    {
        home->writeConfiguration(configurationText);
        const ProgramResult result = runProgram(
            u"/bin/sh"_s, {u"-c"_s, u"\"$0\" tree > /dev/full"_s, configTool}, {{u"HOME"_s, home->path()}});
        QCOMPARE(result.exitStatus, 2);
        QCOMPARE(result.standardError, "tavolux-config: cannot write the output\n");
    }

    void needsNoDisplayLibrary()
    {
        const ProgramResult result = runProgram(u"ldd"_s, {configTool});
        QVERIFY(result.standardOutput.contains("libQt6Core."));
        for (const char *library : {"libQt6Gui", "libQt6Widgets", "libX11", "libxcb", "libGL", "libEGL"})
            QVERIFY2(!result.standardOutput.contains(library), library);
    }

private:
    std::unique_ptr<TemporaryHome> home;
};

QTEST_GUILESS_MAIN(ConfigToolTest)
#include "config_tool_test.moc"
