#include "printer_port.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace std::string_view_literals;

namespace {

constexpr auto initialise = "\x1B\x40"sv;
constexpr auto inSequenceQuery = "\x1D\x72\x01"sv;
constexpr int mostBlocks = 64; // that are read at a time

bool isSocket(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode);
}

std::string message(int error)
{
    return std::generic_category().message(error);
}

} // namespace

PrinterPort::PrinterPort(int descriptor, int cancellation, const PortLimits &limits)
    : m_descriptor(descriptor)
    , m_cancellation(cancellation)
    , m_limits(limits)
    , m_isSocket(isSocket(descriptor))
{
}

PortResult PrinterPort::ask(PrinterStatus &status)
{
    status = {};
    for (const StatusQuery query : statusQueries) {
        if (const PortResult drained = receive(); drained != PortResult::Done)
            return drained;
        m_realTimeArrived = false;

        const std::array command = {'\x10', '\x04', static_cast<char>(query)};
        std::size_t written = 0;
        PortResult result = write({command.data(), command.size()}, written);
        if (result != PortResult::Done)
            return result;
        if (written > 0 && written < command.size())
            return lost("a query was cut short"); // what follows would not be understood
        result = waitFor(m_realTimeArrived, Clock::now() + m_limits.answer);
        if (result != PortResult::Done)
            return result;
        status.add(query, m_realTimeAnswer);
    }
    return PortResult::Done;
}

PortResult PrinterPort::pause()
{
    switch (wait(POLLRDHUP, m_limits.pause)) {
    case PortResult::Silent:
        return PortResult::Done;
    case PortResult::Cancelled:
        return PortResult::Cancelled;
    default:
        return receive() == PortResult::Lost ? PortResult::Lost : lost("the connection was closed");
    }
}

PortResult PrinterPort::send(std::string_view bytes, const std::function<void()> &stalled)
{
    while (!bytes.empty()) {
        if (const PortResult writable = waitToWrite(stalled); writable != PortResult::Done)
            return writable;
        std::size_t written = 0;
        if (const PortResult result = write(bytes, written); result != PortResult::Done)
            return result;
        bytes.remove_prefix(written);
        m_sent += written;
    }
    return PortResult::Done;
}

PortResult PrinterPort::confirm(const std::function<bool(const PrinterStatus &)> &statusTold)
{
    // An answer that came earlier belongs to something else.
    if (const PortResult result = receive(); result != PortResult::Done)
        return result;
    m_inSequenceArrived = false;
    if (const PortResult result = send(inSequenceQuery); result != PortResult::Done)
        return result;

    const Clock::duration confirmation = m_limits.confirmation + m_limits.perByte * m_sent;
    Clock::time_point readySince = Clock::now();
    m_lastHeard = readySince;
    for (;;) {
        PortResult result = waitFor(m_inSequenceArrived, Clock::now() + m_limits.pause);
        if (result != PortResult::Silent)
            return result;
        PrinterStatus status;
        result = ask(status);
        if (m_inSequenceArrived)
            return PortResult::Done;
        if (result == PortResult::Lost || result == PortResult::Cancelled)
            return result;
        const Clock::time_point now = Clock::now();
        if (result == PortResult::Done) {
            if (statusTold && !statusTold(status))
                return PortResult::Silent;
            if (!status.ready())
                readySince = now;
        }
        if (now - readySince > confirmation || now - m_lastHeard > m_limits.silence)
            return PortResult::Silent;
    }
}

void PrinterPort::restore(std::size_t unsent)
{
    const Clock::time_point until = Clock::now() + m_limits.restoring;
    const std::string bytes = std::string(unsent, '\0').append(initialise);
    std::size_t done = 0;
    while (done < bytes.size() && wait(POLLOUT, until, -1) == PortResult::Done) {
        std::size_t written = 0;
        if (write(std::string_view(bytes).substr(done), written) != PortResult::Done)
            return;
        done += written;
    }
    // Closing a connection with something unread would throw away what is on its way.
    receive();
    if (m_isSocket)
        shutdown(m_descriptor, SHUT_WR);
    else
        wait(POLLOUT, until, -1);
}

PortResult PrinterPort::finish(const std::function<void()> &stalled)
{
    if (m_isSocket) {
        const PortResult result = receive();
        shutdown(m_descriptor, SHUT_WR);
        return result;
    }
    return waitToWrite(stalled);
}

/* Waits for the events of poll; Silent when the time has come before them. */
PortResult PrinterPort::wait(short events, Clock::time_point until, int cancellation)
{
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
        std::array<pollfd, 2> polled = {{{m_descriptor, events, 0}, {cancellation, POLLIN, 0}}};
        const int count = poll(polled.data(), polled.size(), static_cast<int>(std::max(left, 0ms).count()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return lost(message(errno));
        m_hungUp = (polled[0].revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
        if (polled[1].revents != 0)
            return PortResult::Cancelled;
        return count == 0 ? PortResult::Silent : PortResult::Done;
    }
}

PortResult PrinterPort::wait(short events, std::chrono::milliseconds time)
{
    return wait(events, Clock::now() + time, m_cancellation);
}

/* Waits until receive() notes the answer. */
PortResult PrinterPort::waitFor(const bool &answer, Clock::time_point until)
{
    while (!answer) {
        // A device that has nothing may say all the time that it can be read.
        const bool rest = std::exchange(m_nothingToRead, false);
        const PortResult result = rest ? wait(0, std::min(until, Clock::now() + 50ms), m_cancellation)
                                       : wait(POLLIN, until, m_cancellation);
        if (result == PortResult::Cancelled || result == PortResult::Lost)
            return result;
        if (result == PortResult::Silent && Clock::now() >= until)
            return PortResult::Silent;
        if (const PortResult received = receive(); received != PortResult::Done && !answer)
            return received;
    }
    return PortResult::Done;
}

PortResult PrinterPort::waitToWrite(const std::function<void()> &stalled)
{
    const Clock::time_point since = Clock::now();
    for (;;) {
        const PortResult result = wait(POLLOUT, m_limits.answer);
        if (result != PortResult::Silent)
            return result;
        if (stalled)
            stalled();
        if (m_limits.stall.count() > 0 && Clock::now() - since >= m_limits.stall) {
            m_fault = "the printer takes nothing";
            return result;
        }
    }
}

/* Takes what the printer has sent, without waiting: a part of it when that has no end. */
PortResult PrinterPort::receive()
{
    for (int block = 0; block < mostBlocks; ++block) {
        std::array<unsigned char, 256> bytes = {};
        const ssize_t count = read(m_descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno == EAGAIN ? PortResult::Done : lost(message(errno));
        if (count == 0) {
            if (m_isSocket || m_hungUp)
                return lost("the connection was closed");
            m_nothingToRead = true;
            return PortResult::Done;
        }
        m_answered = true;
        m_lastHeard = Clock::now();
        for (ssize_t i = 0; i < count; ++i) {
            const unsigned char byte = bytes[static_cast<std::size_t>(i)];
            const Answer answer = m_answers.take(byte);
            if (answer == Answer::RealTime) {
                m_realTimeAnswer = byte;
                m_realTimeArrived = true;
            } else if (answer == Answer::InSequence) {
                m_inSequenceArrived = true;
            }
        }
    }
    return PortResult::Done;
}

/* Writes what can be written without waiting. */
PortResult PrinterPort::write(std::string_view bytes, std::size_t &written)
{
    for (;;) {
        const ssize_t count = ::write(m_descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno != EAGAIN)
            return lost(message(errno));
        written = count < 0 ? 0 : static_cast<std::size_t>(count);
        return PortResult::Done;
    }
}

PortResult PrinterPort::lost(const std::string &fault)
{
    m_fault = fault;
    return PortResult::Lost;
}
