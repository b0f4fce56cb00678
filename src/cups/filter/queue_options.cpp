#include "queue_options.h"

#include "printer_models.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

QList<OptionChoice> models()
{
    QList<OptionChoice> choices;
    for (const PrinterModel &model : printerModels)
        choices.append({model.name, model.title});
    return choices;
}

QList<OptionChoice> columns()
{
    std::set<int> counts;
    for (const PrinterModel &model : printerModels)
        if (!model.isPlainText()) // whose paper cannot be chosen
            counts.insert(model.columns);
    QList<OptionChoice> choices;
    for (const int count : counts)
        choices.append({QString::number(count), u"%1 characters"_s.arg(count)});
    return choices;
}

QList<OptionChoice> cuts()
{
    return {{cutterName(Cutter::full), u"full"_s},
            {cutterName(Cutter::partial), u"partial"_s},
            {cutterName(Cutter::none), u"none, torn off"_s}};
}

QList<OptionChoice> drawers()
{
    return {{u"2"_s, u"the first (pin 2)"_s}, {u"5"_s, u"the second (pin 5)"_s}};
}

QList<OptionChoice> languages()
{
    QStringList codes = QStringLiteral(TAVOLUX_LANGUAGES).split(u' ');
    codes.prepend(untranslated);
    QList<OptionChoice> choices;
    for (const QString &code : codes)
        choices.append({code, QLocale::languageToString(QLocale(code).language())});
    return choices;
}

constexpr QueueOption allOptions[] = {
    {"Model"_L1, "Printer model"_L1, "model"_L1, &models},
    {"Columns"_L1, "Width of the paper"_L1, "columns"_L1, &columns},
    {"Cut"_L1, "Cut"_L1, "cut"_L1, &cuts},
    {"Drawer"_L1, "Cash drawer"_L1, "drawerPin"_L1, &drawers},
    {"Language"_L1, "Language of the labels"_L1, {}, &languages},
};

} // namespace

constexpr std::span<const QueueOption> queueOptions = allOptions;

const QueueOption &languageOption()
{
    return *std::ranges::find_if(queueOptions,
                                 [](const QueueOption &option) { return option.setting.isEmpty(); });
}
