#pragma once

#include <string>

/* Writes one line of its kind, such as "ERROR", to standard error, where the print system reads it. Control
 * characters of the text come as question marks. */
void report(const std::string &kind, std::string text);
