#include "program_run.h"
#include "temporary_home.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString program = QStringLiteral(TAVOLUX_PRINTER);

const QByteArray configuration = "tavolux : { receiptdoc : { paperWidth = 5; openCashDrawer = true; }; };";
const QByteArray receipt =
    "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"17\"/></document>";
const QByteArray printedReceipt = " Serial Number: 17\n=====\n\x1Bp0";
const QByteArray translatedReceipt = " Numero di serie: 17\n=====\n\x1Bp0";
const QByteArray unknownMethod = "<document><method name=\"printNothing\"/></document>";

const QByteArray unableToOpen = "PrintManager::printAbstractOrder(...): Unable To Open File\n";
const QByteArray unsupported = "File Format Not Supported\n";

using Environment = QMap<QString, QString>;

QByteArray missingConfiguration(const TemporaryHome &home)
{
    return "Error in the method FileReader::open( " + home.path().toUtf8()
        + "/.tavolux/conf/tavolux.conf ): File Not Found\n";
}

/* The program in the home directory. Whatever else is wrong, it ends with status 0 and a silent standard
 * error: then its messages are returned, otherwise what went wrong. */
QByteArray messagesOf(const TemporaryHome &home, const QStringList &arguments,
                      const Environment &environment = {}, const std::function<void()> &beforeStart = {})
{
    Environment variables = {{u"HOME"_s, home.path()}, {u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, {}}};
    variables.insert(environment);
    const ProgramResult run = runProgram(program, arguments, variables, {}, beforeStart);
    if (run.crashed)
        return "crashed";
    if (run.exitStatus != 0)
        return "exit status " + QByteArray::number(run.exitStatus);
    if (!run.standardError.isEmpty())
        return "on standard error: " + run.standardError;
    return run.standardOutput;
}

} // namespace

/* The printing program as it is called: arguments, messages, exit status, and where its output goes. What
 * happens when that fails is tried in tests/reliability. */
class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void argumentCount_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("none") << 0 << false;
        QTest::newRow("input only") << 1 << false;
        QTest::newRow("input and output") << 2 << true;
        QTest::newRow("one that is ignored") << 3 << true;
        QTest::newRow("one too many") << 4 << false;
        QTest::newRow("many") << 9 << false;
    }

    void argumentCount()
    {
        QFETCH(const int, count);
        QFETCH(const bool, accepted);
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.filePath(u"printed.txt"_s);
        const QString ignored = home.filePath(u"ignored"_s);
        const QStringList arguments =
            QStringList({home.writeFile(u"document.xml"_s, receipt), output}) + QStringList(7, ignored);

        const QByteArray usage = "Usage: " + program.toUtf8() + " input_file output_file\n";
        QCOMPARE(messagesOf(home, arguments.first(count)), accepted ? QByteArray() : usage);
        QCOMPARE(QFile::exists(output), accepted);
        if (accepted)
            QCOMPARE(fileBytes(output), printedReceipt);
        QVERIFY(!QFile::exists(ignored));
    }

    void usageShowsTheNameAsItWasCalled()
    {
        const TemporaryHome home;
        QVERIFY(QFile::link(program, home.filePath(u"prog"_s)));
        const ProgramResult run = runProgram(u"./prog"_s, {u"a"_s}, {}, {}, inFolder(home.path()));
        QCOMPARE(run.exitStatus, 0);
        QCOMPARE(run.standardOutput, "Usage: ./prog input_file output_file\n");
        QCOMPARE(run.standardError, QByteArray());
    }

    void usageComesBeforeEverythingElse()
    {
        const TemporaryHome home; // without a configuration, which nobody misses
        QCOMPARE(messagesOf(home, {}), "Usage: " + program.toUtf8() + " input_file output_file\n");
    }

    void unneededArgumentIsNotRead_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::newRow("empty") << QString();
        QTest::newRow("option") << u"--help"_s;
        QTest::newRow("file that is not there") << u"/nowhere/at/all"_s;
    }

    void unneededArgumentIsNotRead()
    {
        QFETCH(const QString, argument);
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.writeFile(u"printed.txt"_s, "of an earlier document");
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), output, argument}), "");
        QCOMPARE(fileBytes(output), printedReceipt);
    }

    // The toolkit takes its own options out of the arguments before anything else looks at them.
    void optionsOfTheToolkitAreNoFileNames()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.filePath(u"printed.txt"_s);
        QCOMPARE(
            messagesOf(home, {u"-qmljsdebugger=none"_s, home.writeFile(u"document.xml"_s, receipt), output}),
            "");
        QCOMPARE(fileBytes(output), printedReceipt);
    }

    void outputIsTruncated()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.writeFile(u"printed.txt"_s, QByteArray(1000, 'x'));
        const QString input = home.writeFile(u"document.xml"_s, receipt);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(messagesOf(home, {input, output}), "");
            QCOMPARE(fileBytes(output), printedReceipt);
        }
    }

    void faultInTheDocumentKeepsWhatWasPrinted()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.filePath(u"printed.txt"_s);
        const QString input = home.writeFile(
            u"document.xml"_s,
            "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"17\"/></wrong>");
        QCOMPARE(messagesOf(home, {input, output}), "");
        QCOMPARE(fileBytes(output), " Serial Number: 17\n=====\n");
    }

    void missingConfigurationPrintsWithDefaults()
    {
        const TemporaryHome home;
        const QString output = home.filePath(u"printed.txt"_s);
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), output}),
                 missingConfiguration(home));
        QCOMPARE(fileBytes(output), " Serial Number: 17\n" + QByteArray(34, '=') + '\n');
    }

    void unknownMethodEndsTheRun_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("printed");

        const QByteArray known = "<method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"17\"/>";
        const auto row = [](const char *name, const QByteArray &elements, const QByteArray &printed) {
            QTest::newRow(name) << "<document>" + elements + "</document>" << printed;
        };
        row("only method", "<method name=\"printNothing\"/>", "");
        row("in lower case", "<method name=\"printfullorderreceipt\"/>", "");
        row("blank after the name", "<method name=\"printFullOrderReceipt \"/>", "");
        row("empty name", "<method name=\"\"/>", "");
        row("no name", "<method/>", "");
        row("before a known one", "<method name=\"printNothing\"/>" + known, "");
        row("after a known one", known + "<method name=\"printNothing\"/>" + known,
            " Serial Number: 17\n=====\n");
    }

    void unknownMethodEndsTheRun()
    {
        QFETCH(const QByteArray, text);
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.filePath(u"printed.txt"_s);
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, text), output}), unsupported);
        QTEST(fileBytes(output), "printed");
    }

    void messagesComeInTheOrderOfTheRun()
    {
        const TemporaryHome home;
        const QString input = home.writeFile(u"document.xml"_s, unknownMethod);
        QCOMPARE(messagesOf(home, {input, home.filePath(u"missing/printed.txt"_s)}),
                 missingConfiguration(home) + unableToOpen + unsupported);
    }

    void fileNamesAreTakenFromTheWorkingDirectory()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        home.writeFile(u"folder/document.xml"_s, receipt);
        QCOMPARE(messagesOf(home, {u"document.xml"_s, u"../printed.txt"_s}, {},
                            inFolder(home.filePath(u"folder"_s))),
                 "");
        QCOMPARE(fileBytes(home.filePath(u"printed.txt"_s)), printedReceipt);
    }

    void nothingPrintedIsNoFailure()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString input = home.writeFile(u"document.xml"_s, "<document/>");
        QCOMPARE(messagesOf(home, {input, u"/dev/full"_s}), "");
    }

    void fifoGetsWhatAFileGets()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString fifo = home.makeFifo(u"printer"_s);
        // Opened for both, it waits for nobody.
        const int reader = open(QFile::encodeName(fifo).constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), fifo}), "");
        QByteArray bytes(100, '\0');
        bytes.truncate(read(reader, bytes.data(), 100));
        close(reader);
        QCOMPARE(bytes, printedReceipt);
    }

    // Opened again by its name, the file of standard output is emptied, and written from its start.
    void standardOutputIsAFile_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("emptied by the shell") << O_TRUNC;
        QTest::newRow("added to by the shell") << O_APPEND;
    }

    void standardOutputIsAFile()
    {
        QFETCH(const int, mode);
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QByteArray file =
            QFile::encodeName(home.writeFile(u"printout.txt"_s, "of an earlier document"));
        const auto redirect = [&] {
            if (dup2(open(file.constData(), O_WRONLY | mode), STDOUT_FILENO) < 0)
                _exit(127);
        };
        QCOMPARE(
            messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), u"/dev/stdout"_s}, {}, redirect),
            "");
        QCOMPARE(fileBytes(QFile::decodeName(file)), printedReceipt);
    }

    void standardOutputIsAPipe()
    {
        const TemporaryHome home;
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), u"/dev/stdout"_s}),
                 missingConfiguration(home) + " Serial Number: 17\n" + QByteArray(34, '=') + '\n');
    }

    void documentComesFromAFifo()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration);
        const QString output = home.filePath(u"printed.txt"_s);
        const ProgramResult run =
            runProgram(program, {u"/dev/stdin"_s, output}, {{u"HOME"_s, home.path()}}, receipt);
        QCOMPARE(run.exitStatus, 0);
        QCOMPARE(run.standardOutput, "");
        QCOMPARE(fileBytes(output), printedReceipt);
    }

    void language_data()
    {
        QTest::addColumn<QString>("catalogue");
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("printed");

        // "~" stands for the home directory.
        const auto found = [](const char *name, const QString &catalogue, const QByteArray &keys,
                              const QString &locale = u"C.UTF-8"_s) {
            QTest::newRow(name) << catalogue << keys << locale << translatedReceipt;
        };
        const auto notFound = [](const char *name, const QString &catalogue, const QByteArray &keys,
                                 const QString &locale = u"C.UTF-8"_s) {
            QTest::newRow(name) << catalogue << keys << locale << printedReceipt;
        };
        const QString italian = u"it_IT.UTF-8"_s;
        const QByteArray byLocale = "basedir = \"~/lang\"; file = \"/\";";
        found("language of the user", u"lang/tavolux_it_IT.qm"_s, byLocale, italian);
        found("language of the user without a country", u"lang/tavolux_it.qm"_s, byLocale, italian);
        found("no language at all", u"lang/tavolux.qm"_s, byLocale, italian);
        found("without a suffix", u"lang/tavolux_it_IT"_s, byLocale, italian);
        found("without a country and a suffix", u"lang/tavolux_it"_s, byLocale, italian);
        notFound("other country", u"lang/tavolux_it_CH.qm"_s, byLocale, italian);
        notFound("other language", u"lang/tavolux_it.qm"_s, byLocale, u"de_DE.UTF-8"_s);
        notFound("other name", u"lang/it_IT.qm"_s, byLocale, italian);
        notFound("next to the folder", u"tavolux_it_IT.qm"_s, byLocale, italian);
        notFound("in the folder's name", u"langtavolux_it_IT.qm"_s, byLocale, italian);
        found("slash after the folder", u"lang/tavolux_it_IT.qm"_s, "basedir = \"~/lang/\"; file = \"/\";",
              italian);
        found("folder relative to the working directory", u"lang/tavolux_it.qm"_s,
              "basedir = lang; file = \"/\";", italian);
        notFound("language of the user, no folder", u"tavolux_it.qm"_s, "file = \"/\";", italian);

        found("file", u"lang/en.qm"_s, "basedir = \"~/lang\"; file = \"/en.qm\";");
        found("file without its suffix", u"lang/en.qm"_s, "basedir = \"~/lang\"; file = \"/en\";");
        found("file with more in its name", u"lang/en.qm"_s, "basedir = \"~/lang\"; file = \"/en_US\";");
        found("file with more after a dot", u"lang/en.qm"_s, "basedir = \"~/lang\"; file = \"/en.US\";");
        notFound("file with less in its name", u"lang/en_US.qm"_s, "basedir = \"~/lang\"; file = \"/en\";");
        found("joined without a separator", u"langen.qm"_s, "basedir = \"~/lang\"; file = en.qm;");
        notFound("no separator comes between", u"lang/en.qm"_s, "basedir = \"~/lang\"; file = en.qm;");
        found("slash at the end of the folder", u"lang/en.qm"_s, "basedir = \"~/lang/\"; file = en.qm;");
        found("relative file", u"lang/en.qm"_s, "basedir = lang; file = \"/en.qm\";");
        found("file alone", u"lang/en.qm"_s, "file = \"~/lang/en.qm\";");
        notFound("two slashes are no single one", u"lang/tavolux_it_IT.qm"_s,
                 "basedir = \"~/lang\"; file = \"//\";", italian);

        found("folder alone is a file", u"lang.qm"_s, "basedir = \"~/lang\";");
        found("folder alone with its suffix", u"lang.qm"_s, "basedir = \"~/lang.qm\"; file = \"\";");
        notFound("folder alone", u"lang/tavolux_it_IT.qm"_s, "basedir = \"~/lang\";", italian);
        notFound("file that is not there", u"lang/en.qm"_s, "basedir = \"~/lang\"; file = \"/fr.qm\";");
        notFound("nothing", u"lang/tavolux_it_IT.qm"_s, "", italian);
    }

    void language()
    {
        QFETCH(const QString, catalogue);
        QFETCH(QByteArray, keys);
        QFETCH(const QString, locale);
        const TemporaryHome home;
        keys.replace("~", home.path().toUtf8());
        home.writeConfiguration("tavolux : { language : { " + keys
                                + " }; receiptdoc : { paperWidth = 5; openCashDrawer = true; }; };");
        home.writeFile(catalogue, fileBytes(QStringLiteral(TAVOLUX_CATALOGUE)));
        QVERIFY(QDir(home.path()).mkpath(u"lang"_s));
        const QString output = home.filePath(u"printed.txt"_s);
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), output},
                            {{u"LC_ALL"_s, locale}}, inFolder(home.path())),
                 "");
        QTEST(fileBytes(output), "printed");
    }

    void catalogueThatIsNoneChangesNothing()
    {
        const TemporaryHome home;
        home.writeConfiguration("tavolux : { language : { file = \"" + home.path().toUtf8()
                                + "/en.qm\"; }; receiptdoc : { paperWidth = 5; openCashDrawer = true; }; };");
        home.writeFile(u"en.qm"_s, "no catalogue");
        const QString output = home.filePath(u"printed.txt"_s);
        QCOMPARE(messagesOf(home, {home.writeFile(u"document.xml"_s, receipt), output}), "");
        QCOMPARE(fileBytes(output), printedReceipt);
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "command_line_test.moc"
