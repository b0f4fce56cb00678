#include "starter_configuration.h"

#include "document_profile.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

struct Columns
{
    int paper;
    int quantity;
    int price;
    int total;
};

// Two blanks before the amounts of a small bill, and room for a description in every kind of row.
constexpr Columns columnsByPaper[] = {{32, 3, 7, 7}, {40, 3, 8, 8}, {42, 3, 8, 9}, {48, 3, 9, 10}};

DocumentProfile starterProfile(QLatin1StringView documentType, const Columns &columns)
{
    const auto isOneOf = [documentType](std::initializer_list<QLatin1StringView> types) {
        return std::ranges::find(types, documentType) != types.end();
    };

    DocumentProfile profile;
    profile.quantityFieldWidth = columns.quantity;
    profile.priceFieldWidth = columns.price;
    profile.totalPriceFieldWidth = columns.total;
    profile.paperWidth = columns.paper;

    profile.printGeometry = true; // as many lines as topMargin says
    profile.printHeader = true;
    profile.printCompany = isOneOf({"prefiscal"_L1, "receipt"_L1, "invoice"_L1, "report"_L1});
    profile.printDate = true;
    profile.printTime = true;
    profile.printTable = profile.printWaiter = isOneOf({"order"_L1, "prefiscal"_L1, "receipt"_L1});
    profile.printNote = isOneOf({"order"_L1, "delivery"_L1});
    profile.printCustomer = profile.printTelephone = isOneOf({"invoice"_L1, "delivery"_L1});
    profile.printDeliveryAddress = documentType == "delivery"_L1;
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

QByteArray starterConfiguration(int paperWidth)
{
    const auto *const columns = std::ranges::find(columnsByPaper, paperWidth, &Columns::paper);
    Q_ASSERT(columns != std::end(columnsByPaper));

    QByteArray text;
    const auto addSetting = [&text](QLatin1StringView name, const QByteArray &value) {
        text += "        " + QByteArray(name.data(), name.size()) + " = " + value + ";\n";
    };

    text += "tavolux : {\n    language : {\n";
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
