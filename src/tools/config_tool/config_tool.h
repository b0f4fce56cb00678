#pragma once

#include <QStringList>

/* What the configuration tool ends with. */
enum ExitStatus {
    exitSuccess = 0,
    exitNegative = 1, // an empty value, findings, a file that could not be written whole, one that exists
    exitTrouble = 2, // wrong usage, a configuration that cannot be read or begun, no such printer, no editor
};

/*
 * Runs the configuration tool with its command line, the program's name first. Results go to standard output,
 * messages to standard error. Editing replaces the process by the editor.
 */
ExitStatus runConfigTool(const QStringList &arguments);
