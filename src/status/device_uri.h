#pragma once

#include <optional>
#include <string>
#include <string_view>

/* Where a queue prints: `tavolux://host[:port]` or `tavolux:/dev/...`, with `?status=no` for a printer that
 * is not to be asked. One of path and host is empty. */
struct DeviceUri
{
    std::string path;
    std::string host;
    std::string port = "9100";
    bool asksStatus = true;

    /* Nothing when the text is not of this form. */
    static std::optional<DeviceUri> parse(std::string_view text);

    /* That of a device, wherever it is. */
    static DeviceUri ofDevice(std::string path);

    /* For messages: the path, or host and port. */
    std::string name() const;
};
