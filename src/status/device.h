#pragma once

#include "device_uri.h"

#include <optional>
#include <string>

#include <termios.h>

/*
 * A printer that is open for reading and writing, without blocking, as long as the object lives. A serial
 * line passes every byte as it is meanwhile, and has its own settings again afterwards; speed, parity and
 * flow control are always its own.
 */
class Device
{
public:
    /* Opens it; when that fails, isOpen() is false and fault() says why. It ends as soon as the descriptor
     * becomes readable (-1 for none); a look-up of the host's name cannot be ended like that, so that
     * SIGTERM, where it is blocked, ends the program meanwhile. */
    explicit Device(const DeviceUri &uri, int cancellation = -1);
    ~Device();
    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    const std::string &fault() const { return m_fault; }

    /* Whether opening it again can never succeed: it is there, and no printer. */
    bool isNoPrinter() const { return m_isNoPrinter; }

private:
    void openPath(const std::string &path);
    void setLine();
    void connectTo(const DeviceUri &uri, int cancellation);
    void shut();

    int m_descriptor = -1;
    std::optional<termios> m_ownLine; // what a serial line was set to
    bool m_isNoPrinter = false;
    std::string m_fault;
};
