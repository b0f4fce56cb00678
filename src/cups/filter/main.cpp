#include "filter.h"
#include "report.h"

#include <QCoreApplication>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <thread>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// Memory that ran out, where the toolkit lets nothing be unwound. Nothing has been written yet.
[[noreturn]] void endWithoutMemory()
{
    report("ERROR", "Nothing was printed, because there is not enough memory.");
    std::_Exit(EXIT_FAILURE);
}

// Of a filter that has ended already the print system shows no message: "Filter failed" stands in its place.
void waitUntilMessagesAreRead()
{
    constexpr int longest = 1000; // milliseconds
    int unread = 0;
    for (int waited = 0; waited < longest; ++waited) {
        if (ioctl(STDERR_FILENO, FIONREAD, &unread) != 0 || unread == 0)
            return;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGPIPE, SIG_IGN);
    std::set_terminate(endWithoutMemory);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});

    // What is written to standard output goes to the printer. Nothing but the printout may, so it moves to a
    // descriptor that nobody else knows.
    const int printout = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    dup2(STDERR_FILENO, STDOUT_FILENO);

    int ownNameOnly = 1; // a job's title is no option of the toolkit's
    const QCoreApplication application(ownNameOnly, argv);
    const int status = runFilter({argv, static_cast<std::size_t>(argc)}, printout);
    if (status != 0)
        waitUntilMessagesAreRead();
    return status;
}
