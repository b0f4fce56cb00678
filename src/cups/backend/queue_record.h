#pragma once

#include <string>

/*
 * What is remembered of a queue from one job to the next, in a small file: the printer that has answered, and
 * the job that is being sent. A run that finds its own job there follows one that was cut off, by a signal
 * that cannot be caught or by the end of the print system or the machine. A file that cannot be read or
 * written is as one that is empty.
 */
class QueueRecord
{
public:
    /* Reads the file; with an empty path nothing is remembered. */
    explicit QueueRecord(std::string path);

    bool hasAnswered(const std::string &printer) const { return m_answering == printer; }
    void noteAnswered(const std::string &printer);

    bool wasCutOff(const std::string &job) const { return m_sending == job; }
    /* On disk when it returns; false when that failed. */
    bool noteSending(const std::string &job);
    /* The outcome is known, or is left to a person. */
    void noteEnd();

private:
    bool save(bool durable) const;

    const std::string m_path;
    std::string m_answering;
    std::string m_sending;
};
