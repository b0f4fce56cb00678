#include "text_printout.h"

#include "print_output.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

// What stands in a column of its own in a font of one width, and from left to right.
bool takesOneColumn(QChar character)
{
    const char16_t code = character.unicode();
    if (code < 0x7F)
        return code >= 0x20;
    const bool isInEvenBlock = code < 0x0590 || (code >= 0x1E00 && code < 0x2600);
    return (isInEvenBlock
            && (character.isPrint() && !character.isMark() && character.category() != QChar::Other_Format))
        || code == QChar::ReplacementCharacter;
}

struct CodeRange
{
    char32_t first;
    char32_t last;
};

// The blocks of wide characters: East Asia's, and pictures.
constexpr CodeRange wideBlocks[] = {
    {0x1100, 0x115F},   {0x2E80, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},   {0x1F1E6, 0x1F1FF}, {0x1F300, 0x1F64F},
    {0x1F680, 0x1F6FF}, {0x1F900, 0x1FAFF}, {0x20000, 0x3FFFD},
};

bool isWide(QStringView character)
{
    return std::ranges::any_of(character.toUcs4(), [](char32_t code) {
        return std::ranges::any_of(
            wideBlocks, [code](CodeRange block) { return code >= block.first && code <= block.last; });
    });
}

// What stands for a character that shows nothing, or is only half of one.
QString shown(QStringView text)
{
    QString shown = text.toString();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const bool isHalf = shown[i].isSurrogate()
            && !(shown[i].isHighSurrogate() ? i + 1 < shown.size() && shown[i + 1].isLowSurrogate()
                                            : i > 0 && shown[i - 1].isHighSurrogate());
        if (isHalf || shown[i].category() == QChar::Other_Control)
            shown[i] = QChar::ReplacementCharacter;
    }
    return shown;
}

} // namespace

TextPrintout::TextPrintout(Printout &printout, int columns)
    : PrintoutPaper(printout, columns)
{
}

int TextPrintout::columns() const
{
    return CompanyPrinterDriver::deviceColumns;
}

int TextPrintout::width(QStringView text) const
{
    return static_cast<int>(text.size());
}

bool TextPrintout::takesControlCharacters() const
{
    return true;
}

void TextPrintout::text(QStringView text, TextStyle)
{
    if (std::ranges::all_of(text, takesOneColumn)) {
        addCharacters(text, {});
        return;
    }
    const QString characters = shown(text);
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, characters);
    for (qsizetype begin = 0, end = 0; (end = boundaries.toNextBoundary()) > 0; begin = end) {
        const QStringView character = QStringView(characters).sliced(begin, end - begin);
        if (character.size() == 1 && takesOneColumn(character.front()))
            addCharacters(character, {});
        else
            addSingle(character.toString(), isWide(character) ? 2 : 1, {});
    }
}

void TextPrintout::logo() { }

void TextPrintout::cut() { }

void TextPrintout::end(Ending ending, int)
{
    PrintoutPaper::end(ending, 1);
}

PreviewedCompanyPrinter::PreviewedCompanyPrinter(const TXConfiguration &settings, Printout &printout,
                                                 int paperColumns)
    : CompanyPrinterDriver(
        settings, nullptr,
        std::make_unique<TextPrintout>(printout, paperColumns > 0 ? paperColumns : deviceColumns))
    , m_printout(printout)
    , m_paperColumns(paperColumns)
{
}

void PreviewedCompanyPrinter::openCashDrawer()
{
    generatePulse();
}

void PreviewedCompanyPrinter::startSection()
{
    if (m_paperColumns == 0 && profile.paperWidth > 0)
        m_printout.setColumns(profile.paperWidth);
}
