/* Printers with "status = true", asked by the printing program before and after. */
#include "program_run.h"
#include "simulated_printer.h"
#include "temporary_home.h"

#include <QFile>
#include <QTest>

#include <cstring>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Is = SimulatedPrinter::Condition;
using Change = std::function<void(Is &)>;

const QByteArray receipt =
    "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"17\"/></document>";
const QByteArray printed = " Serial Number: 17\n=====\n\x1Bp0";

QByteArray configuration(const QString &output, const QByteArray &setting)
{
    return "tavolux : { printers : { till : { model = plain-text; output = \"" + output.toLatin1() + "\"; "
        + setting + " }; }; receiptdoc : { paperWidth = 5; openCashDrawer = true; }; };";
}

/* The messages of a run; what else is wrong stands in their place. */
QByteArray print(const TemporaryHome &home, const QString &output, const QByteArray &document = receipt)
{
    const ProgramResult result =
        runProgram(QStringLiteral(TAVOLUX_PRINTER), {home.writeFile(u"document.xml"_s, document), output},
                   {{u"HOME"_s, home.path()}});
    return !result.crashed && result.exitStatus == 0 && result.standardError.isEmpty() ? result.standardOutput
                                                                                       : "crashed"_ba;
}

QByteArray failure(const QString &output, const QByteArray &reason)
{
    return "Error in the method PrinterDriver::print( " + output.toLatin1() + " ): " + reason + '\n';
}

} // namespace

class ConfirmedOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prints_data()
    {
        QTest::addColumn<Change>("condition");
        QTest::addColumn<QByteArray>("reason"); // none when empty
        QTest::addColumn<QByteArray>("paper");

        const QByteArray sentNothing = "nothing was sent: ";
        const QByteArray uncertain = "uncertain whether it was printed: ";
        QTest::newRow("ready") << Change([](Is &) {}) << QByteArray() << printed;
        QTest::newRow("paper near its end")
            << Change([](Is &is) { is.paperNearEnd = true; }) << QByteArray() << printed;
        QTest::newRow("mute") << Change([](Is &is) { is.answersStatus = false; }) << QByteArray() << printed;
        QTest::newRow("no paper") << Change([](Is &is) { is.paper = false; }) << sentNothing + "no paper"
                                  << QByteArray();
        QTest::newRow("cover open, no paper") << Change([](Is &is) {
            is.coverOpen = true;
            is.paper = false;
        }) << sentNothing + "no paper, the cover is open"
                                              << QByteArray();
        QTest::newRow("cutter blocked") << Change([](Is &is) { is.cutterError = true; })
                                        << sentNothing + "the cutter is blocked" << QByteArray();
        QTest::newRow("no paper in the middle")
            << Change([](Is &is) { is.paperLeft = 5; }) << uncertain + "no paper" << printed.first(5);
        QTest::newRow("no paper after the last byte")
            << Change([](Is &is) { is.paperLeft = printed.size(); }) << uncertain + "no paper" << printed;
    }

    // Through a link as well, since that is how devices get names that last.
    void prints()
    {
        QFETCH(const Change, condition);
        QFETCH(const QByteArray, reason);
        QFETCH(const QByteArray, paper);
        SimulatedPrinter printer(SimulatedPrinter::Connection::Device);
        printer.set(condition);
        const TemporaryHome home;
        const QString link = home.filePath(u"till"_s);
        QVERIFY(QFile::link(printer.devicePath(), link));
        home.writeConfiguration(configuration(printer.devicePath(), "status = true;"));

        QCOMPARE(print(home, link), reason.isEmpty() ? reason : failure(link, reason));
        QVERIFY(printer.waitUntil([&](const PrinterLog &log) { return log.paper.size() >= paper.size(); }));
        QCOMPARE(printer.log().paper, paper);
    }

    void isConfirmedAndLeftAsItWas()
    {
        const SimulatedPrinter printer(SimulatedPrinter::Connection::Device);
        const int line =
            open(QFile::encodeName(printer.devicePath()).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        termios before = {};
        QCOMPARE(tcgetattr(line, &before), 0);
        QVERIFY(before.c_lflag & ECHO);
        const TemporaryHome home;
        home.writeConfiguration(configuration(printer.devicePath(), "status = true;"));
        for (int run = 0; run < 2; ++run)
            QCOMPARE(print(home, printer.devicePath()), "");
        QCOMPARE(printer.log().jobs, QList<QByteArray>(2, printed));
        termios after = {};
        QCOMPARE(tcgetattr(line, &after), 0);
        close(line);
        QCOMPARE(std::memcmp(&before, &after, sizeof before), 0);
    }

    void isNotAsked_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("paper");
        // As the line is set, since nobody sets it.
        const QByteArray asLineIsSet = QByteArray(printed).replace("\n", "\r\n");
        QTest::newRow("without the setting") << ""_ba << receipt << asLineIsSet;
        QTest::newRow("switched off") << "status = false;"_ba << receipt << asLineIsSet;
        QTest::newRow("nothing to print") << "status = true;"_ba
                                          << "<document/>"_ba << QByteArray();
    }

    void isNotAsked()
    {
        QFETCH(const QByteArray, setting);
        QFETCH(const QByteArray, document);
        QFETCH(const QByteArray, paper);
        SimulatedPrinter printer(SimulatedPrinter::Connection::Device);
        printer.set([](Is &is) { is.coverOpen = true; });
        const TemporaryHome home;
        home.writeConfiguration(configuration(printer.devicePath(), setting));
        QCOMPARE(print(home, printer.devicePath(), document), "");
        printer.set([](Is &is) { is.coverOpen = false; });
        QVERIFY(printer.waitUntil([&](const PrinterLog &log) { return log.paper.size() >= paper.size(); }));
        QCOMPARE(printer.log().paper, paper);
        QCOMPARE(printer.log().statusQueries, 0);
    }

    // They could not answer, and would keep the questions.
    void filesAndFifosAreNotAsked()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration(u"*"_s, "status = true;"));
        const QString file = home.filePath(u"printed.txt"_s);
        QCOMPARE(print(home, file), "");
        QCOMPARE(fileBytes(file), printed);

        const QString fifo = home.makeFifo(u"printer"_s);
        const int reader = open(QFile::encodeName(fifo).constData(), O_RDWR | O_CLOEXEC);
        QCOMPARE(print(home, fifo), "");
        QByteArray bytes(100, '\0');
        bytes.truncate(read(reader, bytes.data(), 100));
        close(reader);
        QCOMPARE(bytes, printed);
    }

    // It takes nothing, and never stops answering.
    void deviceThatFails()
    {
        const TemporaryHome home;
        home.writeConfiguration(configuration(u"/dev/full"_s, "status = true;"));
        QCOMPARE(print(home, u"/dev/full"_s),
                 failure(u"/dev/full"_s, "nothing was sent: No space left on device"));
    }

    // All that is well-formed, and no drawer opens.
    void documentWithAFault()
    {
        const SimulatedPrinter printer(SimulatedPrinter::Connection::Device);
        const TemporaryHome home;
        home.writeConfiguration(configuration(printer.devicePath(), "status = true;"));
        QCOMPARE(print(home, printer.devicePath(), receipt.chopped(4)), "");
        QCOMPARE(printer.log().jobs, QList<QByteArray>{" Serial Number: 17\n=====\n"});
    }
};

QTEST_GUILESS_MAIN(ConfirmedOutputTest)
#include "confirmed_output_test.moc"
