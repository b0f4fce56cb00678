#pragma once

#include "section.h"

#include <QList>

class QTreeWidget;
class QTreeWidgetItem;

/* Everything that the view shows: a section without a name, with the items at the top as its sections. */
libconfig::Section shownSections(const QTreeWidget &view);

/* The item that holds the value of a setting, given as its name's or its value's item; null for a section. */
QTreeWidgetItem *valueItem(QTreeWidgetItem *item);
const QTreeWidgetItem *valueItem(const QTreeWidgetItem *item);

/* Opens the items, given in the order of the tree. */
void expandAll(const QList<QTreeWidgetItem *> &items);

/* The dotted key of an item, as lookups spell it: without the file's own item at the top and without the
 * value. */
QString keyOf(const QTreeWidgetItem *item);
