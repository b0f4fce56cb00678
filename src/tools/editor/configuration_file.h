#pragma once

#include "config.h"

#include <QByteArray>
#include <QStringList>

#include <memory>

class QTreeWidget;

/* The configuration file that is edited: the store that reads and writes it, and what was last on disk. */
class ConfigurationFile
{
public:
    /* The file at the path, of the kind "cfg" or "xml"; nothing is read yet. */
    ConfigurationFile(const QString &path, const QString &type);

    QString path() const;
    QString type() const;

    /* Reads the file and returns an empty text; or returns why there is nothing to edit in it, and keeps what
     * was read before. */
    QString read();

    /* A new view of what was read. */
    std::unique_ptr<QTreeWidget> view() const;

    /* Whether the file on disk is another than the one read or written last. */
    bool changedOnDisk() const;

    /* What writing the view would do to it besides writing it down: one line each. */
    QStringList changesByWriting(const QTreeWidget &view) const;

    /* Writes the view over the file, or leaves the file as it was. */
    WriteResult write(const QTreeWidget &view);

private:
    QString m_path;
    QString m_type;
    std::unique_ptr<libconfig::Config> m_store;
    QByteArray m_bytes;
    bool m_holdsUnshownText = false; // comments and the like, when it was read
};
