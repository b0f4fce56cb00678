#include "bounded_document.h"

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::uintptr_t stackPosition()
{
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

// Of the calling thread, in bytes.
std::uintptr_t stackSize()
{
    // The system would look through all memory mappings for the size of the first thread's stack, which grows
    // up to its limit.
    if (gettid() == getpid()) {
        rlimit limit = {};
        getrlimit(RLIMIT_STACK, &limit);
        return limit.rlim_cur;
    }
    pthread_attr_t attributes;
    std::size_t size = 0;
    if (pthread_getattr_np(pthread_self(), &attributes) == 0) {
        pthread_attr_getstacksize(&attributes, &size);
        pthread_attr_destroy(&attributes);
    }
    return size;
}

bool beginsReference(QChar character)
{
    return character == u'&' || character == u'%';
}

/* A reference, without its semicolon, that text in which it may be cut anywhere is searched for. */
template <typename Found>
void forEachReference(QStringView text, qsizetype longest, QString &reference, const Found &found)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (beginsReference(text[i])) {
            reference = text[i];
        } else if (!reference.isEmpty()) {
            if (text[i] == u';') {
                if (!found(reference, i))
                    return;
                reference.clear();
            } else if (reference.size() < longest) {
                reference += text[i];
            } else {
                reference.clear();
            }
        }
    }
}

// With the text that follows where the entity is used, half a reference would become one that nobody counts.
bool endsInHalfReference(QStringView value, QChar begin)
{
    const qsizetype last = value.lastIndexOf(begin);
    return last >= 0 && value.indexOf(u';', last) < 0;
}

} // namespace

BoundedDocument::BoundedDocument(QIODevice &device)
    : QXmlInputSource(&device)
{
}

void BoundedDocument::fetchData()
{
    if (m_stackBase == 0) {
        m_stackBase = stackPosition();
        m_stackLimit = static_cast<std::intptr_t>(std::min<std::uintptr_t>(maximumStack, stackSize() / 2));
    }
    if (isTooDeep() || !m_excess.isEmpty()) {
        setData(QString());
        return;
    }
    QXmlInputSource::fetchData();
    m_text = data();
    m_before = m_after;
    if (const qsizetype length = countReferences(); length < m_text.size())
        setData(m_text.first(length));
}

bool BoundedDocument::descend()
{
    return !isTooDeep();
}

bool BoundedDocument::declare(const QString &entity, const QString &value)
{
    const QString reference = entity.startsWith(u'%') ? entity : u'&' + entity;
    m_entities.insert(reference, value);
    m_expandedLengths.clear();
    m_longestName = std::max(m_longestName, reference.size());

    // The reader looks for each name in each value, which takes some time for an empty one as well.
    constexpr qint64 eachComparison = 64;
    const qint64 count = m_entities.size();
    m_declaredCharacters += value.size();
    m_comparisons += m_declaredCharacters + count * (value.size() + eachComparison);
    if (m_comparisons > maximumComparisons)
        return exceed(u"too many entities are declared"_s);
    return countReferences() == m_text.size(); // it may be referred to later in the same text
}

bool BoundedDocument::isTooDeep()
{
    // Signed, as the reader may fetch its first data deeper than it calls from later.
    const auto depth = static_cast<std::intptr_t>(m_stackBase - stackPosition());
    return depth > m_stackLimit && !exceed(u"nested too deep"_s);
}

bool BoundedDocument::exceed(const QString &excess)
{
    if (m_excess.isEmpty())
        m_excess = excess;
    return false;
}

// Returns how much of the text can be read before its references expand to too much.
qsizetype BoundedDocument::countReferences()
{
    qsizetype length = m_text.size();
    m_after = m_before;
    if (m_entities.isEmpty())
        return length;
    forEachReference(m_text, m_longestName, m_after.openReference,
                     [&](const QString &reference, qsizetype end) {
                         m_after.length += expandedLength(reference, 0);
                         if (m_after.length <= maximumExpansion)
                             return true;
                         exceed(u"its entities expand to too much"_s);
                         length = end;
                         return false;
                     });
    return length;
}

// Predefined entities and those of characters are not declared and expand to nothing. What cannot be counted
// expands to too much.
qint64 BoundedDocument::expandedLength(const QString &entity, int depth)
{
    constexpr int deepest = 1000;
    constexpr qint64 tooMuch = maximumExpansion + 1;
    if (const auto known = m_expandedLengths.constFind(entity); known != m_expandedLengths.cend())
        return *known;
    const auto declared = m_entities.constFind(entity);
    if (declared == m_entities.cend())
        return 0;
    // Parameter entities alone are read where the percent sign means anything.
    if (depth > deepest || endsInHalfReference(*declared, u'&')
        || (entity.startsWith(u'%') && endsInHalfReference(*declared, u'%')))
        return tooMuch;

    m_expandedLengths.insert(entity, 0); // what comes back to itself is refused by the reader
    qint64 length = declared->size();
    QString reference;
    forEachReference(*declared, m_longestName, reference, [&](const QString &nested, qsizetype) {
        length = std::min(length + expandedLength(nested, depth + 1), tooMuch);
        return length < tooMuch;
    });
    m_expandedLengths.insert(entity, length);
    return length;
}
