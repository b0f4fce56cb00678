#pragma once

class PrintOutput;
struct PrinterSettings;

/*
 * Prints a page from which a person can read off whether the settings fit the printer: a ruler of its
 * columns, its styles, for each code page its number and some of its characters, the logo, and how it cuts
 * and opens the drawer, which it then does. The printer has code pages.
 */
void printTestPage(const PrinterSettings &settings, PrintOutput &output);
