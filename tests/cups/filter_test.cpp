/* The filter run as the print system runs it. */
#include "program_run.h"
#include "temporary_home.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString examples = QStringLiteral(TAVOLUX_SOURCE_DIR "/examples/documents/");

const QByteArray ticket = "<d><method name='printPartialOrder'/>"
                          "<receipe number='2' name='Pizza Diavola'/></d>";
const QByteArray total = "<d><method name='printFullOrder'/><total/></d>";

QByteArray configuration(const QByteArray &section, const QByteArray &language = {})
{
    return "tavolux : { language : { " + language
        + " }; prefiscaldoc : { openCashDrawer = true; };\n"
          "printers : { kitchen : { "
        + section + " }; }; };\n";
}

const QByteArray generic = "model = generic-80;";

/* A queue named kitchen: what the print system hands to the filter for each of its jobs. */
struct Queue
{
    explicit Queue(const QByteArray &configurationText, const QByteArray &ppd = {})
        : configurationFile(home.writeFile(u"tavolux.conf"_s, configurationText))
        , environment({{u"PRINTER"_s, u"kitchen"_s},
                       {u"PPD"_s, home.writeFile(u"kitchen.ppd"_s, ppd)},
                       {u"LANG"_s, u"en.UTF-8"_s},
                       {u"HOME"_s, home.path()}})
    {
    }

    QStringList arguments(const QString &options = {}, int copies = 1) const
    {
        return {u"12"_s, u"anna"_s, u"-qwindowtitle"_s, QString::number(copies),
                u"job-uuid=urn:uuid:1 configuration="_s + configurationFile + u' ' + options};
    }

    ProgramResult print(const QByteArray &document, const QString &options = {}, int copies = 1) const
    {
        return runProgram(QStringLiteral(TAVOLUX_FILTER), arguments(options, copies), environment, document);
    }

    TemporaryHome home;
    QString configurationFile;
    QMap<QString, QString> environment;
};

QByteArrayList lines(const ProgramResult &result)
{
    return result.standardError.split('\n');
}

} // namespace

class FilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsAsTheProgramDoes_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QByteArray>("section");
        const QList<QPair<const char *, QByteArray>> sections = {
            {"plain text", "model = plain-text;"},
            {"wide", "model = epson-tm-t20iii; drawerPin = 5; duplicate = true;"},
            {"narrow", "model = zj-5870; feed = 2;"}};
        const QStringList documents = QDir(examples).entryList(QDir::Files, QDir::Name);
        QCOMPARE(documents.size(), 13);
        for (const QString &document : documents)
            for (const auto &[name, section] : sections)
                QTest::addRow("%s, %s", qPrintable(document), name) << examples + document << section;
    }

    void printsAsTheProgramDoes()
    {
        QFETCH(const QString, document);
        QFETCH(const QByteArray, section);
        const QByteArray language =
            "basedir = \"" TAVOLUX_BINARY_DIR "/translations\"; file = /tavolux_it.qm;";
        const Queue queue(configuration(section, language));
        queue.home.writeConfiguration(configuration(section + "output = \"*\";", language));
        const QString printed = queue.home.filePath(u"printed"_s);
        runProgram(QStringLiteral(TAVOLUX_PRINTER), {document, printed}, {{u"HOME"_s, queue.home.path()}});

        const ProgramResult result =
            runProgram(QStringLiteral(TAVOLUX_FILTER), queue.arguments() << document, queue.environment);
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, fileBytes(printed));
        QCOMPARE(result.standardError, "PAGE: 1 1\n");
    }

    void chooses_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("row"); // as wide as the paper
        const auto wide = [](int columns) { return (" TOTAL" + QByteArray(columns - 6, '.') + '\n'); };
        const QByteArray columns36 = "*DefaultColumns: 36\n";

        QTest::newRow("the model's") << generic << ""_ba << u""_s << wide(48);
        QTest::newRow("the queue's") << generic << columns36 << u""_s << wide(36);
        QTest::newRow("the section's over the queue's")
            << generic + "columns = 40;" << columns36 << u""_s << wide(40);
        QTest::newRow("the job's over all")
            << generic + "columns = 40;" << columns36 << u"columns=44"_s << wide(44);
        QTest::newRow("the job leaves it to the configuration")
            << generic + "columns = 40;" << columns36 << u"Columns=Configured"_s << wide(40);
        QTest::newRow("the queue leaves it to the configuration")
            << generic + "columns = 40;"
            << "*DefaultColumns: Configured\n"_ba << u""_s << wide(40);
        QTest::newRow("a model of the queue alone") << ""_ba
                                                    << "*DefaultModel: zj-5870\n"_ba << u""_s << wide(32);
        QTest::newRow("the section's columns on the job's model") << generic + "columns = 40;"
                                                                  << ""_ba << u"Model=zj-5870"_s << wide(40);
    }

    void chooses()
    {
        QFETCH(const QByteArray, section);
        QFETCH(const QByteArray, ppd);
        QFETCH(const QString, options);
        QFETCH(const QByteArray, row);
        const ProgramResult result = Queue(configuration(section), ppd).print(total, options);
        QCOMPARE(result.exitStatus, 0);
        QVERIFY2(result.standardOutput.contains(row), result.standardOutput.toHex(' ').constData());
    }

    void cutsAndOpensTheDrawerAsTheJobSays()
    {
        const Queue queue(configuration(generic));
        const QByteArray cut = "\x1DV";
        const QByteArray pulse("\x1Bp\1", 3);
        const QByteArray usual = queue.print(total).standardOutput;
        QVERIFY(usual.contains(cut));
        QVERIFY(!usual.contains(pulse));
        const QByteArray chosen = queue.print(total, u"Cut=none Drawer=5"_s).standardOutput;
        QVERIFY(!chosen.contains(cut));
        QVERIFY(chosen.contains(pulse));
    }

    void language_data()
    {
        QTest::addColumn<QByteArray>("configured");
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("label");
        const QByteArray folder = "basedir = \"" TAVOLUX_BINARY_DIR "/translations\";";
        const QByteArray german = folder + "file = /tavolux_de.qm;";

        QTest::newRow("none") << ""_ba
                              << ""_ba << u""_s << "TOTAL"_ba;
        QTest::newRow("configured") << german << ""_ba << u""_s << "GESAMT"_ba;
        QTest::newRow("the queue's") << folder << "*DefaultLanguage: it\n"_ba << u""_s << "TOTALE"_ba;
        QTest::newRow("the job's") << german << "*DefaultLanguage: it\n"_ba << u"language=es"_s << "TOTAL"_ba;
        QTest::newRow("English, for a job") << german << ""_ba << u"language=en"_s << "TOTAL"_ba;
    }

    void language()
    {
        QFETCH(const QByteArray, configured);
        QFETCH(const QByteArray, ppd);
        QFETCH(const QString, options);
        QFETCH(const QByteArray, label);
        const ProgramResult result = Queue(configuration(generic, configured), ppd).print(total, options);
        QCOMPARE(result.standardError, "PAGE: 1 1\n");
        QVERIFY2(result.standardOutput.contains(label + '.'), result.standardOutput.constData());
    }

    void copies()
    {
        const Queue queue(configuration(generic));
        const QByteArray once = queue.print(ticket).standardOutput;
        QVERIFY(once.contains("Pizza Diavola"));
        const ProgramResult thrice = queue.print(ticket, {}, 3);
        QCOMPARE(thrice.standardOutput, once + once + once);
        QCOMPARE(thrice.standardError, "PAGE: 1 3\n");
    }

    void printsNothing_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("unknown method") << "<d>\n<method name='printPizza'/></d>"_ba
                                        << "line 2, column 26: unknown method \"printPizza\"."_ba;
        QTest::newRow("a message of several lines")
            << "<d><method name='print&#10;PAGE: 9'/></d>"_ba
            << "line 1, column 36: unknown method \"print?PAGE: 9\"."_ba;
        QTest::newRow("it ends too early") << ticket.chopped(4) << ": unexpected end of file."_ba;
        QTest::newRow("no XML") << "2 x Pizza\n"_ba
                                << "line 1, column 1: error occurred while parsing "_ba;
        QTest::newRow("empty") << ""_ba
                               << "line 1, column "_ba;
    }

    void printsNothing()
    {
        QFETCH(const QByteArray, document);
        QFETCH(const QByteArray, message);
        const ProgramResult result = Queue(configuration(generic)).print(document);
        QVERIFY(!result.crashed);
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, QByteArray());
        const QByteArray last = lines(result).value(lines(result).size() - 2);
        QVERIFY2(last.startsWith("ERROR: Nothing was printed, because of a fault in the document, "),
                 last.constData());
        QVERIFY2(last.contains(message), last.constData());
    }

    void printsWhatCameBeforeAFaultWhenAsked()
    {
        const ProgramResult result =
            Queue(configuration(generic)).print(ticket.chopped(4), u"incomplete=print"_s);
        QCOMPARE(result.exitStatus, 0);
        QVERIFY(result.standardOutput.contains("Pizza Diavola"));
        QVERIFY(result.standardOutput.contains("*** INCOMPLETE ***"));
        QVERIFY(
            result.standardError.startsWith("WARNING: The document was printed as far as it goes, line 1"));
    }

    void saysWhichConfigurationIsMissing_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("none") << u"/nowhere/tavolux.conf"_s << "No such file or directory"_ba;
        QTest::newRow("a device") << u"/dev/null"_s << "Not a regular file"_ba;
    }

    void saysWhichConfigurationIsMissing()
    {
        QFETCH(const QString, file);
        QFETCH(const QByteArray, reason);
        const ProgramResult result = Queue(configuration(generic)).print(ticket, u"configuration="_s + file);
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(result.standardError,
                 "STATE: +tavolux-configuration-error\n"
                 "ERROR: Nothing was printed, because the configuration "
                     + file.toLatin1() + " cannot be read: " + reason + ".\n");
    }

    // The queue shows it once, until a configuration can be read.
    void showsAMissingConfiguration_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("change");
        const QString missing = u"configuration=/nowhere/tavolux.conf"_s;
        const QString reasons = u"media-low-warning,tavolux-configuration-error"_s;
        QTest::newRow("still missing") << reasons << missing << QByteArray();
        QTest::newRow("there again") << reasons << QString() << "STATE: -tavolux-configuration-error\n"_ba;
        QTest::newRow("never missing") << u"none"_s << QString() << QByteArray();
    }

    void showsAMissingConfiguration()
    {
        QFETCH(const QString, shown);
        QFETCH(const QString, options);
        QFETCH(const QByteArray, change);
        Queue queue(configuration(generic));
        queue.environment[u"PRINTER_STATE_REASONS"_s] = shown;
        QByteArray states;
        for (const QByteArray &line : lines(queue.print(ticket, options)))
            if (line.startsWith("STATE: "))
                states += line + '\n';
        QCOMPARE(states, change);
    }

    void warnsOfWhatItDoesNotTake_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("warning");
        QTest::newRow("of the section")
            << generic + "columns = many;" << u""_s
            << "Error in the setting tavolux.printers.kitchen.columns( many ): not a number from 1 to 255"_ba;
        QTest::newRow("of the job")
            << generic << u"cut=wild"_s
            << "The option Cut is not taken: \"wild\" is not full, partial or none."_ba;
        QTest::newRow("a language")
            << generic << u"language=xx"_s
            << "There is no translation for the language \"xx\": the labels are English."_ba;
    }

    // It is printed as without.
    void warnsOfWhatItDoesNotTake()
    {
        QFETCH(const QByteArray, section);
        QFETCH(const QString, options);
        QFETCH(const QByteArray, warning);
        const ProgramResult result = Queue(configuration(section)).print(ticket, options);
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.standardOutput, Queue(configuration(generic)).print(ticket).standardOutput);
        QCOMPARE(result.standardError, "WARNING: " + warning + "\nPAGE: 1 1\n");
    }

    // Without a section it is the plain-text printer.
    void warnsOfAQueueThatIsNoPrinter()
    {
        const ProgramResult result = Queue("tavolux : { };\n").print(ticket);
        QCOMPARE(result.exitStatus, 0);
        QVERIFY(result.standardOutput.contains("Pizza Diavola"));
        QCOMPARE(lines(result).front(),
                 "WARNING: Error in the setting tavolux.printers.kitchen.model(  ): not the name of a model");
    }

    void wrongArguments()
    {
        const ProgramResult result = runProgram(QStringLiteral(TAVOLUX_FILTER), {u"12"_s, u"anna"_s});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(result.standardError,
                 "ERROR: Usage: tavolux-filter job-id user title copies options [file]\n");
    }

    void saysWhyTheDocumentCannotBeRead()
    {
        const Queue queue(configuration(generic));
        const ProgramResult result = runProgram(
            QStringLiteral(TAVOLUX_FILTER), queue.arguments() << u"/nowhere/order.xml"_s, queue.environment);
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardError,
                 "ERROR: Nothing was printed, because the document cannot be read: "
                 "No such file or directory.\n");
    }

    void failsWhenNobodyTakesThePrintout()
    {
        const Queue queue(configuration(generic));
        const ProgramResult result =
            runProgram(QStringLiteral(TAVOLUX_FILTER), queue.arguments(), queue.environment, ticket, [] {
                const int full = open("/dev/full", O_WRONLY);
                dup2(full, STDOUT_FILENO);
            });
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.standardError,
                 "WARNING: Error in the method PrinterDriver::print( the print system ): "
                 "No space left on device\n");
    }
};

QTEST_GUILESS_MAIN(FilterTest)
#include "filter_test.moc"
