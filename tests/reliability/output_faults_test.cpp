#include "print_run.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int spareDescriptor = 9;

/* A pipe that nobody reads any more, as that descriptor of the process. */
void openAbandonedPipe(int descriptor)
{
    int ends[2];
    if (pipe(ends) != 0 || dup2(ends[1], descriptor) < 0)
        _exit(127);
    close(ends[0]);
}

void openForWriting(const char *path, int descriptor)
{
    if (dup2(open(path, O_WRONLY), descriptor) < 0)
        _exit(127);
}

void closeAll(std::initializer_list<int> descriptors)
{
    for (const int descriptor : descriptors)
        close(descriptor);
}

} // namespace

class OutputFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cannotBeOpened_data()
    {
        QTest::addColumn<QString>("name"); // in the home directory
        QTest::newRow("directory") << u"."_s;
        QTest::newRow("missing directory") << u"missing/printed.txt"_s;
        QTest::newRow("below a file") << u"document.xml/printed.txt"_s;
        QTest::newRow("name longer than any file's") << QString(10'000, u'x');
        QTest::newRow("read-only file") << u"read-only.txt"_s;
        QTest::newRow("new file in a read-only directory") << u"read-only/printed.txt"_s;
    }

    void cannotBeOpened()
    {
        QFETCH(const QString, name);
        PrintRun run;
        const QString readOnly = run.home.writeFile(u"read-only.txt"_s, "kept");
        QFile::setPermissions(readOnly, QFile::ReadOwner);
        QDir(run.home.path()).mkdir(u"read-only"_s, QFile::ReadOwner | QFile::ExeOwner);
        run.output = run.home.filePath(name);
        run.beforeStart = becomeOrdinaryUser;

        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotOpenOutput());
        QCOMPARE(fileBytes(readOnly), "kept"_ba);
    }

    void emptyNameCannotBeOpened()
    {
        PrintRun run;
        run.output.clear();
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotOpenOutput());
    }

    void fullDevice_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("noticed when the output is closed") << document(item(1, "Pasta"));
        QTest::newRow("noticed in the middle") << longDocument();
    }

    void fullDevice()
    {
        QFETCH(const QByteArray, text);
        PrintRun run;
        run.home.writeFile(u"document.xml"_s, text);
        run.output = u"/dev/full"_s;
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotWrite(run.output, "No space left on device"));
    }

    // Otherwise it would go on for minutes, for nothing.
    void longWorkEndsWithTheOutput_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("full device") << u"/dev/full"_s
                                     << cannotWrite(u"/dev/full"_s, "No space left on device");
        QTest::newRow("no output") << u"/missing/printed.txt"_s << cannotOpenOutput();
    }

    void longWorkEndsWithTheOutput()
    {
        QFETCH(const QString, output);
        PrintRun run;
        run.home.writeConfiguration(
            "tavolux : { doc : { printGeometry = true; topMargin = 2000000000; }; };");
        run.home.writeFile(u"document.xml"_s, document(QByteArray("<geometry/>").repeated(100)));
        run.output = output;
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QTEST(result.standardOutput, "message");
    }

    void fileThatMayNotGrow_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 1, 100, 16'384, 20'000, 100'000, 189'999})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void fileThatMayNotGrow()
    {
        QFETCH(const int, bytes);
        PrintRun run;
        run.home.writeFile(u"document.xml"_s, longDocument());
        run.output = run.home.filePath(u"printed \u20AC.txt"_s); // in the message as it is
        run.beforeStart = [bytes] { limitFileSize(static_cast<unsigned long>(bytes)); };
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotWrite(run.output, "File too large"));
        QCOMPARE(run.printed(), longPrintout().first(bytes));
    }

    void fileThatMayGrowFarEnough()
    {
        PrintRun run;
        run.home.writeFile(u"document.xml"_s, longDocument());
        run.beforeStart = [] { limitFileSize(190'000); };
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(run.printed(), longPrintout());
    }

    void fullFileSystem()
    {
        if (!canMount())
            QSKIP("no file system can be mounted here; fileThatMayNotGrow stands for this case");
        const PrintRun run;
        const QString text = run.home.writeFile(u"long.xml"_s, longDocument());
        const QString output = run.home.filePath(u"small/printed.txt"_s);
        const QString script = u"mkdir \"$1\" && mount -t tmpfs -o size=64k tmpfs \"$1\" || exit 127\n"
                               "\"$2\" \"$3\" \"$1/printed.txt\" || exit 126\n"
                               "cat \"$1/printed.txt\" > \"$4\""_s;
        const ProgramResult result =
            runProgram(u"unshare"_s,
                       {u"-m"_s, u"sh"_s, u"-c"_s, script, u"sh"_s, run.home.filePath(u"small"_s),
                        PrintRun::program(), text, run.output},
                       run.environment);
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotWrite(output, "No space left on device"));
        QCOMPARE(run.printed(), longPrintout().first(65'536));
    }

    void readerOfFifoLeaves()
    {
        PrintRun run;
        run.home.writeFile(u"document.xml"_s, longDocument());
        run.output = run.home.makeFifo(u"printer"_s);
        const int fifo = open(QFile::encodeName(run.output).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(fifo >= 0);

        QByteArray received(1000, '\0');
        std::jthread reader([&] {
            pollfd waiting = {fifo, POLLIN, 0};
            poll(&waiting, 1, 60'000);
            received.truncate(std::max<ssize_t>(0, read(fifo, received.data(), 1000)));
            close(fifo);
        });
        const ProgramResult result = run.run();
        reader.join();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotWrite(run.output, "Broken pipe"));
        QCOMPARE(received, longPrintout().first(1000));
    }

    void abandonedPipe()
    {
        PrintRun run;
        run.output = "/dev/fd/"_L1 + QString::number(spareDescriptor);
        run.beforeStart = [] { openAbandonedPipe(spareDescriptor); };
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, cannotWrite(run.output, "Broken pipe"));
    }

    // The output is opened before the document is read.
    void documentItself()
    {
        PrintRun run;
        run.output = run.input;
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(run.printed(), QByteArray());
    }

    void messagesThatNobodyCanRead_data()
    {
        QTest::addColumn<std::function<void()>>("spoilStreams");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("printed");

        struct Streams
        {
            const char *name;
            std::function<void()> spoil;
        };
        const Streams streams[] = {
            {"output closed", [] { closeAll({1}); }},
            {"input and output closed",
             [] {
                 closeAll({0, 1});
             }},
            {"all closed",
             [] {
                 closeAll({0, 1, 2});
             }},
            {"output an abandoned pipe", [] { openAbandonedPipe(STDOUT_FILENO); }},
            {"output a full device", [] { openForWriting("/dev/full", STDOUT_FILENO); }},
        };
        for (const auto &[name, spoil] : streams) {
            QTest::addRow("%s, nothing to say", name)
                << spoil << document(item(1, "Pasta")) << row(1, "Pasta");
            QTest::addRow("%s, unknown method", name)
                << spoil << "<document><method name=\"none\"/></document>"_ba << QByteArray();
            QTest::addRow("%s, unknown method below an item", name)
                << spoil << document(item(1, "Pasta") + "<method name=\"none\"/>" + item(2, "Vino"))
                << row(1, "Pasta");
        }
    }

    // The paper shows the document and never a message.
    void messagesThatNobodyCanRead()
    {
        QFETCH(const std::function<void()>, spoilStreams);
        QFETCH(const QByteArray, text);
        PrintRun run;
        run.home.writeFile(u"document.xml"_s, text);
        run.beforeStart = spoilStreams;
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QTEST(run.printed(), "printed");
    }

    void usageThatNobodyCanRead()
    {
        const ProgramResult result =
            runProgram(PrintRun::program(), {}, {}, {}, [] { openAbandonedPipe(STDOUT_FILENO); });
        QCOMPARE(misbehaviour(result), QByteArray());
    }
};

QTEST_GUILESS_MAIN(OutputFaultsTest)
#include "output_faults_test.moc"
