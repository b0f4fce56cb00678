/* Queues of a real print server with the backend, on simulated printers. */
#include "print_server.h"
#include "program_run.h"
#include "simulated_printer.h"

#include <QDir>
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

const QString examples = QStringLiteral(TAVOLUX_SOURCE_DIR "/examples/documents");
const QByteArray order = "<d><method name='printPartialOrder'/>"
                         "<receipe number='2' name='Pizza Diavola'/></d>";
const QByteArray generic = "model = generic-80;";

QByteArray configuration(const QString &printer, const QByteArray &section)
{
    return "tavolux : { printers : { " + printer.toLatin1() + " : { " + section + " }; }; };\n";
}

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

    QString newDocumentQueue(const SimulatedPrinter &printer, const QByteArray &section,
                             const QStringList &options = {})
    {
        const QString name = u"kitchen%1"_s.arg(++m_queues);
        m_server->addDocumentQueue(name, printer.uri(), configuration(name, section), options);
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
    void printsDocumentsAsTheProgramDoes_data();
    void printsDocumentsAsTheProgramDoes();
    void printsCopies_data();
    void printsCopies();
    void printsAsTheQueueAndTheJobSay();
    void failsABrokenDocument_data();
    void failsABrokenDocument();
    void failsWithoutAConfiguration();
    void takesNoOtherXml_data();
    void takesNoOtherXml();
    void describesItsOptions();
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

void PrintServerTest::printsDocumentsAsTheProgramDoes_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::newRow("with a cutter") << "model = epson-tm-t20iii; drawerPin = 5;"_ba;
    QTest::newRow("58 mm") << "model = zj-5870;"_ba;
    QTest::newRow("plain text") << "model = plain-text;"_ba;
}

void PrintServerTest::printsDocumentsAsTheProgramDoes()
{
    QFETCH(const QByteArray, section);
    const TemporaryHome home;
    home.writeConfiguration(configuration(u"kitchen"_s, section + "output = \"*\";"));
    const SimulatedPrinter printer;
    const QString queue = newDocumentQueue(printer, section);

    QByteArrayList expected;
    const QFileInfoList documents = QDir(examples).entryInfoList(QDir::Files, QDir::Name);
    QCOMPARE(documents.size(), 13);
    for (const QFileInfo &document : documents) {
        const QString printed = home.filePath(u"printed"_s);
        runProgram(QStringLiteral(TAVOLUX_PRINTER), {document.filePath(), printed},
                   {{u"HOME"_s, home.path()}});
        if (const QByteArray bytes = fileBytes(printed); !bytes.isEmpty())
            expected.append(bytes);
        m_server->submit(queue, fileBytes(document.filePath()));
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 60'000);
    QVERIFY(expected.size() >= 10);
    QCOMPARE(printer.log().jobs, expected);
}

void PrintServerTest::printsCopies_data()
{
    QTest::addColumn<QStringList>("ofQueue");
    QTest::addColumn<QStringList>("ofJob");
    QTest::newRow("of the job") << QStringList() << QStringList{u"-n"_s, u"2"_s};
    QTest::newRow("of the queue") << QStringList{u"copies-default=2"_s} << QStringList();
}

void PrintServerTest::printsCopies()
{
    QFETCH(const QStringList, ofQueue);
    QFETCH(const QStringList, ofJob);
    const SimulatedPrinter printer;
    const QString queue = newDocumentQueue(printer, generic, ofQueue);
    m_server->submit(queue, order, ofJob);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    QCOMPARE(printer.log().paper.count("Pizza Diavola"), 2);
}

void PrintServerTest::printsAsTheQueueAndTheJobSay()
{
    const auto row = [](int columns) { return (" TOTAL" + QByteArray(columns - 6, '.') + '\n'); };
    const QByteArray total = "<d><method name='printFullOrder'/><total/></d>";
    const SimulatedPrinter printer;
    const QString queue = newDocumentQueue(printer, generic, {u"Columns=36"_s});
    m_server->submit(queue, total);
    m_server->submit(queue, total, {u"-o"_s, u"columns=44"_s});
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    const QByteArrayList jobs = printer.log().jobs;
    QCOMPARE(jobs.size(), 2);
    QVERIFY(jobs[0].contains(row(36)));
    QVERIFY(jobs[1].contains(row(44)));
}

void PrintServerTest::failsABrokenDocument_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("fault");
    QTest::newRow("not well-formed") << order.chopped(4) << "unexpected end of file"_ba;
    QTest::newRow("unknown method") << "<d><method name='printPizza'/></d>"_ba
                                    << "line 1, column 29: unknown method \"printPizza\""_ba;
}

// It stays in the queue, stopped and with its message, until it is cancelled; the jobs after it are printed.
void PrintServerTest::failsABrokenDocument()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QByteArray, fault);
    const SimulatedPrinter printer;
    const QString queue = newDocumentQueue(printer, generic);
    const QString broken = m_server->submit(queue, document);
    m_server->submit(queue, order);
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.jobs.size() == 1; }));
    QVERIFY(printer.log().paper.contains("Pizza Diavola"));

    QByteArray open;
    QTRY_VERIFY_WITH_TIMEOUT((open = m_server->openJobs(queue)).count("queued for") == 1, 30'000);
    QVERIFY2(open.startsWith(broken.toLatin1() + ' '), open.constData());
    QVERIFY2(open.contains("Status: Nothing was printed, because of a fault in the document, "),
             open.constData());
    QVERIFY2(open.contains(fault), open.constData());
    QCOMPARE(printer.log().jobs.size(), 1);
    m_server->client(u"cancel"_s, {broken});
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
}

// It can be printed once there is one.
void PrintServerTest::failsWithoutAConfiguration()
{
    const SimulatedPrinter printer;
    const QString queue = newDocumentQueue(printer, generic);
    const QString file = m_server->configurationFile(queue);
    QVERIFY(QFile::rename(file, file + u'x'));
    const QString job = m_server->submit(queue, order);
    const QByteArray status = "Status: Nothing was printed, because the configuration " + file.toLocal8Bit()
        + " cannot be read: No such file or directory.";
    QTRY_VERIFY_WITH_TIMEOUT(m_server->openJobs(queue).contains(status), 30'000);
    QTRY_VERIFY_WITH_TIMEOUT(m_server->client(u"lpstat"_s, {u"-p"_s, queue}).contains("is idle"), 30'000);

    QCOMPARE(m_server->reasons(queue), "tavolux-configuration-error");

    QVERIFY(QFile::rename(file + u'x', file));
    m_server->client(u"lp"_s, {u"-i"_s, job, u"-H"_s, u"restart"_s});
    QVERIFY(printer.waitUntil([](const PrinterLog &log) { return log.jobs.size() == 1; }));
    QTRY_COMPARE_WITH_TIMEOUT(m_server->openJobs(queue), QByteArray(), 30'000);
    QCOMPARE(m_server->reasons(queue), "none");
}

void PrintServerTest::takesNoOtherXml_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("without a method") << "<?xml version='1.0'?><order><item name='printer'/></order>"_ba;
    QTest::newRow("with another method") << "<api><method name='GET'/></api>"_ba;
    QTest::newRow("with another element") << "<api><methods name='printAll'/></api>"_ba;
}

void PrintServerTest::takesNoOtherXml()
{
    QFETCH(const QByteArray, document);
    const SimulatedPrinter printer;
    const ProgramResult result = m_server->lp(newDocumentQueue(printer, generic), document);
    QVERIFY(result.exitStatus != 0);
    QVERIFY2(result.standardError.contains("Unsupported document-format"), result.standardError.constData());
}

void PrintServerTest::describesItsOptions()
{
    const SimulatedPrinter printer;
    const QString queue = newDocumentQueue(printer, generic, {u"Cut=partial"_s, u"drawer=5"_s});
    const QByteArray options = m_server->client(u"lpoptions"_s, {u"-p"_s, queue, u"-l"_s});
    for (const char *option :
         {"Model/Printer model: *Configured epson-tm-t20ii epson-tm-t20iii ",
          "Columns/Width of the paper: *Configured 32 36 42 44 48\n",
          "Cut/Cut: Configured full *partial none\n", "Drawer/Cash drawer: Configured 2 *5\n",
          "Language/Language of the labels: *Configured en de es fr it nl pl pt\n"})
        QVERIFY2(options.contains(option), options.constData());
    QVERIFY(m_server->client(u"lpoptions"_s, {u"-p"_s, queue})
                .contains("printer-make-and-model='Tavolux receipt"));
}

QTEST_GUILESS_MAIN(PrintServerTest)
#include "print_server_test.moc"
