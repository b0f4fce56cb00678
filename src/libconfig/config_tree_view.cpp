/*
 * The store as an editable tree view and back. The only file of the store that needs a display library.
 */
#include "config.h"

#include <QHeaderView>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

// The items that name a setting, so that one that lost its value is not taken for an empty section.
constexpr int settingItem = QTreeWidgetItem::UserType;

QTreeWidgetItem *addItem(QTreeWidgetItem *parent, const QString &text, int type = QTreeWidgetItem::Type)
{
    return new QTreeWidgetItem(parent, {text}, type); // owned by its parent
}

bool lostItsValue(const QTreeWidgetItem *item)
{
    return item->type() == settingItem && item->childCount() == 0;
}

// The first child that counts; null when there is none.
const QTreeWidgetItem *firstChild(const QTreeWidgetItem *item)
{
    int i = 0;
    while (i < item->childCount() && lostItsValue(item->child(i)))
        ++i;
    return item->child(i);
}

} // namespace

QTreeWidget *Config::buildConfigListView() const
{
    auto view = std::make_unique<QTreeWidget>();
    view->setHeaderLabel(u"ConfigurationFile"_s);
    view->header()->setStretchLastSection(false);
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    buildConfigListView(rootElement(), view.get());
    return view.release();
}

QTreeWidget *Config::newConfigListView() const
{
    return buildConfigListView();
}

void Config::buildConfigListView(const QDomNode &node, QTreeWidget *view) const
{
    buildConfigListView(node, view->invisibleRootItem());
}

void Config::buildConfigListView(const QDomNode &node, QTreeWidgetItem *parent) const
{
    // A comment or the like is no section, and has nothing below it that is one.
    if (!node.isElement())
        return;
    QTreeWidgetItem *section = addItem(parent, node.toElement().tagName());
    for (const QDomAttr &setting : settings(node)) {
        QTreeWidgetItem *value = addItem(addItem(section, setting.name(), settingItem), setting.value());
        value->setFlags(value->flags() | Qt::ItemIsEditable);
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigListView(child, section);
}

WriteResult Config::loadListView(const QTreeWidget *view)
{
    if (!view)
        return {u"There is nothing to write"_s};
    begin(m_fileName, m_fileType);
    for (int i = 0; i < view->topLevelItemCount(); ++i)
        loadListView(view->topLevelItem(i), *m_document);
    if (m_fileType == "cfg"_L1)
        return buildConfigFile(QString());
    if (m_fileType == "xml"_L1)
        return buildConfigXmlFile(QString());
    return {u"A file of this kind is not written"_s};
}

void Config::loadListView(const QTreeWidgetItem *item, QDomNode parent)
{
    QDomDocument owner = parent.isDocument() ? parent.toDocument() : parent.ownerDocument();
    QDomElement section = owner.createElement(item->text(0));
    parent.appendChild(section);
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *child = item->child(i);
        const QTreeWidgetItem *first = firstChild(child);
        if (!first)
            continue; // nothing to save
        if (first->childCount() == 0)
            section.setAttribute(child->text(0), first->text(0));
        else
            // Deliberate: a section below one that is not its parent's first ends up in that first one.
            loadListView(child, parent.firstChild());
    }
}

} // namespace libconfig
