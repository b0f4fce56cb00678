#include "config.h"
#include "diagnostic.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

constexpr QLatin1StringView indentationStep = "    "_L1;

QString written(const QDomAttr &setting)
{
    return setting.name() + " = \""_L1 + setting.value() + u'"';
}

} // namespace

bool Config::writeFile(const QString &name, QStringConverter::Encoding encoding, NodeWriter writeNode) const
{
    const auto writeTo = [&](QFileDevice &file) {
        if (!file.open(QIODevice::WriteOnly))
            return false;
        QTextStream stream(&file);
        stream.setEncoding(encoding);
        const QDomElement root = rootElement();
        for (const QDomAttr &setting : settings(root))
            stream << written(setting) << ";\n";
        if (const QDomNode firstSection = root.firstChild(); !firstSection.isNull())
            (this->*writeNode)(firstSection, stream, {});
        stream.flush();
        return stream.status() == QTextStream::Ok;
    };

    const QString target = name.isEmpty() ? fileName : name;
    // A device or a FIFO is written as it stands: replacing it would put a regular file in its place.
    if (const QFileInfo info(target); info.exists() && !info.isFile()) {
        QFile file(target);
        return writeTo(file);
    }
    // A file is replaced whole or not at all. Where its folder takes no new file it stays as it is, since
    // writing over it could lose it on a full disk.
    QSaveFile file(target);
    return writeTo(file) && file.commit();
}

bool Config::buildConfigFile(const QString &name) const
{
    return writeFile(name, QStringConverter::Latin1, &Config::buildConfigFile);
}

void Config::buildConfigFile(const QDomNode &node, QTextStream &stream, const QString &indentation) const
{
    const QString inner = indentation + indentationStep;
    stream << indentation << node.toElement().tagName() << ": \n" << indentation << "{\n";
    for (const QDomAttr &setting : settings(node))
        stream << inner << written(setting) << ";\n";
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigFile(child, stream, inner);
    stream << indentation << "};\n\n";
}

bool Config::buildConfigXmlFile(const QString &name) const
{
    return writeFile(name, QStringConverter::Utf8, &Config::buildConfigXmlFile);
}

void Config::buildConfigXmlFile(const QDomNode &node, QTextStream &stream, const QString &indentation) const
{
    const QString inner = indentation + indentationStep;
    const QString tag = node.toElement().tagName();
    stream << '\n' << indentation << '<' << tag;
    for (const QDomAttr &setting : settings(node))
        stream << '\n' << inner << written(setting);
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
