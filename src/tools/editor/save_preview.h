#pragma once

#include <QByteArray>
#include <QStringList>

class QTreeWidget;

/*
 * What saving the view as a file of the kind "cfg" or "xml" would do to it besides writing it down: one line
 * for each section that would end up elsewhere or be lost, and for each setting that would read back
 * differently. Empty when the saved file reads back as what is shown. Found by trying it out on a temporary
 * file.
 */
QStringList changesBySaving(const QTreeWidget &view, const QString &type);

/* Whether an XML text holds what a tree view does not show and so does not save: comments, text between the
 * elements, processing instructions, a document type. */
bool holdsMoreThanElements(const QByteArray &xml);

/* Whether a "cfg" text holds what its view does not show and so does not save: remarks, a setting given
 * twice, what stands behind a closing brace too many. */
bool holdsMoreThanShown(const QByteArray &cfg, const QTreeWidget &view);
