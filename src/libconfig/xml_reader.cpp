#include "config.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace libconfig {

namespace {

// Building and destroying a tree takes stack (and, building, quadratic time) by its depth.
bool nestsDeeperThan(int limit, const QByteArray &text)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false); // the tree is built without, so no prefix ends the count
    for (int depth = 0; !reader.atEnd();) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > limit)
            return true;
        if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return false;
}

} // namespace

// The document's first node is moved below a new root element named after the file, which gives the same
// shape as the "cfg" kind. When that node is a declaration or a comment, no lookup finds anything.
void Config::loadXmlFile()
{
    QFile file(fileName);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QByteArray text = file.readAll();
    if (nestsDeeperThan(maximumNesting, text))
        return;
    if (!document->setContent(text)) {
        document->clear();
        return;
    }

    QDomElement root = document->createElement(fileName);
    root.appendChild(document->firstChild());
    document->appendChild(root);
}

} // namespace libconfig
