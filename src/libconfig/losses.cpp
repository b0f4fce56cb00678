#include "losses.h"

#include "config.h"
#include "configuration_scan.h"
#include "quoted.h"

#include <QHash>
#include <QQueue>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

// The name in one line: one that swallowed a line of the file holds line ends.
QString joined(const QString &key, const QString &name)
{
    return (key.isEmpty() ? name : key + u'.' + name).simplified();
}

void compareSettings(const Section &written, const Section &readBack, const QString &key, QStringList &losses)
{
    for (const auto &[name, value] : written.settings.asKeyValueRange()) {
        const auto found = readBack.settings.constFind(name);
        if (found == readBack.settings.cend())
            losses << u"The setting %1 is lost."_s.arg(joined(key, name));
        else if (*found != value)
            losses << u"The value of %1, %2, becomes %3."_s.arg(joined(key, name), quoted(value),
                                                                quoted(*found));
    }
    for (const auto &[name, value] : readBack.settings.asKeyValueRange())
        if (!written.settings.contains(name))
            losses << u"A setting %1 appears, with the value %2."_s.arg(joined(key, name), quoted(value));
}

void compare(const Section &written, const Section &readBack, const QString &key, QStringList &losses)
{
    compareSettings(written, readBack, key, losses);

    QHash<QString, QQueue<const Section *>> found; // by name, each in the order of the file
    for (const Section &section : readBack.sections)
        found[section.name].enqueue(&section);
    for (const Section &section : written.sections) {
        const QString path = joined(key, section.name);
        if (QQueue<const Section *> &same = found[section.name]; !same.isEmpty())
            compare(section, *same.dequeue(), path, losses);
        else if (key.isEmpty() && &section != &written.sections.front())
            losses << u"The section %1 is lost: only the first section at the top is saved."_s.arg(path);
        else
            losses << u"The section %1 is lost."_s.arg(path);
    }
    for (const Section &section : readBack.sections)
        if (QQueue<const Section *> &same = found[section.name]; !same.isEmpty() && same.head() == &section) {
            same.dequeue();
            losses << u"A section %1 appears."_s.arg(joined(key, section.name));
        }
}

// Nothing is escaped in the file, so one value can make all of it unreadable.
void explainUnreadableXml(const Section &section, const QString &key, QStringList &losses)
{
    for (const auto &[name, value] : section.settings.asKeyValueRange())
        if (value.contains(u'<') || value.contains(u'&') || value.contains(u'"'))
            losses << u"The value of %1, %2, has a character that XML gives a meaning: <, & or \"."_s.arg(
                joined(key, name), quoted(value));
    for (const Section &child : section.sections)
        explainUnreadableXml(child, joined(key, child.name), losses);
}

// How often each character of names and values occurs: a file may be laid out and ordered at will.
std::array<qsizetype, 0x100> letterCounts(const QByteArray &latin1)
{
    std::array<qsizetype, 0x100> counts = {};
    for (const char letter : latin1)
        ++counts[static_cast<unsigned char>(letter)];
    for (std::size_t letter = 0; letter < counts.size(); ++letter)
        if (const QChar c(static_cast<char16_t>(letter)); c.isSpace() || QStringView(u"\":={};").contains(c))
            counts[letter] = 0;
    return counts;
}

void collectTexts(const Section &section, QString &texts)
{
    for (const auto &[name, value] : section.settings.asKeyValueRange())
        texts += name + value;
    for (const Section &child : section.sections) {
        texts += child.name;
        collectTexts(child, texts);
    }
}

} // namespace

QStringList lossesByWriting(const Config &store, const QString &kind)
{
    const Section written = store.content();
    Config reader;
    reader.readText(kind == "xml"_L1 ? store.xmlText() : store.cfgText(), kind);
    const Section readBack = reader.content();

    QStringList losses;
    if (kind == "xml"_L1 && readBack.isEmpty() && !written.isEmpty()) {
        losses << u"The saved file is no XML any more, and everything in it is lost."_s;
        if (!written.settings.empty())
            losses << u"Settings outside sections make it so: %1."_s.arg(
                written.settings.keys().join(", "_L1));
        explainUnreadableXml(written, {}, losses);
    } else {
        compare(written, readBack, {}, losses);
    }
    return losses;
}

bool saysMore(const QByteArray &text, const QString &kind, const Section &content)
{
    if (kind == "xml"_L1)
        return std::ranges::any_of(scanXml(text).statements, [](const Statement &statement) {
            return statement.kind == Statement::Kind::leftoverText
                || statement.kind == Statement::Kind::remark;
        });
    QString texts;
    collectTexts(content, texts);
    return letterCounts(text) != letterCounts(texts.toLatin1());
}

} // namespace libconfig
