#include "config.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

// A dotted key's first component, and what follows the dot behind it.
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
    fileName = file;
    fileType = type;
    document = std::make_unique<QDomDocument>();
    if (type == "cfg"_L1)
        loadFile();
    else if (type == "xml"_L1)
        loadXmlFile();
}

// The readers append the element named after the file last. In an "xml" file that begins with a declaration
// or a comment the file's own root element is left standing before it, and must not answer in its place.
QDomElement Config::rootElement() const
{
    return document ? document->lastChildElement() : QDomElement();
}

// The tree keeps attributes in a hash whose order differs from run to run; what is shown or written comes in
// the order of the names, so that it compares well with what was written before.
QList<QDomAttr> Config::settings(const QDomNode &node)
{
    const QDomNamedNodeMap attributes = node.attributes();
    QList<QDomAttr> sorted;
    sorted.reserve(attributes.length());
    for (int i = 0; i < attributes.length(); ++i)
        sorted.append(attributes.item(i).toAttr());
    std::ranges::sort(sorted, {}, &QDomAttr::name);
    return sorted;
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
