#include "sections_model.h"

#include "configuration_document.h"

#include <QApplication>
#include <QFont>
#include <QSet>
#include <QStyle>

#include <algorithm>

using Group = ShownSection::Group;

SectionsModel::SectionsModel(ConfigurationDocument &document, QObject *parent)
    : QAbstractItemModel(parent)
    , m_document(document)
{
    connect(&document, &ConfigurationDocument::changed, this, &SectionsModel::update);
    connect(&document, &ConfigurationDocument::findingsChanged, this, &SectionsModel::updateMarks);
    update();
}

void SectionsModel::update()
{
    std::vector<ShownSection> sections = shownSections(m_document.text());
    if (sections == m_sections)
        return;
    beginResetModel();
    m_sections = std::move(sections);
    m_isMarked.assign(m_sections.size(), false);
    m_nodes.clear();
    const auto add = [this](Group group, const QString &title) {
        Node node{.title = title};
        for (std::size_t i = 0; i < m_sections.size(); ++i)
            if (m_sections[i].group == group)
                node.sections.push_back(static_cast<int>(i));
        if (group == Group::language)
            m_nodes.push_back({.section = node.sections.front()});
        else if (!node.sections.empty())
            m_nodes.push_back(node);
    };
    add(Group::documents, tr("Documents"));
    add(Group::language, {});
    add(Group::printers, tr("Printers"));
    add(Group::others, tr("Other sections"));
    endResetModel();
}

void SectionsModel::updateMarks()
{
    QSet<QString> found;
    for (const Finding &finding : m_document.findings())
        found << finding.key << finding.key.section(u'.', 0, -2);
    for (std::size_t i = 0; i < m_sections.size(); ++i)
        m_isMarked[i] = !m_sections[i].key.isEmpty() && found.contains(m_sections[i].key);
    for (const QModelIndex &top : {index(0, 0), QModelIndex()})
        if (const int rows = rowCount(top); rows > 0)
            Q_EMIT dataChanged(index(0, 0, top), index(rows - 1, 0, top), {Qt::DecorationRole});
    for (int row = 1; row < rowCount(); ++row)
        if (const QModelIndex top = index(row, 0); hasChildren(top))
            Q_EMIT dataChanged(index(0, 0, top), index(rowCount(top) - 1, 0, top), {Qt::DecorationRole});
}

int SectionsModel::sectionNumber(const QModelIndex &index) const
{
    if (!index.isValid())
        return -1;
    const auto row = static_cast<std::size_t>(index.row());
    return index.internalId() == 0 ? m_nodes[row].section : m_nodes[index.internalId() - 1].sections[row];
}

const ShownSection *SectionsModel::sectionAt(const QModelIndex &index) const
{
    const int number = sectionNumber(index);
    return number < 0 ? nullptr : &m_sections[static_cast<std::size_t>(number)];
}

QModelIndex SectionsModel::indexOf(int section) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const Node &node = m_nodes[static_cast<std::size_t>(row)];
        if (node.section == section)
            return index(row, 0);
        const auto found = std::ranges::lower_bound(node.sections, section);
        if (found != node.sections.end() && *found == section)
            return index(static_cast<int>(found - node.sections.begin()), 0, index(row, 0));
    }
    return {};
}

// The number of an index is 0 at the top, else that of its group, counted from 1.
QModelIndex SectionsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : 0);
}

QModelIndex SectionsModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == 0)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr(0));
}

int SectionsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_nodes.size());
    return parent.internalId() == 0
        ? static_cast<int>(m_nodes[static_cast<std::size_t>(parent.row())].sections.size())
        : 0;
}

int SectionsModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant SectionsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ShownSection *const section = sectionAt(index);
    if (!section) {
        if (role == Qt::DisplayRole)
            return m_nodes[static_cast<std::size_t>(index.row())].title;
        return {};
    }
    if (role == Qt::DisplayRole)
        return titleOf(*section, m_document.text());
    if (role == Qt::ToolTipRole)
        return section->key;
    if (role == Qt::DecorationRole && m_isMarked[static_cast<std::size_t>(sectionNumber(index))])
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    if (role == Qt::FontRole && section->entry == absent) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    return {};
}

Qt::ItemFlags SectionsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return sectionAt(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemFlags(Qt::ItemIsEnabled);
}
