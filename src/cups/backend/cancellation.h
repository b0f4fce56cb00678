#pragma once

#include <chrono>

/*
 * Turns SIGTERM into something to wait for: the print system sends it when a job is cancelled, a queue is
 * stopped or the print system itself ends; and it is sent when the print system dies, which would otherwise
 * leave this program behind, to print a job that the next print system begins anew. There is one of these in
 * a program.
 */
class Cancellation
{
public:
    Cancellation();
    ~Cancellation();
    Cancellation(const Cancellation &) = delete;
    Cancellation &operator=(const Cancellation &) = delete;

    /* Becomes readable when the signal has come. */
    int descriptor() const { return m_descriptor; }

    bool requested() const { return waitFor(std::chrono::milliseconds(0)); }

    /* Waits for so long; true when the signal came first. */
    bool waitFor(std::chrono::milliseconds time) const;

private:
    int m_descriptor;
};
