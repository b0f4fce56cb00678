/* Queues of a real print server with the backend, on simulated printers. */
#include "print_server.h"
#include "simulated_printer.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <future>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Is = SimulatedPrinter::Condition;
using Change = std::function<void(Is &)>;

const QByteArrayList tickets = {"1 x Coperto\n", "2 x Pizza Diavola\n", "3 x Caffe\n"};

bool allPrinted(const PrinterLog &log)
{
    return log.jobs.size() == tickets.size();
}

} // namespace

class PrintServerTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PrintServer> m_server;
    int m_queues = 0;

    /* A queue that no test has used before. */
    QString newQueue(const SimulatedPrinter &printer)
    {
        const QString name = u"kitchen%1"_s.arg(++m_queues);
        m_server->addQueue(name, printer.uri());
        return name;
    }

    QStringList submitTickets(const QString &queue) const
    {
        QStringList jobs;
        for (const QByteArray &ticket : tickets)
            jobs.append(m_server->submit(queue, ticket));
        return jobs;
    }

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void manyClientsAndQueues();
    void waitsForThePrinter_data();
    void waitsForThePrinter();
    void holdsWhatWasReset();
    void cancelledWhileWaiting();
    void cancelledInTheMiddle();
    void startedAgainWithJobsWaiting_data();
    void startedAgainWithJobsWaiting();
    void startedAgainInTheMiddle_data();
    void startedAgainInTheMiddle();
    void stopsTheQueueOfAWrongAddress();
    void printsOnTheReadyMemberOfAClass();
};

void PrintServerTest::initTestCase()
{
    if (const QByteArray obstacle = PrintServer::obstacle(); !obstacle.isEmpty())
        QSKIP(obstacle.constData());
    m_server = std::make_unique<PrintServer>();
    m_server->start();
}

void PrintServerTest::cleanup()
{
    if (m_server && QTest::currentTestFailed())
        qWarning("%s", m_server->log().right(20'000).constData());
}

void PrintServerTest::cleanupTestCase()
{
    m_server.reset();
}

// Each job once, and those of a client in their order. Of two clients at the same time the one whose document
// has arrived first comes first.
void PrintServerTest::manyClientsAndQueues()
{
    constexpr int clients = 10;
    constexpr int jobsOfAClient = 10;
    const std::array<SimulatedPrinter, 3> printers;
    QStringList queues;
    for (const SimulatedPrinter &printer : printers)
        queues.append(newQueue(printer));
    const auto text = [](int client, int number) {
        return "client " + QByteArray::number(client) + ", job " + QByteArray::number(number) + '\n';
    };
    const auto queueOf = [](int client, int number) { return (client + number) % 3; };

    std::vector<std::future<void>> clientsAtWork;
    for (int client = 0; client < clients; ++client)
        clientsAtWork.push_back(std::async(std::launch::async, [&, client] {
            for (int number = 0; number < jobsOfAClient; ++number)
                m_server->submit(queues.at(queueOf(client, number)), text(client, number));
        }));
    for (auto &client : clientsAtWork)
        client.get();

    for (int queue = 0; queue < 3; ++queue) {
        QByteArrayList expected; // client by client
        for (int client = 0; client < clients; ++client)
            for (int number = 0; number < jobsOfAClient; ++number)
                if (queueOf(client, number) == queue)
                    expected.append(text(client, number));

        const SimulatedPrinter &printer = printers.at(static_cast<std::size_t>(queue));
        QVERIFY(printer.waitUntil([&](const PrinterLog &log) { return log.jobs.size() >= expected.size(); }));
        QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queues.at(queue)), QByteArray(), 30'000);
        QByteArrayList printed = printer.log().jobs;
        std::ranges::stable_sort(printed, {}, [](const QByteArray &job) { return job.left(8); });
        QCOMPARE(printed, expected);
    }
}

void PrintServerTest::waitsForThePrinter_data()
{
    QTest::addColumn<Change>("spoil");
    QTest::addColumn<Change>("mend");
    QTest::addColumn<QByteArray>("reasons");
    QTest::addColumn<QByteArray>("printedBefore");

    const Change addPaper = [](Is &is) { is.paper = true; };
    const QByteArray empty = "media-empty-error offline-report";
    QTest::newRow("no paper before") << Change([](Is &is) { is.paper = false; }) << addPaper << empty
                                     << QByteArray();
    QTest::newRow("no paper in the middle")
        << Change([](Is &is) { is.paperLeft = 5; }) << addPaper << empty << tickets[0].first(5);
    QTest::newRow("no paper after the last byte")
        << Change([](Is &is) { is.paperLeft = tickets[0].size(); }) << addPaper << empty << tickets[0];
    QTest::newRow("cover open") << Change([](Is &is) { is.coverOpen = true; })
                                << Change([](Is &is) { is.coverOpen = false; })
                                << "cover-open-error offline-report"_ba << QByteArray();
    QTest::newRow("away") << Change([](Is &is) { is.connected = false; })
                          << Change([](Is &is) { is.connected = true; }) << "offline-report"_ba
                          << QByteArray();
}

// All jobs once and in order, and the queue shows why they wait, as long as they do.
void PrintServerTest::waitsForThePrinter()
{
    QFETCH(const Change, spoil);
    QFETCH(const Change, mend);
    QFETCH(const QByteArray, reasons);
    QFETCH(const QByteArray, printedBefore);

    SimulatedPrinter printer;
    printer.set(spoil);
    const QString queue = newQueue(printer);
    submitTickets(queue);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->reasons(queue), reasons, 30'000);
    QCOMPARE(printer.log().paper, printedBefore);
    printer.set(mend);
    QVERIFY(printer.waitUntil(allPrinted));
    QCOMPARE(printer.log().jobs, tickets);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    QCOMPARE(m_server->reasons(queue), "none");
}

void PrintServerTest::holdsWhatWasReset()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.resetAt = 5; });
    const QString queue = newQueue(printer);
    const QStringList jobs = submitTickets(queue);
    const QByteArrayList others = tickets.sliced(1);
    QVERIFY(printer.waitUntil([&](const PrinterLog &log) { return log.jobs.size() == others.size(); }));
    QCOMPARE(printer.log().jobs, others);
    QCOMPARE(printer.log().paper, tickets[0].first(5) + others.join());

    QByteArray held;
    QTRY_VERIFY_WITH_TIMEOUT((held = m_server->openJobs(queue)).count("queued for") == 1, 30'000);
    QVERIFY2(held.startsWith(jobs[0].toLatin1() + ' '), held.constData());
    QVERIFY2(held.contains("Alerts: job-hold-until-specified"), held.constData());
    QVERIFY2(held.contains("Status: The job may have been printed, in full or in part"), held.constData());

    m_server->client(u"lp"_s, {u"-i"_s, jobs[0], u"-H"_s, u"resume"_s});
    QVERIFY(printer.waitUntil(allPrinted));
    QCOMPARE(printer.log().jobs, others + QByteArrayList{tickets[0]});
}

void PrintServerTest::cancelledWhileWaiting()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paper = false; });
    const QString queue = newQueue(printer);
    const QStringList jobs = submitTickets(queue);
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.connected; }));
    m_server->client(u"cancel"_s, {jobs[0]});
    // The next job is there.
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.connections == 2; }));
    m_server->client(u"cancel"_s, {jobs[2]});
    printer.set([](Is &is) { is.paper = true; });
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    QCOMPARE(printer.log().paper, tickets[1]);
}

// The printer has it, and prints it when there is paper; what follows is not touched.
void PrintServerTest::cancelledInTheMiddle()
{
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paperLeft = 5; });
    const QString queue = newQueue(printer);
    const QStringList jobs = submitTickets(queue);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->reasons(queue), "media-empty-error offline-report", 30'000);
    m_server->client(u"cancel"_s, {jobs[0]});
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.connections == 2; }));
    printer.set([](Is &is) { is.paper = true; });
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    QCOMPARE(printer.log().paper, tickets.join());
}

void PrintServerTest::startedAgainWithJobsWaiting_data()
{
    QTest::addColumn<bool>("killed");
    QTest::newRow("killed") << true;
    QTest::newRow("asked to end") << false;
}

void PrintServerTest::startedAgainWithJobsWaiting()
{
    QFETCH(const bool, killed);
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paper = false; });
    const QString queue = newQueue(printer);
    submitTickets(queue);
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.connected; }));

    killed ? m_server->kill() : m_server->stop();
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return !log.connected; }));
    m_server->start();
    printer.set([](Is &is) { is.paper = true; });
    QVERIFY(printer.waitUntil(allPrinted));
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    QCOMPARE(printer.log().jobs, tickets);
    QCOMPARE(printer.log().paper, tickets.join());
}

void PrintServerTest::startedAgainInTheMiddle_data()
{
    startedAgainWithJobsWaiting_data();
}

// The job that was being printed is held, for it may be on the paper; the others follow.
void PrintServerTest::startedAgainInTheMiddle()
{
    QFETCH(const bool, killed);
    SimulatedPrinter printer;
    printer.set([](Is &is) { is.paperLeft = 5; });
    const QString queue = newQueue(printer);
    const QStringList jobs = submitTickets(queue);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->reasons(queue), "media-empty-error offline-report", 30'000);

    killed ? m_server->kill() : m_server->stop();
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return !log.connected; }));
    printer.set([](Is &is) { is.paper = true; });
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.paper == tickets[0]; }));
    m_server->start();
    QByteArray held;
    QTRY_VERIFY_WITH_TIMEOUT((held = m_server->openJobs(queue)).count("queued for") == 1, 30'000);
    QVERIFY2(held.startsWith(jobs[0].toLatin1() + ' '), held.constData());
    QVERIFY2(held.contains("cut off earlier"), held.constData());
    QCOMPARE(printer.log().paper, tickets.join());
    m_server->client(u"cancel"_s, {jobs[0]});
}

void PrintServerTest::stopsTheQueueOfAWrongAddress()
{
    const QString queue = u"kitchen%1"_s.arg(++m_queues);
    m_server->addQueue(queue, u"tavolux:lp0"_s);
    m_server->submit(queue, tickets[0]);
    QTRY_VERIFY_WITH_TIMEOUT(m_server->client(u"lpstat"_s, {u"-p"_s, queue}).contains("disabled"), 30'000);
    QCOMPARE(m_server->openJobs(queue).count("queued for"), 1);
    m_server->client(u"cancel"_s, {u"-a"_s, queue});
}

void PrintServerTest::printsOnTheReadyMemberOfAClass()
{
    std::array<SimulatedPrinter, 2> printers;
    printers[0].set([](Is &is) { is.paper = false; });
    for (const SimulatedPrinter &printer : printers)
        m_server->client(u"lpadmin"_s, {u"-p"_s, newQueue(printer), u"-c"_s, u"kitchens"_s});
    m_server->client(u"cupsenable"_s, {u"kitchens"_s});
    m_server->client(u"cupsaccept"_s, {u"kitchens"_s});
    submitTickets(u"kitchens"_s);
    QVERIFY(printers[1].waitUntil(allPrinted));
    QCOMPARE(printers[0].log().paper, QByteArray());
}

QTEST_GUILESS_MAIN(PrintServerTest)
#include "print_server_test.moc"
