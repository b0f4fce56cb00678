#include "document_profile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr DocumentType allTypes[] = {
    {"order"_L1, "tavolux.doc."_L1},          {"prefiscal"_L1, "tavolux.prefiscaldoc."_L1},
    {"fiscal"_L1, "tavolux.fiscaldoc."_L1},   {"receipt"_L1, "tavolux.receiptdoc."_L1},
    {"invoice"_L1, "tavolux.invoicedoc."_L1}, {"delivery"_L1, "tavolux.deliverydoc."_L1},
    {"report"_L1, "tavolux.reportdoc."_L1},   {"sold"_L1, "tavolux.solddoc."_L1},
};

constexpr ProfileSetting<int> widths[] = {
    {"quantityFieldWidth"_L1, &DocumentProfile::quantityFieldWidth},
    {"priceFieldWidth"_L1, &DocumentProfile::priceFieldWidth},
    {"totalPriceFieldWidth"_L1, &DocumentProfile::totalPriceFieldWidth},
    {"paperWidth"_L1, &DocumentProfile::paperWidth},
    {"paperRows"_L1, &DocumentProfile::paperRows},
};

constexpr ProfileSetting<bool> switches[] = {
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

constexpr SwitchedPart parts[] = {
    {"geometry"_L1, ""_L1, &DocumentProfile::printGeometry},
    {"headers"_L1, ""_L1, &DocumentProfile::printHeader},
    {"company"_L1, ""_L1, &DocumentProfile::printCompany},
    {"orderinfo"_L1, "date"_L1, &DocumentProfile::printDate},
    {"orderinfo"_L1, "time"_L1, &DocumentProfile::printTime},
    {"orderinfo"_L1, "table"_L1, &DocumentProfile::printTable},
    {"orderinfo"_L1, "waiter"_L1, &DocumentProfile::printWaiter},
    {"orderinfo"_L1, "note"_L1, &DocumentProfile::printNote},
    {"orderinfo"_L1, "credit"_L1, &DocumentProfile::printCredit},
    {"customer"_L1, ""_L1, &DocumentProfile::printCustomer},
    {"customer"_L1, "billingaddress"_L1, &DocumentProfile::printBillingAddress},
    {"customer"_L1, "deliveryaddress"_L1, &DocumentProfile::printDeliveryAddress},
    {"customer"_L1, "telephone"_L1, &DocumentProfile::printTelephone},
    {"customer"_L1, "licensenumber"_L1, &DocumentProfile::printLicenseNumber},
    {"customer"_L1, "fiscalcode"_L1, &DocumentProfile::printFiscalCode},
};

} // namespace

constexpr std::span<const ProfileSetting<int>> profileWidths = widths;
constexpr std::span<const ProfileSetting<bool>> profileSwitches = switches;
constexpr std::span<const DocumentType> documentTypes = allTypes;
constexpr std::span<const SwitchedPart> switchedParts = parts;

DocumentProfile DocumentProfile::load(const std::function<QString(QLatin1StringView setting)> &value)
{
    DocumentProfile profile;
    for (const auto &[name, field] : profileWidths)
        profile.*field = std::clamp(value(name).toInt(), -widestLine, widestLine);
    value(style);
    for (const auto &[name, field] : profileSwitches)
        profile.*field = value(name) == "true"_L1;
    return profile;
}
