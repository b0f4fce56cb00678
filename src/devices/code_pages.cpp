#include "code_pages.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct NamedPage
{
    CodePage page;
    QLatin1StringView name;
    const char *encoding;
};

constexpr NamedPage namedPages[] = {
    {CodePage::cp437, "437"_L1, "CP437"},    {CodePage::cp850, "850"_L1, "CP850"},
    {CodePage::cp852, "852"_L1, "CP852"},    {CodePage::cp858, "858"_L1, "CP858"},
    {CodePage::cp866, "866"_L1, "CP866"},    {CodePage::cp1250, "1250"_L1, "CP1250"},
    {CodePage::cp1251, "1251"_L1, "CP1251"}, {CodePage::cp1252, "1252"_L1, "CP1252"},
    {CodePage::cp1253, "1253"_L1, "CP1253"}, {CodePage::cp1254, "1254"_L1, "CP1254"},
    {CodePage::cp1257, "1257"_L1, "CP1257"}, {CodePage::iso8859_15, "8859-15"_L1, "ISO-8859-15"},
};

const NamedPage &named(CodePage page)
{
    return *std::ranges::find(namedPages, page, &NamedPage::page);
}

// Where the toolkit's tables are not those of printers; 0 stands for no byte.
struct Correction
{
    CodePage page;
    char16_t character;
    quint8 byte;
};

constexpr Correction corrections[] = {
    {CodePage::cp437, u'µ', 0xE6},
    {CodePage::cp852, u'¬', 0xAA},
    {CodePage::cp1253, u'ª', 0},
};

} // namespace

QLatin1StringView codePageName(CodePage page)
{
    return named(page).name;
}

std::optional<CodePage> codePageOfName(QStringView name)
{
    const auto *page =
        std::ranges::find_if(namedPages, [name](const NamedPage &known) { return known.name == name; });
    return page == std::end(namedPages) ? std::nullopt : std::optional(page->page);
}

CodePageEncoder::CodePageEncoder(CodePage page)
    : m_page(page)
{
}

quint8 CodePageEncoder::byte(char16_t character)
{
    for (const auto &[page, corrected, byte] : corrections)
        if (page == m_page && corrected == character)
            return byte;
    if (!m_encoder)
        m_encoder.emplace(named(m_page).encoding, QStringConverter::Flag::Stateless);
    const QByteArray bytes = (*m_encoder)(QStringView(&character, 1));
    // For what it lacks the encoder writes a control character. Its hasError stays true from then on.
    const auto byte = bytes.size() == 1 ? static_cast<quint8>(bytes.front()) : quint8(0);
    return byte < 0x80 ? 0 : byte;
}
