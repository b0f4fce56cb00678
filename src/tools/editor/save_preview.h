#pragma once

#include <QStringList>

class QTreeWidget;

/*
 * What saving the view as a file of the kind "cfg" or "xml" would do to it besides writing it down: one line
 * for each section that would end up elsewhere or be lost, and for each setting that would read back
 * differently. Empty when the saved file reads back as what is shown.
 */
QStringList changesBySaving(const QTreeWidget &view, const QString &type);
