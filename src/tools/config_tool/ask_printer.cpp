#include "ask_printer.h"

#include "device.h"
#include "printer_port.h"

#include <csignal>

using namespace Qt::StringLiterals;

PrinterAnswer askPrinter(const DeviceUri &uri)
{
    std::signal(SIGPIPE, SIG_IGN);
    const Device device(uri);
    if (!device.isOpen())
        return {false, u"cannot be reached: "_s + QString::fromStdString(device.fault())};
    PrinterPort port(device.descriptor(), -1);
    PrinterStatus status;
    const PortResult result = port.ask(status);
    if (result == PortResult::Done)
        return {status.ready(), QString::fromStdString(status.description())};
    if (result == PortResult::Silent && !port.answered())
        return {false, u"does not tell its status"_s};
    return {false, u"does not answer: "_s + QString::fromStdString(port.fault())};
}
