#include "starter_configuration.h"

#include "document_profile.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

/* The widths that go with a paper, in characters. */
struct Columns
{
    int paper;
    int belowHeaders; // what a separator may have that stands centred below header lines
    int price;
    int total;
    int movement; // the amount in a statement of account
};

// A line is centred for 34 characters, which moves one of 32 out of the paper. Price and total take the
// longest titles, "Prezzo" and "Importo" with a blank before it, and the amounts of a small restaurant.
constexpr Columns columnsByPaper[] = {
    {32, 31, 6, 8, 7}, {40, 40, 7, 8, 9}, {42, 42, 7, 8, 9}, {48, 48, 8, 9, 10}};

DocumentProfile starterProfile(QLatin1StringView documentType, const Columns &columns)
{
    const auto isOneOf = [documentType](std::initializer_list<QLatin1StringView> types) {
        return std::ranges::find(types, documentType) != types.end();
    };

    DocumentProfile profile;
    profile.printHeader = isOneOf({"order"_L1, "receipt"_L1, "delivery"_L1});
    profile.paperWidth = profile.printHeader ? columns.belowHeaders : columns.paper;
    // Five characters take the longest titles of this column, such as "Cant.", and what is sold in a month.
    profile.quantityFieldWidth = isOneOf({"order"_L1, "delivery"_L1}) ? 3 : 5;
    profile.priceFieldWidth = columns.price;
    if (documentType == "report"_L1)
        profile.priceFieldWidth = columns.movement;
    else if (documentType == "sold"_L1)
        profile.priceFieldWidth = 0; // no row has a price
    profile.totalPriceFieldWidth = columns.total;

    profile.printCompany = isOneOf({"prefiscal"_L1, "receipt"_L1, "invoice"_L1, "report"_L1, "sold"_L1});
    profile.printGeometry = profile.printDate = documentType != "fiscal"_L1;
    profile.printTime = isOneOf({"order"_L1, "prefiscal"_L1, "delivery"_L1, "report"_L1, "sold"_L1});
    profile.printTable = isOneOf({"order"_L1, "prefiscal"_L1, "receipt"_L1});
    profile.printWaiter = isOneOf({"order"_L1, "prefiscal"_L1, "report"_L1});
    profile.printNote = isOneOf({"order"_L1, "delivery"_L1});
    profile.printCustomer = isOneOf({"invoice"_L1, "delivery"_L1});
    profile.printDeliveryAddress = profile.printTelephone = documentType == "delivery"_L1;
    profile.printBillingAddress = documentType == "invoice"_L1;
    profile.printLicenseNumber = profile.printFiscalCode = documentType == "invoice"_L1;
    profile.openCashDrawer = isOneOf({"fiscal"_L1, "receipt"_L1, "invoice"_L1});
    return profile;
}

} // namespace

QList<int> starterPaperWidths()
{
    QList<int> widths;
    for (const Columns &columns : columnsByPaper)
        widths.append(columns.paper);
    return widths;
}

int starterPaperWidth(int columns)
{
    int fitting = columnsByPaper[0].paper;
    for (const Columns &known : columnsByPaper)
        if (known.paper <= columns)
            fitting = known.paper;
    return fitting;
}

QByteArray starterConfiguration(int paperWidth, const std::optional<StarterPrinter> &printer)
{
    const auto *const columns = std::ranges::find(columnsByPaper, paperWidth, &Columns::paper);
    Q_ASSERT(columns != std::end(columnsByPaper));

    QByteArray text;
    const auto addSetting = [&text](QLatin1StringView name, const QByteArray &value) {
        text += "        " + QByteArray(name.data(), name.size()) + " = " + value + ";\n";
    };

    text += "tavolux : {\n";
    // Before all else, where whoever looks for a printer sees it.
    if (printer)
        text += "    printers : {\n        till : { model = "
            + QByteArray(printer->model.data(), printer->model.size()) + "; output = \"" + printer->output
            + "\"; };\n    };\n\n";
    text += "    language : {\n";
    addSetting("basedir"_L1, "\"" TAVOLUX_TRANSLATIONS_DIR "\"");
    addSetting("file"_L1, "\"/\"");
    text += "    };\n";
    for (const auto &[type, keyPrefix] : documentTypes) {
        const DocumentProfile profile = starterProfile(type, *columns);
        const QByteArray key(keyPrefix.data(), keyPrefix.size()); // such as "tavolux.doc."
        text += "\n    " + key.split('.').at(1) + " : {\n";
        for (const auto &[name, field] : profileWidths)
            addSetting(name, QByteArray::number(profile.*field));
        addSetting(DocumentProfile::style, "\"\"");
        addSetting(DocumentProfile::topMargin, "0");
        if (type == "fiscal"_L1)
            addSetting(DocumentProfile::descriptionWidth, QByteArray::number(columns->paper));
        for (const auto &[name, field] : profileSwitches)
            addSetting(name, profile.*field ? "true" : "false");
        text += "    };\n";
    }
    text += "};\n";
    return text;
}
