#pragma once

#include "printer_models.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <span>
#include <vector>

class TXConfiguration;

/* How long the drawer's magnet is on, and then off at least. */
struct DrawerPulse
{
    int onMilliseconds = 50;
    int offMilliseconds = 500;

    bool operator==(const DrawerPulse &) const = default;
};

/* A printer as the user's configuration has it: what a section of tavolux.printers says, and else its model.
 */
struct PrinterSettings
{
    /* A printer as it leaves the factory. */
    explicit PrinterSettings(const PrinterModel &printerModel = plainTextModel());

    /* The code pages without their numbers. */
    std::vector<CodePage> pages() const;

    QString name; // of the section; empty for a bare model
    QStringList outputs; // the names and shell patterns of the outputs that it prints
    const PrinterModel *model;
    int columns;
    QList<NumberedPage> codePages; // in order of preference
    Cutter cut;
    int feed; // lines before the cut or the tear bar
    int drawerPin = 2;
    DrawerPulse drawerPulse;
    QString logoFile; // a PNG file; empty for none
    int storedLogo = 0; // the number of a logo kept in the printer, 0 for none
    bool duplicate = false; // a document that is to be printed twice is
    bool status = false; // the printer is asked for its state when documents are printed
};

/* A setting of a printer. */
struct PrinterSetting
{
    QLatin1StringView name; // in the configuration
    const char *expected; // in English: "a number from 1 to 255"; windows translate it in "Findings"

    /* Sets what the text of the configuration says; false, and nothing set, when that is not what is
     * expected.
     */
    bool (*set)(PrinterSettings &settings, const QString &value);
};

// In the order in which they are read: the model first, which the others override.
extern const std::span<const PrinterSetting> printerSettings;

/* The key prefix of all printers' sections, and the names of those sections. */
inline constexpr QLatin1StringView printersKey{"tavolux.printers"};
QStringList printerNames(const TXConfiguration &configuration);

/* The setting of a name; null when there is none. */
const PrinterSetting *findPrinterSetting(QLatin1StringView name);

/* Is told of a value that is not what is expected, or of a model that is missing. */
using SettingFault =
    std::function<void(const QString &key, const PrinterSetting &setting, const QString &value)>;

/* Tells it in one line on standard output. */
void printSettingFault(const QString &key, const PrinterSetting &setting, const QString &value);

/* Texts of settings, by their names. */
using SettingTexts = QMap<QString, QString>;

/* The printer of a section. What overrides say wins over the section, which wins over the defaults. Of a
 * value that is not what is expected the model's stays and, without a model that is known, the printer is the
 * plain-text one. */
PrinterSettings printerOfName(const TXConfiguration &configuration, const QString &name,
                              const SettingFault &tellFault = printSettingFault,
                              const SettingTexts &overrides = {}, const SettingTexts &defaults = {});

/* Whether an output is a pattern, not a name. */
bool isOutputPattern(const QString &output);

/* Whether a name, in its bytes, is one of the outputs or fits one of their patterns. */
bool fitsOutput(const QStringList &outputs, const QByteArray &path);

/* The printer of the first section whose outputs fit the path, as it stands or as it is when all links are
 * followed; none without such a section. */
std::optional<PrinterSettings> printerForOutput(const TXConfiguration &configuration, const QString &path,
                                                const SettingFault &tellFault = printSettingFault);
