#pragma once

#include "config.h"

#include <QXmlStreamReader>

namespace libconfig {

/*
 * Shows the visitor each token of an XML text, in the reader that holds it, as the store takes it: a prefix
 * is a part of a name. False when elements nest deeper than the store reads: the walk ends with the first of
 * these. A fault in the text ends it as well.
 */
template <typename Visitor>
bool walkXml(const QByteArray &text, Visitor visit)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd();) {
        reader.readNext();
        visit(std::as_const(reader));
        if (reader.isStartElement() && ++depth > Config::maximumNesting)
            return false;
        if (reader.isEndElement())
            --depth;
    }
    return true;
}

} // namespace libconfig
