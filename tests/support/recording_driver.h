#pragma once

#include "printer_driver.h"

#include <QStringList>

#include <initializer_list>

/*
 * A driver that writes nothing and lists the operations called on its device instead, in their order:
 * "setBold", "setCharSize", "setCharSize 1", "print 1|text|", "println|text|". Each text stands between bars,
 * indents and sizes in front of them. Column titles are listed as asked for, and then printed as ever.
 */
class RecordingDriver : public PrinterDriver
{
public:
    RecordingDriver();

    QStringList calls;
    unsigned int deviceWidth = 34;

    // Open, so that a test need not go through the configuration.
    using PrinterDriver::documentPrefix;
    using PrinterDriver::profile;

    unsigned int getPaperWidth() const override;
    void reset() override;
    void setBold() override;
    void setCharSize() override;
    void setCharSize(int size) override;
    void setCenterJustify() override;
    void fullCut() override;
    void generatePulse() override;
    /* Only listed; the base class's line is there under its own name. */
    void printSeparatorLine() override;
    void startSection() override;
    void endSection() override;
    void initPrinter() override;
    void print(unsigned int indent, const QString &text) override;
    void println(unsigned int indent, const QString &text) override;
    void println(const QString &text) override;
    void printRowFiscal(const QString &element, const QXmlAttributes &attributes) override;
    void printRowFiscal(const QString &department, const QString &quantity, const QString &description,
                        const QString &price) override;
    void printLogo() override;
    void printColumnsHeader(const QString &quantity, const QString &description, const QString &price,
                            const QString &totalPrice) override;

protected:
    /* Lists a call with the texts given to it. */
    void note(const QString &operation, const QStringList &texts = {});
};

/* A list of calls as a test expects it. */
QStringList calls(std::initializer_list<const char *> expected);
