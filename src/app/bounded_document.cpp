#include "bounded_document.h"

namespace {

std::uintptr_t stackPosition()
{
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

} // namespace

BoundedDocument::BoundedDocument(QIODevice *device)
    : QXmlInputSource(device)
    , stackBase(stackPosition())
{
}

// Called by the reader, at the depth it has reached, for every thousand characters or so.
void BoundedDocument::fetchData()
{
    QXmlInputSource::fetchData();
    if (entities > 0)
        references += data().count(u'&') + data().count(u'%');
    if (references > maximumReferences || stackBase - stackPosition() > maximumStack)
        setData(QString());
}

// Markup would let the reader descend without fetching.
bool BoundedDocument::internalEntityDecl(const QString &, const QString &value)
{
    return ++entities <= maximumEntities && value.size() <= longestEntity && !value.contains(u'<');
}
