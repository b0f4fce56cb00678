#pragma once

#include <QString>
#include <QStringList>

/* All translations of a compiled catalogue, a file of the kind "qm" that the toolkit has loaded; the toolkit
 * itself looks up one at a time. What cannot be read ends the list. */
QStringList catalogueTexts(const QString &file);
