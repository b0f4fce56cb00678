#pragma once

#include "task.h"

/* The commands of tavolux-config that are about receipt printers: the models that are known, a page that
 * shows whether settings fit, and whether printers are ready. */
ExitStatus printModels(const Task &task);
ExitStatus testPage(const Task &task);
ExitStatus printStatus(const Task &task);
