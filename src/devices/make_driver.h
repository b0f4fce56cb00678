#pragma once

#include <memory>

class PrinterDriver;
class PrintOutput;
class TXConfiguration;

/* The driver that prints to the output with the configuration, which outlives it: on the ESC/POS printer that
 * the configuration has for the output's name, else on the plain-text printer. */
std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          std::unique_ptr<PrintOutput> output);
