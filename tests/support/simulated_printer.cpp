#include "simulated_printer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView realTimeQuery = "\x10\x04";
constexpr QByteArrayView inSequenceQuery = "\x1D\x72\x01";

/* The commands that it tells from what is to be printed. */
struct Command
{
    QByteArrayView beginning;
    qsizetype size; // in bytes; more follow a picture's
};

constexpr Command commands[] = {{realTimeQuery, 3}, {inSequenceQuery, 3}, {"\x1D\x76\x30", 8}};

int number(const QByteArray &twoBytes)
{
    return static_cast<unsigned char>(twoBytes[0]) + 256 * static_cast<unsigned char>(twoBytes[1]);
}

void require(bool done, const char *what)
{
    if (!done)
        qFatal("the simulated printer cannot %s", what);
}

/* Listens on the port of the loopback interface, or on a free one. */
int listenOn(int &port)
{
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    require(listener >= 0, "make a socket");
    const int on = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    // As little as a printer takes before it prints.
    const int bytes = 4096;
    setsockopt(listener, SOL_SOCKET, SO_RCVBUF, &bytes, sizeof bytes);

    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof address;
    require(bind(listener, generic, size) == 0 && listen(listener, 16) == 0
                && getsockname(listener, generic, &size) == 0,
            "listen");
    port = ntohs(address.sin_port);
    return listener;
}

} // namespace

SimulatedPrinter::SimulatedPrinter(Connection connection)
    : m_connection(connection)
{
    std::array<int, 2> wake = {};
    require(pipe2(wake.data(), O_CLOEXEC) == 0, "make a pipe");
    m_wakeReader = wake[0];
    m_wakeWriter = wake[1];

    if (connection == Connection::Network) {
        m_listener = listenOn(m_port);
    } else {
        m_line = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
        std::array<char, 64> path = {};
        require(m_line >= 0 && grantpt(m_line) == 0 && unlockpt(m_line) == 0
                    && ptsname_r(m_line, path.data(), path.size()) == 0,
                "make a terminal");
        m_devicePath = QString::fromLocal8Bit(path.data());
        // Else the line would hang up whenever nobody prints.
        m_deviceKeptOpen = open(path.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        require(m_deviceKeptOpen >= 0, "open its terminal");
    }
    m_thread = std::thread([this] { run(); });
}

SimulatedPrinter::~SimulatedPrinter()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        wakeUp();
    }
    m_thread.join();
    for (const int descriptor : {m_wakeReader, m_wakeWriter, m_listener, m_line, m_deviceKeptOpen})
        if (descriptor >= 0)
            close(descriptor);
}

QString SimulatedPrinter::uri() const
{
    return m_connection == Connection::Network ? u"tavolux://127.0.0.1:%1"_s.arg(m_port)
                                               : "tavolux:"_L1 + m_devicePath;
}

void SimulatedPrinter::set(const std::function<void(Condition &)> &change)
{
    std::unique_lock lock(m_mutex);
    change(m_condition);
    m_changeTaken = false;
    wakeUp();
    m_changed.wait(lock, [this] { return m_changeTaken; });
}

void SimulatedPrinter::wakeUp() const
{
    require(write(m_wakeWriter, "", 1) == 1, "wake up");
}

PrinterLog SimulatedPrinter::log() const
{
    const std::lock_guard lock(m_mutex);
    return m_log;
}

bool SimulatedPrinter::waitUntil(const std::function<bool(const PrinterLog &)> &reached) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(30), [&] { return reached(m_log); });
}

void SimulatedPrinter::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_ending) {
        updateConnection();
        printBuffer();
        m_log.connected = m_line >= 0;
        m_changeTaken = true;
        m_changed.notify_all();

        const short reading = m_condition.reads ? POLLIN : 0;
        const int listener = m_line < 0 ? m_listener : -1;
        std::array<pollfd, 3> polled = {
            {{m_wakeReader, POLLIN, 0}, {listener, POLLIN, 0}, {m_line, reading, 0}}};
        lock.unlock();
        poll(polled.data(), polled.size(), -1);
        lock.lock();

        if (polled[0].revents != 0) {
            char byte = 0;
            require(read(m_wakeReader, &byte, 1) == 1, "be woken up");
        }
        if (polled[1].revents != 0)
            acceptConnection();
        if (polled[2].revents != 0)
            readConnection();
    }
}

/* Goes away and comes back as the condition says. */
void SimulatedPrinter::updateConnection()
{
    if (m_connection == Connection::Device)
        return;
    if (!m_condition.connected && m_listener >= 0) {
        close(m_listener);
        m_listener = -1;
        endConnection(true);
    } else if (m_condition.connected && m_listener < 0) {
        m_listener = listenOn(m_port);
    }
}

void SimulatedPrinter::acceptConnection()
{
    m_line = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (m_line >= 0)
        ++m_log.connections;
}

void SimulatedPrinter::endConnection(bool reset)
{
    if (m_line < 0)
        return;
    if (reset) {
        const linger atOnce = {1, 0};
        setsockopt(m_line, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    }
    close(m_line);
    m_line = -1;
    m_arrived.clear();
    m_dotsToCome = 0;
}

void SimulatedPrinter::readConnection()
{
    std::array<char, 4096> bytes = {};
    const ssize_t count = read(m_line, bytes.data(), bytes.size());
    if (count > 0) {
        m_arrived.append(bytes.data(), count);
        takeBytes();
    } else if (count == 0 || errno != EAGAIN) {
        endConnection(false);
    }
}

/* Answers queries in real time, and puts everything else into the buffer. */
void SimulatedPrinter::takeBytes()
{
    while (!m_arrived.isEmpty()) {
        if (m_dotsToCome > 0) {
            const qsizetype dots = std::min(m_dotsToCome, m_arrived.size());
            m_dotsToCome -= dots;
            take(dots);
            continue;
        }
        const auto command = std::ranges::find_if(commands, [this](const Command &known) {
            return std::ranges::equal(known.beginning,
                                      m_arrived.first(std::min(m_arrived.size(), known.beginning.size())));
        });
        if (command == std::end(commands))
            take(1);
        else if (m_arrived.size() < command->size)
            return; // the rest may follow
        else if (command->beginning == realTimeQuery) {
            answerInRealTime(m_arrived[2]);
            m_arrived.remove(0, command->size);
        } else if (command->beginning == inSequenceQuery) {
            m_buffer.append(queryInSequence);
            m_arrived.remove(0, command->size);
        } else {
            m_dotsToCome = number(m_arrived.sliced(4, 2)) * number(m_arrived.sliced(6, 2));
            take(command->size);
        }
    }
}

/* Puts the next bytes into the buffer. */
void SimulatedPrinter::take(qsizetype count)
{
    for (const char byte : std::as_const(m_arrived).first(count))
        m_buffer.append(static_cast<unsigned char>(byte));
    m_arrived.remove(0, count);
}

void SimulatedPrinter::answerInRealTime(char query)
{
    const Condition &is = m_condition;
    int answered = 0x12;
    switch (query) {
    case 1:
        answered |= is.paper && !is.coverOpen && !is.cutterError ? 0 : 0x08;
        break;
    case 2:
        answered |= (is.coverOpen ? 0x04 : 0) | (is.paper ? 0 : 0x20) | (is.cutterError ? 0x40 : 0);
        break;
    case 3:
        answered |= is.cutterError ? 0x08 : 0;
        break;
    default:
        answered |= (is.paperNearEnd ? 0x0C : 0) | (is.paper ? 0 : 0x60);
    }
    if (is.answersStatus) {
        answer(static_cast<char>(answered));
        ++m_log.statusQueries;
    }
}

/* Prints as far as paper and cover allow. */
void SimulatedPrinter::printBuffer()
{
    Condition &is = m_condition;
    qsizetype at = 0;
    while (at < m_buffer.size() && is.paper && !is.coverOpen && !is.cutterError && !is.busy) {
        const int next = m_buffer[at++];
        if (next == queryInSequence) {
            if (is.answersStatus && is.confirms) {
                m_log.jobs.append(std::exchange(m_job, {}));
                answer(is.paperNearEnd ? 0x03 : 0x00);
            }
            continue;
        }
        m_job += static_cast<char>(next);
        m_log.paper += static_cast<char>(next);
        if (is.paperLeft > 0 && --is.paperLeft == 0)
            is.paper = false;
        if (is.resetAt >= 0 && m_log.paper.size() == is.resetAt) {
            endConnection(true);
            m_buffer.clear();
            m_job.clear();
            return;
        }
    }
    m_buffer.remove(0, at);
}

void SimulatedPrinter::answer(char byte)
{
    // Whoever asked may have gone.
    if (m_connection == Connection::Network)
        send(m_line, &byte, 1, MSG_NOSIGNAL);
    else
        require(write(m_line, &byte, 1) == 1, "answer");
}
