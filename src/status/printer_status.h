#pragma once

#include <array>
#include <optional>
#include <string>

/* What a printer can be asked at any time, even while it is off line, by the number in the command `10 04 n`.
 */
enum class StatusQuery : unsigned char { Printer = 1, OffLineCause = 2, Error = 3, Paper = 4 };

inline constexpr std::array statusQueries = {StatusQuery::Printer, StatusQuery::OffLineCause,
                                             StatusQuery::Error, StatusQuery::Paper};

/* The state of a printer, as far as its answers have told. */
struct PrinterStatus
{
    bool offLine = false;
    bool coverOpen = false;
    bool paperEnd = false;
    bool paperNearEnd = false;
    bool feedKeyPressed = false;
    bool cutterError = false;
    bool unrecoverableError = false; // until it is switched off
    bool error = false; // any, those above among them

    bool operator==(const PrinterStatus &) const = default;

    /* Adds the conditions that an answer to the query tells; false, and nothing is added, when the byte is no
     * answer to any query. */
    bool add(StatusQuery query, unsigned char answer);

    /* Whether what is sent now is printed now. Paper near its end still prints. */
    bool ready() const;

    /* The state in words for a person, as "no paper, the cover is open" or "ready, the paper is near its
     * end". */
    std::string description() const;
};

/* What a byte from the printer is. */
enum class Answer {
    RealTime, // to one of the queries above
    InSequence, // to `1D 72 n`, sent when all before the query has been processed
    Other // of flow control, or part of a status report of four bytes that the printer sends by itself
};

/* Tells the answers of a printer apart. A report of four bytes counts as Other to its end: its last three
 * look like answers in sequence. */
class AnswerReader
{
public:
    Answer take(unsigned char byte);

private:
    int m_restOfReport = 0;
};
