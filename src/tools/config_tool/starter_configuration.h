#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QList>

#include <optional>

/* The widths of paper, in characters, that a starter configuration can be made for. */
QList<int> starterPaperWidths();

/* The widest of them that a printer of so many columns has, at least the narrowest of all. */
int starterPaperWidth(int columns);

/* A receipt printer for a start. */
struct StarterPrinter
{
    QLatin1StringView model;
    QByteArray output; // the names that it prints, without a semicolon or double quotes
};

/* A complete configuration for one of these widths, as "cfg" text: every setting of every profile, with a
 * value that does for a start, and the printer if there is one. */
QByteArray starterConfiguration(int paperWidth, const std::optional<StarterPrinter> &printer = {});
