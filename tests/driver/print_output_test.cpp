#include "captured_output.h"
#include "file_size_limit.h"
#include "print_output.h"
#include "temporary_home.h"

#include <QBuffer>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray unableToOpen = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

QByteArray failure(const QByteArray &name, const QByteArray &reason)
{
    return "Error in the method PrinterDriver::print( " + name + " ): " + reason + '\n';
}

/* A device that takes so many bytes and then no more, at most three at once. */
class NarrowDevice : public QIODevice
{
public:
    explicit NarrowDevice(qsizetype room)
        : m_room(room)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    QByteArray taken;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *bytes, qint64 count) override
    {
        const qint64 most = std::min<qint64>({count, m_room - taken.size(), 3});
        if (most == 0) {
            setErrorString(u"the drawer is full"_s);
            return -1;
        }
        taken.append(bytes, most);
        return most;
    }

private:
    const qsizetype m_room;
};

} // namespace

class PrintOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nowhere()
    {
        PrintOutput output;
        output.write("text");
        output.flush();
        output.close();
        QVERIFY(!output.failed());
        QCOMPARE(output.name(), QString());
    }

    void file_data()
    {
        QTest::addColumn<PrintOutput::Opening>("opening");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("truncated") << PrintOutput::Opening::truncate << "new"_ba;
        QTest::newRow("appended to") << PrintOutput::Opening::append << "oldnew"_ba;
    }

    void file()
    {
        QFETCH(const PrintOutput::Opening, opening);
        const TemporaryHome home;
        const QString path = home.writeFile(u"output"_s, "old");
        {
            PrintOutput output(path, opening);
            QCOMPARE(output.name(), path);
            output.write("ne");
            output.write("w");
        }
        QTEST(fileBytes(path), "expected");
    }

    void fileOfANameThatIsNoText()
    {
        const TemporaryHome home;
        const QByteArray name = QFile::encodeName(home.path())
            + "/a\xFF\x80"
              "b";
        {
            // A byte that is no UTF-8 is carried as a lone surrogate.
            PrintOutput output(home.path() + "/a"_L1 + QChar(0xDCFF) + QChar(0xDC80) + u'b',
                               PrintOutput::Opening::truncate);
            output.write("text");
        }
        const int descriptor = open(name.constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(descriptor >= 0);
        char bytes[10];
        QCOMPARE(read(descriptor, bytes, sizeof bytes), 4);
        close(descriptor);
    }

    void cannotBeOpened()
    {
        const CapturedOutput diagnostics;
        PrintOutput output(u"/missing/output"_s, PrintOutput::Opening::truncate);
        QVERIFY(output.failed());
        output.write(QByteArray(100'000, 'x'));
        output.close();
        QCOMPARE(diagnostics.text(), unableToOpen);
    }

    void bytesAreKeptUntilFlushed()
    {
        QByteArray received;
        QBuffer device(&received);
        device.open(QIODevice::WriteOnly);
        PrintOutput output(device, u"buffer"_s);
        output.write("one");
        QCOMPARE(received, ""_ba);
        output.flush();
        QCOMPARE(received, "one"_ba);
        output.write("two");
        output.close();
        QCOMPARE(received, "onetwo"_ba);
        QVERIFY(device.isOpen()); // whose it is not
        output.write("three");
        output.flush();
        QCOMPARE(received, "onetwo"_ba);
    }

    // Around what the buffer holds, which is 16,384 bytes.
    void piecesOfAnySize_data()
    {
        QTest::addColumn<qsizetype>("size");
        for (const qsizetype size : {1, 1000, 16'383, 16'384, 16'385, 100'000})
            QTest::addRow("%lld", static_cast<long long>(size)) << size;
    }

    void piecesOfAnySize()
    {
        QFETCH(const qsizetype, size);
        QByteArray received;
        QBuffer device(&received);
        device.open(QIODevice::WriteOnly);
        QByteArray expected;
        {
            PrintOutput output(device, u"buffer"_s);
            for (char letter = 'a'; letter < 'e'; ++letter) {
                output.write(QByteArray(size, letter));
                expected += QByteArray(size, letter);
            }
        }
        QVERIFY(received == expected);
    }

    void descriptorStaysOpen()
    {
        const TemporaryHome home;
        const QString path = home.writeFile(u"output"_s, "");
        const int descriptor = open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
        {
            PrintOutput output(descriptor, u"standard output"_s);
            QCOMPARE(output.name(), u"standard output"_s);
            output.write("text");
        }
        QCOMPARE(fileBytes(path), "text"_ba);
        QCOMPARE(close(descriptor), 0);
    }

    void deviceThatTakesLittleAtOnce()
    {
        NarrowDevice device(100);
        {
            PrintOutput output(device, u"narrow"_s);
            output.write("a text that takes several goes");
        }
        QCOMPARE(device.taken, "a text that takes several goes"_ba);
    }

    void deviceThatFails()
    {
        NarrowDevice device(10);
        const CapturedOutput diagnostics;
        PrintOutput output(device, u"narrow"_s);
        output.write("a text that finds no room");
        QVERIFY(!output.failed());
        output.flush();
        QVERIFY(output.failed());
        QCOMPARE(diagnostics.text(), failure("narrow", "the drawer is full"));
        QCOMPARE(device.taken, "a text tha"_ba);
    }

    void firstFailureIsTheLast()
    {
        const TemporaryHome home;
        const QString path = home.filePath(u"output"_s);
        const CapturedOutput diagnostics;
        PrintOutput output(path, PrintOutput::Opening::truncate);
        {
            const FileSizeLimit limit(3);
            output.write("123456");
            output.flush();
        }
        output.write("789");
        output.flush();
        output.close();
        QVERIFY(output.failed());
        QCOMPARE(diagnostics.text(), failure(path.toUtf8(), "File too large"));
        QCOMPARE(fileBytes(path), "123"_ba);
    }

    // As a quota or a file system across a network tells it; here the descriptor is gone.
    void failureOfClosing_data()
    {
        QTest::addColumn<bool>("byDestructor");
        QTest::newRow("closed") << false;
        QTest::newRow("destroyed") << true;
    }

    void failureOfClosing()
    {
        QFETCH(const bool, byDestructor);
        const CapturedOutput diagnostics;
        {
            const int next = dup(STDIN_FILENO);
            close(next);
            PrintOutput output(u"/dev/null"_s, PrintOutput::Opening::truncate);
            QCOMPARE(close(next), 0);
            if (!byDestructor) {
                output.close();
                QVERIFY(output.failed());
                output.close();
            }
        }
        QCOMPARE(diagnostics.text(), failure("/dev/null", "Bad file descriptor"));
    }

    void failureShowsNoControlCharacters()
    {
        const CapturedOutput diagnostics;
        PrintOutput::reportFailure(u"/tmp/a\nb\x1B[2Jc\u009B"_s, "No space left on device");
        QCOMPARE(diagnostics.text(), failure("/tmp/a?b?[2Jc?", "No space left on device"));
    }
};

QTEST_GUILESS_MAIN(PrintOutputTest)
#include "print_output_test.moc"
