#include "located_document.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

QChar LocatedDocument::next()
{
    // The input calls itself once more when it has fetched data.
    const bool outermost = !std::exchange(m_inNext, true);
    const QChar character = BoundedDocument::next();
    if (outermost) {
        m_inNext = false;
        if (character != QChar(EndOfData) && character != QChar(EndOfDocument))
            follow(character);
    }
    return character;
}

int LocatedDocument::lineOfElement(const QString &name) const
{
    return tag().empty() || tag().front().text != name ? m_line : tag().front().line;
}

int LocatedDocument::lineOfAttribute(const QString &element, const QString &name) const
{
    const auto found = std::ranges::find(tag(), name, &Name::text);
    return found == tag().end() || tag().front().text != element ? lineOfElement(element) : found->line;
}

// The reader reports a tag that ends in "/>" at its slash, and others when it has read at least their end.
const LocatedDocument::Tag &LocatedDocument::tag() const
{
    return m_state == State::tag ? m_openTag : m_tag;
}

void LocatedDocument::follow(QChar character)
{
    switch (m_state) {
    case State::text:
        if (character == u'<')
            m_state = State::markupBegins;
        else if (m_textLine == 0 && !character.isSpace())
            m_textLine = m_line;
        break;
    case State::markupBegins:
        followMarkup(character);
        break;
    case State::tag:
        followTag(character);
        break;
    case State::declaration:
        followDeclaration(character);
        break;
    case State::skipped:
        m_skipped = (m_skipped + character).right(m_skipEnd.size());
        if (m_skipped == m_skipEnd)
            m_state = State::text;
        break;
    }
    if (character == u'\n')
        ++m_line;
}

void LocatedDocument::followMarkup(QChar character)
{
    m_skipped.clear();
    if (character == u'!') {
        m_state = State::declaration;
    } else if (character == u'?') {
        m_skipEnd = u"?>"_s;
        m_state = State::skipped;
    } else {
        m_openTag.clear();
        m_inName = false;
        m_state = State::tag;
        followTag(character);
    }
}

void LocatedDocument::followTag(QChar character)
{
    if (followQuotes(character))
        return;
    if (character == u'>') {
        m_tag = std::move(m_openTag);
        m_textLine = 0;
        m_state = State::text;
    } else if (character.isSpace() || character == u'=' || character == u'/') {
        m_inName = false;
    } else if (std::exchange(m_inName, true)) {
        m_openTag.back().text += character;
    } else {
        m_openTag.push_back({character, m_line});
    }
}

void LocatedDocument::followDeclaration(QChar character)
{
    constexpr qsizetype longestBegin = 7;
    if (m_skipped.size() < longestBegin)
        m_skipped += character;
    if (m_skipped == "--"_L1 || m_skipped == "[CDATA["_L1) {
        m_skipEnd = m_skipped == "--"_L1 ? u"-->"_s : u"]]>"_s;
        m_skipped.clear();
        m_state = State::skipped;
    } else if (!followQuotes(character)
               && (character == u'>' || (character == u'[' && m_skipped.size() > 1))) {
        m_state = State::text; // or within the declaration of the type, whose own declarations follow
    }
}

// True within quotes and at their ends.
bool LocatedDocument::followQuotes(QChar character)
{
    if (m_quote.isNull()) {
        if (character != u'"' && character != u'\'')
            return false;
        m_quote = character;
        m_inName = false;
    } else if (character == m_quote) {
        m_quote = QChar();
    }
    return true;
}
