#pragma once

#include "bounded_document.h"

#include <vector>

/*
 * A document as the reader's input that knows in which lines, from 1, the names of the start tag stand that
 * was read last; the reader itself only knows where it has got to.
 */
class LocatedDocument : public BoundedDocument
{
public:
    using BoundedDocument::BoundedDocument;

    /* Called by the reader for each character. */
    QChar next() override;

    // To be asked while the reader reports the start tag. What an entity brought in stands in the line of
    // its reference.
    int lineOfElement(const QString &name) const;
    int lineOfAttribute(const QString &element, const QString &name) const;

    /* The line in which the text begins that the reader reports. */
    int lineOfText() const { return m_textLine == 0 ? m_line : m_textLine; }

private:
    struct Name
    {
        QString text;
        int line;
    };
    using Tag = std::vector<Name>; // the element's name and those of the attributes

    enum class State { text, markupBegins, tag, declaration, skipped };

    const Tag &tag() const;
    void follow(QChar character);
    void followMarkup(QChar character);
    void followTag(QChar character);
    void followDeclaration(QChar character);
    bool followQuotes(QChar character);

    State m_state = State::text;
    int m_line = 1;
    int m_textLine = 0; // 0: only blanks since the last tag
    QChar m_quote; // within quotes
    bool m_inName = false;
    QString m_skipEnd; // of a comment and the like
    QString m_skipped; // its last characters, or the first ones of a declaration
    Tag m_openTag;
    Tag m_tag;
    bool m_inNext = false;
};
