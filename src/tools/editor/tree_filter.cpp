#include "tree_filter.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

TreeFilter::TreeFilter(QTreeWidget &filtered)
    : view(filtered)
{
}

QTreeWidgetItem *TreeFilter::lookFor(const QString &text)
{
    if (lookedFor.isEmpty()) {
        openedBefore.clear();
        for (QTreeWidgetItemIterator item(&view); *item; ++item)
            if ((*item)->isExpanded())
                openedBefore.append(*item);
    }
    lookedFor = text;

    view.collapseAll();
    for (QTreeWidgetItem *item : std::as_const(openedBefore))
        item->setExpanded(true);
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < view.topLevelItemCount(); ++i) {
        QTreeWidgetItem *top = view.topLevelItem(i);
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
    const bool matches = !lookedFor.isEmpty() && item->text(0).contains(lookedFor, Qt::CaseInsensitive);
    QTreeWidgetItem *first = matches ? item : nullptr;
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *match = showMatches(item->child(i), belowMatch || matches);
        if (!first)
            first = match;
    }
    item->setHidden(!lookedFor.isEmpty() && !first && !belowMatch);
    if (first)
        item->setExpanded(true);
    return first;
}
