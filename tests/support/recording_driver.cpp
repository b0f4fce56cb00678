#include "recording_driver.h"

using namespace Qt::StringLiterals;

RecordingDriver::RecordingDriver()
    : PrinterDriver(u"/dev/null"_s, false)
{
}

void RecordingDriver::note(const QString &operation, const QStringList &texts)
{
    calls += texts.isEmpty() ? operation : operation + u'|' + texts.join(u'|') + u'|';
}

unsigned int RecordingDriver::getPaperWidth() const
{
    return deviceWidth;
}

void RecordingDriver::reset()
{
    note(u"reset"_s);
}

void RecordingDriver::setBold()
{
    note(u"setBold"_s);
}

void RecordingDriver::setCharSize()
{
    note(u"setCharSize"_s);
}

void RecordingDriver::setCharSize(int size)
{
    note(u"setCharSize %1"_s.arg(size));
}

void RecordingDriver::setCenterJustify()
{
    note(u"setCenterJustify"_s);
}

void RecordingDriver::fullCut()
{
    note(u"fullCut"_s);
}

void RecordingDriver::generatePulse()
{
    note(u"generatePulse"_s);
}

void RecordingDriver::printSeparatorLine()
{
    note(u"printSeparatorLine"_s);
}

void RecordingDriver::startSection()
{
    note(u"startSection"_s);
}

void RecordingDriver::endSection()
{
    note(u"endSection"_s);
}

void RecordingDriver::initPrinter()
{
    note(u"initPrinter"_s);
}

void RecordingDriver::print(unsigned int indent, const QString &text)
{
    note(u"print %1"_s.arg(indent), {text});
}

void RecordingDriver::println(unsigned int indent, const QString &text)
{
    note(u"println %1"_s.arg(indent), {text});
}

void RecordingDriver::println(const QString &text)
{
    note(u"println"_s, {text});
}

void RecordingDriver::printRowFiscal(const QString &element, const QXmlAttributes &attributes)
{
    QStringList texts;
    for (int i = 0; i < attributes.count(); ++i)
        texts += attributes.qName(i) + u'=' + attributes.value(i);
    note(u"printRowFiscal "_s + element, texts);
}

void RecordingDriver::printRowFiscal(const QString &department, const QString &quantity,
                                     const QString &description, const QString &price)
{
    note(u"printRowFiscal"_s, {department, quantity, description, price});
}

void RecordingDriver::printLogo()
{
    note(u"printLogo"_s);
}

void RecordingDriver::printColumnsHeader(const QString &quantity, const QString &description,
                                         const QString &price, const QString &totalPrice)
{
    note(u"printColumnsHeader"_s, {quantity, description, price, totalPrice});
    PrinterDriver::printColumnsHeader(quantity, description, price, totalPrice);
}

QStringList calls(std::initializer_list<const char *> expected)
{
    QStringList list;
    for (const char *call : expected)
        list += QString::fromUtf8(call);
    return list;
}
