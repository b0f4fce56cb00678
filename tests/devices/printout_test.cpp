#include "escpos_printout.h"
#include "text_printout.h"

#include "print_document.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Printout printedOn(int columns, const std::function<void(TextPrintout &)> &print)
{
    Printout printout;
    TextPrintout paper(printout, columns);
    print(paper);
    paper.end(Ending::complete, 1);
    return printout;
}

/* A document printed with the configuration, on a paper of so many columns. */
Printout printed(const QByteArray &configuration, QByteArray document, int columns = 0)
{
    const TemporaryHome home;
    const TXConfiguration settings(home.writeFile(u"tavolux.conf"_s, configuration), u"cfg"_s);
    Printout printout;
    PreviewedCompanyPrinter driver(settings, printout, columns);
    QBuffer device(&document);
    printDocument(device, driver);
    return printout;
}

PrinterSettings settingsOf(const QString &model)
{
    return PrinterSettings(*findPrinterModel(model));
}

Printout printedBy(const PrinterSettings &settings, const std::function<void(EscposPrintout &)> &print,
                   Ending ending = Ending::complete, int copies = 1)
{
    Printout printout;
    EscposPrintout paper(printout, settings);
    print(paper);
    paper.end(ending, copies);
    return printout;
}

QList<PrintedLine::Kind> kinds(const Printout &printout)
{
    QList<PrintedLine::Kind> kinds;
    for (const PrintedLine &line : printout.lines)
        kinds.append(line.kind);
    return kinds;
}

QByteArray receipt(const QByteArray &elements)
{
    return "<document><method name=\"printFullOrderReceipt\"/>" + elements + "</document>";
}

} // namespace

class PrintoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAndColumns_data();
    void linesAndColumns();
    void charactersTakeTheirColumns_data();
    void charactersTakeTheirColumns();
    void neighboursAreOneRun();
    void whatStandsByItselfIsNoPartOfARun();
    void signsStandOnLinesOfTheirOwn();
    void plainTextHasNoStyle();
    void theRestOfALongPrintoutIsCounted();
    void theRestOfAWidePrintoutIsCounted();
    void theProfileSaysHowWideThePaperIs_data();
    void theProfileSaysHowWideThePaperIs();
    void theDrawerIsASign();
    void noDocumentOpensTheDrawer();
    void anUnfinishedDocumentIsIncomplete();
    void escposShowsWhatThePrinterPrints();
    void escposCutsAndOpensTheDrawerAtTheEnd();
    void escposMarksWhatIsIncomplete();
    void escposShowsItsLogo();
    void escposTellsWhyThereIsNoLogo();
    void escposPrintsTwiceWhereAskedTo_data();
    void escposPrintsTwiceWhereAskedTo();
};

void PrintoutTest::linesAndColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines"); // one that goes on from the one above begins with ">"
    QTest::newRow("nothing") << u""_s << QStringList{u""_s};
    QTest::newRow("one column short") << u"abc"_s << QStringList{u"abc"_s};
    QTest::newRow("as wide as the paper") << u"abcd"_s << QStringList{u"abcd"_s};
    QTest::newRow("one too many") << u"abcde"_s << QStringList{u"abcd"_s, u">e"_s};
    QTest::newRow("three lines") << u"abcdefghij"_s << QStringList{u"abcd"_s, u">efgh"_s, u">ij"_s};
    QTest::newRow("blanks take columns") << u"a     b"_s << QStringList{u"a   "_s, u">  b"_s};
    QTest::newRow("a wide character is not split") << u"abc\u6771d"_s << QStringList{u"abc"_s, u">\u6771d"_s};
    QTest::newRow("a wide character that fits") << u"ab\u6771d"_s << QStringList{u"ab\u6771"_s, u">d"_s};
}

void PrintoutTest::linesAndColumns()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, lines);
    const Printout printout = printedOn(4, [&text](TextPrintout &paper) {
        paper.text(text, {});
        paper.endLine();
    });
    QStringList actual;
    for (const PrintedLine &line : printout.lines)
        actual << (line.continued ? u">"_s : u""_s) + line.text();
    QCOMPARE(actual, lines);
    QCOMPARE(printout.lineCount, lines.size());
}

void PrintoutTest::charactersTakeTheirColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("shown");
    QTest::newRow("ASCII") << u"a~"_s << 2 << u"a~"_s;
    QTest::newRow("letters with accents") << u"Caff\u00E8"_s << 5 << u"Caff\u00E8"_s;
    QTest::newRow("euro sign") << u"\u20AC"_s << 1 << u"\u20AC"_s;
    QTest::newRow("Greek and Cyrillic") << u"\u03B1\u0436"_s << 2 << u"\u03B1\u0436"_s;
    QTest::newRow("accent of its own") << u"e\u0301x"_s << 2 << u"e\u0301x"_s;
    QTest::newRow("wide letter") << u"\u6771"_s << 2 << u"\u6771"_s;
    QTest::newRow("emoji") << u"\U0001F600"_s << 2 << u"\U0001F600"_s;
    QTest::newRow("Hebrew") << u"\u05D0\u05D1"_s << 2 << u"\u05D0\u05D1"_s;
    QTest::newRow("tab") << u"a\tb"_s << 3 << u"a\uFFFDb"_s;
    QTest::newRow("escape") << u"\x1Bp0"_s << 3 << u"\uFFFDp0"_s;
    QTest::newRow("control character of eight bits") << u"\u0085"_s << 1 << u"\uFFFD"_s;
    QTest::newRow("first half alone") << QString(QChar(0xD83D)) << 1 << u"\uFFFD"_s;
    QTest::newRow("second half alone") << QString(QChar(0xDE00)) + u'x' << 2 << u"\uFFFDx"_s;
}

void PrintoutTest::charactersTakeTheirColumns()
{
    QFETCH(const QString, text);
    QFETCH(const int, columns);
    QFETCH(const QString, shown);
    const Printout printout = printedOn(20, [&text](TextPrintout &paper) { paper.text(text, {}); });
    QCOMPARE(printout.lines.size(), 1U);
    const PrintedRun &last = printout.lines.front().runs.back();
    QCOMPARE(last.column + last.columns, columns);
    QCOMPARE(printout.text(), shown + u'\n');
}

void PrintoutTest::neighboursAreOneRun()
{
    const Printout printout = printedOn(20, [](TextPrintout &paper) {
        paper.text(u"  ", {});
        paper.text(u"Caff\u00E8", {});
        paper.text(u"..", {});
    });
    const std::vector<PrintedRun> expected{{u"  Caff\u00E8.."_s, 0, 9, false, {}}};
    QCOMPARE(printout.lines.front().runs, expected);
}

void PrintoutTest::whatStandsByItselfIsNoPartOfARun()
{
    const Printout printout =
        printedOn(20, [](TextPrintout &paper) { paper.text(u"a \U0001F600\u05D0 b", {}); });
    const std::vector<PrintedRun> expected{{u"a "_s, 0, 2, false, {}},
                                           {u"\U0001F600"_s, 2, 2, true, {}},
                                           {u"\u05D0"_s, 4, 1, true, {}},
                                           {u" b"_s, 5, 2, false, {}}};
    QCOMPARE(printout.lines.front().runs, expected);
}

void PrintoutTest::signsStandOnLinesOfTheirOwn()
{
    const Printout printout = printedOn(20, [](TextPrintout &paper) {
        paper.text(u"a", {});
        paper.openDrawer();
        paper.text(u"b", {});
    });
    QCOMPARE(printout.lines.size(), 3U);
    QCOMPARE(printout.lines[0].text(), u"a"_s);
    QCOMPARE(printout.lines[1].kind, PrintedLine::Kind::drawer);
    QCOMPARE(printout.lines[2].text(), u"b"_s);
    QCOMPARE(printout.text(), u"a\nb\n"_s);
}

void PrintoutTest::plainTextHasNoStyle()
{
    const Printout printout = printedOn(20, [](TextPrintout &paper) {
        paper.logo();
        paper.text(u"a", {.bold = true, .doubleHeight = true});
        paper.cut();
    });
    QCOMPARE(printout.lines.size(), 1U);
    QCOMPARE(printout.lines.front().runs.front().style, TextStyle());
}

void PrintoutTest::theRestOfALongPrintoutIsCounted()
{
    const qsizetype lines = Printout::maximumLines + 5;
    const Printout printout = printedOn(20, [](TextPrintout &paper) {
        for (qsizetype line = 0; line < lines; ++line)
            paper.endLine();
    });
    QCOMPARE(printout.lineCount, lines);
    QCOMPARE(printout.lines.size(), static_cast<std::size_t>(Printout::maximumLines));
    QVERIFY(!printout.isKeptWhole());
}

void PrintoutTest::theRestOfAWidePrintoutIsCounted()
{
    constexpr int width = 250;
    const QString row(width, u'x');
    const qsizetype lines = Printout::maximumCharacters / width + 5;
    const Printout printout = printedOn(width, [&](TextPrintout &paper) {
        for (qsizetype line = 0; line < lines; ++line) {
            paper.text(row, {});
            paper.endLine();
        }
    });
    QCOMPARE(printout.lineCount, lines);
    // The line that goes beyond the bound is the last.
    QCOMPARE(printout.lines.size(), static_cast<std::size_t>(Printout::maximumCharacters / width + 1));
}

void PrintoutTest::theProfileSaysHowWideThePaperIs_data()
{
    QTest::addColumn<QByteArray>("width");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("columns");
    QTest::newRow("the profile's") << "48"_ba << 0 << 48;
    QTest::newRow("narrower than the device") << "20"_ba << 0 << 20;
    QTest::newRow("missing: the device's") << "0"_ba << 0 << 34;
    QTest::newRow("negative: the device's") << "-5"_ba << 0 << 34;
    QTest::newRow("wider than any paper") << "5000"_ba << 0 << 255;
    QTest::newRow("asked for otherwise") << "48"_ba << 32 << 32;
}

void PrintoutTest::theProfileSaysHowWideThePaperIs()
{
    QFETCH(const QByteArray, width);
    QFETCH(const int, asked);
    QFETCH(const int, columns);
    const Printout printout = printed("tavolux : { receiptdoc : { paperWidth = " + width + "; }; };",
                                      receipt("<receipt serialnumber=\"1\"/>"), asked);
    QCOMPARE(printout.columns, columns);
    QCOMPARE(printout.lines.front().text(), u" Serial Number: 1"_s);
}

void PrintoutTest::theDrawerIsASign()
{
    const Printout printout = printed("tavolux : { receiptdoc : { openCashDrawer = true; }; };",
                                      receipt("<receipt serialnumber=\"1\"/>"));
    QCOMPARE(printout.lines.size(), 3U);
    QCOMPARE(printout.lines.back().kind, PrintedLine::Kind::drawer);
    QCOMPARE(printout.text(), u" Serial Number: 1\n"_s + QString(34, u'=') + u'\n');
}

void PrintoutTest::noDocumentOpensTheDrawer()
{
    const Printout printout = printed("tavolux : { receiptdoc : { printCompany = true; paperWidth = 3; }; };",
                                      receipt("<company name=\"&#27;p0\"/>"), 40);
    QCOMPARE(printout.lines.front().text().trimmed(), u"\uFFFDp0"_s);
    for (const PrintedLine &line : printout.lines)
        QCOMPARE(line.kind, PrintedLine::Kind::text);
}

void PrintoutTest::anUnfinishedDocumentIsIncomplete()
{
    QByteArray document = receipt("<receipt serialnumber=\"1\"/>");
    QCOMPARE(printed({}, document).ending, Ending::complete);
    document.chop(1);
    const Printout printout = printed({}, document);
    QCOMPARE(printout.ending, Ending::incomplete);
    QCOMPARE(printout.lines.front().text(), u" Serial Number: 1"_s);
}

void PrintoutTest::escposShowsWhatThePrinterPrints()
{
    // Code page 437 has no euro sign and no Polish l; the missing width is made up for by the dots.
    const Printout printout = printedBy(settingsOf(u"epson-tm-u220b"_s), [](EscposPrintout &paper) {
        paper.text(u"\u0141.....5 \u20AC....x", {});
        paper.text(u"b", {.bold = true, .doubleHeight = true});
        paper.endLine();
    });
    QCOMPARE(printout.columns, 42);
    const std::vector<PrintedRun> expected{{u"L.....5 EUR..x"_s, 0, 14, false, {}},
                                           {u"b"_s, 14, 1, false, {.bold = true, .doubleHeight = true}}};
    QCOMPARE(printout.lines.front().runs, expected);
    QVERIFY(printout.lines.front().isDoubleHeight());
}

void PrintoutTest::escposCutsAndOpensTheDrawerAtTheEnd()
{
    const auto print = [](EscposPrintout &paper) {
        paper.openDrawer();
        paper.text(u"a", {});
    };
    using Kind = PrintedLine::Kind;
    QCOMPARE(kinds(printedBy(settingsOf(u"epson-tm-t88v"_s), print)),
             (QList{Kind::text, Kind::cut, Kind::drawer}));
    QCOMPARE(kinds(printedBy(settingsOf(u"pos-5890"_s), print)),
             (QList{Kind::text, Kind::drawer})); // has no cutter
}

void PrintoutTest::escposMarksWhatIsIncomplete()
{
    const Printout printout = printedBy(
        settingsOf(u"pos-5890"_s),
        [](EscposPrintout &paper) {
            paper.openDrawer();
            paper.text(u"a", {});
        },
        Ending::incomplete);
    QCOMPARE(printout.text(), u"a\n*** INCOMPLETE ***\n"_s); // and no drawer opens
    QCOMPARE(kinds(printout).size(), 2);
}

void PrintoutTest::escposShowsItsLogo()
{
    PrinterSettings settings = settingsOf(u"epson-tm-t88v"_s);
    settings.logoFile = QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/devices/logos/black-and-white.png");
    const auto print = [](EscposPrintout &paper) { paper.logo(); };
    const Printout sent = printedBy(settings, print);
    QCOMPARE(sent.lines.front().kind, PrintedLine::Kind::logo);
    QVERIFY(sent.logo.rows > 0);
    QCOMPARE(sent.logo.bytesPerRow, 64); // 512 dots

    settings.storedLogo = 1;
    const Printout stored = printedBy(settings, print);
    QCOMPARE(stored.lines.front().kind, PrintedLine::Kind::logo);
    QCOMPARE(stored.logo.rows, 0);
}

void PrintoutTest::escposTellsWhyThereIsNoLogo()
{
    PrinterSettings settings = settingsOf(u"epson-tm-t88v"_s);
    settings.logoFile = u"/nowhere/logo.png"_s;
    const Printout printout = printedBy(settings, [](EscposPrintout &paper) { paper.logo(); });
    QVERIFY(printout.lines.empty());
    QVERIFY(!printout.logoFault.isEmpty());
}

void PrintoutTest::escposPrintsTwiceWhereAskedTo_data()
{
    QTest::addColumn<bool>("duplicate");
    QTest::addColumn<int>("copies");
    QTest::addColumn<int>("printed");
    QTest::newRow("duplicates") << true << 2 << 2;
    QTest::newRow("no duplicates") << false << 2 << 1;
    QTest::newRow("one copy") << true << 1 << 1;
}

void PrintoutTest::escposPrintsTwiceWhereAskedTo()
{
    QFETCH(const bool, duplicate);
    QFETCH(const int, copies);
    QFETCH(const int, printed);
    PrinterSettings settings = settingsOf(u"epson-tm-t88v"_s);
    settings.duplicate = duplicate;
    QCOMPARE(printedBy(
                 settings, [](EscposPrintout &) {}, Ending::complete, copies)
                 .copies,
             printed);
}

QTEST_GUILESS_MAIN(PrintoutTest)
#include "printout_test.moc"
