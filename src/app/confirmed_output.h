#pragma once

#include "device.h"

#include <QBuffer>
#include <QString>

#include <memory>
#include <optional>

class PrintOutput;
class TXConfiguration;

/* Whether the output is a character device, and its printer one that is asked for its status. */
bool isAskedForStatus(const TXConfiguration &configuration, const QString &output);

/*
 * The printer at a device, which is asked before and after a printout. The printout is kept as a whole:
 * nothing of it is sent to a printer that is not ready. Each failure is one line on standard output. No wait
 * is without an end: a till must not hang on a printer.
 */
class ConfirmedOutput
{
public:
    /* Opens the device for reading and writing. Where that may not be, it is not open afterwards, and is
     * silent about it: whoever only writes may have more luck, or says why not. */
    void open(const QString &path);
    bool isOpen() const { return m_device && m_device->isOpen(); }

    /* What keeps the printout, while this object lives. */
    std::unique_ptr<PrintOutput> printout();

    /* Sends the printout and waits for the printer's answer; to be called once it is complete. Nothing is
     * sent and nobody asked when it is empty. */
    void send();

private:
    QString m_path;
    std::optional<Device> m_device;
    QBuffer m_printout;
};
