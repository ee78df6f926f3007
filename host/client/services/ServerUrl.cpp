// SPDX-License-Identifier: MIT
#include "host/client/services/ServerUrl.h"

#include <charconv>
#include <string_view>

namespace Tarvik::Client {

namespace {

bool TakeScheme(std::string_view& rest, ServerUrl& url) {
    for (const bool tls : {false, true}) {
        const std::string_view scheme = tls ? "https://" : "http://";
        if (!rest.starts_with(scheme)) {
            continue;
        }
        rest.remove_prefix(scheme.size());
        url.tls = tls;
        url.port = tls ? 443 : 80;
        return true;
    }
    return false;
}

bool TakeHost(std::string_view& rest, ServerUrl& url) {
    const bool bracketed = rest.starts_with('[');
    const std::size_t end = bracketed ? rest.find(']') : rest.find(':');
    if (bracketed && end == std::string_view::npos) {
        return false;
    }
    url.host = rest.substr(bracketed ? 1 : 0, bracketed ? end - 1 : end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + (bracketed ? 1 : 0));
    return !url.host.empty() && url.host.find_first_of("/?#@ []") == std::string::npos;
}

}  // namespace

std::optional<ServerUrl> ServerUrl::Parse(const std::string& text) {
    ServerUrl url;
    std::string_view rest = text;
    if (!TakeScheme(rest, url)) {
        return std::nullopt;
    }
    if (rest.ends_with('/')) {
        rest.remove_suffix(1);
    }
    if (!TakeHost(rest, url)) {
        return std::nullopt;
    }
    if (rest.empty()) {
        return url;
    }
    const char* const end = rest.data() + rest.size();
    const auto read = std::from_chars(rest.data() + 1, end, url.port);
    if (rest.front() != ':' || read.ec != std::errc() || read.ptr != end || url.port == 0) {
        return std::nullopt;
    }
    return url;
}

std::string ServerUrl::HostField() const {
    const bool wide = host.find(':') != std::string::npos;
    const bool usual = port == (tls ? 443 : 80);
    return (wide ? "[" + host + "]" : host) + (usual ? "" : ":" + std::to_string(port));
}

}  // namespace Tarvik::Client
