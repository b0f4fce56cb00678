#include "config.h"

#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

// A dotted key's first component, and what follows the dot after it.
QStringView head(QStringView key)
{
    const qsizetype dot = key.indexOf(u'.');
    return dot < 0 ? key : key.first(dot);
}

QStringView tail(QStringView key)
{
    const qsizetype dot = key.indexOf(u'.');
    return dot < 0 ? QStringView() : key.sliced(dot + 1);
}

QString valueBelow(const QDomNode &node, QStringView key)
{
    const QDomElement section = node.toElement();
    if (section.isNull() || head(key) != section.tagName())
        return {};

    const QStringView rest = tail(key);
    if (head(tail(rest)).isEmpty()) // an empty third component ends the key, whatever follows it
        return section.attribute(head(rest).toString());

    for (QDomNode child = section.firstChild(); !child.isNull(); child = child.nextSibling())
        if (QString value = valueBelow(child, rest); !value.isEmpty())
            return value;
    return {};
}

// The names of an element's attributes. To ask the tree for each by its number takes quadratic time, and
// saving them does not, so they are taken from a saved copy: <tag name="value" name="value"/>, where no value
// holds a quote. Only a name that holds "=" is not found in it.
QStringList savedNames(const QDomElement &element)
{
    QString text;
    QTextStream stream(&text);
    element.cloneNode(false).save(stream, 0);

    QStringList names;
    qsizetype name = 1 + element.tagName().size() + 1;
    for (;;) {
        const qsizetype nameEnd = text.indexOf(u'=', name);
        const qsizetype valueEnd = text.indexOf(u'"', nameEnd + 2);
        if (nameEnd < 0 || valueEnd < 0)
            return names;
        names.append(text.sliced(name, nameEnd - name));
        name = valueEnd + 2;
    }
}

QStringList numberedNames(const QDomNamedNodeMap &attributes)
{
    QStringList names;
    for (int i = 0; i < attributes.length(); ++i)
        names.append(attributes.item(i).nodeName());
    return names;
}

void collectSectionNames(const QDomNode &node, QStringView key, QStringList &names)
{
    const QDomElement section = node.toElement();
    if (section.isNull() || head(key) != section.tagName())
        return;
    const QStringView rest = tail(key);
    for (QDomElement child = section.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        if (!rest.isEmpty())
            collectSectionNames(child, rest, names);
        else if (!names.contains(child.tagName()))
            names.append(child.tagName());
}

} // namespace

Config::Config() = default;

Config::Config(const QString &file, const QString &type)
{
    constructor(file, type);
}

Config::~Config() = default;

void Config::readFile(const QString &file, const QString &type)
{
    constructor(file, type);
}

void Config::constructor(const QString &file, const QString &type)
{
    begin(file, type);
    if (type == "cfg"_L1)
        loadFile();
    else if (type == "xml"_L1)
        loadXmlFile();
}

void Config::readText(const QByteArray &text, const QString &type)
{
    begin({}, type);
    if (type == "cfg"_L1) {
        m_text.str(text.toStdString());
        m_inputStream.rdbuf(&m_text);
        loadStatements();
    } else if (type == "xml"_L1) {
        loadXmlText(text);
    }
}

void Config::begin(const QString &file, const QString &type)
{
    m_fileName = file;
    m_fileType = type;
    // Named, though without a name: a document made otherwise is a null node, which takes no children.
    m_document = std::make_unique<QDomDocument>(QString());
}

QDomElement Config::newRootElement() const
{
    return m_document->createElement(m_fileName.isEmpty() ? u"-"_s : m_fileName); // none has an empty name
}

// The readers append the element named after the file last. In an "xml" file that begins with a declaration
// or a comment the file's own root element is left standing before it, and must not answer in its place.
QDomElement Config::rootElement() const
{
    return m_document ? m_document->lastChildElement() : QDomElement();
}

// The tree keeps attributes in a hash whose order differs from run to run; what is shown or written comes in
// the order of the names, so that it compares well with what was written before.
QList<QDomAttr> Config::settings(const QDomNode &node)
{
    const QDomNamedNodeMap attributes = node.attributes();
    if (attributes.isEmpty())
        return {};
    QStringList names = savedNames(node.toElement());
    names.removeIf([&](const QString &name) { return !attributes.contains(name); });
    if (names.size() != attributes.length() || names.removeDuplicates() > 0)
        names = numberedNames(attributes);
    std::ranges::sort(names);

    QList<QDomAttr> sorted;
    for (const QString &name : std::as_const(names))
        sorted.append(attributes.namedItem(name).toAttr());
    return sorted;
}

Section Config::content() const
{
    return contentOf(rootElement());
}

Section Config::contentOf(const QDomElement &element)
{
    Section section{element.tagName(), {}, {}};
    for (const QDomAttr &setting : settings(element))
        section.settings.insert(setting.name(), setting.value());
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        section.sections.push_back(contentOf(child));
    return section;
}

QString Config::lookup(const QString &key) const
{
    return lookup(rootElement().firstChild(), key);
}

QString Config::lookup(const QDomNode &node, const QString &key) const
{
    return valueBelow(node, key);
}

QStringList Config::sectionNames(const QString &key) const
{
    QStringList names;
    collectSectionNames(rootElement().firstChild(), key, names);
    return names;
}

} // namespace libconfig
