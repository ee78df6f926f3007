// SPDX-License-Identifier: MIT
// One search from each named node to all others, then back from every other named node over the arcs that its
// distance is made of. A network has some two thousand named nodes, and each search takes some milliseconds.
#include "host/server/graph/NamedWays.h"

#include <cmath>
#include <numeric>

namespace Tarvik::Server {

std::vector<std::uint8_t> EdgesOfWays(const ArcTable& table, const std::vector<std::uint32_t>& named,
                                      std::size_t edges) {
    std::vector<std::uint8_t> marks(edges, 0);
    std::vector<std::uint32_t> walked(table.start.size() - 1, 0);  // of which search, counted from 1
    std::vector<std::uint32_t> open;
    for (std::uint32_t search = 1; search <= named.size(); ++search) {
        const std::vector<float> nm = DistancesFrom(table, named[search - 1]);
        const auto reach = [&](std::uint32_t node) {
            if (walked[node] != search && std::isfinite(nm[node])) {
                walked[node] = search;
                open.push_back(node);
            }
        };
        for (const std::uint32_t target : named) {
            reach(target);
        }
        while (!open.empty()) {
            const std::uint32_t at = open.back();
            open.pop_back();
            for (std::uint32_t k = table.start[at]; k < table.start[at + 1]; ++k) {
                const Arc& arc = table.arcs[k];
                if (nm[arc.to] + arc.nm == nm[at]) {
                    marks[arc.edge] = 1;
                    reach(arc.to);
                }
            }
        }
    }
    return marks;
}

ArcTable MarkedArcs(const ArcTable& table, std::span<const std::uint8_t> marks) {
    ArcTable marked;
    marked.start.reserve(table.start.size());
    marked.start.push_back(0);
    marked.arcs.reserve(2 * std::accumulate(marks.begin(), marks.end(), std::size_t{0}));
    for (std::size_t node = 0; node + 1 < table.start.size(); ++node) {
        for (std::uint32_t k = table.start[node]; k < table.start[node + 1]; ++k) {
            if (marks[table.arcs[k].edge] != 0) {
                marked.arcs.push_back(table.arcs[k]);
            }
        }
        marked.start.push_back(static_cast<std::uint32_t>(marked.arcs.size()));
    }
    return marked;
}

}  // namespace Tarvik::Server
