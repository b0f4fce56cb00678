#include "report.h"

#include <algorithm>

#include <unistd.h>

void report(const std::string &kind, std::string text)
{
    std::ranges::replace_if(
        text, [](char byte) { return (byte >= 0 && byte < ' ') || byte == '\x7F'; }, '?');
    const std::string line = kind + ": " + text + '\n';
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
}
