#include "tree_filter.h"

#include "shown_tree.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

TreeFilter::TreeFilter(QTreeWidget &view)
    : m_view(view)
{
}

QTreeWidgetItem *TreeFilter::lookFor(const QString &text)
{
    if (m_lookedFor.isEmpty()) {
        m_openedBefore.clear();
        for (QTreeWidgetItemIterator item(&m_view); *item; ++item)
            if ((*item)->isExpanded())
                m_openedBefore.append(*item);
    }
    m_lookedFor = text;

    m_view.collapseAll();
    expandAll(m_openedBefore);
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < m_view.topLevelItemCount(); ++i) {
        QTreeWidgetItem *top = m_view.topLevelItem(i);
        for (int j = 0; j < top->childCount(); ++j) {
            QTreeWidgetItem *match = showMatches(top->child(j), false);
            if (!first)
                first = match;
        }
    }
    return first;
}

// Returns the first match among the item and those below it.
QTreeWidgetItem *TreeFilter::showMatches(QTreeWidgetItem *item, bool belowMatch)
{
    const bool matches = !m_lookedFor.isEmpty() && item->text(0).contains(m_lookedFor, Qt::CaseInsensitive);
    QTreeWidgetItem *first = matches ? item : nullptr;
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *match = showMatches(item->child(i), belowMatch || matches);
        if (!first)
            first = match;
    }
    item->setHidden(!m_lookedFor.isEmpty() && !first && !belowMatch);
    if (first)
        item->setExpanded(true);
    return first;
}
