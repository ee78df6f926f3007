// SPDX-License-Identifier: MIT
#include "host/server/graph/report/Places.h"

#include <algorithm>
#include <cctype>

#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

namespace {

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string Found(const std::unordered_map<std::string, std::string>& ids, const std::string& text) {
    const auto it = ids.find(Lower(text));
    return it == ids.end() ? std::string() : it->second;
}

}  // namespace

Places::Places(const SeaNetwork& network) {
    for (const NetworkPort& port : network.data().ports) {
        for (const std::string& key : {port.id, port.unlocode, port.name}) {
            ports_.emplace(Lower(key), port.id);
        }
    }
    for (const RoutePoint& point : network.data().routePoints) {
        for (const std::string& key : {point.id, point.name, point.name.substr(0, point.name.find(" ("))}) {
            passages_.emplace(Lower(key), point.id);
        }
    }
}

std::string Places::PortId(const std::string& text) const {
    return Found(ports_, text);
}

std::string Places::PassageId(const std::string& text) const {
    return Found(passages_, text);
}

RouteRequestPoint Places::StopBy(const std::vector<std::string>& passages, const std::string& from,
                                 const std::string& to) const {
    RouteRequestPoint stop{to, {}, {}};
    const std::string leg = std::string(from).append(",").append(to);
    for (const std::string& passage : passages) {
        stop.locks.push_back({PassageId(passage), leg});
    }
    return stop;
}

RouteLimits Places::WithoutPassages(const std::vector<std::string>& passages) const {
    RouteLimits limits;
    for (const std::string& passage : passages) {
        limits.forbidden.push_back(PassageId(passage));
    }
    return limits;
}

}  // namespace Tarvik::Server
