// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Tarvik::Client {

/// Where a voyage server is.
struct ServerUrl {
    bool tls = false;
    std::string host;  ///< without brackets
    std::uint16_t port = 0;

    /// Reads "http://host", "https://host:8470", "http://[::1]:8470/"; nothing for any other form. Without a
    /// port it is 80 or 443.
    static std::optional<ServerUrl> Parse(const std::string& text);
    /// The value of the Host field.
    std::string HostField() const;
};

}  // namespace Tarvik::Client
