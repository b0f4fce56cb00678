/* The backend run as the print system runs it, on printers in every state. */
#include "program_run.h"
#include "simulated_printer.h"
#include "temporary_home.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

using Is = SimulatedPrinter::Condition;
using Change = std::function<void(Is &)>;

const QByteArray ticket = "2 x Pizza Diavola\n1 x Coperto\n";

enum Status { Ok = 0, Failed = 1, Hold = 3, Stop = 4, RetryCurrent = 7 };

/* A queue: what the print system hands to the backend for each of its jobs. */
struct Queue
{
    explicit Queue(const QString &uri)
        : environment({{u"DEVICE_URI"_s, uri},
                       {u"PRINTER"_s, u"kitchen"_s},
                       {u"CUPS_CACHEDIR"_s, home.path()},
                       {u"CLASS"_s, {}},
                       {u"PRINTER_STATE_REASONS"_s, u"none"_s}})
    {
    }

    /* The arguments for a job whose bytes are in a file. */
    QStringList job(int number = 12, int copies = 1, const QByteArray &bytes = ticket) const
    {
        return jobFromInput(number, copies) + QStringList{home.writeFile(u"job"_s, bytes)};
    }

    QStringList jobFromInput(int number = 12, int copies = 1) const
    {
        return {QString::number(number), u"anna"_s, u"Table 4"_s, QString::number(copies),
                u"finishings=3 job-uuid=urn:uuid:%1 number-up=1"_s.arg(number)};
    }

    TemporaryHome home;
    QMap<QString, QString> environment;
};

ProgramResult run(const Queue &queue, const QStringList &arguments, const QByteArray &input = {})
{
    return runProgram(QStringLiteral(TAVOLUX_BACKEND), arguments, queue.environment, input);
}

/* The backend while it runs. */
class RunningBackend
{
public:
    RunningBackend(const Queue &queue, const QStringList &arguments)
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (auto variable = queue.environment.begin(); variable != queue.environment.end(); ++variable)
            variables.insert(variable.key(), variable.value());
        m_process.setProcessEnvironment(variables);
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(QStringLiteral(TAVOLUX_BACKEND), arguments);
    }

    ~RunningBackend()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /* Waits until the line has been written to standard error; false when it ends before. */
    bool writes(const QByteArray &line)
    {
        do {
            while (m_process.canReadLine()) {
                m_lines += m_process.readLine();
                if (m_lines.endsWith(line + '\n'))
                    return true;
            }
        } while (m_process.waitForReadyRead());
        return false;
    }

    void send(int signal) { ::kill(static_cast<pid_t>(m_process.processId()), signal); }

    /* Its exit status, -1 for a crash. */
    int end()
    {
        if (!m_process.waitForFinished())
            return -1;
        m_lines += m_process.readAllStandardError();
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    /* All that it has written to standard error and that was waited for. */
    QByteArray lines() const { return m_lines; }

private:
    QProcess m_process;
    QByteArray m_lines;
};

QByteArray heldMessage(const QByteArray &reason)
{
    return "ERROR: The job may have been printed, in full or in part (" + reason
        + "). Look at the paper, then \"cancel kitchen-12\", or print it again with \"lp -i kitchen-12 -H "
          "resume\".\n";
}

const QByteArray readyMessage = "INFO: The printer is ready.\n";
const QByteArray printedMessage = "INFO: The printer has confirmed the job.\n";

} // namespace

class BackendTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsDevices();
    void refusesWrongArguments_data();
    void refusesWrongArguments();
    void stopsTheQueueOfAWrongAddress_data();
    void stopsTheQueueOfAWrongAddress();
    void prints_data();
    void prints();
    void printsCopies_data();
    void printsCopies();
    void nothingToPrint();
    void jobThatCannotBeRead();
    void waitsForThePrinter_data();
    void waitsForThePrinter();
    void tellsPaperNearItsEnd();
    void clearsWhatAnEarlierRunLeft();
    void waitsForAPrinterThatIsAway();
    void holdsWhatWasReset();
    void printsOnAMutePrinter_data();
    void printsOnAMutePrinter();
    void waitsForAPrinterThatStopsReading();
    void cancelledBeforeSending_data();
    void cancelledBeforeSending();
    void cancelledInTheMiddle();
    void killedInTheMiddle();
    void endsWithThePrintSystem();
    void leavesTheJobToItsClass_data();
    void leavesTheJobToItsClass();
    void printsWithoutMemory();
};

void BackendTest::listsDevices()
{
    const ProgramResult result = runProgram(QStringLiteral(TAVOLUX_BACKEND), {});
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(result.standardOutput.split('\n').first(),
             R"(network tavolux "Unknown" "Receipt printer that tells its status")");
    QCOMPARE(result.standardError, QByteArray());
}

void BackendTest::refusesWrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("one") << QStringList{u"12"_s};
    QTest::newRow("four") << QStringList{u"12"_s, u"anna"_s, u"Table 4"_s, u"1"_s};
    QTest::newRow("seven") << QStringList(7, u"1"_s);
}

void BackendTest::refusesWrongArguments()
{
    QFETCH(const QStringList, arguments);
    const ProgramResult result = run(Queue(u"tavolux:/dev/null"_s), arguments);
    QCOMPARE(result.exitStatus, Failed);
    QCOMPARE(result.standardError, "ERROR: Usage: tavolux job-id user title copies options [file]\n");
}

void BackendTest::stopsTheQueueOfAWrongAddress_data()
{
    QTest::addColumn<QString>("uri");
    for (const char *uri :
         {"socket://10.0.0.5", "tavolux", "tavolux:", "tavolux:lp0", "tavolux:/etc/hostname", "tavolux://",
          "tavolux://:9100", "tavolux://ho st", "tavolux://host:", "tavolux://host:0", "tavolux://host:65536",
          "tavolux://host:91x", "tavolux://[::1", "tavolux://[]", "tavolux://host/queue",
          "tavolux://host?status=maybe", "tavolux:/dev/usb/lp0?", "tavolux:/dev/shm"})
        QTest::newRow(uri) << QString::fromLatin1(uri);
}

void BackendTest::stopsTheQueueOfAWrongAddress()
{
    QFETCH(const QString, uri);
    const Queue queue(uri);
    const ProgramResult result = run(queue, queue.job());
    QCOMPARE(result.exitStatus, Stop);
    QVERIFY(result.standardError.contains("ERROR: "));
}

void BackendTest::prints_data()
{
    QTest::addColumn<SimulatedPrinter::Connection>("connection");
    QTest::newRow("network") << SimulatedPrinter::Connection::Network;
    QTest::newRow("device") << SimulatedPrinter::Connection::Device;
}

// Every byte as it is, whatever it means elsewhere.
void BackendTest::prints()
{
    QFETCH(const SimulatedPrinter::Connection, connection);
    QByteArray bytes;
    for (int round = 0; round < 40; ++round)
        for (int byte = 0; byte < 256; ++byte)
            bytes += static_cast<char>(byte);
    const SimulatedPrinter printer(connection);
    const Queue queue(printer.uri());
    for (int number = 1; number <= 2; ++number) {
        const ProgramResult result = run(queue, queue.job(number, 1, bytes));
        QCOMPARE(result.exitStatus, Ok);
        QCOMPARE(result.standardError, readyMessage + printedMessage);
        QCOMPARE(result.standardOutput, QByteArray());
    }
    QCOMPARE(printer.log().jobs, QList<QByteArray>(2, bytes));
}

void BackendTest::printsCopies_data()
{
    QTest::addColumn<bool>("fromInput");
    QTest::addColumn<QByteArray>("printed");
    QTest::newRow("file") << false << ticket + ticket + ticket;
    // Whoever made what comes there has made the copies.
    QTest::newRow("standard input") << true << ticket;
}

void BackendTest::printsCopies()
{
    QFETCH(const bool, fromInput);
    QFETCH(const QByteArray, printed);
    const SimulatedPrinter printer;
    const Queue queue(printer.uri());
    const ProgramResult result =
        fromInput ? run(queue, queue.jobFromInput(12, 3), ticket) : run(queue, queue.job(12, 3));
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{printed});
}

// As when the filter has failed: the printer may be away.
void BackendTest::nothingToPrint()
{
    const SimulatedPrinter printer;
    const Queue queue(printer.uri());
    const ProgramResult result = run(queue, queue.jobFromInput());
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(result.standardError, QByteArray());
    QCOMPARE(printer.log().connections, 0);
}

void BackendTest::jobThatCannotBeRead()
{
    const SimulatedPrinter printer;
    const Queue queue(printer.uri());
    for (const QString &file : {queue.home.filePath(u"missing"_s), queue.home.path()}) {
        const ProgramResult result = run(queue, queue.jobFromInput() + QStringList{file});
        QCOMPARE(result.exitStatus, Failed);
        QCOMPARE(result.standardError, "ERROR: The job cannot be read.\n");
    }
    QCOMPARE(printer.log().connections, 0);
}

void BackendTest::waitsForThePrinter_data()
{
    QTest::addColumn<Change>("spoil");
    QTest::addColumn<Change>("mend");
    QTest::addColumn<QByteArray>("reasons");
    QTest::addColumn<QByteArray>("cause");
    QTest::addColumn<qsizetype>("printedBefore");

    const Change addPaper = [](Is &is) { is.paper = true; };
    const QByteArray empty = "media-empty-error,offline-report";
    QTest::newRow("no paper before") << Change([](Is &is) { is.paper = false; }) << addPaper << empty
                                     << "no paper"_ba << qsizetype(0);
    QTest::newRow("no paper in the middle")
        << Change([](Is &is) { is.paperLeft = 5; }) << addPaper << empty << "no paper"_ba << qsizetype(5);
    QTest::newRow("no paper after the last byte") << Change([](Is &is) { is.paperLeft = ticket.size(); })
                                                  << addPaper << empty << "no paper"_ba << ticket.size();
    QTest::newRow("cover open") << Change([](Is &is) { is.coverOpen = true; })
                                << Change([](Is &is) { is.coverOpen = false; })
                                << "cover-open-error,offline-report"_ba
                                << "the cover is open"_ba << qsizetype(0);
    QTest::newRow("cutter blocked") << Change([](Is &is) { is.cutterError = true; })
                                    << Change([](Is &is) { is.cutterError = false; })
                                    << "offline-report,other-error"_ba
                                    << "the cutter is blocked"_ba << qsizetype(0);
}

void BackendTest::waitsForThePrinter()
{
    QFETCH(const Change, spoil);
    QFETCH(const Change, mend);
    QFETCH(const QByteArray, reasons);
    QFETCH(const QByteArray, cause);
    QFETCH(const qsizetype, printedBefore);

    SimulatedPrinter printer;
    printer.set(spoil);
    const Queue queue(printer.uri());
    RunningBackend backend(queue, queue.job());
    QVERIFY(backend.writes("STATE: +" + reasons));
    QVERIFY(backend.writes("ERROR: The printer is not ready: " + cause + '.'));
    QCOMPARE(printer.log().paper.size(), printedBefore);
    printer.set(mend);
    QVERIFY(backend.writes("STATE: -" + reasons));
    QVERIFY(backend.writes(printedMessage.trimmed()));
    QCOMPARE(backend.end(), Ok);
    QCOMPARE(backend.lines().count("STATE: "), 2);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{ticket});
}

void BackendTest::tellsPaperNearItsEnd()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paperNearEnd = true; });
    const Queue queue(printer.uri());
    const ProgramResult result = run(queue, queue.job());
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(result.standardError,
             "STATE: +media-low-warning\nINFO: The printer is ready, the paper is near its end.\n"
                 + printedMessage);
}

void BackendTest::clearsWhatAnEarlierRunLeft()
{
    const SimulatedPrinter printer;
    Queue queue(printer.uri());
    queue.environment[u"PRINTER_STATE_REASONS"_s] = u"paused,media-empty-error,cover-open-error"_s;
    const ProgramResult result = run(queue, queue.job());
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(result.standardError,
             "STATE: -cover-open-error,media-empty-error\n" + readyMessage + printedMessage);
}

void BackendTest::waitsForAPrinterThatIsAway()
{
    SimulatedPrinter printer;
    const Queue queue(printer.uri());
    printer.set([](Is &is) { is.connected = false; });
    RunningBackend backend(queue, queue.job());
    QVERIFY(backend.writes("STATE: +offline-report"));
    QVERIFY(backend.writes("ERROR: The printer " + printer.uri().toLatin1().sliced(10)
                           + " cannot be reached: Connection refused."));
    printer.set([](Is &is) { is.connected = true; });
    QVERIFY(backend.writes("STATE: -offline-report"));
    QCOMPARE(backend.end(), Ok);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{ticket});
}

// Nothing is repeated by itself; released by a person the job is printed.
void BackendTest::holdsWhatWasReset()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.resetAt = 8; });
    const Queue queue(printer.uri());
    const ProgramResult held = run(queue, queue.job());
    QCOMPARE(held.exitStatus, Hold);
    QCOMPARE(held.standardError, readyMessage + heldMessage("Connection reset by peer"));
    QCOMPARE(printer.log().paper, ticket.first(8));
    QCOMPARE(printer.log().connections, 1);

    const ProgramResult released = run(queue, queue.job());
    QCOMPARE(released.exitStatus, Ok);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{ticket});
}

void BackendTest::printsOnAMutePrinter_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("warning");
    QTest::newRow("asked")
        << QString()
        << "WARNING: The printer does not tell its status: nobody knows whether the job was "
           "printed. With ?status=no in the address of the queue it is not asked.\n"_ba;
    QTest::newRow("not asked") << u"/?status=no"_s << QByteArray();
}

void BackendTest::printsOnAMutePrinter()
{
    QFETCH(const QString, option);
    QFETCH(const QByteArray, warning);
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.answersStatus = false; });
    const Queue queue(printer.uri() + option);
    const ProgramResult result = run(queue, queue.job());
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(result.standardError, warning);
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.paper == ticket; }));
}

// It accepts the connection and does not even read, as while it serves another: known to answer, it is no
// mute one.
void BackendTest::waitsForAPrinterThatStopsReading()
{
    SimulatedPrinter printer;
    const Queue queue(printer.uri());
    QCOMPARE(run(queue, queue.job(1)).exitStatus, Ok);

    printer.set([](Is &is) { is.reads = false; });
    RunningBackend backend(queue, queue.job(2));
    QVERIFY(backend.writes("STATE: +offline-report"));
    QVERIFY(backend.writes("ERROR: The printer " + printer.uri().toLatin1().sliced(10)
                           + " does not answer: no answer in time."));
    QCOMPARE(printer.log().jobs.size(), 1);
    printer.set([](Is &is) { is.reads = true; });
    QVERIFY(backend.writes("STATE: -offline-report"));
    QCOMPARE(backend.end(), Ok);
    QCOMPARE(printer.log().jobs, QList<QByteArray>(2, ticket));
}

void BackendTest::cancelledBeforeSending_data()
{
    QTest::addColumn<Change>("spoil");
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("no paper") << Change([](Is &is) { is.paper = false; })
                              << "ERROR: The printer is not ready: no paper."_ba;
    QTest::newRow("away") << Change([](Is &is) { is.connected = false; }) << "STATE: +offline-report"_ba;
}

void BackendTest::cancelledBeforeSending()
{
    QFETCH(const Change, spoil);
    QFETCH(const QByteArray, shown);
    SimulatedPrinter printer;
    printer.set(spoil);
    const Queue queue(printer.uri());
    RunningBackend backend(queue, queue.job());
    QVERIFY(backend.writes(shown));
    backend.send(SIGTERM);
    QCOMPARE(backend.end(), RetryCurrent);
    QCOMPARE(printer.log().paper, QByteArray());

    printer.set([](Is &is) { is = {}; });
    QCOMPARE(run(queue, queue.job()).exitStatus, Ok);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{ticket});
}

// The print system may have ended, and begin the job anew. Nothing is repeated by itself then.
void BackendTest::cancelledInTheMiddle()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paperLeft = 5; });
    const Queue queue(printer.uri());
    {
        RunningBackend backend(queue, queue.job());
        QVERIFY(backend.writes("ERROR: The printer is not ready: no paper."));
        backend.send(SIGTERM);
        QCOMPARE(backend.end(), Hold);
        QVERIFY2(backend.lines().endsWith(heldMessage("it was interrupted")), backend.lines().constData());
    }
    printer.set([](Is &is) { is = {}; });
    const ProgramResult again = run(queue, queue.job());
    QCOMPARE(again.exitStatus, Hold);
    QCOMPARE(again.standardError, heldMessage("printing it was cut off earlier"));
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.paper == ticket; }));

    QCOMPARE(run(queue, queue.job()).exitStatus, Ok);
    QCOMPARE(printer.log().paper, ticket + ticket);
}

void BackendTest::killedInTheMiddle()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paperLeft = 5; });
    const Queue queue(printer.uri());
    {
        RunningBackend backend(queue, queue.job());
        QVERIFY(backend.writes("ERROR: The printer is not ready: no paper."));
        backend.send(SIGKILL);
        QCOMPARE(backend.end(), -1);
    }
    printer.set([](Is &is) { is = {}; });
    QCOMPARE(run(queue, queue.job()).exitStatus, Hold);
    QCOMPARE(run(queue, queue.job(13)).exitStatus, Ok);
    QCOMPARE(printer.log().paper, ticket + ticket);
}

// Else it would print what the next print system begins anew.
void BackendTest::endsWithThePrintSystem()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paper = false; });
    const Queue queue(printer.uri());
    QProcess shell;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto variable = queue.environment.begin(); variable != queue.environment.end(); ++variable)
        variables.insert(variable.key(), variable.value());
    shell.setProcessEnvironment(variables);
    shell.start(u"sh"_s,
                QStringList{u"-c"_s, u"\"$@\" & wait"_s, u"sh"_s, QStringLiteral(TAVOLUX_BACKEND)}
                    + queue.job());
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.connected; }));
    shell.kill();
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return !log.connected; }));
    shell.waitForFinished();
    QCOMPARE(printer.log().connections, 1);
    QCOMPARE(printer.log().paper, QByteArray());
}

void BackendTest::leavesTheJobToItsClass_data()
{
    QTest::addColumn<Change>("spoil");
    QTest::newRow("no paper") << Change([](Is &is) { is.paper = false; });
    QTest::newRow("away") << Change([](Is &is) { is.connected = false; });
}

void BackendTest::leavesTheJobToItsClass()
{
    QFETCH(const Change, spoil);
    SimulatedPrinter printer;
    printer.set(spoil);
    Queue queue(printer.uri());
    queue.environment[u"CLASS"_s] = u"kitchens"_s;
    QCOMPARE(run(queue, queue.job()).exitStatus, Failed);
    printer.set([](Is &is) { is = {}; });
    QCOMPARE(run(queue, queue.job()).exitStatus, Ok);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{ticket});
}

void BackendTest::printsWithoutMemory()
{
    const SimulatedPrinter printer;
    Queue queue(printer.uri());
    queue.environment[u"CUPS_CACHEDIR"_s] = u"/missing"_s;
    const ProgramResult result = run(queue, queue.job());
    QCOMPARE(result.exitStatus, Ok);
    QCOMPARE(result.standardError,
             readyMessage
                 + "WARNING: What is being printed cannot be noted: after a crash it may be printed twice.\n"
                 + printedMessage);
    QCOMPARE(printer.log().jobs, QList<QByteArray>{ticket});
}

QTEST_GUILESS_MAIN(BackendTest)
#include "backend_test.moc"
