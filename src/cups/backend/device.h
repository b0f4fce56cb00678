#pragma once

#include "device_uri.h"

#include <string>

class Cancellation;

/* A printer that is open for reading and writing, without blocking, as long as the object lives. */
class Device
{
public:
    /* Opens it; when that fails, or is cancelled, isOpen() is false and fault() says why. */
    Device(const DeviceUri &uri, const Cancellation &cancellation);
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
    void connectTo(const DeviceUri &uri, const Cancellation &cancellation);
    void shut();

    int m_descriptor = -1;
    bool m_isNoPrinter = false;
    std::string m_fault;
};
