/* "tavolux-config status", on simulated printers. */
#include "program_run.h"
#include "simulated_printer.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Is = SimulatedPrinter::Condition;
using Change = std::function<void(Is &)>;

ProgramResult askStatus(const TemporaryHome &home, const QStringList &arguments)
{
    return runProgram(QStringLiteral(TAVOLUX_CONFIG), QStringList{u"status"_s} + arguments,
                      {{u"HOME"_s, home.path()}});
}

QByteArray printerSection(const QByteArray &name, const QString &output)
{
    return name + " : { model = generic-80; output = \"" + output.toLatin1() + "\"; };";
}

} // namespace

class StatusCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<Change>("condition");
        QTest::addColumn<QByteArray>("told");
        QTest::addColumn<int>("exitStatus");
        QTest::newRow("ready") << Change([](Is &) {}) << "ready"_ba << 0;
        QTest::newRow("paper near its end")
            << Change([](Is &is) { is.paperNearEnd = true; }) << "ready, the paper is near its end"_ba << 0;
        QTest::newRow("no paper") << Change([](Is &is) { is.paper = false; }) << "no paper"_ba << 1;
        QTest::newRow("cover and cutter") << Change([](Is &is) { is.coverOpen = is.cutterError = true; })
                                          << "the cover is open, the cutter is blocked"_ba << 1;
        QTest::newRow("mute") << Change([](Is &is) { is.answersStatus = false; })
                              << "does not tell its status"_ba << 1;
        QTest::newRow("away") << Change([](Is &is) { is.connected = false; })
                              << "cannot be reached: Connection refused"_ba << 1;
    }

    // Under each name that it can be given.
    void tells()
    {
        QFETCH(const Change, condition);
        QFETCH(const QByteArray, told);
        QFETCH(const int, exitStatus);
        SimulatedPrinter printer;
        printer.set(condition);
        const TemporaryHome home;
        const QString host = printer.uri().sliced(10);
        for (const QString &name : {host, printer.uri()}) {
            const ProgramResult result = askStatus(home, {name});
            QCOMPARE(result.standardOutput, host.toLatin1() + ": " + told + '\n');
            QCOMPARE(result.standardError, "");
            QCOMPARE(result.exitStatus, exitStatus);
        }
        QCOMPARE(printer.log().paper, "");
    }

    // Files, which could not answer, and patterns are left out.
    void asksThePrintersOfTheConfiguration()
    {
        const SimulatedPrinter till(SimulatedPrinter::Connection::Device);
        SimulatedPrinter kitchen(SimulatedPrinter::Connection::Device);
        kitchen.set([](Is &is) { is.paper = false; });
        const TemporaryHome home;
        const QString file = home.writeFile(u"printed.txt"_s, "kept");
        home.writeConfiguration("tavolux : { printers : {" + printerSection("till", till.devicePath())
                                + printerSection("proof", file + u", /dev/usb/*"_s)
                                + printerSection("kitchen", kitchen.devicePath() + u", /dev/missing"_s)
                                + "}; };");
        const QByteArray ofTill = "till (" + till.devicePath().toLatin1() + "): ready\n";
        const QByteArray ofKitchen = "kitchen (" + kitchen.devicePath().toLatin1()
            + "): no paper\nkitchen (/dev/missing): cannot be reached: No such file or directory\n";

        const ProgramResult all = askStatus(home, {});
        QCOMPARE(all.standardOutput, ofTill + ofKitchen);
        QCOMPARE(all.exitStatus, 1);
        const ProgramResult one = askStatus(home, {u"--printer"_s, u"till"_s});
        QCOMPARE(one.standardOutput, ofTill);
        QCOMPARE(one.exitStatus, 0);
        const ProgramResult proof = askStatus(home, {u"--printer"_s, u"proof"_s});
        QCOMPARE(proof.standardOutput,
                 "proof (" + file.toLocal8Bit() + "): cannot be reached: not a printer device\n");
        QCOMPARE(proof.exitStatus, 1);
        QCOMPARE(fileBytes(file), "kept");
    }

    void asksNobody_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("no devices") << QStringList() << "FILE names no device to ask; name one as DEVICE"_ba;
        QTest::newRow("a printer without a device")
            << QStringList{u"--printer"_s, u"any"_s}
            << "the printer \"any\" names no device to ask; name one as DEVICE"_ba;
        QTest::newRow("no such printer") << QStringList{u"--printer"_s, u"ani"_s}
                                         << "FILE has no printer \"ani\"; did you mean \"any\"?"_ba;
        QTest::newRow("no such configuration") << QStringList{u"--file"_s, u"/missing.conf"_s}
                                               << "cannot read /missing.conf: No such file or directory"_ba;
        QTest::newRow("printer and device") << QStringList{u"--printer"_s, u"any"_s, u"/dev/usb/lp0"_s}
                                            << "status takes --printer or a device, not both"_ba;
        QTest::newRow("no address") << QStringList{u"kitchen:printer"_s}
                                    << "\"kitchen:printer\" is no device and no address of a printer"_ba;
    }

    void asksNobody()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(QByteArray, message);
        const TemporaryHome home;
        home.writeConfiguration("tavolux : { printers : {" + printerSection("any", u"/dev/usb/*"_s)
                                + "}; };");
        message.replace("FILE", home.filePath(u".tavolux/conf/tavolux.conf"_s).toLocal8Bit());
        const ProgramResult result = askStatus(home, arguments);
        QCOMPARE(result.standardOutput, "");
        QVERIFY2(result.standardError.startsWith("tavolux-config: " + message + '\n'),
                 result.standardError.constData());
        QCOMPARE(result.exitStatus, 2);
    }
};

QTEST_GUILESS_MAIN(StatusCommandTest)
#include "status_command_test.moc"
