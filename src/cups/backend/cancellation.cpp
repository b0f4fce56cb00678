#include "cancellation.h"

#include <csignal>

#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

sigset_t signalToWaitFor()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    return set;
}

const sigset_t signals = signalToWaitFor();

} // namespace

Cancellation::Cancellation()
{
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

EndAtOnce::EndAtOnce()
{
    sigprocmask(SIG_UNBLOCK, &signals, nullptr);
}

EndAtOnce::~EndAtOnce()
{
    sigprocmask(SIG_BLOCK, &signals, nullptr);
}
