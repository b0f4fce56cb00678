#include "cancellation.h"

#include <csignal>

#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

Cancellation::Cancellation()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    m_descriptor = signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}

Cancellation::~Cancellation()
{
    close(m_descriptor);
}

bool Cancellation::waitFor(std::chrono::milliseconds time) const
{
    pollfd polled = {m_descriptor, POLLIN, 0};
    return poll(&polled, 1, static_cast<int>(time.count())) > 0;
}
