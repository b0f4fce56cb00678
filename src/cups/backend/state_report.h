#pragma once

#include "printer_status.h"

#include <set>
#include <string>

/* Keeps the printer's state reasons and message in the print system as the printer tells. Says only what
 * changes: the print system may write each change to disk. */
class StateReport
{
public:
    /* Begins with the reasons that an earlier run has left, separated by commas. */
    explicit StateReport(const std::string &inForce);

    void show(const PrinterStatus &status);
    /* The printer cannot be asked, or takes nothing. */
    void showOffLine(const std::string &message);
    /* Nothing hinders printing. What is known of the paper near its end stays. */
    void clear();

private:
    void setReasons(const std::set<std::string> &now);
    void setMessage(const std::string &kind, const std::string &message);

    std::set<std::string> m_reasons;
    std::string m_message;
};
