#include "queue_record.h"

#include <fstream>

#include <fcntl.h>
#include <unistd.h>

QueueRecord::QueueRecord(std::string path)
    : m_path(std::move(path))
{
    std::ifstream file(m_path);
    for (std::string word, value; file >> word >> value;) {
        if (word == "answers")
            m_answering = value;
        else if (word == "sending")
            m_sending = value;
    }
}

void QueueRecord::noteAnswered(const std::string &printer)
{
    if (hasAnswered(printer))
        return;
    m_answering = printer;
    save(false);
}

bool QueueRecord::noteSending(const std::string &job)
{
    m_sending = job;
    return save(true);
}

void QueueRecord::noteEnd()
{
    if (m_sending.empty())
        return;
    m_sending.clear();
    // Not flushed: when the machine fails now, a job that the print system repeats is held, never doubled.
    save(false);
}

bool QueueRecord::save(bool durable) const
{
    if (m_path.empty())
        return false;
    std::string text;
    if (!m_answering.empty())
        text += "answers " + m_answering + '\n';
    if (!m_sending.empty())
        text += "sending " + m_sending + '\n';

    // Written in place, in one block of the disk: the file is always there, so its folder need not be
    // flushed.
    const int file = open(m_path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        return false;
    const bool saved = pwrite(file, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size())
        && ftruncate(file, static_cast<off_t>(text.size())) == 0 && (!durable || fdatasync(file) == 0);
    close(file);
    return saved;
}
