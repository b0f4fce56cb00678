#pragma once

#include <memory>

class PrinterDriver;
class PrintOutput;
class TXConfiguration;

/* The driver that prints to the output with the configuration, which outlives it: the plain-text printer. */
std::unique_ptr<PrinterDriver> makeDriver(const TXConfiguration &configuration,
                                          std::unique_ptr<PrintOutput> output);
