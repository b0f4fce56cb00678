#pragma once

#include "task.h"

/* The commands of tavolux-config that are about single settings. Those that change some write the file anew
 * with these changes alone, or not at all: every other byte stays. */
ExitStatus printValue(const Task &task);
ExitStatus listSettings(const Task &task);
ExitStatus setValues(const Task &task);
ExitStatus unsetValue(const Task &task);
