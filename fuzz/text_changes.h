#pragma once

#include <QByteArray>
#include <QString>

/* Requires of a text of the kind "cfg" or "xml" that changes of single settings and sections, to this value
 * where they take one, are read back as exactly these changes, and are undone by their reverse. */
void requireExactChanges(const QByteArray &text, const QString &kind, const QString &value);
