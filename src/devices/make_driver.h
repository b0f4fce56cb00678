#pragma once

#include <memory>

class PrinterDriver;
class PrintOutput;
class TXConfiguration;
struct PrinterSettings;
struct Printout;

/* The driver that prints to the output with the configuration, which outlives it: on the ESC/POS printer that
 * the configuration has for the output's name, else on the plain-text printer. */
std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          std::unique_ptr<PrintOutput> output);

/* The driver of this printer, whatever the output's name. */
std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          const PrinterSettings &printer,
                                          std::unique_ptr<PrintOutput> output);

/* The driver of this printer, which prints on a paper that is kept instead: it fills the printout, which
 * outlives it as the configuration does. The paper has so many columns or, for 0, as many as the printer;
 * those of the plain-text printer are as many as the document's profile says. */
std::unique_ptr<PrinterDriver> makePreviewDriver(const TXConfiguration &configuration,
                                                 PrinterSettings printer, int columns, Printout &printout);
