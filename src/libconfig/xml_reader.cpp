#include "config.h"
#include "read_file.h"
#include "xml_walk.h"

namespace libconfig {

// The document's first node is moved below a new root element named after the file, which gives the same
// shape as the "cfg" kind. When that node is a declaration or a comment, no lookup finds anything.
void Config::loadXmlText(const QByteArray &text)
{
    // Building and destroying a tree takes stack (and, building, quadratic time) by its depth.
    if (!walkXml(text, [](const QXmlStreamReader &) {}))
        return;
    if (!m_document->setContent(text)) {
        m_document->clear();
        return;
    }

    QDomElement root = newRootElement();
    root.appendChild(m_document->firstChild());
    m_document->appendChild(root);
}

void Config::loadXmlFile()
{
    loadXmlText(readRegularFile(m_fileName).bytes);
}

} // namespace libconfig
