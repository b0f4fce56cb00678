#include "printer_settings.h"

#include "diagnostic.h"
#include "file_name.h"
#include "tx_configuration.h"

#include <fnmatch.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int linesToTearBar = 4;

QStringList parts(const QString &value)
{
    QStringList all = value.split(u',', Qt::SkipEmptyParts);
    for (QString &part : all)
        part = part.trimmed();
    all.removeAll(QString());
    return all;
}

std::optional<int> number(const QString &text, int least, int most)
{
    bool isNumber = false;
    const int parsed = text.toInt(&isNumber);
    return isNumber && parsed >= least && parsed <= most ? std::optional(parsed) : std::nullopt;
}

template <int PrinterSettings::*field, int least, int most>
bool setNumber(PrinterSettings &settings, const QString &value)
{
    const std::optional<int> parsed = number(value, least, most);
    settings.*field = parsed.value_or(settings.*field);
    return parsed.has_value();
}

bool setModel(PrinterSettings &settings, const QString &value)
{
    const PrinterModel *const model = findPrinterModel(value);
    if (!model)
        return false;
    const QString name = settings.name;
    settings = PrinterSettings(*model);
    settings.name = name;
    return true;
}

bool setOutputs(PrinterSettings &settings, const QString &value)
{
    settings.outputs = parts(value);
    return !settings.outputs.isEmpty();
}

bool setCodePages(PrinterSettings &settings, const QString &value)
{
    QList<NumberedPage> pages;
    for (const QString &part : parts(value)) {
        const std::optional<CodePage> page =
            codePageOfName(QStringView(part).left(part.indexOf(u'=')).trimmed());
        const std::optional<int> pageNumber = number(part.section(u'=', 1), 0, 255);
        if (!page || !pageNumber)
            return false;
        pages.append({*page, static_cast<quint8>(*pageNumber)});
    }
    if (pages.isEmpty())
        return false;
    settings.codePages = pages;
    return true;
}

bool setCut(PrinterSettings &settings, const QString &value)
{
    const auto cutter = cutterOfName(value);
    settings.cut = cutter.value_or(settings.cut);
    return cutter.has_value();
}

bool setDrawerPin(PrinterSettings &settings, const QString &value)
{
    if (value != "2"_L1 && value != "5"_L1)
        return false;
    settings.drawerPin = value.toInt();
    return true;
}

bool setDrawerPulse(PrinterSettings &settings, const QString &value)
{
    const QStringList times = parts(value);
    if (times.size() != 2)
        return false;
    const std::optional<int> on = number(times[0], 2, 510);
    const std::optional<int> off = number(times[1], 2, 510);
    if (!on || !off)
        return false;
    settings.drawerPulse = {*on, *off};
    return true;
}

bool setLogo(PrinterSettings &settings, const QString &value)
{
    constexpr QLatin1StringView stored = "stored:"_L1;
    if (value.startsWith(stored)) {
        const std::optional<int> storedLogo = number(value.sliced(stored.size()), 1, 255);
        settings.storedLogo = storedLogo.value_or(0);
        return storedLogo.has_value();
    }
    // The configuration is read as Latin-1, whatever bytes the name has.
    settings.logoFile = fileNameFromBytes(value.toLatin1());
    return true;
}

template <bool PrinterSettings::*field>
bool setSwitch(PrinterSettings &settings, const QString &value)
{
    settings.*field = value == "true"_L1;
    return settings.*field || value == "false"_L1;
}

constexpr PrinterSetting allSettings[] = {
    {"model"_L1, QT_TRANSLATE_NOOP("Findings", "the name of a model"), &setModel},
    {"output"_L1, QT_TRANSLATE_NOOP("Findings", "a list of names and patterns"), &setOutputs},
    {"columns"_L1, QT_TRANSLATE_NOOP("Findings", "a number from 1 to 255"),
     &setNumber<&PrinterSettings::columns, 1, 255>},
    {"codePages"_L1, QT_TRANSLATE_NOOP("Findings", "a list of code pages with their numbers"), &setCodePages},
    {"cut"_L1, QT_TRANSLATE_NOOP("Findings", "full, partial or none"), &setCut},
    {"feed"_L1, QT_TRANSLATE_NOOP("Findings", "a number from 0 to 255"),
     &setNumber<&PrinterSettings::feed, 0, 255>},
    {"drawerPin"_L1, QT_TRANSLATE_NOOP("Findings", "2 or 5"), &setDrawerPin},
    {"drawerPulse"_L1, QT_TRANSLATE_NOOP("Findings", "two times from 2 to 510 ms"), &setDrawerPulse},
    {"logo"_L1, QT_TRANSLATE_NOOP("Findings", "a PNG file, or stored: with a number from 1 to 255"),
     &setLogo},
    {"duplicate"_L1, QT_TRANSLATE_NOOP("Findings", "true or false"), &setSwitch<&PrinterSettings::duplicate>},
    {"status"_L1, QT_TRANSLATE_NOOP("Findings", "true or false"), &setSwitch<&PrinterSettings::status>},
};

QByteArray resolved(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.constData(), nullptr), &std::free);
    return real ? QByteArray(real.get()) : path;
}

QString settingKey(const QString &printer, QLatin1StringView setting)
{
    return printersKey + u'.' + printer + u'.' + setting;
}

} // namespace

constexpr std::span<const PrinterSetting> printerSettings = allSettings;

PrinterSettings::PrinterSettings(const PrinterModel &printerModel)
    : model(&printerModel)
    , columns(printerModel.columns)
    , codePages(printerModel.codePages.begin(), printerModel.codePages.end())
    , cut(printerModel.cutter)
    , feed(printerModel.cutter == Cutter::none ? linesToTearBar : 0) // a cutter's own feed reaches the blade
{
}

std::vector<CodePage> PrinterSettings::pages() const
{
    std::vector<CodePage> all;
    for (const NumberedPage &numbered : codePages)
        all.push_back(numbered.page);
    return all;
}

QStringList printerNames(const TXConfiguration &configuration)
{
    return configuration.sectionNames(printersKey);
}

const PrinterSetting *findPrinterSetting(QLatin1StringView name)
{
    const auto setting = std::ranges::find(printerSettings, name, &PrinterSetting::name);
    return setting == printerSettings.end() ? nullptr : &*setting;
}

void printSettingFault(const QString &key, const PrinterSetting &setting, const QString &value)
{
    printDiagnostic("Error in the setting " + shownFileName(key) + "( " + shownFileName(value) + " ): not "
                    + setting.expected);
}

PrinterSettings printerOfName(const TXConfiguration &configuration, const QString &name,
                              const SettingFault &tellFault, const SettingTexts &overrides,
                              const SettingTexts &defaults)
{
    PrinterSettings settings;
    settings.name = name;
    for (const PrinterSetting &setting : printerSettings) {
        const QString key = settingKey(name, setting.name);
        QString value = overrides.value(setting.name);
        if (value.isEmpty())
            value = configuration.getStrValue(key);
        if (value.isEmpty())
            value = defaults.value(setting.name);
        const bool isMissingModel = value.isEmpty() && setting.set == &setModel;
        if ((!value.isEmpty() || isMissingModel) && !setting.set(settings, value))
            tellFault(key, setting, value);
    }
    return settings;
}

bool isOutputPattern(const QString &output)
{
    return std::ranges::any_of(output, [](QChar c) { return QStringView(u"*?[\\").contains(c); });
}

bool fitsOutput(const QStringList &outputs, const QByteArray &path)
{
    return std::ranges::any_of(outputs, [&](const QString &pattern) {
        // As for logos, the bytes of the file.
        return fnmatch(pattern.toLatin1().constData(), path.constData(), 0) == 0;
    });
}

std::optional<PrinterSettings> printerForOutput(const TXConfiguration &configuration, const QString &path,
                                                const SettingFault &tellFault)
{
    const QStringList names = printerNames(configuration);
    if (names.isEmpty())
        return {};
    const QByteArray given = fileNameBytes(path);
    const QByteArray real = resolved(given);
    for (const QString &name : names) {
        const QStringList outputs = parts(configuration.getStrValue(settingKey(name, "output"_L1)));
        if (fitsOutput(outputs, given) || fitsOutput(outputs, real))
            return printerOfName(configuration, name, tellFault);
    }
    return {};
}
