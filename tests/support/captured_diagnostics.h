#pragma once

#include <QByteArray>

#include <iostream>
#include <sstream>

/* Catches the diagnostic lines of the printing path, instead of standard output, as long as it lives. */
class CapturedDiagnostics
{
public:
    CapturedDiagnostics() = default;
    CapturedDiagnostics(const CapturedDiagnostics &) = delete;
    CapturedDiagnostics &operator=(const CapturedDiagnostics &) = delete;
    ~CapturedDiagnostics() { std::cout.rdbuf(standardOutput); }

    QByteArray text() const { return QByteArray::fromStdString(caught.str()); }

private:
    std::ostringstream caught;
    std::streambuf *const standardOutput = std::cout.rdbuf(caught.rdbuf());
};
