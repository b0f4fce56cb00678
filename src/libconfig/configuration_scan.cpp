#include "configuration_scan.h"

#include "config.h"
#include "findings.h"
#include "xml_walk.h"

#include <QDomDocument>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Kind = Statement::Kind;

/* Cuts "cfg" text into pieces, and counts lines. */
class PieceReader
{
public:
    struct Piece
    {
        QString text; // without the blanks around it
        int line; // where the text begins or, when it is empty, the stop stands
        Span span;
        std::optional<char> stop; // empty at the end of the file
    };

    explicit PieceReader(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_rest(bytes)
    {
    }

    /* The text up to one of the stops, which is passed, or to the end of the file. */
    Piece takeTo(QByteArrayView stops)
    {
        const auto *const end = std::ranges::find_first_of(m_rest, stops);
        const QString bytes = QString::fromLatin1(m_rest.first(end - m_rest.begin()));
        const QString text = bytes.trimmed();
        const qsizetype blanks = text.isEmpty() ? bytes.size() : bytes.indexOf(text.front());
        const qsizetype begin = position() + blanks;
        Piece piece{text, m_line + lineEnds(bytes.first(blanks)), {begin, begin + text.size()}, {}};
        m_line += lineEnds(bytes);
        m_rest = m_rest.sliced(bytes.size());
        if (!m_rest.empty()) {
            piece.stop = m_rest.front();
            m_rest = m_rest.sliced(1);
        }
        return piece;
    }

    int currentLine() const { return m_line; }

    /* How many bytes have been taken. */
    qsizetype position() const { return m_bytes.size() - m_rest.size(); }

private:
    static int lineEnds(QStringView text) { return static_cast<int>(text.count(u'\n')); }

    QByteArrayView m_bytes;
    QByteArrayView m_rest;
    int m_line = 1;
};

/* Finds the tags of "xml" text, which is taken to be well-formed and to have neither declaration nor document
 * type, in bytes: the toolkit's reader counts characters. */
class TagFinder
{
public:
    explicit TagFinder(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    /* The next tag, behind comments and the like. */
    Span takeTag()
    {
        constexpr struct
        {
            QByteArrayView begin;
            QByteArrayView end;
        } passedOver[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}, {"<!", ">"}};
        for (;;) {
            m_at = find("<", m_at);
            const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_at);
            const auto *const markup = std::ranges::find_if(
                passedOver, [&](const auto &other) { return rest.startsWith(other.begin); });
            if (markup == std::end(passedOver))
                break;
            m_at = after(markup->end, m_at + markup->begin.size());
        }
        const qsizetype begin = m_at;
        while (m_at < m_bytes.size() && m_bytes[m_at] != '>')
            m_at = isQuote(m_bytes[m_at]) ? after({&m_bytes.constData()[m_at], 1}, m_at + 1) : m_at + 1;
        m_at = std::min(m_at + 1, m_bytes.size());
        return {begin, m_at};
    }

    /* Whether a tag begins an element and ends it. */
    bool isWholeElement(Span tag) const { return tag.size() > 2 && m_bytes[tag.end - 2] == '/'; }

    /* Finds the attributes of a tag one after another. */
    void enter(Span tag) { m_attributeAt = tag.begin; }

    struct Attribute
    {
        Span span;
        Span value;
    };
    Attribute takeAttribute()
    {
        const qsizetype equals = find("=", m_attributeAt);
        qsizetype end = equals;
        while (end > 0 && isBlank(m_bytes[end - 1]))
            --end;
        qsizetype begin = end;
        while (begin > 0 && !isBlank(m_bytes[begin - 1]))
            --begin;
        qsizetype quote = equals;
        while (quote < m_bytes.size() && !isQuote(m_bytes[quote]))
            ++quote;
        if (quote == m_bytes.size())
            return {};
        m_attributeAt = after({&m_bytes.constData()[quote], 1}, quote + 1);
        return {{begin, m_attributeAt}, {quote + 1, m_attributeAt - 1}};
    }

private:
    static bool isQuote(char c) { return c == '"' || c == '\''; }
    static bool isBlank(char c) { return QByteArrayView(" \t\r\n").contains(c); }

    qsizetype find(QByteArrayView text, qsizetype from) const
    {
        const qsizetype found = m_bytes.indexOf(text, from);
        return found < 0 ? m_bytes.size() : found;
    }
    qsizetype after(QByteArrayView text, qsizetype from) const
    {
        return std::min(find(text, from) + text.size(), m_bytes.size());
    }

    const QByteArray m_bytes;
    qsizetype m_at = 0;
    qsizetype m_attributeAt = 0;
};

QString xmlFault(const QString &reason)
{
    return Findings::tr("this is no well-formed XML, so nothing in it is read: %1").arg(reason);
}

} // namespace

Scan scanCfg(const QByteArray &text)
{
    Scan scan;
    const auto add = [&scan](Statement statement) { scan.statements.push_back(std::move(statement)); };
    const auto addText = [&add](Kind kind, const PieceReader::Piece &piece) {
        if (!piece.text.isEmpty())
            add({.kind = kind, .line = piece.line, .name = piece.text, .span = piece.span});
    };

    PieceReader reader(text);
    for (int depth = 0;;) {
        const PieceReader::Piece head = reader.takeTo(":=}");
        if (head.stop == ':') {
            const PieceReader::Piece skipped = reader.takeTo("{");
            add({.kind = Kind::sectionBegins,
                 .line = head.line,
                 .name = head.text,
                 .complete = skipped.stop.has_value(),
                 .span = {head.span.begin, reader.position()}});
            if (++depth > libconfig::Config::maximumNesting)
                return scan;
            addText(Kind::skippedText, skipped);
        } else if (head.stop == '=') {
            PieceReader::Piece value = reader.takeTo(";");
            add({.kind = Kind::setting,
                 .line = head.line,
                 .name = head.text,
                 .value = value.text.remove(u'"'),
                 .complete = value.stop.has_value(),
                 .span = {head.span.begin, value.stop ? reader.position() : value.span.end},
                 .valueSpan = value.span});
        } else if (head.stop == '}') {
            addText(Kind::leftoverText, head);
            const int line = reader.currentLine();
            const qsizetype brace = reader.position() - 1;
            const PieceReader::Piece skipped = reader.takeTo(";");
            add({.kind = Kind::sectionEnds,
                 .line = line,
                 .complete = skipped.stop.has_value(),
                 .span = {brace, reader.position()}});
            addText(Kind::skippedText, skipped);
            if (--depth < 0)
                return scan;
        } else {
            addText(Kind::leftoverText, head);
            return scan;
        }
    }
}

Scan scanXml(const QByteArray &text)
{
    Scan scan;
    // A tag begins where the token before it ends; only what stands before the root element is no token.
    int line = 1 + static_cast<int>(text.first(std::max(text.indexOf('<'), qsizetype{0})).count('\n'));

    TagFinder tags(text);
    Span tag;
    bool endsWithTag = false;
    const bool isShallow = libconfig::walkXml(text, [&](const QXmlStreamReader &reader) {
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            tag = tags.takeTag();
            tags.enter(tag);
            scan.statements.push_back({.kind = Kind::sectionBegins,
                                       .line = line,
                                       .name = reader.qualifiedName().toString(),
                                       .span = tag});
            for (const QXmlStreamAttribute &attribute : reader.attributes()) {
                const auto [span, value] = tags.takeAttribute();
                scan.statements.push_back({.kind = Kind::setting,
                                           .line = line,
                                           .name = attribute.qualifiedName().toString(),
                                           .value = attribute.value().toString(),
                                           .span = span,
                                           .valueSpan = value});
            }
            endsWithTag = tags.isWholeElement(tag);
            break;
        case QXmlStreamReader::EndElement:
            tag = std::exchange(endsWithTag, false) ? Span{tag.end, tag.end} : tags.takeTag();
            scan.statements.push_back({.kind = Kind::sectionEnds, .line = line, .span = tag});
            break;
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace())
                scan.statements.push_back(
                    {.kind = Kind::leftoverText, .line = line, .name = reader.text().trimmed().toString()});
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::ProcessingInstruction:
            scan.statements.push_back(
                {.kind = Kind::remark, .line = line, .name = reader.text().trimmed().toString()});
            break;
        default:
            break;
        }
        line = std::max(line, static_cast<int>(reader.lineNumber()));
    });
    if (!isShallow) {
        scan.fault = Findings::tr("sections nest deeper than %1, so nothing in the file is read")
                         .arg(libconfig::Config::maximumNesting);
        scan.faultLine = scan.statements.back().line;
        return scan;
    }

    QDomDocument document;
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const QDomDocument::ParseResult parsed = document.setContent(text);
    const QString reason = parsed.errorMessage;
    scan.faultLine = static_cast<int>(parsed.errorLine);
#else
    QString reason;
    const bool parsed = document.setContent(text, &reason, &scan.faultLine);
#endif
    if (parsed)
        scan.beginsWithRoot = document.firstChild().isElement();
    else
        scan.fault = xmlFault(reason);
    return scan;
}

QString recognizedKind(const QByteArray &text)
{
    QByteArrayView begin = text;
    while (!begin.empty() && QByteArrayView("\xEF\xBB\xBF\xFF\xFE \t\r\n\0", 10).contains(begin.front()))
        begin = begin.sliced(1);
    // Whoever knows no better begins a "cfg" file with such a comment.
    const bool isXml = begin.startsWith("<!--") ? scanXml(text).fault.isEmpty() : begin.startsWith('<');
    return isXml ? u"xml"_s : u"cfg"_s;
}

Scan scanConfiguration(const QByteArray &text, const QString &kind)
{
    return kind == "xml"_L1 ? scanXml(text) : scanCfg(text);
}
