#include "row_encoder.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Pages = QList<CodePage>;

const Pages western = {CodePage::cp858, CodePage::cp1252, CodePage::cp852, CodePage::cp866};
const Pages impact = {CodePage::cp437};

std::span<const Cell> encoded(RowEncoder &encoder, const QString &text)
{
    static StyledLine line;
    line.clear();
    line.append(text, {});
    return encoder.encode(line);
}

QString shown(const Pages &pages, const QString &text)
{
    RowEncoder encoder(pages);
    QString all;
    for (const Cell &cell : encoded(encoder, text))
        all += QChar(cell.shown);
    return all;
}

} // namespace

class RowEncoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shows_data();
    void shows();
    void keepsColumns_data();
    void keepsColumns();
    void cells();
    void styles();
    void sameCharacterAgain();
    void charactersOfOnePlace();
    void width_data();
    void width();
};

void RowEncoderTest::shows_data()
{
    QTest::addColumn<QList<CodePage>>("pages");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const Pages &pages, const QString &text, const QString &expected) {
        QTest::newRow(name) << pages << text << expected;
    };
    row("empty", western, {}, {});
    row("ASCII", western, u" !\"#09AZaz~"_s, u" !\"#09AZaz~"_s);
    row("first page", western, u"Caffè 2,50 €"_s, u"Caffè 2,50 €"_s);
    row("second page", western, u"„Šťáva“"_s, u"„Šťáva“"_s);
    row("third page", western, u"Łódź"_s, u"Łódź"_s);
    row("fourth page", western, u"Привет"_s, u"Привет"_s);
    row("composed accent", western, u"e\u0301"_s, u"é"_s);
    row("two marks, one of which has its letter", western, u"e\u0301\u0323"_s, u"e"_s);
    row("letter with a mark, and a mark that has no letter with it", western, u"q\u0301"_s, u"q"_s);
    row("mark by itself", western, u"\u0301a"_s, u"a"_s);
    row("letter without its marks", western, u"ș ẽ ǎ"_s, u"s e a"_s);
    row("letter without its marks, in capitals", western, u"Ș"_s, u"S"_s);
    row("impact: accents of its page", impact, u"é à ñ Ä"_s, u"é à ñ Ä"_s);
    row("impact: letters without their marks", impact, u"È ž Ã"_s, u"E z A"_s);
    row("impact: euro", impact, u"2 €"_s, u"2 EUR"_s);
    row("impact: letters of the table", impact, u"Łđøœẞ"_s,
        u"Ldooe"
        "SS"_s);
    row("impact: its own sharp s", impact, u"ß"_s, u"ß"_s);
    row("impact: quotes and dashes", impact, u"„a“ ’b’ c–d—e"_s, u"\"a\" 'b' c-d-e"_s);
    row("impact: dots, ligature and sign of trade mark", impact, u"a… ﬁ ™"_s, u"a... fi TM"_s);
    row("impact: micro, which the toolkit leaves out", impact, u"µ"_s, u"µ"_s);
    row("impact: Cyrillic", impact, u"Да"_s, u"??"_s);
    row("no page at all", {}, u"é€П"_s, u"eEUR?"_s);
    row("Chinese", western, u"中文"_s, u"??"_s);
    row("emoji", western, u"\U0001F355"_s, u"?"_s);
    row("emoji of several", western, u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s, u"?"_s);
    row("flag", western, u"\U0001F1EE\U0001F1F9"_s, u"?"_s);
    row("half a surrogate pair", western, QString(QChar(0xD83D)), u"?"_s);
    row("Hangul in parts", western, u"\u1112\u1161\u11AB"_s, u"?"_s);
    row("mathematical letter", western, u"\U0001D400"_s, u"A"_s);
    row("full width", western, u"Ａ１"_s, u"A1"_s);
    row("fraction", impact, u"⅓"_s, u"1/3"_s);
    row("what would take more than four columns", impact, u"\uFDFA"_s, u"?"_s);
    row("spaces that are no blanks", western, u"1\u00A0000\u202F€\u3000x"_s, u"1 000 € x"_s);
    row("what takes no place", western, u"a\u200Bb\u00ADc\uFEFFd"_s, u"abcd"_s);
    row("controls", western, u"\t\n\r\u001B@\u007F\u0080\u009Bp0"_s, u"????@???p0"_s);
    row("zero", western, QString(QChar(0)), u"?"_s);
    row("controls beside a mark", western, u"\u001B\u0301\u001D"_s, u"??"_s);
    row("line end of two characters beside a mark", western, u"\r\ne\u0301"_s, u"??é"_s);
    row("separators of lines", western, u"\u2028\u2029"_s, u"??"_s);
    row("what ICU would take for a control", impact, u"☺\u263C⌂"_s, u"???"_s);
}

void RowEncoderTest::shows()
{
    QFETCH(const QList<CodePage>, pages);
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(shown(pages, text), expected);
}

void RowEncoderTest::keepsColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    // On a printer with 437 alone, for which the euro is three columns.
    const auto row = [](const char *name, const QString &text, const QString &expected) {
        QTest::newRow(name) << text << expected;
    };
    row("longer, before dots", u"Menu €.....12.50"_s, u"Menu EUR...12.50"_s);
    row("longer, before blanks", u"€     12.50"_s, u"EUR   12.50"_s);
    row("longer, and one blank stays", u"€ a....9"_s, u"EUR a..9"_s);
    row("longer, and one dot stays", u"€..9"_s, u"EUR.9"_s);
    row("longer than all that follows", u"€€..9"_s, u"EUREUR.9"_s);
    row("longer, nothing follows", u"a   9 €"_s, u"a   9 EUR"_s);
    row("longer, from two runs", u"€€€  a...b...9"_s, u"EUREUREUR a.b.9"_s);
    row("shorter, before dots", u"Cafe\u0301.....2.50"_s, u"Café......2.50"_s);
    row("shorter, before a blank", u"Cafe\u0301 2.50"_s, u"Café  2.50"_s);
    row("shorter, by an emoji", u"\U0001F355...9"_s, u"?....9"_s);
    row("shorter, by an emoji of eight", u"\U0001F468\u200D\U0001F469\u200D\U0001F467..9"_s,
        u"?.........9"_s);
    row("shorter, nothing follows", u"  e\u0301"_s, u"  é"_s);
    row("the dot of a price is no run", u"e\u03011.50 x"_s, u"é1.50  x"_s);
    row("longer and shorter make up for each other", u"€e\u0301e\u0301..9"_s, u"EURéé..9"_s);
    row("runs before it stay", u"a...€....9"_s, u"a...EUR..9"_s);
    row("what needs nothing", u"é...9 .. "_s, u"é...9 .. "_s);
}

void RowEncoderTest::keepsColumns()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(shown(impact, text), expected);
}

void RowEncoderTest::cells()
{
    RowEncoder encoder(western);
    const std::span<const Cell> cells = encoded(encoder, u"aПü“ "_s);
    const std::vector<Cell> expected = {{u'a', 'a', 0, {}},
                                        {u'П', 0x8F, 3, {}},
                                        {u'ü', 0x81, 0, {}},
                                        {u'“', 0x93, 1, {}},
                                        {u' ', ' ', 0, {}}};
    QCOMPARE(std::vector<Cell>(cells.begin(), cells.end()), expected);
}

void RowEncoderTest::styles()
{
    const TextStyle bold{true, false};
    const TextStyle high{false, true};
    StyledLine line;
    line.append(u"a", {});
    line.append(u"€.", bold);
    line.append(u"e", bold);
    line.append(u"\u0301..", high); // its accent belongs to the letter before it
    line.append(u"", {});
    line.append(u"b", {});
    RowEncoder encoder(impact);
    const std::span<const Cell> cells = encoder.encode(line);
    const std::vector<Cell> expected = {{u'a', 'a', 0, {}},   {u'E', 'E', 0, bold}, {u'U', 'U', 0, bold},
                                        {u'R', 'R', 0, bold}, {u'.', '.', 0, bold}, {u'é', 0x82, 0, bold},
                                        {u'.', '.', 0, high}, {u'b', 'b', 0, {}}};
    QCOMPARE(std::vector<Cell>(cells.begin(), cells.end()), expected);
}

void RowEncoderTest::sameCharacterAgain()
{
    RowEncoder encoder(western);
    for (int i = 0; i < 3; ++i) {
        const std::span<const Cell> cells = encoded(encoder, u"Ł中è"_s);
        QCOMPARE(cells.size(), std::size_t(3));
        QCOMPARE(cells[0].shown, u'Ł');
        QCOMPARE(cells[1].shown, u'?');
        QCOMPARE(cells[2].shown, u'è');
    }
}

// Characters whose codes differ by 256 share a place among those that were looked up lately.
void RowEncoderTest::charactersOfOnePlace()
{
    QCOMPARE(shown(western, u"\u00E9\u01E9\u00E9\u04E9\u00E9"_s), u"ékéӨé"_s.replace(u'Ө', u'?'));
}

void RowEncoderTest::width_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("ASCII") << u"abc"_s << 3;
    QTest::newRow("euro in three") << u"a €"_s << 5;
    QTest::newRow("euro that blanks make up for") << u"€   9"_s << 5;
    QTest::newRow("accent of its own") << u"e\u0301"_s << 1;
    QTest::newRow("control") << u"\u001B"_s << 1;
}

void RowEncoderTest::width()
{
    QFETCH(const QString, text);
    RowEncoder encoder(impact);
    QTEST(encoder.width(text), "columns");
}

QTEST_GUILESS_MAIN(RowEncoderTest)
#include "row_encoder_test.moc"
