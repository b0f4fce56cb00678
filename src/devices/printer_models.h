#pragma once

#include "code_pages.h"

#include <QLatin1StringView>
#include <QStringList>

#include <optional>
#include <span>

/* How a printer parts a printout from the paper. A printer without a cutter has a bar to tear it off. */
enum class Cutter : quint8 { none, partial, full };

/* The name in the configuration, such as "full", and the cutter of a name. */
QLatin1StringView cutterName(Cutter cutter);
std::optional<Cutter> cutterOfName(QStringView name);

/* A code page, and the number by which a printer knows it. */
struct NumberedPage
{
    CodePage page;
    quint8 number;

    bool operator==(const NumberedPage &) const = default;
};

/* Pages as the configuration has them: "858=19, 1252=16". */
QString codePagesText(std::span<const NumberedPage> pages);

/* A printer as it leaves the factory. The configuration can override all of it. */
struct PrinterModel
{
    QLatin1StringView name; // in the configuration
    QLatin1StringView title; // for people
    int columns; // in the normal type
    int dots; // across the printable width, 0 where that is unknown
    std::span<const NumberedPage> codePages; // in order of preference
    Cutter cutter; // the strongest cut that it has
    bool raster; // prints pictures that are sent to it

    /* A printer of plain UTF-8 text, which knows no commands. */
    constexpr bool isPlainText() const { return codePages.empty(); }
};

// In the order in which they are shown.
extern const std::span<const PrinterModel> printerModels;

/* The names of all models. */
QStringList printerModelNames();

/* The model of a name; null when there is none. */
const PrinterModel *findPrinterModel(QStringView name);

/* The model that prints what every printer prints without a configuration. */
const PrinterModel &plainTextModel();
