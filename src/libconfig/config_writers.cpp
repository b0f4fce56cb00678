#include "config.h"
#include "diagnostic.h"

#include <QIODevice>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

constexpr QLatin1StringView indentationStep = "    "_L1;

QString statement(const QDomAttr &setting)
{
    return setting.name() + " = \""_L1 + setting.value() + u'"';
}

} // namespace

QByteArray Config::written(QStringConverter::Encoding encoding, NodeWriter writeNode) const
{
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    stream.setEncoding(encoding);
    const QDomElement root = rootElement();
    for (const QDomAttr &setting : settings(root))
        stream << statement(setting) << ";\n";
    if (const QDomNode firstSection = root.firstChild(); !firstSection.isNull())
        (this->*writeNode)(firstSection, stream, {});
    stream.flush();
    return bytes;
}

// The file that was read was a regular one; what has taken its place since is no configuration.
WriteResult Config::save(const QString &name, const QByteArray &bytes) const
{
    return name.isEmpty() ? replaceFile(m_fileName, bytes) : writeFile(name, bytes);
}

QByteArray Config::cfgText() const
{
    return written(QStringConverter::Latin1, &Config::buildConfigFile);
}

WriteResult Config::buildConfigFile(const QString &name) const
{
    return save(name, cfgText());
}

void Config::buildConfigFile(const QDomNode &node, QTextStream &stream, const QString &indentation) const
{
    const QString inner = indentation + indentationStep;
    stream << indentation << node.toElement().tagName() << ": \n" << indentation << "{\n";
    for (const QDomAttr &setting : settings(node))
        stream << inner << statement(setting) << ";\n";
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigFile(child, stream, inner);
    stream << indentation << "};\n\n";
}

QByteArray Config::xmlText() const
{
    return written(QStringConverter::Utf8, &Config::buildConfigXmlFile);
}

WriteResult Config::buildConfigXmlFile(const QString &name) const
{
    return save(name, xmlText());
}

void Config::buildConfigXmlFile(const QDomNode &node, QTextStream &stream, const QString &indentation) const
{
    const QString inner = indentation + indentationStep;
    const QString tag = node.toElement().tagName();
    stream << '\n' << indentation << '<' << tag;
    for (const QDomAttr &setting : settings(node))
        stream << '\n' << inner << statement(setting);
    stream << ">\n";
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigXmlFile(child, stream, inner);
    stream << indentation << "</" << tag << ">\n";
}

void Config::printConfigTree() const
{
    printDiagnostic("Tree ");
    printConfigTree(rootElement());
}

void Config::printConfigTree(const QDomNode &node) const
{
    if (node.isElement()) {
        printDiagnostic(node.toElement().tagName().toLatin1());
        for (const QDomAttr &setting : settings(node))
            printDiagnostic(QString(setting.name() + " = "_L1 + setting.value()).toLatin1());
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        printConfigTree(child);
}

} // namespace libconfig
