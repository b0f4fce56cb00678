#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

/*
 * Names of files as text, without loss. To the system a name is bytes, of any encoding or of none. A byte
 * that is no part of valid UTF-8 is carried as a lone low surrogate, U+DC80 to U+DCFF, which no text has; all
 * else is what QFile::decodeName and QFile::encodeName make of it.
 */

/* The name that the system gave: an argument, a variable of the environment. */
QString fileNameFromBytes(QByteArrayView bytes);

/* The bytes that the system knows the file by: for a name made by fileNameFromBytes exactly those. */
QByteArray fileNameBytes(const QString &name);

/* A program's arguments, its own name first, with names of files in them. To be taken after the application
 * object has taken the toolkit's options out. */
QStringList commandLineArguments(int argc, const char *const argv[]);

/* The bytes of the name as a message of one line shows them: each control character is a question mark. */
QByteArray shownFileName(const QString &name);
