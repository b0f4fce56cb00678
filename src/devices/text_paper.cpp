#include "text_paper.h"

#include "print_output.h"

#include <algorithm>
#include <array>

TextPaper::TextPaper(int columns)
    : m_columns(columns)
{
}

int TextPaper::columns() const
{
    return m_columns;
}

int TextPaper::width(QStringView text) const
{
    return static_cast<int>(text.size());
}

bool TextPaper::takesControlCharacters() const
{
    return true;
}

void TextPaper::begin(PrintOutput &output)
{
    m_output = &output;
}

void TextPaper::text(QStringView text, TextStyle)
{
    // Room for any text of this length, whatever the encoder kept from the one before.
    constexpr qsizetype atOnce = 512;
    std::array<char, 4 * atOnce> bytes;
    for (; !text.isEmpty(); text = text.sliced(std::min(text.size(), atOnce))) {
        const char *const end =
            m_encoder.appendToBuffer(bytes.data(), text.first(std::min(text.size(), atOnce)));
        m_output->write({bytes.data(), end});
    }
}

void TextPaper::endLine()
{
    text(u"\n", {});
}

void TextPaper::logo() { }

void TextPaper::cut() { }

void TextPaper::openDrawer() { }

void TextPaper::end(Ending, int) { }
