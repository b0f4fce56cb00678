#include "settings_model.h"

#include "configuration_document.h"
#include "quoted.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;
using libconfig::TextChange;

SettingsModel::SettingsModel(ConfigurationDocument &document, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document)
{
    connect(&document, &ConfigurationDocument::findingsChanged, this, &SettingsModel::updateFindings);
}

void SettingsModel::show(const std::optional<ShownSection> &section)
{
    std::vector<ShownSetting> settings;
    if (section)
        settings = shownSettings(m_document.text(), *section);
    const bool isSameSection = m_section && section && m_section->key == section->key
        && m_section->isRepeated == section->isRepeated
        && std::ranges::equal(m_settings, settings, {}, &ShownSetting::name, &ShownSetting::name);
    if (!isSameSection)
        beginResetModel();
    m_section = section;
    m_settings = std::move(settings);
    if (!isSameSection)
        endResetModel();
    else if (!m_settings.empty())
        Q_EMIT dataChanged(index(0, nameColumn), index(rowCount() - 1, valueColumn));
}

void SettingsModel::updateFindings()
{
    if (!m_settings.empty())
        Q_EMIT dataChanged(index(0, nameColumn), index(rowCount() - 1, nameColumn),
                           {Qt::DecorationRole, Qt::ToolTipRole});
}

QString SettingsModel::value(const ShownSetting &setting) const
{
    if (setting.entry != absent)
        return m_document.text().entry(setting.entry).value;
    const QString key = keyOf(*m_section, setting);
    const QString other = m_document.configuration().getStrValue(key); // of another section of the name
    return other.isEmpty() ? valueWhenMissing(key, m_document.configuration()) : other;
}

bool SettingsModel::isOfItsKind(const ShownSetting &setting) const
{
    const QString text = value(setting);
    switch (setting.known ? setting.known->kind : SettingKind::text) {
    case SettingKind::onOff:
        return text == "true"_L1 || text == "false"_L1;
    case SettingKind::number: {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        return setting.entry == absent
            || (isNumber && number >= setting.known->least && number <= setting.known->most);
    }
    case SettingKind::choice:
        return setting.entry == absent || choicesOf(*setting.known).contains(text);
    case SettingKind::text:
    case SettingKind::file:
    case SettingKind::folder:
        return true;
    }
    return true;
}

bool SettingsModel::isSwitch(const ShownSetting &setting) const
{
    return setting.known && setting.known->kind == SettingKind::onOff && isOfItsKind(setting);
}

TextChange SettingsModel::changeTo(const ShownSetting &setting, const QString &value) const
{
    const libconfig::ConfigurationText &text = m_document.text();
    if (setting.entry != absent)
        return text.setValue(setting.entry, value);
    if (m_section->entry != absent)
        return text.addSetting(m_section->entry, setting.name, value);
    return text.set(keyOf(*m_section, setting), value);
}

// What a person may well type is said in the person's language.
QString SettingsModel::refusal(const ShownSetting &setting, const QString &value) const
{
    const TextChange change = changeTo(setting, value);
    if (change)
        return {};
    const auto isLost = [](QChar c) { return c.unicode() > 0xFF; };
    if (const auto lost = std::ranges::find_if(value, isLost); lost != value.end())
        return tr("%1 would be lost: the programs read the characters of Western Europe only.")
            .arg(quoted(*lost));
    for (const QChar c : u";\""_s)
        if (m_document.text().kind() == "cfg"_L1 && value.contains(c))
            return tr("A value cannot have the character %1, which would end it.").arg(c);
    return change.fault;
}

QStringList SettingsModel::findings(const ShownSetting &setting) const
{
    const int line = setting.entry == absent ? 0 : m_document.text().entry(setting.entry).line;
    return m_document.findingsAt(keyOf(*m_section, setting), line);
}

int SettingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_settings.size());
}

int SettingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant SettingsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ShownSetting &shown = setting(index);
    const bool isValue = index.column() == valueColumn;
    switch (role) {
    case Qt::DisplayRole:
        return (isValue ? value(shown) : shown.name).simplified();
    case Qt::EditRole:
        return isValue ? value(shown) : shown.name;
    case Qt::CheckStateRole:
        if (isValue && isSwitch(shown))
            return value(shown) == "true"_L1 ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::DecorationRole:
        if (!isValue && !findings(shown).isEmpty())
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        return {};
    case Qt::ToolTipRole: {
        QStringList lines = findings(shown);
        lines.prepend(explanationOf(shown));
        lines.removeAll(QString());
        return lines.join(u'\n').toHtmlEscaped();
    }
    case Qt::ForegroundRole:
        if (shown.entry == absent)
            return QApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    case Qt::FontRole:
        if (shown.entry == absent) {
            QFont font = QApplication::font("QTreeView");
            font.setItalic(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QVariant SettingsModel::headerData(int number, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return number == nameColumn ? tr("Setting") : tr("Value");
}

Qt::ItemFlags SettingsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == valueColumn)
        flags |= isSwitch(setting(index)) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

bool SettingsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != valueColumn
        || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const ShownSetting shown = setting(index);
    const QString text = role == Qt::EditRole          ? value.toString()
        : value.value<Qt::CheckState>() == Qt::Checked ? u"true"_s
                                                       : u"false"_s;
    if (const QString reason = refusal(shown, text); !reason.isEmpty()) {
        Q_EMIT refused(reason);
        return false;
    }
    m_document.apply(changeTo(shown, text), tr("Change %1").arg(shown.name));
    return true;
}
