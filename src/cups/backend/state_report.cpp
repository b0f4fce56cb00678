#include "state_report.h"

#include "report.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace {

constexpr auto offLineReason = "offline-report";
constexpr auto nearEndReason = "media-low-warning";

struct Reason
{
    bool PrinterStatus::*condition;
    const char *keyword;
};

constexpr Reason reasons[] = {
    {&PrinterStatus::paperEnd, "media-empty-error"}, {&PrinterStatus::paperNearEnd, nearEndReason},
    {&PrinterStatus::coverOpen, "cover-open-error"}, {&PrinterStatus::error, "other-error"},
    {&PrinterStatus::offLine, offLineReason},
};

std::string joined(const std::set<std::string> &words)
{
    std::string text;
    for (const std::string &word : words)
        text += (text.empty() ? "" : ",") + word;
    return text;
}

std::set<std::string> without(const std::set<std::string> &words, const std::set<std::string> &others)
{
    std::set<std::string> rest;
    std::ranges::set_difference(words, others, std::inserter(rest, rest.end()));
    return rest;
}

} // namespace

StateReport::StateReport(const std::string &inForce)
{
    std::istringstream list(inForce);
    for (std::string word; std::getline(list, word, ',');)
        if (std::ranges::any_of(reasons, [&](const Reason &reason) { return word == reason.keyword; }))
            m_reasons.insert(word);
}

void StateReport::show(const PrinterStatus &status)
{
    std::set<std::string> now;
    for (const Reason &reason : reasons)
        if (status.*reason.condition)
            now.insert(reason.keyword);
    setReasons(now);
    if (status.ready())
        setMessage("INFO", "The printer is " + status.description() + '.');
    else
        setMessage("ERROR", "The printer is not ready: " + status.description() + '.');
}

void StateReport::showOffLine(const std::string &message)
{
    setReasons({offLineReason});
    setMessage("ERROR", message);
}

void StateReport::clear()
{
    setReasons(m_reasons.contains(nearEndReason) ? std::set<std::string>{nearEndReason}
                                                 : std::set<std::string>());
}

void StateReport::setReasons(const std::set<std::string> &now)
{
    if (const auto gone = without(m_reasons, now); !gone.empty())
        report("STATE", '-' + joined(gone));
    if (const auto come = without(now, m_reasons); !come.empty())
        report("STATE", '+' + joined(come));
    m_reasons = now;
}

void StateReport::setMessage(const std::string &kind, const std::string &message)
{
    if (message != m_message)
        report(kind, message);
    m_message = message;
}
