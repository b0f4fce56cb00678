#include "confirmed_print.h"
#include "simulated_printer.h"

#include <QTest>
#include <QUrl>

#include <csignal>
#include <future>

#include <arpa/inet.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// For what ends when a limit is reached, and for what must end without one.
constexpr PortLimits shortLimits = {300ms, 5ms, 300ms, 300ms, 0ms, 300ms};
constexpr PortLimits patientLimits = {30s, 5ms, 600s, 600s, 0ms, 30s};

/* The program's end of a connection, closed with the object. */
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
        if (number < 0 || fcntl(number, F_SETFL, O_NONBLOCK) != 0)
            qFatal("no connection");
    }
    ~Descriptor() { close(m_number); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    operator int() const { return m_number; }

private:
    const int m_number;
};

int connectionTo(const SimulatedPrinter &printer)
{
    const int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(QUrl(printer.uri()).port()));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0)
        qFatal("cannot connect");
    return descriptor;
}

/* A pipe by which a print is cancelled. */
struct CancellationPipe
{
    CancellationPipe()
    {
        if (pipe(ends) != 0)
            qFatal("no pipe");
    }
    ~CancellationPipe()
    {
        close(ends[0]);
        close(ends[1]);
    }
    CancellationPipe(const CancellationPipe &) = delete;
    CancellationPipe &operator=(const CancellationPipe &) = delete;
    void cancel() const
    {
        if (write(ends[1], "", 1) != 1)
            qFatal("cannot cancel");
    }
    int ends[2] = {};
};

QByteArray readToEnd(int descriptor)
{
    QByteArray all;
    char block[4096];
    for (ssize_t count = 0; (count = read(descriptor, block, sizeof block)) > 0;)
        all.append(block, count);
    return all;
}

const std::string job = "2 x Pizza Diavola\n1 x Coperto\n";
const auto jobBytes = QByteArray::fromStdString(job);

} // namespace

class ConfirmedPrintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { std::signal(SIGPIPE, SIG_IGN); }

    void printed()
    {
        const SimulatedPrinter printer;
        const Descriptor connection(connectionTo(printer));
        PrinterPort port(connection, -1, patientLimits);
        int announced = 0;
        PrintEvents events;
        events.sending = [&] {
            ++announced;
            QCOMPARE(printer.log().statusQueries, 4);
        };
        QCOMPARE(printConfirmed(port, job, AnswersStatus::Unknown, events), Outcome::Printed);
        QCOMPARE(announced, 1);
        QCOMPARE(printer.log().jobs, QList<QByteArray>{jobBytes});
        QVERIFY(port.answered());
    }

    // Once nothing is sent before it is ready, and once it becomes so while the job is in the printer.
    void waits_data()
    {
        using Change = std::function<void(SimulatedPrinter::Condition &)>;
        QTest::addColumn<Change>("spoil");
        QTest::addColumn<Change>("mend");
        QTest::addColumn<QByteArray>("shown");
        QTest::addColumn<qsizetype>("printedBefore");

        using Is = SimulatedPrinter::Condition;
        const Change addPaper = [](Is &is) { is.paper = true; };
        QTest::newRow("no paper before")
            << Change([](Is &is) { is.paper = false; }) << addPaper << QByteArray("no paper") << qsizetype(0);
        QTest::newRow("cover open before")
            << Change([](Is &is) { is.coverOpen = true; }) << Change([](Is &is) { is.coverOpen = false; })
            << QByteArray("the cover is open") << qsizetype(0);
        QTest::newRow("cutter blocked before")
            << Change([](Is &is) { is.cutterError = true; }) << Change([](Is &is) { is.cutterError = false; })
            << QByteArray("the cutter is blocked") << qsizetype(0);
        QTest::newRow("no paper in the middle")
            << Change([](Is &is) { is.paperLeft = 7; }) << addPaper << QByteArray("no paper") << qsizetype(7);
        QTest::newRow("no paper after the last byte")
            << Change([](Is &is) { is.paperLeft = jobBytes.size(); }) << addPaper << QByteArray("no paper")
            << jobBytes.size();
    }

    void waits()
    {
        QFETCH(const std::function<void(SimulatedPrinter::Condition &)>, spoil);
        QFETCH(const std::function<void(SimulatedPrinter::Condition &)>, mend);
        QFETCH(const QByteArray, shown);
        QFETCH(const qsizetype, printedBefore);

        SimulatedPrinter printer;
        printer.set(spoil);
        const Descriptor connection(connectionTo(printer));
        PrinterPort port(connection, -1, patientLimits);
        QByteArrayList states;
        PrintEvents events;
        events.status = [&](const PrinterStatus &status) {
            const auto state = QByteArray::fromStdString(status.description());
            if (states.isEmpty() || states.last() != state)
                states.append(state);
            if (state == shown) {
                if (printer.log().paper.size() != printedBefore)
                    qFatal("printed %lld", static_cast<long long>(printer.log().paper.size()));
                printer.set(mend);
            }
            return true;
        };
        QCOMPARE(printConfirmed(port, job, AnswersStatus::Unknown, events), Outcome::Printed);
        QVERIFY2(states.contains(shown), states.join('|').constData());
        QCOMPARE(printer.log().jobs, QList<QByteArray>{jobBytes});
    }

    void doesNotWaitWhenToldSo()
    {
        SimulatedPrinter printer;
        printer.set([](SimulatedPrinter::Condition &is) { is.paper = false; });
        const Descriptor connection(connectionTo(printer));
        PrinterPort port(connection, -1, patientLimits);
        PrintEvents events;
        events.status = [](const PrinterStatus &) { return false; };
        QCOMPARE(printConfirmed(port, job, AnswersStatus::Known, events), Outcome::Failed);
        QCOMPARE(port.sent(), std::size_t(0));
    }

    void ends_data()
    {
        using Change = std::function<void(SimulatedPrinter::Condition &)>;
        QTest::addColumn<Change>("spoil");
        QTest::addColumn<AnswersStatus>("answers");
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QByteArray>("paper");

        using Is = SimulatedPrinter::Condition;
        const Change mute = [](Is &is) { is.answersStatus = false; };
        QTest::newRow("never answered") << mute << AnswersStatus::Unknown << Outcome::Mute << jobBytes;
        QTest::newRow("silent, though it answers")
            << mute << AnswersStatus::Known << Outcome::Failed << QByteArray();
        QTest::newRow("not asked") << mute << AnswersStatus::Never << Outcome::Mute << jobBytes;
        QTest::newRow("does not confirm") << Change([](Is &is) { is.confirms = false; })
                                          << AnswersStatus::Unknown << Outcome::Uncertain << jobBytes;
        QTest::newRow("reset in the middle")
            << Change([](Is &is) { is.resetAt = 9; }) << AnswersStatus::Unknown << Outcome::Uncertain
            << jobBytes.first(9);
        QTest::newRow("reset after the last byte")
            << Change([](Is &is) { is.resetAt = jobBytes.size(); }) << AnswersStatus::Unknown
            << Outcome::Uncertain << jobBytes;
        QTest::newRow("never reads, though it answers")
            << Change([](Is &is) { is.reads = false; }) << AnswersStatus::Known << Outcome::Failed
            << QByteArray();
    }

    void ends()
    {
        QFETCH(const std::function<void(SimulatedPrinter::Condition &)>, spoil);
        QFETCH(const AnswersStatus, answers);
        QFETCH(const QByteArray, paper);
        SimulatedPrinter printer;
        printer.set(spoil);
        {
            const Descriptor connection(connectionTo(printer));
            PrinterPort port(connection, -1, shortLimits);
            QTEST(printConfirmed(port, job, answers), "outcome");
        }
        QVERIFY(printer.waitUntil([&](const PrinterLog &log) { return log.paper.size() == paper.size(); }));
        QCOMPARE(printer.log().paper, paper);
    }

    // A printer that takes no more of a job can be given up.
    void stalls()
    {
        int ends[2] = {};
        QCOMPARE(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
        const Descriptor connection(ends[0]);
        PortLimits limits = shortLimits;
        limits.answer = 5ms;
        limits.stall = 20ms;
        PrinterPort port(connection, -1, limits);
        int told = 0;
        PrintEvents events;
        events.stalled = [&told] { ++told; };
        QCOMPARE(printConfirmed(port, std::string(4'000'000, 'x'), AnswersStatus::Never, events),
                 Outcome::Uncertain);
        QVERIFY(told >= 1);
        QCOMPARE(port.fault(), "the printer takes nothing");
        close(ends[1]);
    }

    // The dots of a picture look like any command.
    void pictureWithQueries()
    {
        const SimulatedPrinter printer;
        const Descriptor connection(connectionTo(printer));
        PrinterPort port(connection, -1, patientLimits);
        const std::string dots = "\x10\x04\x01\x1D\x72\x01\x1D\x76"; // 2 bytes across, 4 rows
        const std::string picture = std::string("\x1D\x76\x30\0\2\0\4\0", 8) + dots + job;
        QCOMPARE(printConfirmed(port, picture, AnswersStatus::Known), Outcome::Printed);
        QCOMPARE(printer.log().jobs, QList<QByteArray>{QByteArray::fromStdString(picture)});
    }

    // Answers once, then no more: the cable is pulled while it waits for paper, or holds the job.
    void fallsSilent_data()
    {
        QTest::addColumn<bool>("paper");
        QTest::addColumn<Outcome>("outcome");
        QTest::newRow("before sending") << false << Outcome::Failed;
        QTest::newRow("after sending") << true << Outcome::Uncertain;
    }

    void fallsSilent()
    {
        QFETCH(const bool, paper);
        SimulatedPrinter printer;
        printer.set([&](SimulatedPrinter::Condition &is) {
            is.paper = paper;
            is.confirms = false;
        });
        const Descriptor connection(connectionTo(printer));
        PrinterPort port(connection, -1, shortLimits);
        PrintEvents events;
        int told = 0;
        events.status = [&](const PrinterStatus &) {
            if (++told == 2)
                printer.set([](SimulatedPrinter::Condition &is) { is.reads = false; });
            return true;
        };
        QTEST(printConfirmed(port, job, AnswersStatus::Unknown, events), "outcome");
    }

    // The more there is to print the longer it may take.
    void slowPrinterHasTimeForEachByte()
    {
        SimulatedPrinter printer;
        printer.set([](SimulatedPrinter::Condition &is) { is.busy = true; });
        const Descriptor connection(connectionTo(printer));
        PortLimits limits = patientLimits;
        limits.confirmation = 0ms;
        limits.perByte = 60s;
        PrinterPort port(connection, -1, limits);
        PrintEvents events;
        events.status = [&, told = 0](const PrinterStatus &) mutable {
            if (++told == 5)
                printer.set([](SimulatedPrinter::Condition &is) { is.busy = false; });
            return true;
        };
        QCOMPARE(printConfirmed(port, job, AnswersStatus::Unknown, events), Outcome::Printed);
    }

    // An old answer is taken for none of this job.
    void earlierAnswerCountsForNothing()
    {
        int ends[2] = {};
        QCOMPARE(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
        const Descriptor connection(ends[0]);
        QCOMPARE(write(ends[1], "\0\0", 2), 2);
        PrinterPort port(connection, -1, shortLimits);
        QCOMPARE(port.send(job), PortResult::Done);
        QCOMPARE(port.confirm(), PortResult::Silent);
        close(ends[1]);
    }

    void cancelledWhileWaiting()
    {
        SimulatedPrinter printer;
        printer.set([](SimulatedPrinter::Condition &is) { is.paper = false; });
        const Descriptor connection(connectionTo(printer));
        const CancellationPipe cancellation;
        PrinterPort port(connection, cancellation.ends[0], patientLimits);
        PrintEvents events;
        events.status = [&](const PrinterStatus &) {
            cancellation.cancel();
            return true;
        };
        QCOMPARE(printConfirmed(port, job, AnswersStatus::Known, events), Outcome::Failed);
        QCOMPARE(port.sent(), std::size_t(0));
    }

    // What was begun is completed by NULs, as long as the rest of the job at most, and the printer
    // initialised.
    void cancelledWhileSending()
    {
        int ends[2] = {};
        QCOMPARE(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
        const CancellationPipe cancellation;
        const std::string longJob(4'000'000, 'x');
        auto print = std::async(std::launch::async, [&] {
            const Descriptor connection(ends[0]);
            PrinterPort port(connection, cancellation.ends[0], patientLimits);
            return printConfirmed(port, longJob, AnswersStatus::Never);
        });
        QByteArray received(1, '\0');
        QCOMPARE(read(ends[1], received.data(), 1), 1);
        cancellation.cancel();
        received += readToEnd(ends[1]);
        close(ends[1]);

        QCOMPARE(print.get(), Outcome::Uncertain);
        QCOMPARE(received.size(), static_cast<qsizetype>(longJob.size()) + 2);
        const qsizetype sent = received.indexOf('\0');
        QCOMPARE_GT(sent, 0);
        QCOMPARE(received.count('x'), sent);
        QVERIFY(received.endsWith("\0\x1B\x40"_ba));
    }

    // A printer that takes nothing does not keep anyone from cancelling.
    void cancelledWhileStalled()
    {
        int ends[2] = {};
        QCOMPARE(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
        const Descriptor connection(ends[0]);
        const CancellationPipe cancellation;
        PrinterPort port(connection, cancellation.ends[0], shortLimits);
        PrintEvents events;
        events.stalled = [&] { cancellation.cancel(); };
        QCOMPARE(printConfirmed(port, std::string(4'000'000, 'x'), AnswersStatus::Never, events),
                 Outcome::Uncertain);
        close(ends[1]);
    }
};

QTEST_GUILESS_MAIN(ConfirmedPrintTest)
#include "confirmed_print_test.moc"
