#include "row_encoder.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Replacement
{
    char16_t character;
    QLatin1StringView ascii;
};

// Of characters that are no letter with marks, and have no plainer form in the standard.
constexpr Replacement replacements[] = {
    {u'€', "EUR"_L1}, {u'ł', "l"_L1},   {u'Ł', "L"_L1},   {u'đ', "d"_L1},   {u'Đ', "D"_L1},  {u'ø', "o"_L1},
    {u'Ø', "O"_L1},   {u'æ', "ae"_L1},  {u'Æ', "AE"_L1},  {u'œ', "oe"_L1},  {u'Œ', "OE"_L1}, {u'ß', "ss"_L1},
    {u'ẞ', "SS"_L1},  {u'ı', "i"_L1},   {u'ħ', "h"_L1},   {u'Ħ', "H"_L1},   {u'ð', "d"_L1},  {u'Ð', "D"_L1},
    {u'þ', "th"_L1},  {u'Þ', "Th"_L1},  {u'„', "\""_L1},  {u'“', "\""_L1},  {u'”', "\""_L1}, {u'‟', "\""_L1},
    {u'«', "\""_L1},  {u'»', "\""_L1},  {u'″', "\""_L1},  {u'‚', "'"_L1},   {u'‘', "'"_L1},  {u'’', "'"_L1},
    {u'‛', "'"_L1},   {u'‹', "'"_L1},   {u'›', "'"_L1},   {u'′', "'"_L1},   {u'´', "'"_L1},  {u'ʼ', "'"_L1},
    {u'‐', "-"_L1},   {u'‑', "-"_L1},   {u'‒', "-"_L1},   {u'–', "-"_L1},   {u'—', "-"_L1},  {u'―', "-"_L1},
    {u'−', "-"_L1},   {u'…', "..."_L1}, {u'™', "TM"_L1},  {u'•', "*"_L1},   {u'·', "."_L1},  {u'×', "x"_L1},
    {u'⁄', "/"_L1},   {u'∕', "/"_L1},   {u'©', "(C)"_L1}, {u'®', "(R)"_L1},
};

// Below these marks begin: each character is printed by itself, in whatever company.
bool standsAlone(QChar character)
{
    return character < QChar(0x0300);
}

bool isControl(char16_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

bool isPlainAscii(QChar character)
{
    return character >= QChar(0x20) && character < QChar(0x7F);
}

// How many characters at the beginning of the text are printed as they stand.
qsizetype asciiLength(QStringView text)
{
    return std::ranges::find_if_not(text, isPlainAscii) - text.begin();
}

// How many dots or blanks, with which a row fills its columns, there are at the beginning of the text. A dot
// by itself is the text's own, as in a price.
qsizetype fillLength(QStringView text)
{
    if (text.front() != u' ' && text.front() != u'.')
        return 0;
    const qsizetype length =
        std::ranges::find_if(text, [&](QChar c) { return c != text.front(); }) - text.begin();
    return text.front() == u' ' || length > 1 ? length : 0;
}

QString withoutMarks(QString text)
{
    return text.removeIf([](QChar c) { return c.isMark(); });
}

// Takes letters and their marks apart, and what stands for several letters.
QString plainLetters(const QString &text)
{
    return withoutMarks(text.normalized(QString::NormalizationForm_KD));
}

} // namespace

void StyledLine::append(QStringView text, TextStyle style)
{
    m_text += text;
    if (!m_runs.empty() && m_runs.back().style == style)
        m_runs.back().end = m_text.size();
    else
        m_runs.push_back({m_text.size(), style});
}

void StyledLine::clear()
{
    m_text.resize(0); // keeps its memory for the next line
    m_runs.clear();
}

RowEncoder::RowEncoder(std::span<const CodePage> pages)
    : m_pages(pages.begin(), pages.end())
{
}

std::span<const Cell> RowEncoder::encode(const StyledLine &line)
{
    const QStringView text = line.text();
    std::optional<QTextBoundaryFinder> clusters;
    if (!std::ranges::all_of(text, standsAlone))
        clusters.emplace(QTextBoundaryFinder::Grapheme, line.text());

    m_cells.clear();
    qsizetype missing = 0; // columns that the layout counted and the cells so far do not fill
    qsizetype begin = 0;
    for (const StyledLine::Run &run : line.runs()) {
        const TextStyle style = run.style;
        while (begin < run.end) {
            const QStringView rest = text.sliced(begin, run.end - begin);
            if (const qsizetype fill = missing == 0 ? 0 : fillLength(rest); fill > 0) {
                const qsizetype filled = std::max<qsizetype>(fill + missing, 1);
                const char16_t character = rest.front().unicode();
                m_cells.insert(m_cells.end(), static_cast<std::size_t>(filled),
                               {character, static_cast<quint8>(character), 0, style});
                missing -= filled - fill;
                begin += fill;
            } else if (const qsizetype ascii = clusters || missing != 0 ? 0 : asciiLength(rest); ascii > 0) {
                std::ranges::transform(rest.first(ascii), std::back_inserter(m_cells), [style](QChar c) {
                    return Cell{c.unicode(), static_cast<quint8>(c.unicode()), 0, style};
                });
                begin += ascii;
            } else {
                const char16_t character = rest.front().unicode();
                qsizetype end = begin + 1;
                if (clusters && !isControl(character)) {
                    clusters->setPosition(begin);
                    end = clusters->toNextBoundary();
                }
                const Glyphs glyphs = end - begin == 1 ? characterGlyphs(character)
                                                       : clusterGlyphs(text.sliced(begin, end - begin));
                for (const auto &[shown, byte, page] : std::span(glyphs.columns).first(glyphs.count))
                    m_cells.push_back({shown, byte, page, style});
                missing += end - begin - glyphs.count;
                begin = end;
            }
        }
    }
    return m_cells;
}

int RowEncoder::width(QStringView text)
{
    if (std::ranges::all_of(text, [](QChar c) { return c < QChar(0x80); }))
        return static_cast<int>(text.size());
    m_measured.clear();
    m_measured.append(text, {});
    return static_cast<int>(encode(m_measured).size());
}

const RowEncoder::Glyphs &RowEncoder::characterGlyphs(char16_t character)
{
    static constexpr Glyphs questionMark = {u'?', 1, {{{u'?', '?', 0}}}};
    if (isControl(character))
        return questionMark;

    Glyphs &known = m_lately[character % m_lately.size()];
    if (known.character == character)
        return known;
    known = {.character = character};
    const QString text = QString(QChar(character)).normalized(QString::NormalizationForm_C);
    if (!append(known, text) && !append(known, plainLetters(text)))
        append(known, u'?');
    return known;
}

RowEncoder::Glyphs RowEncoder::clusterGlyphs(QStringView cluster)
{
    const QString text = cluster.toString().normalized(QString::NormalizationForm_C);
    if (text.size() == 1)
        return characterGlyphs(text.front().unicode());
    Glyphs glyphs;
    if (!append(glyphs, withoutMarks(text)) && !append(glyphs, plainLetters(text)))
        append(glyphs, u'?');
    return glyphs;
}

bool RowEncoder::append(Glyphs &glyphs, QStringView text)
{
    Glyphs longer = glyphs;
    if (!std::ranges::all_of(text, [&](QChar c) { return append(longer, c.unicode()); }))
        return false;
    glyphs = longer;
    return true;
}

bool RowEncoder::append(Glyphs &glyphs, char16_t character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Other_Format) // takes no place in a line
        return true;
    if (category == QChar::Other_Control)
        return false;
    if (category == QChar::Separator_Space)
        character = u' ';

    if (character < 0x80)
        return append(glyphs, {character, static_cast<quint8>(character), 0});
    for (std::size_t page = 0; page < m_pages.size(); ++page)
        if (const quint8 byte = m_pages[page].byte(character))
            return append(glyphs, {character, byte, static_cast<quint8>(page)});
    const auto *replacement = std::ranges::find(replacements, character, &Replacement::character);
    return replacement != std::end(replacements) && append(glyphs, QString(replacement->ascii));
}

bool RowEncoder::append(Glyphs &glyphs, Glyph glyph)
{
    if (glyphs.count == Glyphs::most)
        return false;
    glyphs.columns[glyphs.count++] = glyph;
    return true;
}
