// SPDX-License-Identifier: MIT
#include "host/plugins/ais/input/InputAddress.h"

#include <charconv>

namespace Tarvik::Ais {

namespace {

constexpr std::uint16_t kNmeaPort = 10110, kGpsdPort = 2947;
constexpr unsigned kLowestBaud = 300, kHighestBaud = 4'000'000;
constexpr double kFastestPace = 1e6;

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

template <class Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// "host", "host:port", "[::1]:port", ":port".
bool ReadHost(std::string_view text, InputAddress& address) {
    const std::size_t colon = text.rfind(':');
    const std::size_t bracket = text.rfind(']');
    const bool hasPort =
        colon != std::string_view::npos && (bracket == std::string_view::npos || colon > bracket);
    if (hasPort && (!ReadNumber(text.substr(colon + 1), address.port) || address.port == 0)) {
        return false;
    }
    std::string_view host = hasPort ? text.substr(0, colon) : text;
    if (host.size() > 1 && host.front() == '[' && host.back() == ']') {
        host = host.substr(1, host.size() - 2);
    }
    address.place = host;
    const bool strange = host.find_first_of("/?# []") != std::string_view::npos;
    return !strange && (!host.empty() || address.kind == InputKind::Udp);
}

/// Takes "?key=" and a number off the end of a path, where they stand.
template <class Number>
bool TakeSetting(std::string_view& path, std::string_view key, Number& number) {
    const std::size_t mark = path.rfind('?');
    if (mark == std::string_view::npos) {
        return true;
    }
    const std::string_view setting = path.substr(mark + 1);
    path = path.substr(0, mark);
    return setting.starts_with(key) && ReadNumber(setting.substr(key.size()), number);
}

bool ReadPath(std::string_view path, InputAddress& address) {
    const bool good = address.kind == InputKind::Serial ? TakeSetting(path, "baud=", address.baud)
                                                        : TakeSetting(path, "pace=", address.pace);
    address.place = path;
    return good && !path.empty() && address.baud >= kLowestBaud && address.baud <= kHighestBaud &&
           address.pace >= 0 && address.pace <= kFastestPace;
}

struct Scheme {
    std::string_view head;
    InputKind kind;
    std::uint16_t port;
};
constexpr Scheme kSchemes[] = {{"tcp://", InputKind::Tcp, kNmeaPort},
                               {"udp://", InputKind::Udp, kNmeaPort},
                               {"gpsd://", InputKind::Gpsd, kGpsdPort},
                               {"serial:", InputKind::Serial, 0},
                               {"file:", InputKind::File, 0}};

}  // namespace

std::optional<InputAddress> InputAddress::Parse(std::string_view text) {
    text = Trimmed(text);
    for (const Scheme& scheme : kSchemes) {
        if (!text.starts_with(scheme.head)) {
            continue;
        }
        InputAddress address;
        address.kind = scheme.kind;
        address.port = scheme.port;
        text.remove_prefix(scheme.head.size());
        const bool good = scheme.port != 0 ? ReadHost(text, address) : ReadPath(text, address);
        return good ? std::optional(address) : std::nullopt;
    }
    return std::nullopt;
}

}  // namespace Tarvik::Ais
