#include "printer_status.h"

#include <algorithm>

namespace {

struct Condition
{
    StatusQuery query;
    unsigned char bits; // any of them
    bool PrinterStatus::*field;
};

constexpr Condition conditions[] = {
    {StatusQuery::Printer, 0x08, &PrinterStatus::offLine},
    {StatusQuery::OffLineCause, 0x04, &PrinterStatus::coverOpen},
    {StatusQuery::OffLineCause, 0x08, &PrinterStatus::feedKeyPressed},
    {StatusQuery::OffLineCause, 0x20, &PrinterStatus::paperEnd},
    {StatusQuery::OffLineCause, 0x40, &PrinterStatus::error},
    {StatusQuery::Error, 0x08, &PrinterStatus::cutterError},
    {StatusQuery::Error, 0x20, &PrinterStatus::unrecoverableError},
    {StatusQuery::Error, 0x08 | 0x20 | 0x40, &PrinterStatus::error},
    {StatusQuery::Paper, 0x0C, &PrinterStatus::paperNearEnd},
    {StatusQuery::Paper, 0x60, &PrinterStatus::paperEnd},
};

struct Obstacle
{
    bool PrinterStatus::*field;
    const char *text;
};

constexpr Obstacle obstacles[] = {
    {&PrinterStatus::paperEnd, "no paper"},
    {&PrinterStatus::coverOpen, "the cover is open"},
    {&PrinterStatus::cutterError, "the cutter is blocked"},
    {&PrinterStatus::unrecoverableError, "an error until it is switched off and on"},
    {&PrinterStatus::feedKeyPressed, "the feed key is pressed"},
};

// Said only when none of those above explains them.
constexpr Obstacle unexplained[] = {
    {&PrinterStatus::error, "an error"},
    {&PrinterStatus::offLine, "off line"},
};

bool isRealTime(unsigned char byte)
{
    return (byte & 0x93) == 0x12;
}

} // namespace

bool PrinterStatus::add(StatusQuery query, unsigned char answer)
{
    if (!isRealTime(answer))
        return false;
    for (const Condition &condition : conditions)
        if (condition.query == query && (answer & condition.bits) != 0)
            this->*condition.field = true;
    return true;
}

bool PrinterStatus::ready() const
{
    const auto holds = [this](const Obstacle &obstacle) { return this->*obstacle.field; };
    return std::ranges::none_of(obstacles, holds) && std::ranges::none_of(unexplained, holds);
}

std::string PrinterStatus::description() const
{
    std::string text;
    for (const Obstacle &obstacle : obstacles)
        if (this->*obstacle.field)
            text += (text.empty() ? "" : ", ") + std::string(obstacle.text);
    for (const Obstacle &obstacle : unexplained)
        if (text.empty() && this->*obstacle.field)
            text = obstacle.text;
    if (text.empty())
        text = paperNearEnd ? "ready, the paper is near its end" : "ready";
    return text;
}

Answer AnswerReader::take(unsigned char byte)
{
    if (m_restOfReport > 0) {
        --m_restOfReport;
        return Answer::Other;
    }
    if (isRealTime(byte))
        return Answer::RealTime;
    if ((byte & 0x93) == 0x10) { // begins a report
        m_restOfReport = 3;
        return Answer::Other;
    }
    return (byte & 0x90) == 0 ? Answer::InSequence : Answer::Other;
}
