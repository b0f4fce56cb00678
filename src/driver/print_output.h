#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <cstddef>

class QIODevice;

/*
 * The bytes of one printout on their way to a file or printer device, to standard output or into an open
 * device.
 *
 * They are buffered; flush and close send the rest. The first failure prints one line on standard output, and
 * from then on nothing is written any more: a printout with a gap in it would look whole. The target is
 * written as it stands, never replaced or removed.
 */
class PrintOutput
{
public:
    enum class Opening { truncate, append };

    /* Goes nowhere, and never fails. */
    PrintOutput() = default;

    /* Opens the file of this name. If that fails one line is printed on standard output and the output has
     * failed. */
    PrintOutput(const QString &path, Opening opening);

    /* Writes to a file descriptor, which stays open, or to a device that is open for writing and outlives the
     * output. Messages call it by the name. */
    PrintOutput(int descriptor, const QString &name);
    PrintOutput(QIODevice &device, const QString &name);

    PrintOutput(const PrintOutput &) = delete;
    PrintOutput &operator=(const PrintOutput &) = delete;

    /* Closes the output. */
    ~PrintOutput();

    /* The name given at construction; empty for the output that goes nowhere. */
    const QString &name() const { return m_name; }

    /* True once something could not be opened, written or closed. Work whose only purpose is output may end.
     */
    bool failed() const { return m_state == State::failed; }

    /* Takes the bytes. Needs no memory of its own, so that it works when there is none left. */
    void write(QByteArrayView bytes);

    /* Sends all that was written so far. */
    void flush();

    /* Prints the line that tells of a failure, on standard output. */
    static void reportFailure(const QString &name, const char *reason);

    /* Sends the rest and closes what the output opened itself; later bytes go nowhere. File systems with a
     * quota or across a network tell only now that they kept nothing. Calls after the first do nothing. */
    void close();

private:
    enum class State { nowhere, open, failed };
    static constexpr int noDescriptor = -1;

    void send(const char *bytes, std::size_t count);
    void fail(const char *reason);

    QString m_name;
    State m_state = State::nowhere;
    int m_descriptor = noDescriptor;
    bool m_ownsDescriptor = false;
    QIODevice *m_device = nullptr;
    std::array<char, 16'384> m_buffer;
    std::size_t m_buffered = 0;
};
