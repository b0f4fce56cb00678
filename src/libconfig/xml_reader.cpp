#include "config.h"
#include "read_file.h"

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
    const QByteArray text = readRegularFile(m_fileName).bytes;
    if (nestsDeeperThan(maximumNesting, text))
        return;
    if (!m_document->setContent(text)) {
        m_document->clear();
        return;
    }

    QDomElement root = m_document->createElement(m_fileName);
    root.appendChild(m_document->firstChild());
    m_document->appendChild(root);
}

} // namespace libconfig
