#pragma once

#include "device_uri.h"

#include <QString>

/* What a printer says of itself, or why it says nothing: "no paper". */
struct PrinterAnswer
{
    bool ready = false;
    QString text;
};

/* Asks the printer whether it is ready. Nothing is printed. It takes a moment, or 13 seconds for a printer
 * that is not there. */
PrinterAnswer askPrinter(const DeviceUri &uri);
