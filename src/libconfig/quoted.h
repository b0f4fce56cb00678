#pragma once

#include <QString>

/* A name or value as a message shows it: in double quotes, on one line, cut after 50 characters, control
 * characters replaced. */
QString quoted(const QString &text);
