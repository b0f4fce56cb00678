#include "setting_search.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::vector<Place> findSettings(const libconfig::ConfigurationText &text,
                                const std::vector<ShownSection> &sections, const QString &words)
{
    const QStringList wanted = words.simplified().split(u' ', Qt::SkipEmptyParts);
    std::vector<Place> places;
    if (wanted.isEmpty())
        return places;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const ShownSection &section = sections[i];
        const QString about = titleOf(section, text);
        const auto addIfFound = [&](const QString &searched, int setting) {
            if (std::ranges::all_of(wanted, [&](const QString &word) {
                    return searched.contains(word, Qt::CaseInsensitive);
                }))
                places.push_back({static_cast<int>(i), setting});
        };
        const std::vector<ShownSetting> settings = shownSettings(text, section);
        for (std::size_t j = 0; j < settings.size(); ++j) {
            const ShownSetting &setting = settings[j];
            QStringList searched{keyOf(section, setting), about};
            if (setting.entry != absent)
                searched << text.entry(setting.entry).value;
            if (setting.known)
                searched << explanationOf(setting) << QString::fromUtf8(setting.known->explanation);
            addIfFound(searched.join(u'\n'), static_cast<int>(j));
        }
        if (settings.empty())
            addIfFound(section.key + u'\n' + about, -1);
    }
    return places;
}
