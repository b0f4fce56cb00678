#include "print_output.h"

#include "diagnostic.h"
#include "file_name.h"

#include <QIODevice>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

PrintOutput::PrintOutput(const QString &path, Opening opening)
    : m_name(path)
    , m_ownsDescriptor(true)
{
    const int mode = opening == Opening::append ? O_APPEND : O_TRUNC;
    do
        m_descriptor = open(fileNameBytes(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC | mode, 0666);
    while (m_descriptor < 0 && errno == EINTR);
    m_state = m_descriptor < 0 ? State::failed : State::open;
    if (failed())
        printDiagnostic("PrintManager::printAbstractOrder(...): Unable To Open File");
}

PrintOutput::PrintOutput(int descriptor, const QString &name)
    : m_name(name)
    , m_state(State::open)
    , m_descriptor(descriptor)
{
}

PrintOutput::PrintOutput(QIODevice &device, const QString &name)
    : m_name(name)
    , m_state(State::open)
    , m_device(&device)
{
}

PrintOutput::~PrintOutput()
{
    close();
}

void PrintOutput::write(QByteArrayView bytes)
{
    if (m_state != State::open)
        return;
    const auto count = static_cast<std::size_t>(bytes.size());
    if (count > m_buffer.size() - m_buffered)
        flush();
    if (count > m_buffer.size()) {
        send(bytes.data(), count);
    } else {
        std::copy_n(bytes.data(), count, m_buffer.data() + m_buffered);
        m_buffered += count;
    }
}

void PrintOutput::flush()
{
    send(m_buffer.data(), std::exchange(m_buffered, 0));
}

void PrintOutput::close()
{
    flush();
    if (m_ownsDescriptor && m_descriptor != noDescriptor
        && ::close(std::exchange(m_descriptor, noDescriptor)) != 0 && errno != EINTR && !failed())
        fail(std::strerror(errno));
    if (!failed())
        m_state = State::nowhere;
}

void PrintOutput::send(const char *bytes, std::size_t count)
{
    while (count > 0 && m_state == State::open) {
        const qint64 sent = m_device ? m_device->write(bytes, static_cast<qint64>(count))
                                     : ::write(m_descriptor, bytes, count);
        if (sent > 0) {
            bytes += sent;
            count -= static_cast<std::size_t>(sent);
        } else if (m_device) {
            fail(m_device->errorString().toLocal8Bit().constData());
        } else if (errno != EINTR) {
            fail(std::strerror(errno));
        }
    }
}

void PrintOutput::fail(const char *reason)
{
    m_state = State::failed;
    reportFailure(m_name, reason);
}

void PrintOutput::reportFailure(const QString &name, const char *reason)
{
    printDiagnostic("Error in the method PrinterDriver::print( " + shownFileName(name) + " ): " + reason);
}
