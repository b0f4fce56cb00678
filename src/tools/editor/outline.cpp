#include "outline.h"

#include "interface_language.h"
#include "printer_settings.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using Group = ShownSection::Group;

namespace {

/* Where the texts of this file are translated. */
struct Outline
{
    Q_DECLARE_TR_FUNCTIONS(Outline)
};

constexpr QLatin1StringView topSection = "tavolux"_L1;
constexpr QLatin1StringView languageSection = "tavolux.language"_L1;

QString translated(const char *text)
{
    return QCoreApplication::translate("Settings", text);
}

const KnownSection *findSection(const QString &key)
{
    const std::vector<KnownSection> &sections = knownSections();
    const auto found = std::ranges::find(sections, key, &KnownSection::key);
    return found == sections.end() ? nullptr : &*found;
}

} // namespace

std::vector<ShownSection> shownSections(const ConfigurationText &text)
{
    std::vector<ShownSection> sections;
    for (const KnownSection &known : knownSections())
        sections.push_back({.group = known.key == languageSection ? Group::language : Group::documents,
                            .key = known.key,
                            .entry = text.sectionOf(known.key).value_or(absent)});

    std::vector<ShownSection> others;
    QSet<QString> seen;
    const int top = text.sectionOf(topSection).value_or(absent);
    std::vector<bool> isBelowTop(text.entries().size());
    std::vector<QString> keys(text.entries().size());
    for (int index = 0; index < static_cast<int>(text.entries().size()); ++index) {
        const ConfigurationText::Entry &entry = text.entry(index);
        if (entry.isSetting())
            continue;
        const auto at = static_cast<std::size_t>(index);
        if (index != ConfigurationText::wholeFile) {
            const auto parent = static_cast<std::size_t>(entry.parent);
            keys[at] = keys[parent].isEmpty() ? entry.name : keys[parent] + u'.' + entry.name;
            isBelowTop[at] = index == top || isBelowTop[parent];
        }
        const QString &key = keys[at];
        const bool isRepeated = seen.contains(key);
        seen.insert(key);
        const auto listed = std::ranges::find(sections, index, &ShownSection::entry);
        if (listed != sections.end())
            continue;
        if (isBelowTop[at] && !isRepeated && key.startsWith(printersKey + u'.') && !settingsOf(key).empty()) {
            sections.push_back({.group = Group::printers, .key = key, .entry = index});
            continue;
        }
        const bool holdsSettings =
            std::ranges::any_of(entry.children, [&](int child) { return text.entry(child).isSetting(); });
        if (holdsSettings
            || (entry.children.empty() && index != ConfigurationText::wholeFile && index != top))
            others.push_back({.group = Group::others, .key = key, .entry = index, .isRepeated = isRepeated});
    }
    sections.insert(sections.end(), others.begin(), others.end());
    return sections;
}

std::vector<ShownSetting> shownSettings(const ConfigurationText &text, const ShownSection &section)
{
    std::vector<ShownSetting> settings;
    std::vector<int> left;
    if (section.entry != absent)
        std::ranges::copy_if(text.entry(section.entry).children, std::back_inserter(left),
                             [&](int child) { return text.entry(child).isSetting(); });
    const SettingList known =
        section.group == Group::others && !section.isRepeated ? SettingList() : settingsOf(section.key);
    for (const KnownSetting *setting : known) {
        const auto isIt = [&](int child) { return text.entry(child).name == setting->name; };
        const auto before = settings.size();
        for (const int child : left)
            if (isIt(child))
                settings.push_back({setting->name, child, setting});
        if (settings.size() == before && section.isRead())
            settings.push_back({setting->name, absent, setting});
        std::erase_if(left, isIt);
    }
    for (const int child : left)
        settings.push_back({text.entry(child).name, child});
    return settings;
}

QString keyOf(const ShownSection &section, const ShownSetting &setting)
{
    return section.key.isEmpty() ? setting.name : section.key + u'.' + setting.name;
}

QString titleOf(const ShownSection &section, const ConfigurationText &text)
{
    QString title;
    if (section.key.isEmpty())
        title = Outline::tr("Outside of any section");
    else if (section.group == Group::printers)
        title = section.key.section(u'.', 2);
    else if (const KnownSection *known = findSection(section.key); known && section.isRead())
        title = translated(known->title);
    else
        title = section.key.simplified();
    return section.isRepeated ? Outline::tr("%1, line %2").arg(title).arg(text.entry(section.entry).line)
                              : title;
}

QString explanationOf(const ShownSetting &setting)
{
    if (!setting.known)
        return {};
    QString explanation = translated(setting.known->explanation);
    if (setting.known->kind != SettingKind::number)
        return explanation;
    return Outline::tr("%1 (%2 to %3 %4)")
        .arg(explanation, shownNumber(setting.known->least), shownNumber(setting.known->most),
             translated(setting.known->unit));
}
