#include "printer_driver.h"

#include "diagnostic.h"
#include "tx_configuration.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct DocumentType
{
    QLatin1StringView name;
    QLatin1StringView keyPrefix;
};

constexpr DocumentType documentTypes[] = {
    {"order"_L1, "tavolux.doc."_L1},          {"prefiscal"_L1, "tavolux.prefiscaldoc."_L1},
    {"fiscal"_L1, "tavolux.fiscaldoc."_L1},   {"receipt"_L1, "tavolux.receiptdoc."_L1},
    {"invoice"_L1, "tavolux.invoicedoc."_L1}, {"delivery"_L1, "tavolux.deliverydoc."_L1},
    {"report"_L1, "tavolux.reportdoc."_L1},   {"sold"_L1, "tavolux.solddoc."_L1},
};

template <typename Value>
struct Setting
{
    QLatin1StringView name;
    Value DocumentProfile::*field;
};

constexpr Setting<int> widths[] = {
    {"quantityFieldWidth"_L1, &DocumentProfile::quantityFieldWidth},
    {"priceFieldWidth"_L1, &DocumentProfile::priceFieldWidth},
    {"totalPriceFieldWidth"_L1, &DocumentProfile::totalPriceFieldWidth},
    {"paperWidth"_L1, &DocumentProfile::paperWidth},
    {"paperRows"_L1, &DocumentProfile::paperRows},
};

constexpr Setting<bool> switches[] = {
    {"printGeometry"_L1, &DocumentProfile::printGeometry},
    {"printHeader"_L1, &DocumentProfile::printHeader},
    {"printLogo"_L1, &DocumentProfile::printLogo},
    {"printCompany"_L1, &DocumentProfile::printCompany},
    {"printDeliveryAddress"_L1, &DocumentProfile::printDeliveryAddress},
    {"printBillingAddress"_L1, &DocumentProfile::printBillingAddress},
    {"printTelephone"_L1, &DocumentProfile::printTelephone},
    {"printDate"_L1, &DocumentProfile::printDate},
    {"printTime"_L1, &DocumentProfile::printTime},
    {"printTable"_L1, &DocumentProfile::printTable},
    {"printCustomer"_L1, &DocumentProfile::printCustomer},
    {"printLicenseNumber"_L1, &DocumentProfile::printLicenseNumber},
    {"printFiscalCode"_L1, &DocumentProfile::printFiscalCode},
    {"printCredit"_L1, &DocumentProfile::printCredit},
    {"printWaiter"_L1, &DocumentProfile::printWaiter},
    {"printNote"_L1, &DocumentProfile::printNote},
    {"openCashDrawer"_L1, &DocumentProfile::openCashDrawer},
};

} // namespace

QString PrinterDriver::documentPath(const QString &docType) const
{
    const QString type = docType.toLower();
    if (const auto *known = std::ranges::find(documentTypes, type, &DocumentType::name);
        known != std::end(documentTypes))
        return known->keyPrefix;
    printDiagnostic("Error into PrinterDriver::documentPath:  " + type.toLocal8Bit());
    return u"tavolux.prefiscaldoc."_s;
}

void PrinterDriver::loadValues(const QString &docType)
{
    documentPrefix = documentPath(docType);
    const auto value = [this](QLatin1StringView setting) {
        return configuration.getStrValue(documentPrefix + setting);
    };

    for (const auto &[name, field] : widths)
        profile.*field =
            std::clamp(value(name).toInt(), -DocumentProfile::widestLine, DocumentProfile::widestLine);
    if (profile.paperWidth == 0)
        profile.paperWidth = static_cast<int>(getPaperWidth());
    value("style"_L1); // belongs to every profile; no printer has a use for it
    for (const auto &[name, field] : switches)
        profile.*field = value(name) == "true"_L1;
}
