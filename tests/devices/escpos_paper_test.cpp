#include "captured_output.h"
#include "catalogue.h"
#include "escpos_paper.h"
#include "print_output.h"
#include "temporary_home.h"

#include <QBuffer>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Begin and cut of generic-80, by hand from the commands' manual.
const QByteArray begin("\x1B@\x1C.\x1BR\0\x1Bt\x13", 10);
const QByteArray fullCut("\x1DV\x41\0", 4);
const QByteArray pulse("\x1Bp\0\x19\xFA", 5);

PrinterSettings generic80()
{
    return PrinterSettings(*findPrinterModel(u"generic-80"));
}

/* What reaches the printer of a paper that is begun, used and ended. */
QByteArray printed(const PrinterSettings &settings, const std::function<void(EscposPaper &)> &use,
                   Ending ending = Ending::complete, int copies = 1)
{
    QByteArray bytes;
    QBuffer printer(&bytes);
    printer.open(QIODevice::WriteOnly);
    {
        PrintOutput output(printer, u"printer"_s);
        EscposPaper paper(settings);
        paper.begin(output);
        use(paper);
        paper.end(ending, copies);
    }
    return bytes;
}

constexpr TextStyle bold = {.bold = true};
constexpr TextStyle high = {.doubleHeight = true};

void printLine(EscposPaper &paper, const QString &text, TextStyle style = {})
{
    paper.text(text, style);
    paper.endLine();
}

} // namespace

class EscposPaperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prints_data();
    void prints();
    void settings_data();
    void settings();
    void incomplete_data();
    void incomplete();
    void incompleteInTheUsersLanguage();
    void copies_data();
    void copies();
    void longLine();
    void measures();
    void logo();
    void unreadableLogo();
    void logoOnAPrinterWithoutPictures();
    void storedLogo();
};

void EscposPaperTest::prints_data()
{
    QTest::addColumn<std::function<void(EscposPaper &)>>("use");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char *name, const std::function<void(EscposPaper &)> &use,
                        const QByteArray &expected) { QTest::newRow(name) << use << begin + expected; };
    row("nothing", [](EscposPaper &) {}, {});
    row(
        "a line", [](EscposPaper &paper) { printLine(paper, u"Caffè"_s); }, "Caff\x8A\n" + fullCut);
    row(
        "an empty line", [](EscposPaper &paper) { paper.endLine(); }, "\n" + fullCut);
    row(
        "a line that nobody ended", [](EscposPaper &paper) { paper.text(u"a", {}); }, "a\n" + fullCut);
    row(
        "a line in parts",
        [](EscposPaper &paper) {
            paper.text(u"a", {});
            printLine(paper, u"b"_s);
        },
        "ab\n" + fullCut);
    row(
        "bold, and normal again",
        [](EscposPaper &paper) {
            printLine(paper, u"a"_s, bold);
            printLine(paper, u"b"_s, bold);
            printLine(paper, u"c"_s);
        },
        "\x1B"
        "E\1a\nb\n\x1B"
            + QByteArray("E\0", 2) + "c\n" + fullCut);
    row(
        "bold to the end", [](EscposPaper &paper) { printLine(paper, u"a"_s, bold); },
        "\x1B"
        "E\1a\n\x1B"
            + QByteArray("E\0", 2) + fullCut);
    row(
        "double height to the end", [](EscposPaper &paper) { printLine(paper, u"a"_s, high); },
        "\x1D!\1a\n" + QByteArray("\x1D!\0", 3) + fullCut);
    row(
        "another page for two characters", [](EscposPaper &paper) { printLine(paper, u"aДа!"_s); },
        "a\x1Bt\x11\x84\xA0\x1Bt\x13!\n" + fullCut);
    row(
        "another page to the end", [](EscposPaper &paper) { printLine(paper, u"Д"_s); },
        "\x1Bt\x11\x84\n\x1Bt\x13" + fullCut);
    row(
        "what one code page has", [](EscposPaper &paper) { paper.codePageLine(1, u"aé€Ж"); },
        "\x1Bt\x10\xE9\x80\n\x1Bt\x13" + fullCut);
    row(
        "a code page in a line of bold type",
        [](EscposPaper &paper) {
            paper.text(u"a", bold);
            paper.codePageLine(0, u"é");
        },
        QByteArray("\x1B"
                   "E\1a\n\x1B"
                   "E\0\x82\n",
                   10)
            + fullCut);
    row(
        "commands in a text", [](EscposPaper &paper) { printLine(paper, u"\u001Bp0\u009B"_s); },
        "?p0?\n" + fullCut);
    row(
        "a cut",
        [](EscposPaper &paper) {
            printLine(paper, u"a"_s);
            paper.cut();
            printLine(paper, u"b"_s);
        },
        "a\n" + fullCut + "b\n" + fullCut);
    row(
        "a cut in a line",
        [](EscposPaper &paper) {
            paper.text(u"a", {});
            paper.cut();
        },
        "a\n" + fullCut);
    row(
        "cuts of blank paper",
        [](EscposPaper &paper) {
            paper.cut();
            printLine(paper, u"a"_s);
            paper.cut();
            paper.cut();
        },
        "a\n" + fullCut);
    row(
        "the drawer, last whenever it is asked for",
        [](EscposPaper &paper) {
            paper.openDrawer();
            printLine(paper, u"a"_s);
        },
        "a\n" + fullCut + pulse);
    row(
        "the drawer alone", [](EscposPaper &paper) { paper.openDrawer(); }, pulse);
    row(
        "the drawer twice",
        [](EscposPaper &paper) {
            paper.openDrawer();
            paper.openDrawer();
        },
        pulse);
    row("a logo that nobody configured", [](EscposPaper &paper) { paper.logo(); }, {});
}

void EscposPaperTest::prints()
{
    QFETCH(const std::function<void(EscposPaper &)>, use);
    QTEST(printed(generic80(), use), "expected");
}

void EscposPaperTest::settings_data()
{
    QTest::addColumn<std::function<void(PrinterSettings &)>>("set");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char *name, const std::function<void(PrinterSettings &)> &set,
                        const QByteArray &expected) { QTest::newRow(name) << set << expected; };
    row(
        "partial cut", [](PrinterSettings &s) { s.cut = Cutter::partial; },
        begin + "a\n" + QByteArray("\x1DV\x42\0", 4) + pulse);
    row(
        "no cut", [](PrinterSettings &s) { s.cut = Cutter::none; }, begin + "a\n" + pulse);
    row(
        "no cut, to the tear bar",
        [](PrinterSettings &s) {
            s.cut = Cutter::none;
            s.feed = 4;
        },
        begin
            + "a\n\x1B"
              "d\4"
            + pulse);
    row(
        "feed before the cut", [](PrinterSettings &s) { s.feed = 255; },
        begin
            + "a\n\x1B"
              "d\xFF"
            + fullCut + pulse);
    row(
        "the other pin", [](PrinterSettings &s) { s.drawerPin = 5; },
        begin + "a\n" + fullCut + "\x1Bp\1\x19\xFA");
    row(
        "another pulse",
        [](PrinterSettings &s) {
            s.drawerPulse = {200, 510};
        },
        begin + "a\n" + fullCut + QByteArray("\x1Bp\0\x64\xFF", 5));
    row(
        "another page",
        [](PrinterSettings &s) {
            s.codePages = {{CodePage::cp1252, 71}};
        },
        QByteArray("\x1B@\x1C.\x1BR\0\x1Bt\x47", 10) + "a\n" + fullCut + pulse);
}

void EscposPaperTest::settings()
{
    QFETCH(const std::function<void(PrinterSettings &)>, set);
    PrinterSettings settings = generic80();
    set(settings);
    const auto use = [](EscposPaper &paper) {
        printLine(paper, u"a"_s);
        paper.openDrawer();
    };
    QTEST(printed(settings, use), "expected");
}

void EscposPaperTest::incomplete_data()
{
    prints_data();
}

// After all that was printed one line more, in large type; and the drawer stays shut.
void EscposPaperTest::incomplete()
{
    QFETCH(const std::function<void(EscposPaper &)>, use);
    const QByteArray bytes = printed(generic80(), use, Ending::incomplete, 2);
    const QByteArray line = "*** INCOMPLETE ***\n\x1B" + QByteArray("E\0\x1D!\0", 5) + fullCut;
    QVERIFY2(bytes.endsWith(line), bytes.toHex(' ').constData());
    QVERIFY(!bytes.contains("\x1Bp"));
    QCOMPARE(bytes.count("INCOMPLETE"), 1);
}

void EscposPaperTest::incompleteInTheUsersLanguage()
{
    const Catalogue catalogue({{"*** INCOMPLETE ***"_ba, u"*** UNVOLLSTÄNDIG ***"_s}});
    const QByteArray bytes = printed(
        generic80(), [](EscposPaper &paper) { paper.text(u"a", {}); }, Ending::incomplete);
    QCOMPARE(bytes,
             begin
                 + "a\n\x1B"
                   "E\1\x1D!\1*** UNVOLLST\x8ENDIG ***\n\x1B"
                 + QByteArray("E\0\x1D!\0", 5) + fullCut);
}

void EscposPaperTest::copies_data()
{
    QTest::addColumn<bool>("duplicate");
    QTest::addColumn<int>("copies");
    QTest::addColumn<QByteArray>("expected");

    const QByteArray printout = begin + "a\n" + fullCut;
    QTest::newRow("one copy") << false << 1 << printout + pulse;
    QTest::newRow("two copies that nobody wants") << false << 2 << printout + pulse;
    QTest::newRow("duplicates of a document that has none") << true << 1 << printout + pulse;
    QTest::newRow("two copies, one pulse") << true << 2 << printout + printout + pulse;
}

void EscposPaperTest::copies()
{
    QFETCH(const bool, duplicate);
    QFETCH(const int, copies);
    PrinterSettings settings = generic80();
    settings.duplicate = duplicate;
    const auto use = [](EscposPaper &paper) {
        paper.openDrawer();
        printLine(paper, u"a"_s);
    };
    QTEST(printed(settings, use, Ending::complete, copies), "expected");
}

// Longer than what is kept of a line: nothing is lost.
void EscposPaperTest::longLine()
{
    for (const int length : {4095, 4096, 4097, 100'000}) {
        const QByteArray bytes =
            printed(generic80(), [&](EscposPaper &paper) { paper.text(QString(length, u'x'), {}); });
        QCOMPARE(bytes, begin + QByteArray(length, 'x') + "\n" + fullCut);
    }
}

void EscposPaperTest::measures()
{
    PrinterSettings settings = generic80();
    settings.columns = 42;
    settings.codePages = {{CodePage::cp437, 0}};
    const EscposPaper paper(settings);
    QCOMPARE(paper.columns(), 42);
    QCOMPARE(paper.width(u"2 €"), 5);
    QVERIFY(!paper.takesControlCharacters());
}

// 16 dots in two rows: the left half black, and then the outermost dots alone.
void EscposPaperTest::logo()
{
    PrinterSettings settings = generic80();
    settings.logoFile = QStringLiteral(TAVOLUX_SOURCE_DIR "/tests/devices/logos/black-and-white.png");
    const QByteArray bytes = printed(settings, [](EscposPaper &paper) {
        paper.text(u"a", {});
        paper.logo();
        printLine(paper, u"b"_s);
    });
    // 576 dots are 72 bytes a row; 16 dots begin at dot 280, which is byte 35.
    const auto row = [](const char *middle) {
        return QByteArray(35, '\0') + QByteArray(middle, 2) + QByteArray(35, '\0');
    };
    QCOMPARE(bytes,
             begin + "a\n" + QByteArray("\x1Dv0\0\x48\0\2\0", 8) + row("\xFF\0") + row("\x80\1") + "b\n"
                 + fullCut);
}

void EscposPaperTest::unreadableLogo()
{
    PrinterSettings settings = generic80();
    settings.logoFile = u"/no/such/logo.png"_s;
    QByteArray bytes;
    const QByteArray messages = capturedOutput([&] {
        bytes = printed(settings, [](EscposPaper &paper) {
            paper.logo();
            paper.logo();
            printLine(paper, u"a"_s);
        });
    });
    QCOMPARE(messages,
             "Error in the method EscposPaper::logo( /no/such/logo.png ): No such file or directory\n");
    QCOMPARE(bytes, begin + "a\n" + fullCut);
}

void EscposPaperTest::logoOnAPrinterWithoutPictures()
{
    PrinterSettings settings(*findPrinterModel(u"epson-tm-u220b"));
    settings.logoFile = u"/etc/logo.png"_s;
    const QByteArray messages =
        capturedOutput([&] { printed(settings, [](EscposPaper &paper) { paper.logo(); }); });
    QCOMPARE(messages,
             "Error in the method EscposPaper::logo( /etc/logo.png ): the printer prints no pictures\n");
}

void EscposPaperTest::storedLogo()
{
    PrinterSettings settings = generic80();
    settings.storedLogo = 3;
    QCOMPARE(printed(settings, [](EscposPaper &paper) { paper.logo(); }),
             begin + QByteArray("\x1Cp\3\0", 4) + fullCut);
}

QTEST_GUILESS_MAIN(EscposPaperTest)
#include "escpos_paper_test.moc"
