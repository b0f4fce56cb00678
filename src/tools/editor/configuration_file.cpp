#include "configuration_file.h"

#include "save_preview.h"

#include <QFile>
#include <QFileInfo>
#include <QTreeWidget>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

// Reads the whole file and returns why that could not be done, or an empty text.
QString readAll(const QString &path, QByteArray &bytes)
{
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        return u"It is no regular file."_s; // a FIFO would wait for a writer
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString() + u'.';
}

// As the store reads it, but without building a tree, however deep it were.
QString xmlFault(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    return reader.hasError()
        ? u"It is no XML: line %1, column %2: %3."_s.arg(QString::number(reader.lineNumber()),
                                                         QString::number(reader.columnNumber()),
                                                         reader.errorString())
        : QString();
}

} // namespace

ConfigurationFile::ConfigurationFile(const QString &path, const QString &kind)
    : filePath(path)
    , type(kind)
    , store(std::make_unique<libconfig::Config>())
{
}

QString ConfigurationFile::path() const
{
    return filePath;
}

QString ConfigurationFile::read()
{
    QByteArray bytes;
    if (QString reason = readAll(filePath, bytes); !reason.isEmpty())
        return reason;
    if (type == "xml"_L1)
        if (QString reason = xmlFault(bytes); !reason.isEmpty())
            return reason;
    auto fresh = std::make_unique<libconfig::Config>(filePath, type);
    const std::unique_ptr<QTreeWidget> shown(fresh->buildConfigListView());
    const QTreeWidgetItem *root = shown->topLevelItem(0);
    if (!root || root->childCount() == 0)
        return type == "cfg"_L1
            ? u"It holds no setting."_s
            : u"It must begin with its root element: nothing is found behind a declaration or a comment, nor "
              "in elements nested deeper than %1."_s.arg(libconfig::Config::maximumNesting);
    store = std::move(fresh);
    content = bytes;
    holdsUnshownText = type == "xml"_L1 ? holdsMoreThanElements(bytes) : holdsMoreThanShown(bytes, *shown);
    return {};
}

std::unique_ptr<QTreeWidget> ConfigurationFile::view() const
{
    return std::unique_ptr<QTreeWidget>(store->buildConfigListView());
}

bool ConfigurationFile::changedOnDisk() const
{
    QByteArray bytes;
    return !readAll(filePath, bytes).isEmpty() || bytes != content;
}

QStringList ConfigurationFile::changesByWriting(const QTreeWidget &view) const
{
    QStringList changes = changesBySaving(view, type);
    if (holdsUnshownText)
        changes << u"Text of the file that is not shown is lost: only sections and settings are saved."_s;
    return changes;
}

bool ConfigurationFile::write(const QTreeWidget &view)
{
    return store->loadListView(&view) && readAll(filePath, content).isEmpty();
}
