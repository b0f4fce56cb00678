#include "captured_output.h"

#include <QTemporaryFile>

#include <cstdio>
#include <iostream>

#include <unistd.h>

namespace {

void flushAll()
{
    std::cout.flush();
    std::fflush(stdout);
}

} // namespace

QByteArray capturedOutput(const std::function<void()> &function)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("cannot create a temporary file");

    flushAll();
    const int terminal = dup(STDOUT_FILENO);
    dup2(file.handle(), STDOUT_FILENO);
    function();
    flushAll();
    dup2(terminal, STDOUT_FILENO);
    close(terminal);

    file.seek(0);
    return file.readAll();
}
