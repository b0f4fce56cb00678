#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <vector>

class TXConfiguration;

/* What a setting takes. */
enum class SettingKind {
    text,
    number, // a whole one, from least to most
    onOff, // "true" or "false"
    choice, // one of choicesOf
    file,
    folder,
};

/* A setting that the programs read, as a person is told of it. */
struct KnownSetting
{
    QLatin1StringView name;
    SettingKind kind;
    int least;
    int most;
    const char *unit; // of a number, in English; empty for none
    QLatin1StringView
        whenMissing; // the value that holds then; of a printer's setting its model may have another
    const char *explanation; // one sentence in English; windows translate it in the context "Settings"
};

/* A section whose settings are read. */
struct KnownSection
{
    QString key; // such as "tavolux.doc"
    const char *title; // what it is about, in English; windows translate it in the context "Settings"
};

/* The sections that every configuration may have, as a person looks for them: kinds of documents in the order
 * of a guest's evening, then the language. Printers' sections have names of the user's own. */
const std::vector<KnownSection> &knownSections();

using SettingList = std::vector<const KnownSetting *>;

/* The settings of a section, that of a printer among them, in the order in which a starter has them. Empty
 * for one that is never read. */
SettingList settingsOf(const QString &sectionKey);

/* The setting of a dotted key such as "tavolux.doc.paperWidth"; null when it is never read. */
const KnownSetting *findSetting(const QString &key);

/* The keys that such a configuration can have: of all known sections, and of its own printers. */
QStringList knownKeys(const TXConfiguration &configuration);

/* What a setting of the kind choice takes. */
QStringList choicesOf(const KnownSetting &setting);

/* What is wrong with a value, in the language of findings.h; empty when nothing is. */
QString valueFault(const KnownSetting &setting, const QString &value);

/* The value that holds while the configuration does not name the key; empty where there is none. */
QString valueWhenMissing(const QString &key, const TXConfiguration &configuration);
