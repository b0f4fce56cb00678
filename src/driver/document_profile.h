#pragma once

#include <QLatin1StringView>
#include <QString>

#include <functional>
#include <span>

/*
 * How a kind of document is printed: the user's settings for it, under their own names. Widths count
 * characters. What the configuration does not say is 0 or off.
 */
struct DocumentProfile
{
    /* Wider than any paper: a larger width (or a smaller negative one) is taken for this one, so that a slip
     * of the pen in the configuration does not fill the memory. */
    static constexpr int widestLine = 100'000;

    /* Settings that no field holds: the first no printer has a use for, the others are read when they are
     * needed, the last by fiscal documents only. */
    static constexpr QLatin1StringView style{"style"};
    static constexpr QLatin1StringView topMargin{"topMargin"};
    static constexpr QLatin1StringView descriptionWidth{"descriptionWidth"};

    /* The profile that the values of the settings, asked for by name, make. */
    static DocumentProfile load(const std::function<QString(QLatin1StringView setting)> &value);

    // What the other columns of a row leave for the description, negative where they leave nothing: beside
    // the quantity alone, beside price and amount, the same with a quantity after which an "x" stands, and
    // beside a date and an amount. For the labels of a report's figures the last one.
    int besideQuantity() const { return paperWidth - quantityFieldWidth - 3; }
    int besideAmounts() const
    {
        return paperWidth - quantityFieldWidth - priceFieldWidth - totalPriceFieldWidth - 1;
    }
    int besideMultipliedAmounts() const { return besideAmounts() - 2; }
    int besideDateAndAmount() const { return paperWidth - dateWidth - priceFieldWidth - 3; }

    int besideFigures() const { return paperWidth - 15; }

    /* The column of a statement's dates, which no setting changes. */
    static constexpr int dateWidth = 15;

    int quantityFieldWidth = 0;
    int priceFieldWidth = 0;
    int totalPriceFieldWidth = 0;
    int paperWidth = 0;
    int paperRows = 0;

    bool printGeometry = false;
    bool printHeader = false;
    bool printLogo = false;
    bool printCompany = false;
    bool printDeliveryAddress = false;
    bool printTelephone = false;
    bool printDate = false;
    bool printTime = false;
    bool printTable = false;
    bool printCustomer = false;
    bool printBillingAddress = false;
    bool printLicenseNumber = false;
    bool printFiscalCode = false;
    bool printCredit = false;
    bool printWaiter = false;
    bool printNote = false;
    bool openCashDrawer = false;
};

/* A setting of the profile: its name in the configuration and the field that holds it. */
template <typename Value>
struct ProfileSetting
{
    QLatin1StringView name;
    Value DocumentProfile::*field;
};

/* A kind of document, as the driver names it, and what the keys of its settings begin with. */
struct DocumentType
{
    QLatin1StringView name;
    QLatin1StringView keyPrefix;
};

/* What a switch keeps off the paper while it is off. */
struct SwitchedPart
{
    QLatin1StringView element; // a header block
    QLatin1StringView attribute; // of which this one is not printed; empty: none of its lines is
    bool DocumentProfile::*wanted;
};

// The parts of a block after the whole block.
extern const std::span<const SwitchedPart> switchedParts;

// In the order in which they are read and looked up.
extern const std::span<const ProfileSetting<int>> profileWidths;
extern const std::span<const ProfileSetting<bool>> profileSwitches;
extern const std::span<const DocumentType> documentTypes;
