#include "device.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <memory>
#include <system_error>

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int connectMilliseconds = 10'000;

std::string message(int error)
{
    return std::generic_category().message(error);
}

/* The error that connecting ended with, 0 for none. */
int connectWithin(int descriptor, const addrinfo &address, int cancellation)
{
    if (connect(descriptor, address.ai_addr, address.ai_addrlen) == 0)
        return 0;
    if (errno != EINPROGRESS)
        return errno;
    std::array<pollfd, 2> polled = {{{descriptor, POLLOUT, 0}, {cancellation, POLLIN, 0}}};
    if (poll(polled.data(), polled.size(), connectMilliseconds) <= 0)
        return ETIMEDOUT;
    if (polled[0].revents == 0)
        return ECANCELED;
    int error = 0;
    socklen_t size = sizeof error;
    getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &size);
    return error;
}

/* As long as it lives SIGTERM ends the program at once: for what cannot wait for a descriptor. */
class EndAtOnce
{
public:
    EndAtOnce()
    {
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, SIGTERM);
        sigprocmask(SIG_UNBLOCK, &signals, &m_before);
    }
    ~EndAtOnce() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }
    EndAtOnce(const EndAtOnce &) = delete;
    EndAtOnce &operator=(const EndAtOnce &) = delete;

private:
    sigset_t m_before = {};
};

} // namespace

Device::Device(const DeviceUri &uri, int cancellation)
{
    if (uri.host.empty())
        openPath(uri.path);
    else
        connectTo(uri, cancellation);
}

Device::~Device()
{
    if (m_ownLine)
        tcsetattr(m_descriptor, TCSANOW, &*m_ownLine);
    shut();
}

void Device::openPath(const std::string &path)
{
    m_descriptor = open(path.c_str(), O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (m_descriptor < 0) {
        m_isNoPrinter = errno == EISDIR;
        m_fault = message(errno);
        return;
    }
    struct stat status = {};
    if (fstat(m_descriptor, &status) != 0 || !S_ISCHR(status.st_mode)) {
        m_isNoPrinter = true;
        m_fault = "not a printer device";
        shut();
        return;
    }
    setLine();
}

/* Without an echo, which would print the printer's answers, and without any change of the bytes in either
 * direction. */
void Device::setLine()
{
    termios line = {};
    if (tcgetattr(m_descriptor, &line) != 0)
        return;
    m_ownLine = line;
    cfmakeraw(&line);
    line.c_cflag = m_ownLine->c_cflag;
    line.c_iflag |= m_ownLine->c_iflag & IXON; // by which a printer says that it is full
    tcsetattr(m_descriptor, TCSANOW, &line);
}

void Device::connectTo(const DeviceUri &uri, int cancellation)
{
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo *found = nullptr;
    {
        const EndAtOnce endAtOnce;
        if (const int error = getaddrinfo(uri.host.c_str(), uri.port.c_str(), &hints, &found); error != 0) {
            m_fault = gai_strerror(error);
            return;
        }
    }
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> addresses(found, freeaddrinfo);
    for (const addrinfo *address = found; address != nullptr; address = address->ai_next) {
        m_descriptor = socket(address->ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        const int error = m_descriptor < 0 ? errno : connectWithin(m_descriptor, *address, cancellation);
        if (error == 0) {
            // Queries are short and each waits for its answer.
            const int on = 1;
            setsockopt(m_descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
            return;
        }
        m_fault = message(error);
        shut();
        if (error == ECANCELED)
            return;
    }
}

void Device::shut()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
}
