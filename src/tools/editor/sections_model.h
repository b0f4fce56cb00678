#pragma once

#include "outline.h"

#include <QAbstractItemModel>

#include <vector>

class ConfigurationDocument;

/*
 * The sections of a configuration by their meaning: groups at the top, of which the language is one section,
 * and the sections of the other groups below them.
 */
class SectionsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit SectionsModel(ConfigurationDocument &document, QObject *parent = nullptr);

    const std::vector<ShownSection> &sections() const { return m_sections; }

    /* The section at an index; null for a group. */
    const ShownSection *sectionAt(const QModelIndex &index) const;

    /* The place of a section, by its number in the list. */
    QModelIndex indexOf(int section) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Node
    {
        QString title = {}; // of a group
        std::vector<int> sections = {}; // below it
        int section = -1; // which it is itself
    };

    void update();
    void updateMarks();
    int sectionNumber(const QModelIndex &index) const;

    ConfigurationDocument &m_document;
    std::vector<ShownSection> m_sections;
    std::vector<bool> m_isMarked; // each section with findings
    std::vector<Node> m_nodes;
};
