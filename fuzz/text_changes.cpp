#include "text_changes.h"

#include "configuration_text.h"
#include "fuzzing.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using libconfig::TextChange;

namespace {

constexpr int mostOfAText = 6; // entries that are changed, so that a long text takes no longer

/* All that a text says, but for an entry with all in it: one line for each section and setting. */
QStringList meaning(const ConfigurationText &text, int without = -1)
{
    QStringList lines;
    std::vector<bool> isLeftOut(text.entries().size());
    for (int i = 0; i < static_cast<int>(text.entries().size()); ++i) {
        const ConfigurationText::Entry &entry = text.entry(i);
        const auto at = static_cast<std::size_t>(i);
        isLeftOut[at] = i == without || (i > 0 && isLeftOut[static_cast<std::size_t>(entry.parent)]);
        if (!isLeftOut[at])
            lines << text.keyOf(i) + (entry.isSetting() ? u" = "_s + entry.value : u" {"_s);
    }
    return lines;
}

/* What a changed text says, once it is seen that the change can be undone. */
QStringList meaningAfter(const ConfigurationText &text, const TextChange &change)
{
    const QByteArray changed = change.appliedTo(text.text());
    require(change.reversed().appliedTo(changed) == text.text(), "a change is undone by its reverse");
    return meaning(ConfigurationText(changed, text.kind()));
}

bool saysMore(QStringList after, QStringList before, const QStringList &added)
{
    before += added;
    before.sort();
    after.sort();
    return after == before;
}

} // namespace

void requireExactChanges(const QByteArray &text, const QString &kind, const QString &value)
{
    const ConfigurationText configuration(text, kind);
    const QStringList before = meaning(configuration);
    const int count = static_cast<int>(configuration.entries().size());
    for (int i = 0; i < count; i += 1 + count / mostOfAText) {
        const ConfigurationText::Entry &entry = configuration.entry(i);
        const QString key = configuration.keyOf(i);
        const QString prefix = i == 0 ? QString() : key + u'.';
        if (entry.isSetting()) {
            if (const TextChange change = configuration.setValue(i, value)) {
                QStringList expected = before;
                expected[i] = key + u" = "_s + value;
                require(meaningAfter(configuration, change) == expected, "a value is set and nothing else");
            }
        } else {
            if (const TextChange change = configuration.addSetting(i, u"added"_s, value))
                require(
                    saysMore(meaningAfter(configuration, change), before, {prefix + u"added = "_s + value}),
                    "a setting is added and nothing else");
            if (const TextChange change = configuration.addSection(i, {u"new"_s}, {{u"added"_s, value}}))
                require(saysMore(meaningAfter(configuration, change), before,
                                 {prefix + u"new {"_s, prefix + u"new.added = "_s + value}),
                        "a section is added and nothing else");
        }
        if (const TextChange change = configuration.remove(i))
            require(meaningAfter(configuration, change) == meaning(configuration, i),
                    "an entry is removed and nothing else");
    }
}
