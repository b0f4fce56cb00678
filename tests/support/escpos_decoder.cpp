#include "escpos_decoder.h"

#include "reference_pages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class Decoder
{
public:
    Decoder(const QByteArray &bytes, const DecodedPrinter &printer)
        : m_bytes(bytes)
        , m_printer(printer)
    {
    }

    DecodedPrintout decode()
    {
        while (m_printout.fault.isEmpty() && m_at < m_bytes.size())
            step();
        if (m_printout.fault.isEmpty()) {
            m_begin = m_at;
            requireNormalState(u"the end"_s);
        }
        return m_printout;
    }

private:
    void step()
    {
        m_begin = m_at;
        const int first = next();
        if (m_printout.initialisations == 0 && first != 0x1B)
            return fail(u"something comes before the initialisation"_s);
        switch (first) {
        case 0x1B:
            return escape();
        case 0x1C:
            return fileSeparator();
        case 0x1D:
            return groupSeparator();
        case '\n':
            return endLine();
        default:
            return character(first);
        }
    }

    void escape()
    {
        switch (next()) {
        case '@':
            requireNormalState(u"an initialisation"_s);
            ++m_printout.initialisations;
            m_afterCut = false;
            m_bold = false;
            m_height = 1;
            m_page = -1;
            return command(u"initialise"_s);
        case 'R':
            if (next() != 0)
                return fail(u"a national set"_s);
            return command(u"international set"_s);
        case 't':
            m_page = next();
            if (!m_printer.pages.contains(m_page))
                return fail(u"code page %1, which the printer lacks"_s.arg(m_page));
            return command(u"code page %1 (%2)"_s.arg(m_page).arg(m_printer.pages.value(m_page)));
        case 'E':
            m_bold = flag();
            return command(m_bold ? u"bold on"_s : u"bold off"_s);
        case 'd':
            m_printout.isBlank = false;
            return command(u"feed %1"_s.arg(next()));
        case 'p': {
            const int connector = next();
            const int on = next();
            const int off = next();
            if (connector > 1 || on <= 0 || off <= 0)
                return fail(u"a pulse with wrong numbers"_s);
            requireNormalState(u"a pulse"_s);
            ++m_printout.pulses;
            const bool wasAfterCut = m_afterCut;
            m_afterCut = false;
            command(u"pulse on pin %1, %2 ms on, %3 ms off"_s.arg(connector == 0 ? 2 : 5)
                        .arg(2 * on)
                        .arg(2 * off));
            m_afterCut = wasAfterCut;
            return;
        }
        default:
            return fail(u"an unknown command"_s);
        }
    }

    void fileSeparator()
    {
        switch (next()) {
        case '.':
            return command(u"leave Kanji mode"_s);
        case 'p': {
            const int number = next();
            if (number == 0 || next() != 0)
                return fail(u"a stored logo with wrong numbers"_s);
            m_printout.isBlank = false;
            return command(u"stored logo %1"_s.arg(number));
        }
        default:
            return fail(u"an unknown command"_s);
        }
    }

    void groupSeparator()
    {
        switch (next()) {
        case '!':
            m_height = next() + 1;
            if (m_height < 1 || m_height > 2)
                return fail(u"another size than normal and double height"_s);
            return command(u"height %1"_s.arg(m_height));
        case 'V': {
            const int kind = next();
            if ((kind != 0x41 && kind != 0x42) || next() != 0)
                return fail(u"an unknown cut"_s);
            requireNormalState(u"a cut"_s);
            command(kind == 0x41 ? u"full cut"_s : u"partial cut"_s);
            ++m_printout.cuts;
            m_printout.isBlank = true;
            m_afterCut = true;
            return;
        }
        case 'v': {
            if (next() != '0' || next() != 0)
                return fail(u"an unknown raster"_s);
            if (!m_line.text.isEmpty())
                return fail(u"a raster in the middle of a line"_s);
            const int bytesPerRow = number();
            const int rows = number();
            if (bytesPerRow <= 0 || rows <= 0)
                return fail(u"an empty raster"_s);
            const qsizetype size = qsizetype(bytesPerRow) * rows;
            if (m_bytes.size() - m_at < size)
                return fail(u"a raster that is cut off"_s);
            m_at += size;
            m_printout.isBlank = false;
            return command(u"raster %1 x %2 dots"_s.arg(8 * bytesPerRow).arg(rows));
        }
        default:
            return fail(u"an unknown command"_s);
        }
    }

    void character(int byte)
    {
        if (m_afterCut)
            return fail(u"text after the cut"_s);
        char16_t shown = 0;
        if (byte >= 0x20 && byte < 0x7F)
            shown = static_cast<char16_t>(byte);
        else if (byte >= 0x80)
            shown = upperHalf(static_cast<std::size_t>(byte - 0x80));
        if (shown == 0)
            return fail(u"the stray byte %1"_s.arg(byte, 2, 16, QChar(u'0')));
        m_text += QChar(shown);
        m_line.text += QChar(shown);
        m_line.boldCharacters += m_bold ? 1 : 0;
        m_line.highCharacters += m_height > 1 ? 1 : 0;
    }

    char16_t upperHalf(std::size_t index) const
    {
        const QByteArray name = m_printer.pages.value(m_page).toLatin1();
        const auto *page =
            std::ranges::find(referencePages, std::string_view(name.constData()), &ReferencePage::name);
        return page == std::end(referencePages) ? u'\0' : page->characters[index];
    }

    void endLine()
    {
        if (m_afterCut)
            return fail(u"a line end after the cut"_s);
        m_printout.dump.append(u"line \""_s + m_text + u'"');
        m_printout.widestLine = std::max(m_printout.widestLine, static_cast<int>(m_line.text.size()));
        m_printout.printed.append(m_line);
        m_printout.isBlank = false;
        m_text.clear();
        m_line = {};
    }

    void command(const QString &name)
    {
        if (!m_printout.fault.isEmpty())
            return;
        if (m_afterCut)
            return fail(u"a command after the cut"_s);
        if (!m_text.isEmpty())
            m_printout.dump.append(u"text \""_s + m_text + u'"');
        m_text.clear();
        m_printout.dump.append(name);
        m_printout.commands.append(name);
    }

    void requireNormalState(const QString &before)
    {
        const bool isNormal = m_line.text.isEmpty() && !m_bold && m_height == 1
            && (m_page == -1 || m_page == m_printer.firstPage);
        if (!isNormal)
            fail(u"no normal state before "_s + before);
    }

    // The bytes are taken in order; beyond the end there are none.
    int next()
    {
        if (m_at < m_bytes.size())
            return static_cast<unsigned char>(m_bytes[m_at++]);
        fail(u"a command that is cut off"_s);
        return -1;
    }

    int number()
    {
        const int low = next();
        return low + 256 * next();
    }

    bool flag()
    {
        const int value = next();
        if (value > 1)
            fail(u"a switch that is neither on nor off"_s);
        return value == 1;
    }

    void fail(const QString &fault)
    {
        if (m_printout.fault.isEmpty())
            m_printout.fault = u"byte %1: "_s.arg(m_begin) + fault;
    }

    const QByteArray &m_bytes;
    const DecodedPrinter &m_printer;
    DecodedPrintout m_printout;
    qsizetype m_at = 0;
    qsizetype m_begin = 0; // of what is being read
    QString m_text; // since the last command
    DecodedPrintout::Line m_line;
    bool m_bold = false;
    int m_height = 1;
    int m_page = -1; // none was chosen
    bool m_afterCut = false;
};

} // namespace

QStringList DecodedPrintout::lines() const
{
    QStringList texts;
    for (const Line &line : printed)
        texts.append(line.text);
    return texts;
}

DecodedPrintout decodeEscpos(const QByteArray &bytes, const DecodedPrinter &printer)
{
    return Decoder(bytes, printer).decode();
}
