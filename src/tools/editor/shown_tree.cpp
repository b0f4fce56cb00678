#include "shown_tree.h"

#include <QStringList>
#include <QTreeWidget>

using libconfig::Section;

namespace {

// What can be edited is a value, and nothing else is: a section whose first section is empty has the same
// shape as a setting.
bool isValue(const QTreeWidgetItem *item)
{
    return item->flags().testFlag(Qt::ItemIsEditable);
}

Section shownSection(const QTreeWidgetItem *item)
{
    Section section{item->text(0), {}, {}};
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *child = item->child(i);
        if (const QTreeWidgetItem *value = valueItem(child))
            section.settings.insert(child->text(0), value->text(0));
        else
            section.sections.push_back(shownSection(child));
    }
    return section;
}

} // namespace

Section shownSections(const QTreeWidget &view)
{
    return shownSection(view.invisibleRootItem());
}

const QTreeWidgetItem *valueItem(const QTreeWidgetItem *item)
{
    if (isValue(item))
        return item;
    const QTreeWidgetItem *first = item->child(0);
    return first && isValue(first) ? first : nullptr;
}

QTreeWidgetItem *valueItem(QTreeWidgetItem *item)
{
    return const_cast<QTreeWidgetItem *>(valueItem(static_cast<const QTreeWidgetItem *>(item)));
}

void expandAll(const QList<QTreeWidgetItem *> &items)
{
    // What is below a closed item is not laid out, so the last comes first: each opened in view would lay out
    // all.
    for (qsizetype i = items.size() - 1; i >= 0; --i)
        items[i]->setExpanded(true);
}

QString keyOf(const QTreeWidgetItem *item)
{
    if (isValue(item))
        item = item->parent();
    QStringList names;
    for (; item->parent(); item = item->parent())
        names.prepend(item->text(0));
    return names.join(u'.');
}
