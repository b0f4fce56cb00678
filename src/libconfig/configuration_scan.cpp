#include "configuration_scan.h"

#include "config.h"
#include "xml_walk.h"

#include <QDomDocument>

#include <algorithm>
#include <optional>

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
        std::optional<char> stop; // empty at the end of the file
    };

    explicit PieceReader(const QByteArray &bytes)
        : m_rest(bytes)
    {
    }

    /* The text up to one of the stops, which is passed, or to the end of the file. */
    Piece takeTo(QByteArrayView stops)
    {
        const auto *const end = std::ranges::find_first_of(m_rest, stops);
        const QString bytes = QString::fromLatin1(m_rest.first(end - m_rest.begin()));
        const QString text = bytes.trimmed();
        const qsizetype blanks = text.isEmpty() ? bytes.size() : bytes.indexOf(text.front());
        Piece piece{text, m_line + lineEnds(bytes.first(blanks)), {}};
        m_line += lineEnds(bytes);
        m_rest = m_rest.sliced(bytes.size());
        if (!m_rest.empty()) {
            piece.stop = m_rest.front();
            m_rest = m_rest.sliced(1);
        }
        return piece;
    }

    int currentLine() const { return m_line; }

private:
    static int lineEnds(QStringView text) { return static_cast<int>(text.count(u'\n')); }

    QByteArrayView m_rest;
    int m_line = 1;
};

QString xmlFault(const QString &reason)
{
    return "this is no well-formed XML, so nothing in it is read: "_L1 + reason;
}

} // namespace

Scan scanCfg(const QByteArray &text)
{
    Scan scan;
    const auto add = [&scan](Statement statement) { scan.statements.push_back(std::move(statement)); };
    const auto addText = [&add](Kind kind, const PieceReader::Piece &piece) {
        if (!piece.text.isEmpty())
            add({kind, piece.line, piece.text});
    };

    PieceReader reader(text);
    for (int depth = 0;;) {
        const PieceReader::Piece head = reader.takeTo(":=}");
        if (head.stop == ':') {
            const PieceReader::Piece skipped = reader.takeTo("{");
            add({Kind::sectionBegins, head.line, head.text, {}, skipped.stop.has_value()});
            if (++depth > libconfig::Config::maximumNesting)
                return scan;
            addText(Kind::skippedText, skipped);
        } else if (head.stop == '=') {
            PieceReader::Piece value = reader.takeTo(";");
            add({Kind::setting, head.line, head.text, value.text.remove(u'"'), value.stop.has_value()});
        } else if (head.stop == '}') {
            addText(Kind::leftoverText, head);
            add({Kind::sectionEnds, reader.currentLine()});
            addText(Kind::skippedText, reader.takeTo(";"));
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

    const bool isShallow = libconfig::walkXml(text, [&](const QXmlStreamReader &reader) {
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            scan.statements.push_back({Kind::sectionBegins, line, reader.qualifiedName().toString()});
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                scan.statements.push_back({Kind::setting, line, attribute.qualifiedName().toString(),
                                           attribute.value().toString()});
            break;
        case QXmlStreamReader::EndElement:
            scan.statements.push_back({Kind::sectionEnds, line});
            break;
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace())
                scan.statements.push_back({Kind::leftoverText, line, reader.text().trimmed().toString()});
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::ProcessingInstruction:
            scan.statements.push_back({Kind::remark, line, reader.text().trimmed().toString()});
            break;
        default:
            break;
        }
        line = std::max(line, static_cast<int>(reader.lineNumber()));
    });
    if (!isShallow) {
        scan.fault = u"sections nest deeper than %1, so nothing in the file is read"_s.arg(
            libconfig::Config::maximumNesting);
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

Scan scanConfiguration(const QByteArray &text, const QString &kind)
{
    return kind == "xml"_L1 ? scanXml(text) : scanCfg(text);
}
