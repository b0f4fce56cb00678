#pragma once

#include "outline.h"

#include <vector>

/* A setting in a list of sections, by number; -1 is the section itself. */
struct Place
{
    int section = -1;
    int setting = -1;

    bool operator==(const Place &) const = default;
};

/* The places where every one of some words stands, in the order of the list: in the key, the title of the
 * section, the value or the explanation, in English or in the language of the windows, whatever the case.
 * Settings are found; a section is one if it holds none. None without words. */
std::vector<Place> findSettings(const libconfig::ConfigurationText &text,
                                const std::vector<ShownSection> &sections, const QString &words);
