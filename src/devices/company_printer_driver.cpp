#include "company_printer_driver.h"

using namespace Qt::StringLiterals;

unsigned int CompanyPrinterDriver::getPaperWidth() const
{
    return 34;
}

void CompanyPrinterDriver::setCharSize()
{
    justification = Justification::left;
}

void CompanyPrinterDriver::setCharSize(int)
{
    justification = Justification::left;
}

void CompanyPrinterDriver::setCenterJustify()
{
    justification = Justification::center;
}

void CompanyPrinterDriver::print(unsigned int indent, const QString &text)
{
    const auto width = static_cast<qsizetype>(getPaperWidth());
    qsizetype blanks = justification == Justification::center ? (width - text.size()) / 2 : indent;
    if (width < text.size())
        blanks = 0;
    if (blanks > 0)
        write(QString(blanks, u' '));
    write(text);
}

void CompanyPrinterDriver::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    write(u"\n"_s);
}

void CompanyPrinterDriver::println(const QString &text)
{
    println(0, text);
}

void CompanyPrinterDriver::endSection()
{
    if (profile.openCashDrawer)
        openCashDrawer();
}

void CompanyPrinterDriver::openCashDrawer()
{
    print(0, u"\x1Bp0"_s);
}

void CompanyPrinterDriver::setBold() { }

void CompanyPrinterDriver::fullCut() { }

void CompanyPrinterDriver::generatePulse() { }

void CompanyPrinterDriver::startSection() { }

void CompanyPrinterDriver::printLogo() { }
