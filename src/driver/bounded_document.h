#pragma once

#include <QHash>
#include <QString>
#include <QXmlInputSource>

#include <cstdint>

/*
 * A document as the reader's input, which ends where going on would exhaust the machine. The reader descends
 * into nested markup by recursion, compares each declared entity with all others, and holds in memory
 * whatever their references expand to. Only that counts here: what expands and descends, not what merely
 * looks like it. No document of a restaurant comes near these bounds.
 */
class BoundedDocument : public QXmlInputSource
{
public:
    /* Bytes of stack for the reader, more than 8,000 nested elements; but never more than half of what the
     * stack has. */
    static constexpr std::intptr_t maximumStack = 4L * 1024 * 1024;

    /* Characters that all references to declared entities expand to. */
    static constexpr qint64 maximumExpansion = 50'000'000;

    /* Comparisons of characters that the declarations cost the reader: about half a second of them. Some
     * 5,000 small entities, or 600 of 4,000 characters. */
    static constexpr qint64 maximumComparisons = 1'000'000'000;

    explicit BoundedDocument(QIODevice &device);

    /* Called by the reader for the next thousand characters or so. */
    void fetchData() override;

    /* To be called for each start tag, at the depth that the reader has reached; false when that is too deep.
     */
    bool descend();

    /* To be called for each declared entity, as the reader names it: a parameter entity with "%" in front.
     * False when reading on would exhaust the machine. */
    bool declare(const QString &entity, const QString &value);

    /* Which bound the document was beyond, in plain words; empty while it is within all. */
    const QString &excess() const { return m_excess; }

private:
    bool isTooDeep();
    bool exceed(const QString &excess);
    qsizetype countReferences();
    qint64 expandedLength(const QString &entity, int depth);

    std::uintptr_t m_stackBase = 0; // where the reader began
    std::intptr_t m_stackLimit = 0;

    QHash<QString, QString>
        m_entities; // their values by their references without the semicolon, such as "&name"
    QHash<QString, qint64> m_expandedLengths; // of those asked for
    qsizetype m_longestName = 0;
    qint64 m_declaredCharacters = 0;
    qint64 m_comparisons = 0;

    // What the references so far expand to, and the reference that the text ends in: before the text that was
    // fetched last, and after it.
    struct Expansion
    {
        qint64 length = 0;
        QString openReference = {};
    };
    QString m_text;
    Expansion m_before;
    Expansion m_after;

    QString m_excess;
};
