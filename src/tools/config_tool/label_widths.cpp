#include "label_widths.h"

#include "findings.h"
#include "quoted.h"

#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/* A title above a column of figures, which grows with it. */
struct ColumnTitle
{
    QLatin1StringView documentType;
    const char *label;
    int DocumentProfile::*width;
};

constexpr ColumnTitle columnTitles[] = {
    {"prefiscal"_L1, "Num", &DocumentProfile::quantityFieldWidth},
    {"prefiscal"_L1, "Price", &DocumentProfile::priceFieldWidth},
    {"prefiscal"_L1, "Amount", &DocumentProfile::totalPriceFieldWidth},
    {"receipt"_L1, "Num", &DocumentProfile::quantityFieldWidth},
    {"receipt"_L1, "Price", &DocumentProfile::priceFieldWidth},
    {"receipt"_L1, "Amount", &DocumentProfile::totalPriceFieldWidth},
    {"receipt"_L1, "Price", &DocumentProfile::totalPriceFieldWidth}, // with a row for each kind of item
    {"invoice"_L1, "Num", &DocumentProfile::quantityFieldWidth},
    {"invoice"_L1, "Price", &DocumentProfile::priceFieldWidth},
    {"invoice"_L1, "Amount", &DocumentProfile::totalPriceFieldWidth},
    {"invoice"_L1, "Price", &DocumentProfile::totalPriceFieldWidth}, // the same
    {"report"_L1, "Amount", &DocumentProfile::priceFieldWidth}, // of a statement of account
};

/* A label in what other columns leave of the paper: it is cut there, or moves the figure after it. */
struct RowLabel
{
    QLatin1StringView documentType;
    const char *label;
    int (DocumentProfile::*width)() const;
    bool isCut = true;
};

constexpr RowLabel rowLabels[] = {
    {"prefiscal"_L1, "Description", &DocumentProfile::besideAmounts},
    {"prefiscal"_L1, "TOTAL", &DocumentProfile::besideAmounts},
    {"receipt"_L1, "Description", &DocumentProfile::besideAmounts},
    {"receipt"_L1, "TOTAL", &DocumentProfile::besideAmounts},
    {"invoice"_L1, "Description", &DocumentProfile::besideAmounts},
    {"invoice"_L1, "Taxable", &DocumentProfile::besideAmounts},
    {"invoice"_L1, "TaxRate", &DocumentProfile::besideAmounts},
    {"invoice"_L1, "Tax", &DocumentProfile::besideAmounts},
    {"invoice"_L1, "TOTAL", &DocumentProfile::besideAmounts},
    {"report"_L1, "Description", &DocumentProfile::besideDateAndAmount},
    {"report"_L1, "Number", &DocumentProfile::besideFigures, false},
    {"report"_L1, "Serials", &DocumentProfile::besideFigures, false},
    {"report"_L1, "Taxable", &DocumentProfile::besideFigures, false},
    {"report"_L1, "Tax", &DocumentProfile::besideFigures, false},
    {"report"_L1, "TOTAL", &DocumentProfile::besideFigures, false},
};

} // namespace

std::vector<WideLabel> wideLabels(const DocumentType &type, const DocumentProfile &profile,
                                  const QTranslator &labels)
{
    std::vector<WideLabel> wide;
    const auto isTooWide = [](const QString &text, int width) { return width > 0 && text.size() > width; };

    for (const auto &[documentType, label, width] : columnTitles) {
        const QString title = labels.translate("QObject", label);
        if (documentType != type.name || !isTooWide(title, profile.*width))
            continue;
        const QLatin1StringView setting =
            std::ranges::find(profileWidths, width, &ProfileSetting<int>::field)->name;
        wide.push_back(
            {setting,
             Findings::tr("%1 is %2, but the title %3 has %4 characters, so it pushes its row wider")
                 .arg(quoted(setting), QString::number(profile.*width), quoted(title),
                      QString::number(title.size()))});
    }
    for (const auto &[documentType, key, width, isCut] : rowLabels) {
        const QString label = labels.translate("QObject", key);
        if (documentType != type.name || !isTooWide(label, (profile.*width)()))
            continue;
        const QString text = isCut
            ? Findings::tr("the label %1 has %2 characters, but %3 in its column, so it is cut")
            : Findings::tr("the label %1 has %2 characters, but %3 in its column, so it moves its figure");
        wide.push_back(
            {"paperWidth"_L1,
             text.arg(quoted(label), QString::number(label.size()), QString::number((profile.*width)()))});
    }
    return wide;
}
