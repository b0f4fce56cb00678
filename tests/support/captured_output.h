#pragma once

#include <QByteArray>

#include <functional>

/* Every byte that reaches standard output while the function runs, whichever library wrote it. */
QByteArray capturedOutput(const std::function<void()> &function);
