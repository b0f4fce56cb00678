#include "save_preview.h"

#include "config.h"
#include "losses.h"
#include "shown_tree.h"

#include <QHash>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using libconfig::Section;

namespace {

// Gives each section of the copy its number in place of its name.
void numberSections(QTreeWidgetItem *copy, const QTreeWidgetItem *shown,
                    QList<const QTreeWidgetItem *> &sections)
{
    copy->setText(0, QString::number(sections.size()));
    sections.append(shown);
    for (int i = 0; i < shown->childCount(); ++i)
        if (!valueItem(shown->child(i)))
            numberSections(copy->child(i), shown->child(i), sections);
}

void collectParents(const Section &section, QHash<QString, QString> &parents)
{
    for (const Section &child : section.sections) {
        parents.insert(child.name, section.name);
        collectParents(child, parents);
    }
}

// Names do not tell where a section went, since several may share one. So the store rebuilds a copy of the
// view whose sections are numbered.
QStringList movedSections(const QTreeWidget &view)
{
    QTreeWidget numbered;
    QList<const QTreeWidgetItem *> sections;
    for (int i = 0; i < view.topLevelItemCount(); ++i) {
        numbered.addTopLevelItem(view.topLevelItem(i)->clone());
        numberSections(numbered.topLevelItem(i), view.topLevelItem(i), sections);
    }
    libconfig::Config store; // of no kind, so it rebuilds without writing
    store.loadListView(&numbered);
    QHash<QString, QString> parents;
    collectParents(store.content(), parents);

    QHash<const QTreeWidgetItem *, QString> numbers;
    for (qsizetype i = 0; i < sections.size(); ++i)
        numbers.insert(sections[i], QString::number(i));

    QStringList moves;
    for (qsizetype i = 0; i < sections.size(); ++i) {
        const QTreeWidgetItem *parent = sections[i]->parent();
        if (!parent)
            continue;
        const QString key = keyOf(sections[i]).simplified();
        const auto receiver = parents.constFind(numbers.value(sections[i]));
        if (receiver == parents.cend()) {
            if (parents.contains(numbers.value(parent)))
                moves << u"The section %1 is lost: it is empty, or begins with an empty one."_s.arg(key);
        } else if (const QTreeWidgetItem *into = sections[receiver->toLongLong()]; into != parent) {
            moves << u"The section %1 moves into %2."_s.arg(key, keyOf(into).simplified());
        }
    }
    return moves;
}

} // namespace

QStringList changesBySaving(const QTreeWidget &view, const QString &type)
{
    libconfig::Config store; // of no kind, so it rebuilds without writing
    store.loadListView(&view);
    return movedSections(view) + lossesByWriting(store, type);
}
