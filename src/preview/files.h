#pragma once

#include <QFile>
#include <QString>

#include <memory>

/* A file that was opened, or why it could not be, in one line. */
struct OpenedFile
{
    std::unique_ptr<QFile> file;
    QString error;
};

/* Opens the file of this name, of whatever encoding; a folder is none. */
OpenedFile openForReading(const QString &name);

/* Writes the bytes over the file of this name; returns why that failed, or an empty text. */
QString writeFile(const QString &name, const QByteArray &bytes);
