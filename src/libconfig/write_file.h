#pragma once

#include <QByteArrayView>
#include <QString>

/* What became of writing a file. */
struct WriteResult
{
    QString fault = {}; // why it was not written whole, such as "No space left on device"; empty when it was
    QString remark = {}; // what of the file that was replaced could not be kept, and why; empty when all was
    bool alreadyExists = false; // which is one of these faults

    /* Whether the file was written whole. */
    operator bool() const { return fault.isEmpty(); }
};

/*
 * Replaces a regular file, or makes a new one: whole, or not at all. A new file is written beside it, reaches
 * the disk, gets owner, group and mode of the old one as far as the system permits, and takes its place. So a
 * reader finds the old bytes or the new ones, never a part; a hard link by another name keeps the old ones.
 * Of a symbolic link the file that it leads to is replaced. What exists and is no regular file, or may not be
 * written, is left alone, and so is a file in a folder that takes no new one.
 */
WriteResult replaceFile(const QString &name, QByteArrayView bytes);

/* Makes a new file, whole or not at all. Whatever has the name already, be it a link that leads nowhere,
 * stays. */
WriteResult createFile(const QString &name, QByteArrayView bytes);

/* Replaces a file as replaceFile does, but writes to a device or a FIFO as it stands. That waits for the
 * other side of a FIFO. */
WriteResult writeFile(const QString &name, QByteArrayView bytes);
