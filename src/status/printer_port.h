#pragma once

#include "printer_status.h"

#include <chrono>
#include <functional>
#include <string_view>

/* How something asked of a printer ended. */
enum class PortResult {
    Done,
    Silent, // there was no answer in time
    Lost, // the connection has ended, or the device is gone
    Cancelled
};

/* How long a printer may take. */
struct PortLimits
{
    std::chrono::milliseconds answer{3'000}; // to answer a real-time query
    std::chrono::milliseconds pause{1'000}; // between two rounds of queries
    std::chrono::milliseconds silence{30'000}; // without any byte, once a job is sent
    std::chrono::milliseconds confirmation{
        60'000}; // to confirm a job, all the while saying that it is ready;
    std::chrono::milliseconds perByte{
        5}; // and so much more for each byte: impact printers print 200 in a second
    std::chrono::milliseconds restoring{500}; // to take what ends a job that was cut short
    std::chrono::milliseconds stall{0}; // to take the next byte of a job; 0: however long that is
};

/*
 * A printer at the other end of a file descriptor: a socket, or a character device open for reading and
 * writing. The descriptor must be non-blocking, and stays the caller's; SIGPIPE must be ignored. Every
 * operation waits in poll, and ends with Cancelled as soon as the second descriptor becomes readable (a
 * signalfd or a pipe; -1 for none).
 */
class PrinterPort
{
public:
    PrinterPort(int descriptor, int cancellation, const PortLimits &limits = {});
    PrinterPort(const PrinterPort &) = delete;
    PrinterPort &operator=(const PrinterPort &) = delete;

    /* Asks for the whole status in real time. Silent when one of the queries was not answered in time. */
    PortResult ask(PrinterStatus &status);

    /* Waits for the time between two rounds of queries; Done when it has passed. */
    PortResult pause();

    /* Sends bytes of a job, however long the printer takes for all. Calls stalled each time that it has taken
     * nothing for as long as an answer may take. Silent when the limit of a stall is reached. */
    PortResult send(std::string_view bytes, const std::function<void()> &stalled = {});

    /* Asks the printer in sequence, and waits for its answer: all that was sent has been processed. Meanwhile
     * it is asked in real time, and every status handed over; false ends the waiting (Silent). While the
     * printer says that it is not ready no limit holds. */
    PortResult confirm(const std::function<bool(const PrinterStatus &)> &statusTold = {});

    /*
     * Ends a job that was cut short before so many of its bytes were sent, and leaves the printer in its
     * normal state: as many NUL bytes, then "initialise". A command that was begun would have been complete
     * within those bytes, so it is complete within the NULs; outside of a command they print nothing. Goes on
     * when cancelled, but for a moment only: a printer that takes nothing keeps what it has.
     */
    void restore(std::size_t unsent);

    /* To be called before the descriptor is closed after a job that is not confirmed: waits, as send does,
     * until a device has taken everything; tells a connected printer that nothing follows. */
    PortResult finish(const std::function<void()> &stalled = {});

    /* How many bytes given to send have left this program. */
    std::size_t sent() const { return m_sent; }

    /* Whether the printer has answered anything. */
    bool answered() const { return m_answered; }

    /* Why the port was Silent or Lost, for a person. */
    const std::string &fault() const { return m_fault; }

private:
    using Clock = std::chrono::steady_clock;

    PortResult wait(short events, Clock::time_point until, int cancellation);
    PortResult wait(short events, std::chrono::milliseconds time);
    PortResult waitFor(const bool &answer, Clock::time_point until);
    PortResult waitToWrite(const std::function<void()> &stalled);
    PortResult receive();
    PortResult write(std::string_view bytes, std::size_t &written);
    PortResult lost(const std::string &fault);

    const int m_descriptor;
    const int m_cancellation;
    const PortLimits m_limits;
    const bool m_isSocket;

    AnswerReader m_answers;
    unsigned char m_realTimeAnswer = 0;
    bool m_realTimeArrived = false;
    bool m_inSequenceArrived = false;
    bool m_answered = false;
    Clock::time_point m_lastHeard;

    bool m_hungUp = false;
    bool m_nothingToRead = false; // though poll said so
    std::string m_fault = "no answer in time";
    std::size_t m_sent = 0;
};
