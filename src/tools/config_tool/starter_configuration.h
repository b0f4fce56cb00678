#pragma once

#include <QByteArray>
#include <QList>

/* The widths of paper, in characters, that a starter configuration can be made for. */
QList<int> starterPaperWidths();

/* A complete configuration for one of these widths, as "cfg" text: every setting of every profile, with a
 * value that does for a start. */
QByteArray starterConfiguration(int paperWidth);
