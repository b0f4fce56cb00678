#include "captured_output.h"
#include "program_run.h"
#include "sync_singleton.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QTest>

#include <atomic>
#include <barrier>
#include <functional>
#include <stdexcept>
#include <thread>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int threadCount = 16;

/* Does the work in several threads at once, each with its number, and waits for all of them. */
void inThreads(const std::function<void(std::size_t)> &work)
{
    std::vector<std::thread> threads(threadCount);
    for (std::size_t i = 0; i < threads.size(); ++i)
        threads[i] = std::thread(work, i);
    for (std::thread &thread : threads)
        thread.join();
}

/* What each of several threads gets that all ask at the same moment; each looks at it at once. */
template <typename T>
std::vector<T *> instancesOfThreads(const std::function<void(const T &)> &look = [](const T &) {})
{
    std::vector<T *> instances(threadCount);
    std::barrier start(threadCount);
    inThreads([&](std::size_t i) {
        start.arrive_and_wait();
        instances[i] = &SyncSingleton<T>::instance();
        look(*instances[i]);
    });
    return instances;
}

/* Takes its time to be constructed, so that all others come while it is, and is written without a lock. */
struct Slow
{
    Slow()
    {
        ++constructions;
        for (int i = 0; i < 100; ++i)
            std::this_thread::yield();
        value = 17;
    }

    int value = 0;
    static inline std::atomic<int> constructions = 0;
};

/* Tells when it is there without synchronising anybody. */
struct Announced
{
    Announced()
    {
        value = 17;
        constructed.store(true, std::memory_order_relaxed);
    }

    int value = 0;
    static inline std::atomic<bool> constructed = false;
};

struct Untouched
{
    Untouched() { ++constructions; }

    static inline int constructions = 0;
};

struct Failing
{
    Failing() { throw std::runtime_error("no"); }
};

struct LastWords
{
    ~LastWords() { (void)!write(STDOUT_FILENO, "destroyed", 9); }
};

/* The arguments with which this program does nothing but create an instance of those and exit. */
const QString leaveLastWords = u"leave-last-words"_s;
const QString fail = u"fail"_s;

} // namespace

/* The one configuration of a process; run under the thread sanitizer as well. */
class SyncSingletonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneInstanceForAllThreads()
    {
        std::atomic<int> seen = 0;
        const std::vector<Slow *> instances =
            instancesOfThreads<Slow>([&](const Slow &instance) { seen += instance.value; });
        QCOMPARE(Slow::constructions.load(), 1);
        QCOMPARE(seen.load(), threadCount * 17);
        for (const Slow *instance : instances)
            QCOMPARE(instance, instances.front());
        QCOMPARE(&SyncSingleton<Slow>::instance(), instances.front());
    }

    void laterThreadsSeeAllOfTheInstance()
    {
        std::atomic<int> seen = 0;
        inThreads([&](std::size_t i) {
            while (i > 0 && !Announced::constructed.load(std::memory_order_relaxed))
                std::this_thread::yield();
            for (int turn = 0; i > 0 && turn < 100; ++turn) // until it is published
                std::this_thread::yield();
            seen += SyncSingleton<Announced>::instance().value;
        });
        QCOMPARE(seen.load(), threadCount * 17);
    }

    void nothingBeforeTheFirstUseAndOnlyOnce()
    {
        QCOMPARE(Untouched::constructions, 0);
        SyncSingleton<Untouched>::createInstance();
        QCOMPARE(Untouched::constructions, 1);
        SyncSingleton<Untouched>::createInstance();
        (void)SyncSingleton<Untouched>::instance();
        QCOMPARE(Untouched::constructions, 1);
    }

    void configurationIsReadOnceByAllThreads()
    {
        const TemporaryHome home;
        home.enter();
        std::vector<TXConfiguration *> instances;
        const QByteArray messages =
            capturedOutput([&] { instances = instancesOfThreads<TXConfiguration>(); });
        // Every reading of the missing file would say so.
        QCOMPARE(messages,
                 "Error in the method FileReader::open( " + home.path().toUtf8()
                     + "/.tavolux/conf/tavolux.conf ): File Not Found\n");
        for (const TXConfiguration *instance : instances)
            QCOMPARE(instance, instances.front());

        home.writeConfiguration("tavolux : { language : { file = now; }; };");
        const TXConfiguration &later = SyncSingleton<TXConfiguration>::instance();
        QCOMPARE(&later, instances.front());
        QCOMPARE(later.getStrValue(u"tavolux.language.file"_s), QString());
    }

    void threadsLookUpAtTheSameTime()
    {
        const TemporaryHome home;
        const libconfig::Config config(home.writeFile(u"tavolux.conf"_s, "s : { t : { k = v; }; };"),
                                       u"cfg"_s);
        std::atomic<int> found = 0;
        inThreads([&](std::size_t) {
            for (int j = 0; j < 100; ++j)
                found += config.lookup(u"s.t.k"_s) == "v"_L1;
        });
        QCOMPARE(found.load(), threadCount * 100);
    }

    // After all threads: the thread sanitizer follows none that is started after a process was.
    void instanceIsDestroyedWhenTheProcessExits()
    {
        const ProgramResult run = runProgram(QCoreApplication::applicationFilePath(), {leaveLastWords});
        QCOMPARE(run.exitStatus, 0);
        QCOMPARE(run.standardOutput, "destroyed");
    }

    void exceptionOfTheConstructorGoesToTheCaller()
    {
        const ProgramResult run = runProgram(QCoreApplication::applicationFilePath(), {fail});
        QCOMPARE(run.exitStatus, 0);
        // What failed is not tried again: the lock stays locked.
        QCOMPARE(run.standardError, "QMutex: destroying locked mutex\n");
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == leaveLastWords) {
        (void)SyncSingleton<LastWords>::instance();
        return 0;
    }
    if (QCoreApplication::arguments().value(1) == fail) {
        try {
            SyncSingleton<Failing>::createInstance();
        } catch (const std::runtime_error &) {
            return 0;
        }
        return 1;
    }
    SyncSingletonTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "sync_singleton_test.moc"
