#pragma once

#include "configuration_text.h"
#include "known_settings.h"

#include <QString>

#include <vector>

/* No entry of the text: what programs read and the file does not have. */
inline constexpr int absent = -1;

/* A section as a window lists it. */
struct ShownSection
{
    enum class Group { documents, language, printers, others };

    Group group;
    QString key; // dotted; empty for what stands outside of any section
    int entry = absent;
    bool isRepeated = false; // there is one of the key before it

    bool operator==(const ShownSection &) const = default;

    /* Whether it is where programs look for its settings. */
    bool isRead() const { return group != Group::others; }
};

/* A setting as a window lists it. */
struct ShownSetting
{
    QString name;
    int entry = absent;
    const KnownSetting *known = nullptr; // null: nothing reads it

    bool operator==(const ShownSetting &) const = default;
};

/* What programs read, whether the file has it or not, and then, as the others, all else that holds settings
 * or nothing at all: what is never read, and the second section of a name. */
std::vector<ShownSection> shownSections(const libconfig::ConfigurationText &text);

/* The settings of a section: those that programs read, in their usual order, then the others of the file. */
std::vector<ShownSetting> shownSettings(const libconfig::ConfigurationText &text,
                                        const ShownSection &section);

/* The dotted key of a setting in it. */
QString keyOf(const ShownSection &section, const ShownSetting &setting);

/* What a person calls the section, in the language of the windows. */
QString titleOf(const ShownSection &section, const libconfig::ConfigurationText &text);

/* What a setting does, in the language of the windows: a sentence, and for a number its bounds. Empty for one
 * that nothing reads. */
QString explanationOf(const ShownSetting &setting);
