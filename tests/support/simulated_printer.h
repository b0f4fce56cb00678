#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/* What a simulated printer has seen so far. */
struct PrinterLog
{
    QByteArray paper; // all that was printed
    QList<QByteArray> jobs; // each that was confirmed: what was printed since the one before
    int connections = 0;
    bool connected = false;
    int statusQueries = 0; // answered in real time
};

/*
 * A receipt printer on a port of the loopback interface or on a pseudo terminal, run by a thread of its own.
 * It answers status queries (`10 04 n`) at once and those in sequence (`1D 72 01`) when all before them is
 * printed, which goes on only while there is paper and the cover is closed. It serves one connection at a
 * time. The dots of a picture (`1D 76 30`) are no queries, whatever they look like.
 */
class SimulatedPrinter
{
public:
    enum class Connection { Network, Device };

    struct Condition
    {
        bool paper = true;
        bool paperNearEnd = false;
        bool coverOpen = false;
        bool cutterError = false;

        bool busy = false; // ready, and printing something else
        bool answersStatus = true;
        bool confirms = true;
        bool reads = true;
        bool connected = true; // else nobody can connect, and a connection ends

        qsizetype paperLeft = -1; // bytes until the paper ends; -1: enough
        qsizetype resetAt = -1; // bytes on paper at which the connection is reset; -1: never
    };

    explicit SimulatedPrinter(Connection connection = Connection::Network);
    ~SimulatedPrinter();
    SimulatedPrinter(const SimulatedPrinter &) = delete;
    SimulatedPrinter &operator=(const SimulatedPrinter &) = delete;

    /* The address of a queue that prints on it. */
    QString uri() const;

    /* Its device, when it has one. */
    const QString &devicePath() const { return m_devicePath; }

    /* Changes the condition; in force when it returns. */
    void set(const std::function<void(Condition &)> &change);

    PrinterLog log() const;

    /* Waits until the log is as asked; false after 30 seconds. */
    bool waitUntil(const std::function<bool(const PrinterLog &)> &reached) const;

private:
    void run();
    void wakeUp() const;
    void updateConnection();
    void acceptConnection();
    void endConnection(bool reset);
    void readConnection();
    void takeBytes();
    void take(qsizetype count);
    void answerInRealTime(char query);
    void printBuffer();
    void answer(char byte);

    const Connection m_connection;
    int m_port = 0;
    QString m_devicePath;
    int m_wakeReader = -1;
    int m_wakeWriter = -1;
    int m_listener = -1;
    int m_line = -1; // the connection, or the printer's side of the pseudo terminal
    int m_deviceKeptOpen = -1;

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    Condition m_condition;
    bool m_changeTaken = true;
    PrinterLog m_log;
    QByteArray m_job; // printed and not yet confirmed
    QByteArray m_arrived; // not yet told apart
    qsizetype m_dotsToCome = 0; // bytes of a picture that has begun to arrive
    static constexpr int queryInSequence = -1;
    QList<int> m_buffer; // to be printed: bytes, and queries in sequence
    bool m_ending = false;

    std::thread m_thread;
};
