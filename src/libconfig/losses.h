#pragma once

#include "section.h"

#include <QByteArray>
#include <QStringList>

namespace libconfig {

class Config;

/*
 * What of the store would read back differently, or not at all, once it is written as a file of the kind
 * "cfg" or "xml": one line for each section and setting. Empty when the file reads back as what the store
 * holds. Found by doing it in memory.
 */
QStringList lossesByWriting(const Config &store, const QString &kind);

/* Whether a well-formed text of the kind "cfg" or "xml" says more than what was read from it, which alone is
 * written: comments, remarks, a setting given twice, all that follows a closing brace too many. */
bool saysMore(const QByteArray &text, const QString &kind, const Section &content);

} // namespace libconfig
