#pragma once

#include <QList>
#include <QString>

class QTreeWidget;
class QTreeWidgetItem;

/*
 * Shows of a tree view only what is looked for: the items that contain a text, whatever its case, the items
 * above them, opened, and the items below them. The items at the top, which name the file, are always shown
 * and never match. To be used as long as the view lives and keeps its items.
 */
class TreeFilter
{
public:
    explicit TreeFilter(QTreeWidget &view);

    /* Looks for the text; none shows everything, opened as it was before. Returns the first item that
     * matches, null when none does or nothing is looked for. */
    QTreeWidgetItem *lookFor(const QString &text);

private:
    QTreeWidgetItem *showMatches(QTreeWidgetItem *item, bool belowMatch);

    QTreeWidget &m_view;
    QString m_lookedFor;
    QList<QTreeWidgetItem *> m_openedBefore;
};
