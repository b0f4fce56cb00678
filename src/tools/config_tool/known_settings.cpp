#include "known_settings.h"

#include "document_profile.h"
#include "findings.h"
#include "nearest_name.h"
#include "printer_settings.h"
#include "quoted.h"
#include "tx_configuration.h"

#include <algorithm>
#include <iterator>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView languageKey = "tavolux.language"_L1;
constexpr QLatin1StringView fiscalKey = "tavolux.fiscaldoc"_L1;

constexpr KnownSetting number(QLatin1StringView name, const char *unit, QLatin1StringView whenMissing,
                              const char *explanation, int least = 0, int most = DocumentProfile::widestLine)
{
    return {name, SettingKind::number, least, most, unit, whenMissing, explanation};
}

constexpr KnownSetting onOff(QLatin1StringView name, const char *explanation)
{
    return {name, SettingKind::onOff, 0, 0, "", "false"_L1, explanation};
}

constexpr KnownSetting other(SettingKind kind, QLatin1StringView name, QLatin1StringView whenMissing,
                             const char *explanation)
{
    return {name, kind, 0, 0, "", whenMissing, explanation};
}

constexpr const char *characters = QT_TRANSLATE_NOOP("Settings", "characters");
constexpr const char *lines = QT_TRANSLATE_NOOP("Settings", "lines");

constexpr KnownSetting profileTable[] = {
    number("quantityFieldWidth"_L1, characters, "0"_L1,
           QT_TRANSLATE_NOOP("Settings", "The width of the column for quantities.")),
    number("priceFieldWidth"_L1, characters, "0"_L1,
           QT_TRANSLATE_NOOP("Settings",
                             "The width of the column for prices, and for the amounts of a statement of "
                             "account.")),
    number("totalPriceFieldWidth"_L1, characters, "0"_L1,
           QT_TRANSLATE_NOOP("Settings", "The width of the column for totals.")),
    number("paperWidth"_L1, characters, "0"_L1,
           QT_TRANSLATE_NOOP("Settings",
                             "The length of a line; 0 stands for the printer's own, which is 34 for plain "
                             "text.")),
    number("paperRows"_L1, lines, "0"_L1,
           QT_TRANSLATE_NOOP("Settings", "The lines of a page, which no document uses.")),
    other(SettingKind::text, DocumentProfile::style, ""_L1,
          QT_TRANSLATE_NOOP("Settings", "A style, which no document uses.")),
    number(DocumentProfile::topMargin, lines, "0"_L1,
           QT_TRANSLATE_NOOP("Settings", "Empty lines at the top, which the element geometry prints.")),
    number(
        DocumentProfile::descriptionWidth, characters, "0"_L1,
        QT_TRANSLATE_NOOP("Settings",
                          "How much of an item's name a fiscal printer gets; 0 stands for the printer's own "
                          "width.")),
    onOff("printGeometry"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the empty lines at the top are printed.")),
    onOff("printHeader"_L1,
          QT_TRANSLATE_NOOP("Settings",
                            "Whether the lines of headers are printed; the printer's name always is.")),
    onOff("printLogo"_L1,
          QT_TRANSLATE_NOOP("Settings", "Nothing: a logo is printed when the printer's section names one.")),
    onOff("printCompany"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the company's block is printed.")),
    onOff("printDeliveryAddress"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the customer's block has the delivery address.")),
    onOff("printBillingAddress"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the customer's block has the billing address.")),
    onOff("printTelephone"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the customer's block has the telephone number.")),
    onOff("printDate"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the order's date is printed.")),
    onOff("printTime"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the order's time is printed.")),
    onOff("printTable"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the order's table is printed.")),
    onOff("printCustomer"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the customer's block is printed.")),
    onOff("printLicenseNumber"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the customer's block has the licence number.")),
    onOff("printFiscalCode"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the customer's block has the fiscal code.")),
    onOff("printCredit"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the order's credit is printed.")),
    onOff("printWaiter"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the order's waiter is printed.")),
    onOff("printNote"_L1, QT_TRANSLATE_NOOP("Settings", "Whether the order's note is printed.")),
    onOff("openCashDrawer"_L1,
          QT_TRANSLATE_NOOP("Settings", "Whether the end of a document opens the drawer.")),
};

constexpr KnownSetting languageTable[] = {
    other(SettingKind::folder, "basedir"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings", "The folder of the translations.")),
    other(SettingKind::text, "file"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings",
                            "The translation to use, put right after the folder; / alone is the one of the "
                            "user's locale.")),
};

constexpr KnownSetting printerTable[] = {
    other(SettingKind::choice, "model"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings", "The model of the printer, which says all that follows.")),
    other(
        SettingKind::file, "output"_L1, ""_L1,
        QT_TRANSLATE_NOOP("Settings",
                          "The outputs that this printer prints, separated by commas; * and ? stand for any "
                          "characters and any one.")),
    number("columns"_L1, characters, ""_L1,
           QT_TRANSLATE_NOOP("Settings", "The length of a line of normal type."), 1, 255),
    other(SettingKind::text, "codePages"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings",
                            "The code pages to use, with the printer's numbers for them, the best first.")),
    other(SettingKind::choice, "cut"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings", "How the paper is cut at the end of a document.")),
    number("feed"_L1, lines, ""_L1,
           QT_TRANSLATE_NOOP("Settings", "Empty lines before the cut or the tear bar."), 0, 255),
    other(SettingKind::choice, "drawerPin"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings", "The pin of the drawer's connector that gets the pulse.")),
    other(SettingKind::text, "drawerPulse"_L1, ""_L1,
          QT_TRANSLATE_NOOP("Settings",
                            "How long the drawer's pulse is on, and off at least, in milliseconds from 2 to "
                            "510.")),
    other(
        SettingKind::file, "logo"_L1, ""_L1,
        QT_TRANSLATE_NOOP("Settings",
                          "The picture that the element logo prints: a PNG file, or stored:1 for one kept in "
                          "the printer.")),
    onOff("duplicate"_L1,
          QT_TRANSLATE_NOOP("Settings",
                            "Whether invoices are printed twice, for the guest and for the books.")),
    onOff("status"_L1,
          QT_TRANSLATE_NOOP("Settings",
                            "Whether a printer at a device is asked whether it is ready, and whether it has "
                            "printed.")),
};

// What printers have as they leave the factory.
struct OfModel
{
    QLatin1StringView setting;
    QString (*value)(const PrinterSettings &printer);
};

constexpr OfModel modelValues[] = {
    {"columns"_L1, [](const PrinterSettings &printer) { return QString::number(printer.columns); }},
    {"codePages"_L1,
     [](const PrinterSettings &printer) {
         return codePagesText({printer.codePages.data(), static_cast<std::size_t>(printer.codePages.size())});
     }},
    {"cut"_L1, [](const PrinterSettings &printer) { return QString(cutterName(printer.cut)); }},
    {"feed"_L1, [](const PrinterSettings &printer) { return QString::number(printer.feed); }},
    {"drawerPin"_L1, [](const PrinterSettings &printer) { return QString::number(printer.drawerPin); }},
    {"drawerPulse"_L1,
     [](const PrinterSettings &printer) {
         const auto [on, off] = printer.drawerPulse;
         return u"%1, %2"_s.arg(QString::number(on), QString::number(off));
     }},
};

bool isProfile(const QString &sectionKey)
{
    return std::ranges::any_of(
        documentTypes, [&](const DocumentType &type) { return type.keyPrefix.chopped(1) == sectionKey; });
}

// The name of the printer that a section is of; empty for another section. A dot would part its keys.
QString printerOfSection(const QString &sectionKey)
{
    const QString name = sectionKey.section(u'.', 2);
    return sectionKey.startsWith(printersKey + u'.') && !name.contains(u'.') ? name : QString();
}

} // namespace

const std::vector<KnownSection> &knownSections()
{
    static const std::vector<KnownSection> sections{
        {u"tavolux.doc"_s, QT_TRANSLATE_NOOP("Settings", "Kitchen tickets")},
        {u"tavolux.prefiscaldoc"_s, QT_TRANSLATE_NOOP("Settings", "Orders with prices")},
        {u"tavolux.receiptdoc"_s, QT_TRANSLATE_NOOP("Settings", "Receipts")},
        {u"tavolux.invoicedoc"_s, QT_TRANSLATE_NOOP("Settings", "Invoices")},
        {u"tavolux.fiscaldoc"_s, QT_TRANSLATE_NOOP("Settings", "Fiscal documents")},
        {u"tavolux.deliverydoc"_s, QT_TRANSLATE_NOOP("Settings", "Delivery orders")},
        {u"tavolux.reportdoc"_s, QT_TRANSLATE_NOOP("Settings", "Reports and statements of account")},
        {u"tavolux.solddoc"_s, QT_TRANSLATE_NOOP("Settings", "Sold items")},
        {languageKey, QT_TRANSLATE_NOOP("Settings", "Language")},
    };
    return sections;
}

SettingList settingsOf(const QString &sectionKey)
{
    SettingList settings;
    const auto add = [&settings](std::span<const KnownSetting> table, const auto &fits) {
        for (const KnownSetting &setting : table)
            if (fits(setting))
                settings.push_back(&setting);
    };
    const auto all = [](const KnownSetting &) { return true; };
    if (isProfile(sectionKey))
        add(profileTable, [&](const KnownSetting &setting) {
            return setting.name != DocumentProfile::descriptionWidth || sectionKey == fiscalKey;
        });
    else if (sectionKey == languageKey)
        add(languageTable, all);
    else if (!printerOfSection(sectionKey).isEmpty())
        add(printerTable, all);
    return settings;
}

const KnownSetting *findSetting(const QString &key)
{
    const qsizetype dot = key.lastIndexOf(u'.');
    const SettingList settings = settingsOf(key.left(dot));
    const auto found = std::ranges::find_if(settings, [&](const KnownSetting *setting) {
        return setting->name == QStringView(key).sliced(dot + 1);
    });
    return found == settings.end() ? nullptr : *found;
}

QStringList knownKeys(const TXConfiguration &configuration)
{
    QStringList sections;
    for (const KnownSection &section : knownSections())
        sections << section.key;
    for (const QString &printer : printerNames(configuration))
        sections << printersKey + u'.' + printer;
    sections.removeDuplicates();
    QStringList keys;
    for (const QString &section : std::as_const(sections))
        for (const KnownSetting *setting : settingsOf(section))
            keys << section + u'.' + setting->name;
    return keys;
}

QStringList choicesOf(const KnownSetting &setting)
{
    if (setting.name == "model"_L1)
        return printerModelNames();
    if (setting.name == "cut"_L1)
        return {cutterName(Cutter::full), cutterName(Cutter::partial), cutterName(Cutter::none)};
    if (setting.name == "drawerPin"_L1)
        return {u"2"_s, u"5"_s};
    return {};
}

QString valueFault(const KnownSetting &setting, const QString &value)
{
    if (const PrinterSetting *ofPrinter = findPrinterSetting(setting.name)) {
        PrinterSettings printer;
        if (value.isEmpty() || ofPrinter->set(printer, value)) // an empty one counts as missing
            return {};
        const QString nearest =
            setting.name == "model"_L1 ? nearestName(value, choicesOf(setting)) : QString();
        return Findings::tr("%1 is %2, not %3")
                   .arg(quoted(setting.name), quoted(value), Findings::tr(ofPrinter->expected))
            + (nearest.isEmpty() ? QString() : Findings::tr("; did you mean %1?").arg(quoted(nearest)));
    }
    if (setting.kind == SettingKind::onOff && value != "true"_L1 && value != "false"_L1)
        return Findings::tr("%1 is %2, neither \"true\" nor \"false\", so it is off")
            .arg(quoted(setting.name), quoted(value));
    if (setting.kind == SettingKind::number) {
        bool isNumber = false;
        const int parsed = value.toInt(&isNumber);
        if (!isNumber)
            return Findings::tr("%1 is %2, no usable whole number, so it counts as 0")
                .arg(quoted(setting.name), quoted(value));
        if (parsed < setting.least)
            return Findings::tr("%1 is %2, a negative number").arg(quoted(setting.name), quoted(value));
        if (parsed > setting.most)
            return Findings::tr("%1 is %2, more than any paper holds")
                .arg(quoted(setting.name), quoted(value));
    }
    return {};
}

QString valueWhenMissing(const QString &key, const TXConfiguration &configuration)
{
    const KnownSetting *const setting = findSetting(key);
    if (!setting)
        return {};
    const auto *const ofModel = std::ranges::find(modelValues, setting->name, &OfModel::setting);
    const QString printer = printerOfSection(key.left(key.lastIndexOf(u'.')));
    if (printer.isEmpty() || ofModel == std::end(modelValues))
        return setting->whenMissing;
    const QString name = configuration.getStrValue(printersKey + u'.' + printer + u".model"_s);
    const PrinterModel *const model = findPrinterModel(name);
    return ofModel->value(PrinterSettings(model ? *model : plainTextModel()));
}
