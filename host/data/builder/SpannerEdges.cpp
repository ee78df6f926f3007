// SPDX-License-Identifier: MIT
// Which pairs of nodes are joined: the greedy spanner (Althoefer et al. 1993). All pairs in reach, shortest
// first; a pair that the edges chosen so far join at most 1 % longer is left out. Before that go the pairs
// that no shortest way needs, as they point into a cape's own land (the tangents of a visibility graph).
// Whether a detour is there is asked first of two edges, then by A* that gives up at the limit. Cost: the
// square of the nodes in dot products for the pairs, their sorting, and for each pair a look at the land and
// a search of a few nodes.
#include "host/data/builder/SpannerEdges.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <queue>
#include <tuple>

namespace Tarvik::Data {

namespace {

constexpr double kReachNm = 600.0;
constexpr float kStretch = 1.01F;
/// Shorter ways are held to nothing but to keep off the land itself.
constexpr double kFreeHandNm = 15.0;
/// How far a way may point into a cape's land before it is held useless, as a sine.
constexpr double kTangentSlack = 0.3;

}  // namespace

SpannerEdges::SpannerEdges(const std::vector<BuildNode>& nodes, const Server::LandIndex& land)
    : nodes_(nodes), land_(land) {
    Extend();
}

void SpannerEdges::Extend() {
    for (std::size_t i = vectors_.size(); i < nodes_.size(); ++i) {
        vectors_.push_back(Server::ToVector(nodes_[i].at));
    }
    neighbours_.resize(nodes_.size());
    reached_.resize(nodes_.size(), std::numeric_limits<float>::infinity());
}

void SpannerEdges::AddFixed(std::uint32_t a, std::uint32_t b, Server::EdgeKind kind) {
    Extend();
    const auto nm = static_cast<float>(Server::ArcNm(vectors_[a], vectors_[b]));
    neighbours_[a].push_back({b, nm});
    neighbours_[b].push_back({a, nm});
    edges_.push_back({a, b, nm, 0, kind});
}

bool SpannerEdges::WorthHaving(std::uint32_t node, std::uint32_t other) const {
    const BuildNode& n = nodes_[node];
    if (!n.corner) {
        return true;
    }
    // The direction of the great circle at the corner, as east and north.
    const Server::UnitVector& v = vectors_[node];
    const Server::UnitVector& w = vectors_[other];
    const double lon = n.at.x * Server::kDegree;
    const double lat = n.at.y * Server::kDegree;
    const Server::UnitVector east{-std::sin(lon), std::cos(lon), 0.0};
    const Server::UnitVector north{-std::sin(lat) * std::cos(lon), -std::sin(lat) * std::sin(lon),
                                   std::cos(lat)};
    const Server::UnitVector d{w.x - v.x, w.y - v.y, w.z - v.z};
    const double e = Server::Dot(d, east);
    const double m = Server::Dot(d, north);
    const double length = std::hypot(e, m);
    if (length == 0.0) {
        return false;
    }
    const double a = (e * n.toPrevious.y - m * n.toPrevious.x) / length;
    const double b = (e * n.toNext.y - m * n.toNext.x) / length;
    return !((a > kTangentSlack && b < -kTangentSlack) || (a < -kTangentSlack && b > kTangentSlack));
}

std::vector<SpannerEdges::Pair> SpannerEdges::PairsInReach(std::uint32_t firstNew) const {
    const double limit = std::cos(kReachNm / Server::kNmPerDegree * Server::kDegree);
    std::vector<std::uint32_t> free;
    for (std::uint32_t i = 0; i < nodes_.size(); ++i) {
        if (nodes_[i].free) {
            free.push_back(i);
        }
    }
    std::vector<Pair> pairs;
    for (std::size_t k = 0; k < free.size(); ++k) {
        const std::uint32_t b = free[k];
        if (b < firstNew) {
            continue;
        }
        for (std::size_t i = 0; i < k; ++i) {
            const std::uint32_t a = free[i];
            if (Server::Dot(vectors_[a], vectors_[b]) < limit) {
                continue;
            }
            const auto nm = static_cast<float>(Server::ArcNm(vectors_[a], vectors_[b]));
            // In harbours ways bend round moles that no cape stands for.
            if (nm > kFreeHandNm && (!WorthHaving(a, b) || !WorthHaving(b, a))) {
                continue;
            }
            pairs.push_back({nm, a, b});
        }
    }
    std::sort(pairs.begin(), pairs.end(), [](const Pair& l, const Pair& r) {
        return std::tie(l.nm, l.a, l.b) < std::tie(r.nm, r.a, r.b);
    });
    return pairs;
}

bool SpannerEdges::HasShortDetour(const Pair& pair) const {
    const float limit = pair.nm * kStretch;
    for (const Neighbour& first : neighbours_[pair.a]) {
        if (first.node == pair.b) {
            return true;
        }
        if (first.nm + static_cast<float>(Server::ArcNm(vectors_[first.node], vectors_[pair.b])) > limit) {
            continue;
        }
        for (const Neighbour& second : neighbours_[first.node]) {
            if (second.node == pair.b && first.nm + second.nm <= limit) {
                return true;
            }
        }
    }
    return false;
}

bool SpannerEdges::SearchDetour(const Pair& pair) {
    const float limit = pair.nm * kStretch;
    using Item = std::tuple<float, float, std::uint32_t>;
    std::priority_queue<Item, std::vector<Item>, std::greater<>> open;
    touched_.assign(1, pair.a);
    reached_[pair.a] = 0.0F;
    open.emplace(pair.nm, 0.0F, pair.a);
    bool found = false;
    while (!open.empty() && !found) {
        const auto [estimate, nm, at] = open.top();
        open.pop();
        if (nm > reached_[at]) {
            continue;
        }
        for (const Neighbour& next : neighbours_[at]) {
            const float sum = nm + next.nm;
            if (sum >= reached_[next.node]) {
                continue;
            }
            const float rest = static_cast<float>(Server::ArcNm(vectors_[next.node], vectors_[pair.b]));
            if (sum + rest > limit) {
                continue;
            }
            found = found || next.node == pair.b;
            reached_[next.node] = sum;
            touched_.push_back(next.node);
            open.emplace(sum + rest, sum, next.node);
        }
    }
    for (const std::uint32_t node : touched_) {
        reached_[node] = std::numeric_limits<float>::infinity();
    }
    return found;
}

void SpannerEdges::Connect(std::uint32_t firstNew, double marginNm) {
    Extend();
    for (const Pair& pair : PairsInReach(firstNew)) {
        if (HasShortDetour(pair) || land_.Blocks(nodes_[pair.a].at, nodes_[pair.b].at) ||
            SearchDetour(pair) ||
            (pair.nm > kFreeHandNm &&
             land_.Grazes(nodes_[pair.a].at, nodes_[pair.b].at, marginNm, Server::LandIndex::kApproachNm))) {
            continue;
        }
        AddFixed(pair.a, pair.b, Server::EdgeKind::Sea);
    }
}

std::vector<std::uint32_t> SpannerEdges::Components(std::vector<std::uint32_t>& sizes) const {
    constexpr std::uint32_t kUnset = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> part(neighbours_.size(), kUnset);
    sizes.clear();
    for (std::uint32_t i = 0; i < part.size(); ++i) {
        if (part[i] != kUnset) {
            continue;
        }
        const auto number = static_cast<std::uint32_t>(sizes.size());
        sizes.push_back(0);
        std::vector<std::uint32_t> open{i};
        part[i] = number;
        while (!open.empty()) {
            const std::uint32_t at = open.back();
            open.pop_back();
            ++sizes[number];
            for (const Neighbour& next : neighbours_[at]) {
                if (part[next.node] != kUnset) {
                    continue;
                }
                part[next.node] = number;
                open.push_back(next.node);
            }
        }
    }
    return part;
}

}  // namespace Tarvik::Data
