#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/* What the fuzzing engine calls, once and with every input. A fuzzer defines the second. */
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/* An input: a file and, after its last zero byte, a text that goes with it. */
struct FuzzInput
{
    FuzzInput(const std::uint8_t *data, std::size_t size);

    QByteArray file;
    QByteArray companion;
};

/* Ends the run, with the input as a find, when what should always hold does not. */
void require(bool holds, const char *invariant);
