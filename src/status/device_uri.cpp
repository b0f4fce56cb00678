#include "device_uri.h"

#include <algorithm>
#include <charconv>
#include <utility>

using namespace std::string_view_literals;

namespace {

bool removePrefix(std::string_view &text, std::string_view prefix)
{
    if (!text.starts_with(prefix))
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

// Takes what stands before the first of the characters, or everything.
std::string_view takeUpTo(std::string_view &text, std::string_view characters)
{
    const std::string_view taken = text.substr(0, text.find_first_of(characters));
    text.remove_prefix(taken.size());
    return taken;
}

bool isPort(std::string_view text)
{
    unsigned int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    return error == std::errc() && end == text.data() + text.size() && port > 0 && port < 65'536;
}

bool isHostName(std::string_view text)
{
    constexpr auto allowed = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-_"sv;
    return !text.empty() && text.find_first_not_of(allowed) == std::string_view::npos;
}

// An address in brackets; the print system writes one with a zone as [v1.fe80::1+eth0].
std::string bracketedAddress(std::string_view &rest)
{
    removePrefix(rest, "[");
    std::string_view text = takeUpTo(rest, "]");
    if (!removePrefix(rest, "]"))
        return {};
    removePrefix(text, "v1.");
    std::string address(text);
    std::ranges::replace(address, '+', '%');
    return address;
}

} // namespace

std::optional<DeviceUri> DeviceUri::parse(std::string_view text)
{
    DeviceUri uri;
    if (!removePrefix(text, "tavolux:"))
        return {};

    if (removePrefix(text, "//")) {
        uri.host = text.starts_with('[') ? bracketedAddress(text) : std::string(takeUpTo(text, ":/?"));
        if (uri.host.find(':') == std::string::npos && !isHostName(uri.host))
            return {};
        if (removePrefix(text, ":")) {
            uri.port = takeUpTo(text, "/?");
            if (!isPort(uri.port))
                return {};
        }
        removePrefix(text, "/");
    } else {
        uri.path = takeUpTo(text, "?");
        if (!uri.path.starts_with("/dev/"))
            return {};
    }

    if (removePrefix(text, "?status=no"))
        uri.asksStatus = false;
    return text.empty() ? std::optional(uri) : std::nullopt;
}

DeviceUri DeviceUri::ofDevice(std::string path)
{
    DeviceUri uri;
    uri.path = std::move(path);
    return uri;
}

std::string DeviceUri::name() const
{
    return host.empty() ? path : host + ':' + port;
}
