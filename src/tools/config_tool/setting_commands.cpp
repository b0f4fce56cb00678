#include "setting_commands.h"

#include "configuration_check.h"
#include "configuration_text.h"
#include "file_name.h"
#include "known_settings.h"
#include "nearest_name.h"
#include "tx_configuration.h"
#include "write_file.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using libconfig::TextChange;

namespace {

constexpr QLatin1StringView kindNames[] = {"text"_L1,   "number"_L1, "switch"_L1,
                                           "choice"_L1, "file"_L1,   "folder"_L1};

QLatin1StringView kindName(SettingKind kind)
{
    return kindNames[static_cast<std::size_t>(kind)];
}

/* The keys that the programs read and those that stand in the file, each once. */
QStringList allKeys(const ConfigurationText &text, const TXConfiguration &configuration)
{
    QStringList keys = knownKeys(configuration);
    for (int index = 1; index < static_cast<int>(text.entries().size()); ++index)
        if (text.entry(index).isSetting() && text.entry(index).parent != ConfigurationText::wholeFile)
            keys << text.keyOf(index);
    keys.removeDuplicates();
    return keys;
}

/* The key that was probably meant; the first section is the one thing that nobody thinks of. */
QString suggestedKey(const QString &key, const QStringList &keys)
{
    constexpr QLatin1StringView first = "tavolux."_L1;
    if (key.startsWith(first))
        return suggestion(key, keys);
    QStringList shortened;
    for (const QString &known : keys)
        shortened << (known.startsWith(first) ? known.sliced(first.size()) : known);
    const QString nearest = nearestName(key, shortened);
    return nearest.isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(keys[shortened.indexOf(nearest)]);
}

/* A row of the list. */
struct Listed
{
    QString section;
    QString name;
    std::optional<int> entry; // where the text has it
    const KnownSetting *known; // null for one that is never read

    QString key() const { return section + u'.' + name; }
};

std::vector<Listed> listed(const ConfigurationText &text, const TXConfiguration &configuration)
{
    QHash<QString, QList<int>> entries; // by key
    for (int index = 1; index < static_cast<int>(text.entries().size()); ++index)
        if (text.entry(index).isSetting())
            entries[text.keyOf(index)] << index;
    std::vector<Listed> rows;
    QHash<QString, qsizetype> order; // of the sections
    for (const QString &key : allKeys(text, configuration)) {
        const qsizetype dot = key.lastIndexOf(u'.');
        const QString section = key.left(dot);
        order.insert(section, order.value(section, order.size()));
        const QList<int> given = entries.value(key);
        // To look for one that is there only once takes as long as the section is large.
        const std::optional<int> entry = given.size() == 1 ? given.front() : text.settingOf(key);
        rows.push_back({section, key.sliced(dot + 1), entry, findSetting(key)});
    }
    std::ranges::stable_sort(rows, {}, [&](const Listed &row) { return order.value(row.section); });
    return rows;
}

QString titleOf(const QString &section)
{
    const auto known = std::ranges::find(knownSections(), section, &KnownSection::key);
    return known == knownSections().end() ? QString() : u" (%1)"_s.arg(QString::fromLatin1(known->title));
}

void printJson(const std::vector<Listed> &rows, const ConfigurationText &text,
               const TXConfiguration &configuration)
{
    QJsonArray array;
    for (const Listed &row : rows) {
        QJsonObject object{{u"key"_s, row.key()}};
        object[u"value"_s] = row.entry ? QJsonValue(text.entry(*row.entry).value) : QJsonValue();
        object[u"line"_s] = row.entry ? QJsonValue(text.entry(*row.entry).line) : QJsonValue();
        object[u"read"_s] = row.known != nullptr;
        if (row.known) {
            object[u"default"_s] = valueWhenMissing(row.key(), configuration);
            object[u"kind"_s] = kindName(row.known->kind);
            object[u"explanation"_s] = QString::fromLatin1(row.known->explanation);
            if (row.known->kind == SettingKind::number) {
                object[u"least"_s] = row.known->least;
                object[u"most"_s] = row.known->most;
                object[u"unit"_s] = QString::fromLatin1(row.known->unit);
            }
            if (row.known->kind == SettingKind::choice)
                object[u"choices"_s] = QJsonArray::fromStringList(choicesOf(*row.known));
        }
        array.append(object);
    }
    print(QJsonDocument(array).toJson().trimmed());
}

void printTable(const std::vector<Listed> &rows, const ConfigurationText &text,
                const TXConfiguration &configuration)
{
    static constexpr qsizetype widestColumn = 30;
    struct Cells
    {
        QString name;
        QString value;
        QString fallback;
        QString explanation;
    };
    std::vector<Cells> table;
    Cells widest{u"SETTING"_s, u"VALUE"_s, u"WITHOUT IT"_s, {}};
    const auto widen = [](QString &column, const QString &cell) {
        column.resize(std::max(column.size(), std::min(cell.size(), widestColumn)), u' ');
    };
    for (const Listed &row : rows) {
        const auto shown = [](const QString &value) { return value.isEmpty() ? u"-"_s : value.simplified(); };
        table.push_back({row.name.simplified(), row.entry ? shown(text.entry(*row.entry).value) : u"-"_s,
                         row.known ? shown(valueWhenMissing(row.key(), configuration)) : u"-"_s,
                         row.known ? QString::fromLatin1(row.known->explanation) : u"(never read)"_s});
        const Cells &cells = table.back();
        widen(widest.name, cells.name);
        widen(widest.value, cells.value);
        widen(widest.fallback, cells.fallback);
    }
    const auto printRow = [&](const Cells &cells) {
        const QString row = "    "_L1 + cells.name.leftJustified(widest.name.size()) + "  "_L1
            + cells.value.leftJustified(widest.value.size()) + "  "_L1
            + cells.fallback.leftJustified(widest.fallback.size()) + "  "_L1 + cells.explanation;
        print(shownFileName(row));
    };
    printRow({u"SETTING"_s, u"VALUE"_s, u"WITHOUT IT"_s, u"MEANING"_s});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i == 0 || rows[i].section != rows[i - 1].section)
            print(shownFileName(rows[i].section.simplified() + titleOf(rows[i].section)));
        printRow(table[i]);
    }
}

/* Whether a section or setting is what was asked for by its key or by what follows "tavolux.". */
bool isAskedFor(const Listed &row, const QString &asked)
{
    return asked.isEmpty()
        || std::ranges::any_of(QStringList{asked, "tavolux."_L1 + asked}, [&](const QString &key) {
               return row.key() == key || row.key().startsWith(key + u'.');
           });
}

/* The findings that a text has and an earlier one had not. Lines may have moved in between. */
QStringList newFindings(const ConfigurationText &before, const ConfigurationText &after)
{
    static const QRegularExpression lineNumber(u"in line \\d+"_s);
    const auto textOf = [](const Finding &finding) {
        return QString(finding.text).replace(lineNumber, u"in line"_s) + finding.key;
    };
    QHash<QString, int> known;
    for (const Finding &finding : checkConfiguration(before.text(), before.kind()))
        ++known[textOf(finding)];
    QStringList found;
    for (const Finding &finding : checkConfiguration(after.text(), after.kind()))
        if (--known[textOf(finding)] < 0)
            found << (finding.key.isEmpty() ? finding.text : finding.key + ": "_L1 + finding.text);
    return found;
}

/* A file name is bytes, which the configuration holds as Latin-1 characters; other text is what it says. */
QString valueFor(const KnownSetting *known, const QString &argument)
{
    const bool isFileName = known && (known->kind == SettingKind::file || known->kind == SettingKind::folder);
    return isFileName ? QString::fromLatin1(fileNameBytes(argument)) : argument;
}

ExitStatus save(const Task &task, const QByteArray &text)
{
    const WriteResult result = replaceFile(task.file, text);
    if (!result)
        complain(u"cannot write %1: %2"_s.arg(task.file, result.fault));
    else if (!result.remark.isEmpty())
        complain(u"%1 is written, but %2"_s.arg(task.file, result.remark));
    return result ? exitSuccess : exitNegative;
}

ExitStatus cannotChange(const QString &key, const QString &fault)
{
    complain(u"%1 stays as it is: %2"_s.arg(key, fault));
    return exitNegative;
}

} // namespace

ExitStatus printValue(const Task &task)
{
    const std::optional<Source> source = readSource(task);
    if (!source)
        return exitTrouble;
    const TXConfiguration configuration(task.file, task.kind);
    const QString value = configuration.getStrValue(task.argument);
    print(fileNameBytes(value));
    if (!value.isEmpty())
        return exitSuccess;
    const QStringList keys = allKeys(ConfigurationText(source->text, task.kind), configuration);
    if (!keys.contains(task.argument))
        complain(u"there is no setting \"%1\""_s.arg(task.argument) + suggestedKey(task.argument, keys));
    return exitNegative;
}

ExitStatus listSettings(const Task &task)
{
    // Whoever completes a command line has use for the names before there is a configuration.
    const std::optional<Source> source = readSource(task);
    if (!source && !task.names)
        return exitTrouble;
    const ConfigurationText text(source ? source->text : QByteArray(), task.kind);
    TXConfiguration configuration{{}, {}};
    configuration.readText(text.text(), task.kind);
    std::vector<Listed> rows = listed(text, configuration);
    std::erase_if(rows, [&](const Listed &row) { return !isAskedFor(row, task.argument); });
    if (rows.empty()) {
        complain(u"there is no section or setting \"%1\""_s.arg(task.argument));
        return exitNegative;
    }
    if (task.json) {
        printJson(rows, text, configuration);
    } else if (task.names) {
        for (const Listed &row : rows)
            print(fileNameBytes(row.key()));
    } else {
        printTable(rows, text, configuration);
    }
    return source ? exitSuccess : exitTrouble;
}

ExitStatus setValues(const Task &task)
{
    if (task.arguments.size() % 2 != 0)
        return refuse(u"the value of %1 is missing"_s.arg(task.arguments.last()));
    const std::optional<QByteArray> bytes = textOf(task.file);
    if (!bytes)
        return exitTrouble;
    const ConfigurationText text(*bytes, task.kind);
    ConfigurationText changed = text;
    for (qsizetype i = 0; i < task.arguments.size(); i += 2) {
        const QString &key = task.arguments[i];
        const KnownSetting *const known = findSetting(key);
        if (!known && !task.force) {
            TXConfiguration configuration{{}, {}};
            configuration.readText(*bytes, task.kind);
            complain(u"there is no setting \"%1\""_s.arg(key) + suggestedKey(key, knownKeys(configuration)));
            complain(u"--force sets it all the same"_s);
            return exitNegative;
        }
        const TextChange change = changed.set(key, valueFor(known, task.arguments[i + 1]));
        if (!change)
            return cannotChange(key, change.fault);
        changed = ConfigurationText(change.appliedTo(changed.text()), task.kind);
    }
    if (const QStringList findings = newFindings(text, changed); !task.force && !findings.isEmpty()) {
        for (const QString &finding : findings)
            complain(finding);
        complain(u"%1 stays as it is; --force sets it all the same"_s.arg(task.file));
        return exitNegative;
    }
    return changed.text() == *bytes ? exitSuccess : save(task, changed.text());
}

ExitStatus unsetValue(const Task &task)
{
    const std::optional<QByteArray> bytes = textOf(task.file);
    if (!bytes)
        return exitTrouble;
    ConfigurationText text(*bytes, task.kind);
    if (!text.fault().isEmpty())
        return cannotChange(task.argument, text.fault());
    std::optional<int> setting = text.settingOf(task.argument);
    if (!setting) {
        TXConfiguration configuration{{}, {}};
        configuration.readText(*bytes, task.kind);
        const QStringList keys = allKeys(text, configuration);
        complain(keys.contains(task.argument) ? u"%1 is not set"_s.arg(task.argument)
                                              : u"there is no setting \"%1\""_s.arg(task.argument)
                         + suggestedKey(task.argument, keys));
        return exitNegative;
    }
    // Given twice, the other one would count now.
    for (; setting; setting = text.settingOf(task.argument))
        text = ConfigurationText(text.remove(*setting).appliedTo(text.text()), task.kind);
    return save(task, text.text());
}
