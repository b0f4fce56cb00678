#include "fuzzing.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <iostream>

// The terminal belongs to the engine: diagnostics go nowhere.
int LLVMFuzzerInitialize(int *, char ***)
{
    std::cout.rdbuf(nullptr);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

FuzzInput::FuzzInput(const std::uint8_t *data, std::size_t size)
    : file(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
{
    if (const qsizetype separator = file.lastIndexOf('\0'); separator >= 0) {
        companion = file.sliced(separator + 1);
        file.truncate(separator);
    }
}

void require(bool holds, const char *invariant)
{
    if (holds)
        return;
    std::fprintf(stderr, "It no longer holds that %s\n", invariant);
    std::abort();
}
