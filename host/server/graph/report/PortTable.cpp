// SPDX-License-Identifier: MIT
// All ports against all. There and back are one way, so that half of the table is reckoned; the threads take
// rows one after the other, as the network's steps to one port lie together. Each way is found, pulled taut
// and measured as a request's is; only its legs and what is offered beside it are left out. Cost: some 60 us
// a pair and core, 4 bytes a pair.
#include "host/server/graph/report/PortTable.h"

#include <algorithm>
#include <atomic>
#include <thread>

#include <fmt/format.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/LegPlanner.h"

namespace Tarvik::Server {

PortTable::PortTable(const SeaNetwork& network, const RouteLimits& limits, unsigned threads)
    : ports_(network.data().ports.size()), below_(ports_ == 0 ? 0 : RowStart(ports_)) {
    const LegPlanner planner(network, limits);
    const auto& ports = network.data().ports;
    // The longest rows first, so that no thread is left with one at the end.
    std::atomic<std::size_t> taken{0};
    const auto work = [&] {
        for (std::size_t row = ++taken; row < ports_; row = ++taken) {
            const std::size_t from = ports_ - row;
            for (std::size_t to = 0; to < from; ++to) {
                const std::vector<GeoPoint> way = planner.Way(ports[from].node, ports[to].node);
                below_[RowStart(from) + to] =
                    way.empty() ? -1.0F : static_cast<float>(PathShape::LengthKm(way) / kKmPerNm);
            }
        }
    };
    std::vector<std::jthread> others;
    for (unsigned i = 1; i < threads; ++i) {
        others.emplace_back(work);
    }
    work();
}

std::string PortTable::Text(const SeaNetwork& network) const {
    std::vector<std::string> codes;
    codes.reserve(ports_);
    for (const NetworkPort& port : network.data().ports) {
        codes.push_back(port.unlocode.empty() ? port.id : port.unlocode);
    }
    std::string text = "port";
    for (const std::string& code : codes) {
        text += "," + code;
    }
    for (std::size_t a = 0; a < ports_; ++a) {
        text += "\n" + codes[a];
        for (std::size_t b = 0; b < ports_; ++b) {
            const double nm = Nm(a, b);
            text += nm < 0.0 ? std::string(",") : fmt::format(",{:.1f}", nm);
        }
    }
    return text + "\n";
}

}  // namespace Tarvik::Server
