#pragma once

#include "outline.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

class ConfigurationDocument;

/*
 * The settings of one section, each a name and a value, which can be edited. What the file does not name
 * shows the value that holds without it.
 */
class SettingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { nameColumn, valueColumn };

    explicit SettingsModel(ConfigurationDocument &document, QObject *parent = nullptr);

    /* Shows the settings of this section, of the text as it stands; none without one. */
    void show(const std::optional<ShownSection> &section);

    const std::optional<ShownSection> &section() const { return m_section; }
    const std::vector<ShownSetting> &settings() const { return m_settings; }
    const ShownSetting &setting(const QModelIndex &index) const
    {
        return m_settings[static_cast<std::size_t>(index.row())];
    }

    /* The value as the file has it, or that holds without one. */
    QString value(const ShownSetting &setting) const;

    /* Whether the value is one of those that an input field of the setting's kind is for. Others are texts.
     */
    bool isOfItsKind(const ShownSetting &setting) const;

    /* Why a setting cannot have a value, in the language of the windows; empty when it can. */
    QString refusal(const ShownSetting &setting, const QString &value) const;

    /* What was found at a setting. */
    QStringList findings(const ShownSetting &setting) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int number, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

Q_SIGNALS:
    /* A value was not taken. */
    void refused(const QString &reason);

private:
    libconfig::TextChange changeTo(const ShownSetting &setting, const QString &value) const;
    bool isSwitch(const ShownSetting &setting) const;
    void updateFindings();

    ConfigurationDocument &m_document;
    std::optional<ShownSection> m_section;
    std::vector<ShownSetting> m_settings;
};
