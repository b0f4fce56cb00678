#pragma once

#include <QByteArray>
#include <QString>

class QFile;

/* Why a file could not be read. */
struct FileFault
{
    QString fault = {}; // such as "Permission denied"; empty when it could
    bool isMissing = false; // which is one of these reasons
};

/* What is in a file. */
struct FileContent : FileFault
{
    QByteArray bytes = {};
};

/* Opens a regular file for reading. Anything else is refused: a FIFO would wait for a writer, a device never
 * end. */
FileFault openRegularFile(QFile &file, const QString &name);

/* Reads a regular file as a whole. Anything else is refused. */
FileContent readRegularFile(const QString &name);

/* Whether the name leads to a regular file, directly or by symbolic links. */
bool isRegularFile(const QString &name);

/* What the fault of a file that exists and is none is called. */
QString notRegularFile();
