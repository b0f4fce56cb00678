#pragma once

#include <QByteArrayView>

/*
 * Writes one diagnostic line, given as bytes in the encoding of the terminal, to standard output, ends it
 * and flushes. Every message of the printing path goes through here; a standard output that cannot be
 * written is ignored.
 */
void printDiagnostic(QByteArrayView line);
