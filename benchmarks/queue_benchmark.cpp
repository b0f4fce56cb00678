/*
 * Measures queues of a print server of its own: that of a document, that of bytes that are ready, and beside
 * it the print system's own way to a network printer with the same bytes. The printers are simulated, on this
 * machine, and answer at once. Arguments choose parts, without any all are measured.
 */
#include "print_server.h"
#include "program_run.h"
#include "simulated_printer.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <deque>
#include <future>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/* What stands between the client and the printer. */
struct Kind
{
    const char *name;
    bool laysOut; // documents; else bytes that are ready
    bool confirms;
    int dirtyCleanInterval = 0; // s
};

constexpr Kind document = {"document", true, true};
constexpr Kind ready = {"ready", false, true};
constexpr Kind raw = {"socket", false, false};
constexpr Kind lateDocument = {"document*", true, true, 1};

constexpr auto documentFile = TAVOLUX_SOURCE_DIR "/examples/documents/full-receipt.xml";
const QByteArray configuration =
    "tavolux : { printers : { %1 : { model = epson-tm-t20iii; output = \"*\"; }; };\n"
    "  receiptdoc : { quantityFieldWidth = 3; priceFieldWidth = 8; totalPriceFieldWidth = 9;\n"
    "    paperWidth = 42; printCompany = true; printTable = true; printColumnsHeader = true; };\n"
    "};\n";

/* What the printer gets for the document, from the printing program. */
QByteArray readyBytes()
{
    const TemporaryHome home;
    home.writeConfiguration(QByteArray(configuration).replace("%1", "till"));
    const QString printed = home.filePath(u"printed"_s);
    runProgram(QStringLiteral(TAVOLUX_PRINTER), {QString::fromLatin1(documentFile), printed},
               {{u"HOME"_s, home.path()}});
    return fileBytes(printed);
}

/* Processor time in ms. */
struct ProcessorTime
{
    double server = 0;
    double programs = 0; // that it has run: filters and backends
};

ProcessorTime processorTime(const PrintServer &server)
{
    const QByteArray stat = fileBytes(u"/proc/%1/stat"_s.arg(server.processId()));
    const QByteArrayList fields = stat.sliced(stat.lastIndexOf(')') + 2).split(' '); // from the third
    const double tick = 1000.0 / static_cast<double>(sysconf(_SC_CLK_TCK));
    return {(fields[11].toDouble() + fields[12].toDouble()) * tick,
            (fields[13].toDouble() + fields[14].toDouble()) * tick};
}

double residentMegabytes(const PrintServer &server)
{
    const QByteArray status = fileBytes(u"/proc/%1/status"_s.arg(server.processId()));
    const QByteArray after = status.sliced(status.indexOf("VmRSS:") + 6);
    return after.first(after.indexOf("kB")).trimmed().toDouble() / 1024;
}

/* A print server with so many printers, each with a queue of the kind. */
class Restaurant
{
public:
    Restaurant(const Kind &kind, const QByteArray &bytes, int printerCount)
        : server(kind.dirtyCleanInterval)
        , m_kind(kind)
        , m_bytes(bytes)
        , m_job(kind.laysOut ? QString::fromLatin1(documentFile) : m_home.writeFile(u"job"_s, bytes))
    {
        server.start();
        for (int i = 0; i < printerCount; ++i) {
            const SimulatedPrinter &printer = printers.emplace_back();
            const QString queue = u"kitchen%1"_s.arg(i);
            if (kind.laysOut)
                server.addDocumentQueue(queue, printer.uri(),
                                        QByteArray(configuration).replace("%1", queue.toLatin1()));
            else
                server.addQueue(queue,
                                kind.confirms
                                    ? printer.uri()
                                    : printer.uri().replace("tavolux:"_L1, "socket:"_L1) + "/?snmp=false"_L1);
            queues.append(queue);
        }
    }

    void submit(int queue) const { server.client(u"lp"_s, {u"-d"_s, queues[queue], u"-s"_s, m_job}); }

    /* Whether so many jobs are printed; of those that nobody confirms all bytes. */
    auto printed(qsizetype jobs) const
    {
        return [this, jobs](const PrinterLog &log) {
            return m_kind.confirms ? log.jobs.size() >= jobs : log.paper.size() >= jobs * m_bytes.size();
        };
    }

    /* Waits until the print server has done with all jobs. */
    void waitUntilIdle() const
    {
        while (!server.client(u"lpstat"_s, {u"-o"_s}).isEmpty()) { }
    }

    /* Waits until each printer has printed so many. */
    void wait(qsizetype jobs) const
    {
        for (const SimulatedPrinter &printer : printers)
            while (!printer.waitUntil(printed(jobs)))
                std::fprintf(stderr, "not all is printed yet\n");
    }

    PrintServer server;
    std::deque<SimulatedPrinter> printers;
    QStringList queues;

private:
    const Kind m_kind;
    const QByteArray m_bytes;
    const TemporaryHome m_home;
    const QString m_job;
};

void check(const Restaurant &restaurant, const QByteArray &bytes, qsizetype jobs)
{
    for (const SimulatedPrinter &printer : restaurant.printers)
        if (printer.log().paper.first(bytes.size() * jobs) != bytes.repeated(jobs))
            qFatal("what was printed is not what it ought to be");
}

void measureLatency(const QByteArray &bytes)
{
    constexpr int rounds = 21;
    std::printf("\nIdle queue: ms from the start of lp, median of %d (largest)\n%-10s %20s %20s\n", rounds,
                "", "to first byte", "to printed");
    for (const Kind &kind : {document, ready, raw}) {
        const Restaurant restaurant(kind, bytes, 1);
        const SimulatedPrinter &printer = restaurant.printers.front();
        std::vector<double> first;
        std::vector<double> last;
        for (int round = 0; round < rounds; ++round) {
            const auto when = [&](auto reached) {
                return std::async(std::launch::async, [&printer, reached] {
                    printer.waitUntil(reached);
                    return Clock::now();
                });
            };
            auto firstByte = when(
                [&bytes, round](const PrinterLog &log) { return log.paper.size() > round * bytes.size(); });
            auto printed = when(restaurant.printed(round + 1));
            const Clock::time_point start = Clock::now();
            restaurant.submit(0);
            first.push_back(milliseconds(firstByte.get() - start));
            last.push_back(milliseconds(printed.get() - start));
            restaurant.waitUntilIdle();
        }
        check(restaurant, bytes, rounds);
        std::printf("%-10s %10.0f (%6.0f) %11.0f (%6.0f)\n", kind.name, median(first),
                    std::ranges::max(first), median(last), std::ranges::max(last));
    }
}

struct Rates
{
    double in = 0; // jobs in a second
    double out = 0;
    double serverPerJobIn = 0; // processor time in ms
    ProcessorTime perJobOut;
    double serverMegabytes = 0; // with all jobs waiting
};

/* So many jobs for each printer wait; the first of them are printed. */
Rates measureRates(const Kind &kind, const QByteArray &bytes, int printers, int waiting, int measured)
{
    const Restaurant restaurant(kind, bytes, printers);
    const auto submitEach = [&](int jobs) {
        for (int job = 0; job < jobs; ++job)
            for (int queue = 0; queue < printers; ++queue)
                restaurant.submit(queue);
    };
    submitEach(1); // the first of a queue, for which everything is new
    restaurant.wait(1);
    restaurant.waitUntilIdle();
    restaurant.server.client(u"cupsdisable"_s, restaurant.queues);
    {
        constexpr int clients = 4;
        std::vector<std::future<void>> atWork;
        for (int client = 0; client < clients; ++client)
            atWork.push_back(std::async(std::launch::async, submitEach, (waiting - measured) / clients));
        for (auto &client : atWork)
            client.get();
        submitEach((waiting - measured) % clients);
    }

    const int counted = measured * printers;
    ProcessorTime before = processorTime(restaurant.server);
    Clock::time_point start = Clock::now();
    submitEach(measured);
    Rates rates;
    rates.in = counted * 1000 / milliseconds(Clock::now() - start);
    rates.serverPerJobIn = (processorTime(restaurant.server).server - before.server) / counted;
    rates.serverMegabytes = residentMegabytes(restaurant.server);

    before = processorTime(restaurant.server);
    start = Clock::now();
    restaurant.server.client(u"cupsenable"_s, restaurant.queues);
    restaurant.wait(1 + measured);
    rates.out = counted * 1000 / milliseconds(Clock::now() - start);
    const ProcessorTime after = processorTime(restaurant.server);
    rates.perJobOut = {(after.server - before.server) / counted,
                       (after.programs - before.programs) / counted};
    check(restaurant, bytes, 1 + measured);
    return rates;
}

Rates medianRates(const std::vector<Rates> &rounds)
{
    const auto of = [&rounds](auto value) {
        std::vector<double> values;
        for (const Rates &rates : rounds)
            values.push_back(value(rates));
        return median(values);
    };
    return {of([](const Rates &rates) { return rates.in; }),
            of([](const Rates &rates) { return rates.out; }),
            of([](const Rates &rates) { return rates.serverPerJobIn; }),
            {of([](const Rates &rates) { return rates.perJobOut.server; }),
             of([](const Rates &rates) { return rates.perJobOut.programs; })},
            of([](const Rates &rates) { return rates.serverMegabytes; })};
}

void measureThroughput(const QByteArray &bytes)
{
    std::printf("\nJobs in a second; processor time in ms for each job: the print server's in and out, and "
                "its programs'\n"
                "%8s %8s %10s %8s %8s %10s %9s %10s %9s\n",
                "printers", "waiting", "queue", "in", "out", "out/socket", "server in", "server out",
                "programs");
    for (const int printers : {1, 3, 10})
        for (const int waiting : {1, 10, 100}) {
            const int rounds = waiting < 100 ? 5 : 3;
            const Kind kinds[] = {raw, ready, document};
            std::vector<Rates> measured[std::size(kinds)];
            for (int round = 0; round < rounds;
                 ++round) // in turns, so that a machine whose speed drifts treats all alike
                for (std::size_t kind = 0; kind < std::size(kinds); ++kind)
                    measured[kind].push_back(measureRates(kinds[kind], bytes, printers, waiting, waiting));
            const double socketOut = medianRates(measured[0]).out;
            for (std::size_t kind = 0; kind < std::size(kinds); ++kind) {
                const Rates rates = medianRates(measured[kind]);
                std::printf("%8d %8d %10s %8.1f %8.1f %10.2f %9.1f %10.1f %9.1f\n", printers, waiting,
                            kinds[kind].name, rates.in, rates.out, rates.out / socketOut,
                            rates.serverPerJobIn, rates.perJobOut.server, rates.perJobOut.programs);
                std::fflush(stdout);
            }
        }
}

void measureBacklog(const QByteArray &bytes)
{
    std::printf(
        "\nOne printer and many jobs waiting: the last 100 jobs in, the first 100 out (*: DirtyCleanInterval "
        "1)\n"
        "%8s %10s %8s %8s %9s %10s %9s %10s\n",
        "waiting", "queue", "in", "out", "server in", "server out", "programs", "server MB");
    for (const int waiting : {10, 100, 1000, 10'000})
        for (const Kind &kind : {lateDocument, document, raw}) {
            const Rates rates = measureRates(kind, bytes, 1, waiting, std::min(waiting, 100));
            std::printf("%8d %10s %8.1f %8.1f %9.1f %10.1f %9.1f %10.1f\n", waiting, kind.name, rates.in,
                        rates.out, rates.serverPerJobIn, rates.perJobOut.server, rates.perJobOut.programs,
                        rates.serverMegabytes);
            std::fflush(stdout);
        }
}

/* A program of the print server run alone: its memory. */
void measureMemory(const QByteArray &bytes)
{
    const TemporaryHome home;
    const SimulatedPrinter printer;
    const QString job = home.writeFile(u"job"_s, bytes);
    const QString settings =
        home.writeFile(u"tavolux.conf"_s, QByteArray(configuration).replace("%1", "kitchen"));
    const auto row = [&](const char *name, const QString &program, const QString &file, const QString &uri) {
        const QString memory = home.filePath(u"memory"_s);
        const ProgramResult result = runProgram(
            u"time"_s,
            {u"-f"_s, u"%M"_s, u"-o"_s, memory, program, u"1"_s, u"anna"_s, u"Table 4"_s, u"1"_s,
             u"configuration="_s + settings, file},
            {{u"DEVICE_URI"_s, uri}, {u"PRINTER"_s, u"kitchen"_s}, {u"CUPS_CACHEDIR"_s, home.path()}});
        if (result.exitStatus != 0)
            qFatal("%s: %s", name, result.standardError.constData());
        std::printf("%-20s %8.1f\n", name, fileBytes(memory).trimmed().toDouble() / 1024);
    };
    std::printf("\nResident memory at its peak for each job, in MB\n");
    row("filter", QStringLiteral(TAVOLUX_FILTER), QString::fromLatin1(documentFile), {});
    row("backend", QStringLiteral(TAVOLUX_BACKEND), job, printer.uri());
    row("backend \"socket\"", u"/usr/lib/cups/backend/socket"_s, job,
        printer.uri().replace("tavolux:"_L1, "socket:"_L1) + "/?snmp=false"_L1);
}

constexpr struct
{
    std::string_view name;
    void (*measure)(const QByteArray &bytes);
} parts[] = {{"latency", &measureLatency},
             {"memory", &measureMemory},
             {"throughput", &measureThroughput},
             {"backlog", &measureBacklog}};

} // namespace

int main(int argc, char *argv[])
{
    if (const QByteArray obstacle = PrintServer::obstacle(); !obstacle.isEmpty()) {
        std::fprintf(stderr, "%s\n", obstacle.constData());
        return 1;
    }
    const QByteArray bytes = readyBytes();
    std::printf("A receipt of %lld bytes\n", static_cast<long long>(bytes.size()));
    const std::vector<std::string_view> chosen(argv + 1, argv + argc);
    for (const auto &part : parts)
        if (chosen.empty() || std::ranges::find(chosen, part.name) != chosen.end()) {
            part.measure(bytes);
            std::fflush(stdout);
        }
    return 0;
}
