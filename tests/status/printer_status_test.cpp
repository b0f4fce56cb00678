#include "printer_status.h"

#include <QByteArray>
#include <QTest>

Q_DECLARE_METATYPE(PrinterStatus)

namespace {

using Field = bool PrinterStatus::*;

PrinterStatus statusWith(std::initializer_list<Field> fields)
{
    PrinterStatus status;
    for (const Field field : fields)
        status.*field = true;
    return status;
}

} // namespace

class PrinterStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data();
    void decodes();
    void refusesOtherBytes_data();
    void refusesOtherBytes();
    void gathersAnswers();
    void describes_data();
    void describes();
    void tellsAnswersApart_data();
    void tellsAnswersApart();
};

void PrinterStatusTest::decodes_data()
{
    QTest::addColumn<int>("query");
    QTest::addColumn<int>("answer");
    QTest::addColumn<PrinterStatus>("status");

    const auto row = [](const char *name, int query, int answer, std::initializer_list<Field> fields) {
        QTest::newRow(name) << query << answer << statusWith(fields);
    };
    using S = PrinterStatus;
    row("printer: on line", 1, 0x12, {});
    row("printer: on line, drawer signal high", 1, 0x16, {});
    row("printer: off line", 1, 0x1A, {&S::offLine});
    row("cause: none", 2, 0x12, {});
    row("cause: cover open", 2, 0x16, {&S::coverOpen});
    row("cause: feed key", 2, 0x1A, {&S::feedKeyPressed});
    row("cause: stopped without paper", 2, 0x32, {&S::paperEnd});
    row("cause: error", 2, 0x52, {&S::error});
    row("cause: cover open and stopped without paper", 2, 0x36, {&S::coverOpen, &S::paperEnd});
    row("error: none", 3, 0x12, {});
    row("error: cutter", 3, 0x1A, {&S::cutterError, &S::error});
    row("error: unrecoverable", 3, 0x32, {&S::unrecoverableError, &S::error});
    row("error: recovers by itself", 3, 0x52, {&S::error});
    row("paper: enough", 4, 0x12, {});
    row("paper: near end", 4, 0x1E, {&S::paperNearEnd});
    row("paper: near end, one sensor", 4, 0x16, {&S::paperNearEnd});
    row("paper: end", 4, 0x72, {&S::paperEnd});
    row("paper: end, one sensor", 4, 0x32, {&S::paperEnd});
    row("paper: near end and end", 4, 0x7E, {&S::paperNearEnd, &S::paperEnd});
}

void PrinterStatusTest::decodes()
{
    QFETCH(const int, query);
    QFETCH(const int, answer);
    QFETCH(const PrinterStatus, status);
    PrinterStatus decoded;
    QVERIFY(decoded.add(static_cast<StatusQuery>(query), static_cast<unsigned char>(answer)));
    QVERIFY2(decoded == status, decoded.description().c_str());
}

void PrinterStatusTest::refusesOtherBytes_data()
{
    QTest::addColumn<int>("byte");
    QTest::newRow("answer in sequence") << 0x00;
    QTest::newRow("answer in sequence, paper end") << 0x0F;
    QTest::newRow("report's first byte") << 0x18;
    QTest::newRow("lowest bit set") << 0x7F;
    QTest::newRow("highest bit set") << 0x92;
    QTest::newRow("flow control") << 0x13;
}

void PrinterStatusTest::refusesOtherBytes()
{
    QFETCH(const int, byte);
    PrinterStatus status;
    for (const StatusQuery query : statusQueries)
        QVERIFY(!status.add(query, static_cast<unsigned char>(byte)));
    QVERIFY(status == PrinterStatus());
}

void PrinterStatusTest::gathersAnswers()
{
    PrinterStatus status;
    QVERIFY(status.add(StatusQuery::Printer, 0x1A));
    QVERIFY(status.add(StatusQuery::OffLineCause, 0x32));
    QVERIFY(status.add(StatusQuery::Error, 0x12));
    QVERIFY(status.add(StatusQuery::Paper, 0x7E));
    using S = PrinterStatus;
    QVERIFY(status == statusWith({&S::offLine, &S::paperEnd, &S::paperNearEnd}));
}

void PrinterStatusTest::describes_data()
{
    QTest::addColumn<PrinterStatus>("status");
    QTest::addColumn<bool>("ready");
    QTest::addColumn<QByteArray>("text");

    const auto row = [](std::initializer_list<Field> fields, bool ready, const char *text) {
        QTest::newRow(text) << statusWith(fields) << ready << QByteArray(text);
    };
    using S = PrinterStatus;
    row({}, true, "ready");
    row({&S::paperNearEnd}, true, "ready, the paper is near its end");
    row({&S::offLine}, false, "off line");
    row({&S::offLine, &S::coverOpen}, false, "the cover is open");
    row({&S::offLine, &S::paperEnd, &S::paperNearEnd}, false, "no paper");
    row({&S::offLine, &S::coverOpen, &S::paperEnd}, false, "no paper, the cover is open");
    row({&S::offLine, &S::feedKeyPressed}, false, "the feed key is pressed");
    row({&S::offLine, &S::error}, false, "an error");
    row({&S::offLine, &S::error, &S::cutterError}, false, "the cutter is blocked");
    row({&S::error, &S::unrecoverableError}, false, "an error until it is switched off and on");
    row({&S::paperEnd, &S::error, &S::cutterError}, false, "no paper, the cutter is blocked");
}

void PrinterStatusTest::describes()
{
    QFETCH(const PrinterStatus, status);
    QCOMPARE(QByteArray::fromStdString(status.description()), QTest::currentDataTag());
    QTEST(status.ready(), "ready");
}

void PrinterStatusTest::tellsAnswersApart_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("kinds"); // r: real time, s: in sequence, -: other

    const auto row = [](const char *name, const char *hex, const char *kinds) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << QByteArray(kinds);
    };
    row("ready", "12", "r");
    row("every bit of an answer in real time", "7E", "r");
    row("processed", "00", "s");
    row("processed, paper near its end", "03", "s");
    row("processed, paper at its end", "0F", "s");
    row("one after the other", "12 00 12", "rsr");
    row("flow control", "11 13", "--");
    row("report of four bytes", "10 00 00 00", "----");
    row("report of paper out, then the answers", "18 00 0F 0F 12 00", "----rs");
    row("report of an open cover", "3C 00 00 00", "----");
    row("byte with its highest bit set", "80 92 FF", "---");
}

void PrinterStatusTest::tellsAnswersApart()
{
    QFETCH(const QByteArray, bytes);
    AnswerReader reader;
    QByteArray kinds;
    for (const char byte : bytes) {
        const Answer answer = reader.take(static_cast<unsigned char>(byte));
        kinds += answer == Answer::RealTime ? 'r' : answer == Answer::InSequence ? 's' : '-';
    }
    QTEST(kinds, "kinds");
}

QTEST_GUILESS_MAIN(PrinterStatusTest)
#include "printer_status_test.moc"
