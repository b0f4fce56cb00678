#pragma once

#include <QString>

/*
 * How a kind of document is printed: the user's settings for it, under their own names. Widths count
 * characters. What the configuration does not say is 0 or off.
 */
struct DocumentProfile
{
    /* Wider than any paper: a larger width (or a smaller negative one) is taken for this one, so that a slip
     * of the pen in the configuration does not fill the memory. */
    static constexpr int widestLine = 100'000;

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
