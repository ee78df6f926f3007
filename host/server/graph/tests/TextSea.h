// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/geo/Sphere.h"
#include "host/server/graph/Gate.h"
#include "host/server/graph/NarrowedSea.h"

namespace Tarvik::Server {

/// A sea drawn as text, a square a degree, its south-west corner at 0, 0: '#' land, letters ports of that
/// name, digits passages of that name with a gate north and south across their square, 'x' water of one
/// rectangle that is forbidden, anything else water. Neighbours, also over the corner, are joined.
struct TextSea {
    NetworkData data;
    std::vector<GeoPoint> forbidden;

    explicit TextSea(const std::vector<std::string>& rows) : rows_(rows) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t column = 0; column < rows[row].size(); ++column) {
                Take(rows[row][column], static_cast<double>(column),
                     static_cast<double>(rows.size() - 1 - row));
            }
        }
        if (!(low_.x > high_.x)) {
            forbidden = {low_, {high_.x, low_.y}, high_, {low_.x, high_.y}};
        }
        for (std::uint32_t a = 0; a < data.nodes.size(); ++a) {
            for (std::uint32_t b = a + 1; b < data.nodes.size(); ++b) {
                Join(a, b);
            }
        }
    }

  private:
    void Take(char square, double x, double y) {
        const GeoPoint middle{x + 0.5, y + 0.5};
        if (square == '#') {
            data.land.push_back({{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}});
            return;
        }
        const auto node = static_cast<std::uint32_t>(data.nodes.size());
        data.nodes.push_back(middle);
        if (square >= 'A' && square <= 'Z') {
            data.ports.push_back({"4000" + std::to_string(data.ports.size()), "", {square}, node});
        } else if (square >= '0' && square <= '9') {
            data.routePoints.push_back(
                {{square}, {square}, node, false, {{middle.x, y}, {middle.x, y + 1}}, {}});
        } else if (square == 'x') {
            low_ = {std::min(low_.x, x), std::min(low_.y, y)};
            high_ = {std::max(high_.x, x + 1), std::max(high_.y, y + 1)};
        }
    }
    void Join(std::uint32_t a, std::uint32_t b) {
        const GeoPoint from = data.nodes[a];
        const GeoPoint to = data.nodes[b];
        if (std::abs(from.x - to.x) > 1.0 || std::abs(from.y - to.y) > 1.0 || !IsWater(from.x, to.y) ||
            !IsWater(to.x, from.y)) {
            return;
        }
        data.masks.push_back(GatesCrossed(GreatCircle(from, to), data.routePoints));
        data.edges.push_back({a, b, static_cast<float>(ArcNm(from, to)),
                              static_cast<std::uint16_t>(data.masks.size() - 1), EdgeKind::Sea});
    }
    bool IsWater(double x, double y) const {
        return rows_[rows_.size() - 1 - static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] != '#';
    }

    std::vector<std::string> rows_;
    GeoPoint low_{1e9, 1e9};
    GeoPoint high_{-1e9, -1e9};
};

}  // namespace Tarvik::Server
