#pragma once

#include <QByteArray>
#include <QString>

/* What is in a file. */
struct FileContent
{
    QByteArray bytes;
    QString fault = {}; // why it could not be read, such as "Permission denied"; empty when it was
    bool isMissing = false; // which is one of these reasons
};

/* Reads a regular file as a whole. Anything else is refused: a FIFO would wait for a writer, a device never
 * end. */
FileContent readRegularFile(const QString &name);

/* Whether the name leads to a regular file, directly or by symbolic links. */
bool isRegularFile(const QString &name);

/* What the fault of a file that exists and is none is called. */
QString notRegularFile();
