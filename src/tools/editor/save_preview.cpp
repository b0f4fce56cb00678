#include "save_preview.h"

#include "config.h"
#include "shown_tree.h"

#include <QHash>
#include <QTemporaryFile>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QXmlStreamReader>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

Section sectionsOf(const libconfig::Config &store)
{
    const std::unique_ptr<QTreeWidget> view(store.buildConfigListView());
    return shownSections(*view);
}

// The name in one line: one that swallowed a line of the file holds line ends.
QString joined(const QString &key, const QString &name)
{
    return (key.isEmpty() ? name : key + u'.' + name).simplified();
}

QString quoted(const QString &value)
{
    return u"“%1”"_s.arg(value);
}

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
    collectParents(sectionsOf(store), parents);

    QStringList moves;
    for (qsizetype i = 0; i < sections.size(); ++i) {
        const QTreeWidgetItem *parent = sections[i]->parent();
        if (!parent)
            continue;
        const QString key = keyOf(sections[i]).simplified();
        const auto receiver = parents.constFind(QString::number(i));
        if (receiver == parents.cend()) {
            if (parents.contains(QString::number(sections.indexOf(parent))))
                moves << u"The section %1 is lost: it is empty, or begins with an empty one."_s.arg(key);
        } else if (const QTreeWidgetItem *into = sections[receiver->toLongLong()]; into != parent) {
            moves << u"The section %1 moves into %2."_s.arg(key, keyOf(into).simplified());
        }
    }
    return moves;
}

void compare(const Section &saved, const Section &readBack, const QString &key, QStringList &changes)
{
    for (const auto &[name, value] : saved.settings.asKeyValueRange()) {
        const auto found = readBack.settings.constFind(name);
        if (found == readBack.settings.cend())
            changes << u"The setting %1 is lost."_s.arg(joined(key, name));
        else if (*found != value)
            changes << u"The value of %1, %2, becomes %3."_s.arg(joined(key, name), quoted(value),
                                                                 quoted(*found));
    }
    for (const auto &[name, value] : readBack.settings.asKeyValueRange())
        if (!saved.settings.contains(name))
            changes << u"A setting %1 appears, with the value %2."_s.arg(joined(key, name), quoted(value));

    std::vector<const Section *> left;
    for (const Section &section : readBack.sections)
        left.push_back(&section);
    for (const Section &section : saved.sections) {
        const auto same = std::ranges::find(left, section.name, &Section::name);
        if (same != left.end()) {
            compare(section, **same, joined(key, section.name), changes);
            left.erase(same);
        } else if (key.isEmpty() && &section != &saved.sections.front()) {
            changes << u"The section %1 is lost: only the first section at the top is saved."_s.arg(
                joined(key, section.name));
        } else {
            changes << u"The section %1 is lost."_s.arg(joined(key, section.name));
        }
    }
    for (const Section *section : left)
        changes << u"A section %1 appears."_s.arg(joined(key, section->name));
}

// Nothing is escaped in the file, so one value can make all of it unreadable.
void explainUnreadableXml(const Section &section, const QString &key, QStringList &changes)
{
    for (const auto &[name, value] : section.settings.asKeyValueRange())
        if (value.contains(u'<') || value.contains(u'&') || value.contains(u'"'))
            changes << u"The value of %1, %2, has a character that XML gives a meaning: <, & or \"."_s.arg(
                joined(key, name), quoted(value));
    for (const Section &child : section.sections)
        explainUnreadableXml(child, joined(key, child.name), changes);
}

// What a file written from the saved tree loses when it is read.
QStringList lossesInFile(const QTreeWidget &view, const Section &saved, const QString &type)
{
    QTemporaryFile file;
    if (!file.open())
        return {u"What saving would change could not be found out: there is no temporary file."_s};
    libconfig::Config store(file.fileName(), type);
    if (!store.loadListView(&view))
        return {u"What saving would change could not be found out: the temporary file was not written."_s};
    store.readFile(file.fileName(), type);
    const Section readBack = sectionsOf(store);

    QStringList changes;
    if (saved.sections.empty())
        return changes;
    const Section &root = saved.sections.front();
    if (!readBack.sections.empty()) {
        compare(root, readBack.sections.front(), {}, changes);
    } else if (type == "xml"_L1) {
        changes << u"The saved file is no XML any more, and everything in it is lost."_s;
        if (!root.settings.empty())
            changes << u"Settings outside sections make it so: %1."_s.arg(root.settings.keys().join(", "_L1));
        explainUnreadableXml(root, {}, changes);
    } else {
        compare(root, {}, {}, changes);
    }
    return changes;
}

// The characters of names and values, in an order of their own: a file may be laid out and ordered at will.
QString lettersOf(QString text)
{
    text.removeIf([](QChar c) { return c.isSpace() || QStringView(u"\":={};").contains(c); });
    std::ranges::sort(text);
    return text;
}

} // namespace

QStringList changesBySaving(const QTreeWidget &view, const QString &type)
{
    libconfig::Config store;
    store.loadListView(&view);
    return movedSections(view) + lossesInFile(view, sectionsOf(store), type);
}

bool holdsMoreThanElements(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false); // as the store reads it: no prefix ends the search
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace())
                return true;
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::ProcessingInstruction:
            return true;
        default:
            break;
        }
    }
    return false;
}

bool holdsMoreThanShown(const QByteArray &cfg, const QTreeWidget &view)
{
    QString shown;
    for (QTreeWidgetItemIterator item(const_cast<QTreeWidget *>(&view)); *item; ++item)
        if ((*item)->parent()) // the one without names the file
            shown += (*item)->text(0);
    return lettersOf(QString::fromLatin1(cfg)) != lettersOf(shown);
}
