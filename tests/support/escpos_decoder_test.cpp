#include "escpos_decoder.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const DecodedPrinter printer = {{{19, u"858"_s}, {17, u"866"_s}}, 19, 32};
const QByteArray begin("\x1B@\x1C.\x1BR\0\x1Bt\x13", 10);

} // namespace

/* The decoder is as strict as it says. */
class EscposDecoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesEverything()
    {
        const DecodedPrintout printout =
            decodeEscpos(begin
                             + QByteArray("\x1B"
                                          "E\1\x1D!\1Caff\x8A \xD5\n\x1B"
                                          "E\0\x1D!\0a\x1Bt\x11\xE0\x1Bt\x13"
                                          "b\n\x1Cp\2\0\x1Dv0\0\2\0\1\0\xFF\x1B\x1B"
                                          "d\3\x1DVB\0\x1Bp\1\x19\xFA",
                                          56),
                         printer);
        QCOMPARE(printout.fault, QString());
        QCOMPARE(printout.dump,
                 QStringList({u"initialise"_s, u"leave Kanji mode"_s, u"international set"_s,
                              u"code page 19 (858)"_s, u"bold on"_s, u"height 2"_s, u"line \"Caffè €\""_s,
                              u"bold off"_s, u"height 1"_s, u"text \"a\""_s, u"code page 17 (866)"_s,
                              u"text \"р\""_s, u"code page 19 (858)"_s, u"line \"b\""_s, u"stored logo 2"_s,
                              u"raster 16 x 1 dots"_s, u"feed 3"_s, u"partial cut"_s,
                              u"pulse on pin 5, 50 ms on, 500 ms off"_s}));
        QCOMPARE(printout.lines(), QStringList({u"Caffè €"_s, u"aрb"_s}));
        QCOMPARE(printout.printed[0].boldCharacters, 7);
        QCOMPARE(printout.printed[0].highCharacters, 7);
        QCOMPARE(printout.printed[1].boldCharacters, 0);
        QCOMPARE(printout.widestLine, 7);
        QCOMPARE(printout.cuts, 1);
        QCOMPARE(printout.pulses, 1);
        QVERIFY(printout.isBlank);
    }

    void twoPrintouts()
    {
        const QByteArray once = begin + QByteArray("a\n\x1DVA\0", 6);
        const DecodedPrintout printout = decodeEscpos(once + once, printer);
        QCOMPARE(printout.fault, QString());
        QCOMPARE(printout.initialisations, 2);
        QCOMPARE(printout.cuts, 2);
    }

    void faults_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("fault");

        const auto row = [](const char *name, const QByteArray &bytes, const QString &fault) {
            QTest::newRow(name) << begin + bytes << u"byte %1: "_s.arg(begin.size()) + fault;
        };
        QTest::newRow("text before the initialisation")
            << "a\n"_ba << u"byte 0: something comes before the initialisation"_s;
        QTest::newRow("upper half before a code page") << "\x1B@\xD5\n"_ba << u"byte 2: the stray byte d5"_s;
        row("tabulator", "\t\n"_ba, u"the stray byte 09"_s);
        row("zero", QByteArray("\0\n", 2), u"the stray byte 00"_s);
        row("delete", "\x7F\n"_ba, u"the stray byte 7f"_s);
        row("real-time status", "\x10\x04\1"_ba, u"the stray byte 10"_s);
        row("drawer command of three bytes", "\x1Bp0"_ba, u"a command that is cut off"_s);
        row("drawer command that swallows text", "\x1Bp0ab\n"_ba, u"a pulse with wrong numbers"_s);
        row("escape alone", "\x1B"_ba, u"a command that is cut off"_s);
        row("unknown escape", "\x1BZ"_ba, u"an unknown command"_s);
        row("unknown group separator", "\x1DZ"_ba, u"an unknown command"_s);
        row("unknown file separator", "\x1CZ"_ba, u"an unknown command"_s);
        row("code page of another printer", "\x1Bt\x10"_ba, u"code page 16, which the printer lacks"_s);
        row("national set", "\x1BR\1"_ba, u"a national set"_s);
        row("double width", "\x1D!\x11"_ba, u"another size than normal and double height"_s);
        row("bold 2",
            "\x1B"
            "E\2"_ba,
            u"a switch that is neither on nor off"_s);
        row("raster without its last byte", QByteArray("\x1Dv0\0\2\0\1\0a", 9),
            u"a raster that is cut off"_s);
        row("empty raster", QByteArray("\x1Dv0\0\2\0\0\0", 8), u"an empty raster"_s);
        row("cut of another kind", QByteArray("\x1DV\0", 3), u"an unknown cut"_s);

        const auto laterRow = [](const char *name, const QByteArray &before, const QByteArray &bytes,
                                 const QString &fault) {
            QTest::newRow(name) << begin + before + bytes
                                << u"byte %1: "_s.arg(begin.size() + before.size()) + fault;
        };
        laterRow("end in a line", "a"_ba, {}, u"no normal state before the end"_s);
        laterRow("end in bold",
                 "\x1B"
                 "E\1a\n"_ba,
                 {}, u"no normal state before the end"_s);
        laterRow("end in double height", "\x1D!\1a\n"_ba, {}, u"no normal state before the end"_s);
        laterRow("end in another page", "\x1Bt\x11"_ba, {}, u"no normal state before the end"_s);
        laterRow("cut in a line", "a"_ba, QByteArray("\x1DVA\0", 4), u"no normal state before a cut"_s);
        laterRow("text after the cut", QByteArray("a\n\x1DVA\0", 6), "b\n"_ba, u"text after the cut"_s);
        laterRow("feed after the cut", QByteArray("a\n\x1DVA\0", 6),
                 "\x1B"
                 "d\1"_ba,
                 u"a command after the cut"_s);
        laterRow("raster in a line", "a"_ba, QByteArray("\x1Dv0\0\1\0\1\0a", 9),
                 u"a raster in the middle of a line"_s);
    }

    void faults()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, fault);
        QCOMPARE(decodeEscpos(bytes, printer).fault, fault);
    }
};

QTEST_GUILESS_MAIN(EscposDecoderTest)
#include "escpos_decoder_test.moc"
