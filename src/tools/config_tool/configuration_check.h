#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/* Something that a person would want to know about a configuration file. */
struct Finding
{
    int line; // 0: of the file as a whole
    QString text;
    QString key = {}; // of the setting or section it is about, such as "tavolux.doc"; empty for the text

    bool operator==(const Finding &) const = default;
};

/*
 * Looks for all that the printing program passes over in silence: what it never reads, values that it cannot
 * use, columns that leave no room on the paper, a translation that is not there, what a printer cannot print
 * or never gets. Sorted by line.
 *
 * The text is of the kind "cfg" or "xml". A missing translation for an English locale is no
 * finding when the language follows the locale, since the labels are English of themselves.
 */
std::vector<Finding> checkConfiguration(const QByteArray &text, const QString &kind);
