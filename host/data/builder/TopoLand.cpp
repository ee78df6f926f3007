// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "host/data/builder/Land.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Data {

namespace {

using Json = nlohmann::json;

std::vector<Ring> DecodeArcs(const Json& topology) {
    const Json& transform = topology.at("transform");
    const double scaleX = transform.at("scale").at(0);
    const double scaleY = transform.at("scale").at(1);
    const double shiftX = transform.at("translate").at(0);
    const double shiftY = transform.at("translate").at(1);
    std::vector<Ring> arcs;
    for (const Json& deltas : topology.at("arcs")) {
        Ring arc;
        int x = 0;
        int y = 0;
        for (const Json& delta : deltas) {
            x += delta.at(0).get<int>();
            y += delta.at(1).get<int>();
            arc.push_back(Server::RoundPoint({x * scaleX + shiftX, y * scaleY + shiftY}));
        }
        arcs.push_back(std::move(arc));
    }
    return arcs;
}

/// Joins arcs to a ring; a negative index ~i is arc i backwards. Shared ends appear once.
Ring Stitch(const Json& indices, const std::vector<Ring>& arcs) {
    Ring ring;
    for (const Json& entry : indices) {
        const int index = entry.get<int>();
        Ring arc = arcs.at(static_cast<std::size_t>(index < 0 ? ~index : index));
        if (index < 0) {
            arc = Ring(arc.rbegin(), arc.rend());
        }
        if (!ring.empty()) {
            ring.pop_back();
        }
        ring.insert(ring.end(), arc.begin(), arc.end());
    }
    if (ring.size() > 1 && ring.front() == ring.back()) {
        ring.pop_back();
    }
    return ring;
}

void Collect(const Json& geometry, const std::vector<Ring>& arcs, std::vector<Polygon>& out) {
    const auto addPolygon = [&](const Json& rings) {
        Polygon polygon;
        for (const Json& ring : rings) {
            polygon.push_back(Stitch(ring, arcs));
        }
        out.push_back(std::move(polygon));
    };
    const std::string type = geometry.at("type");
    if (type == "GeometryCollection") {
        for (const Json& part : geometry.at("geometries")) {
            Collect(part, arcs, out);
        }
    } else if (type == "MultiPolygon") {
        for (const Json& polygon : geometry.at("arcs")) {
            addPolygon(polygon);
        }
    } else if (type == "Polygon") {
        addPolygon(geometry.at("arcs"));
    }
}

}  // namespace

std::optional<std::vector<Polygon>> ReadTopoLand(const std::string& text, std::string& error) {
    try {
        const Json topology = Json::parse(text);
        const std::vector<Ring> arcs = DecodeArcs(topology);
        std::vector<Polygon> polygons;
        Collect(topology.at("objects").at("land"), arcs, polygons);
        return polygons;
    } catch (const std::exception& e) {
        error = std::string("not a land topology: ") + e.what();
        return std::nullopt;
    }
}

}  // namespace Tarvik::Data
