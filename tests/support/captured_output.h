#pragma once

#include <QByteArray>

#include <functional>
#include <iostream>
#include <sstream>

/* Catches what is printed through std::cout, as every message and tree is, as long as it lives. What the test
 * itself reports goes past it. */
class CapturedOutput
{
public:
    CapturedOutput() = default;
    CapturedOutput(const CapturedOutput &) = delete;
    CapturedOutput &operator=(const CapturedOutput &) = delete;
    ~CapturedOutput() { std::cout.rdbuf(standardOutput); }

    QByteArray text() const { return QByteArray::fromStdString(caught.str()); }

private:
    std::ostringstream caught;
    std::streambuf *const standardOutput = std::cout.rdbuf(caught.rdbuf());
};

/* What is printed while the function runs. */
inline QByteArray capturedOutput(const std::function<void()> &function)
{
    const CapturedOutput output;
    function();
    return output.text();
}
