// SPDX-License-Identifier: MIT
// The lists of the sea network's file, in the order in which its header tells them.
#include <memory>

#include "host/geo/ByteReader.h"
#include "host/geo/ByteWriter.h"
#include "host/server/graph/SeaNetworkFile.h"

namespace Tarvik::Server {

namespace {

void PutPoints(ByteWriter& w, const std::vector<GeoPoint>& points) {
    w.Count(points.size());
    for (const GeoPoint p : points) {
        w.Point(p);
    }
}

void PutRings(ByteWriter& w, const std::vector<std::vector<GeoPoint>>& rings) {
    w.Count(rings.size());
    for (const auto& ring : rings) {
        PutPoints(w, ring);
    }
}

void PutMask(ByteWriter& w, const GateMask& mask) {
    for (std::size_t word = 0; word < kMaxRoutePoints; word += 64) {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < 64; ++i) {
            bits |= static_cast<std::uint64_t>(mask[word + i]) << i;
        }
        w.U64(bits);
    }
}

void PutRoutePoint(ByteWriter& w, const RoutePoint& p) {
    w.Text(p.id);
    w.Text(p.name);
    w.U32(p.node);
    w.U8(p.shut ? 1 : 0);
    w.F32(p.cost);
    PutPoints(w, p.gate);
    w.Count(p.groups.size());
    for (const AlternativeGroup& group : p.groups) {
        w.Count(group.size());
        for (const std::uint16_t i : group) {
            w.U16(i);
        }
    }
}

void PutTables(ByteWriter& w, const NetworkTables& tables) {
    w.U32(tables.land.landPieces);
    w.Raw(tables.land.pieces.View());
    for (const CoastCells* cells : {&tables.land.cells, &tables.land.near}) {
        w.Raw(cells->start.View());
        w.Raw(cells->items.View());
    }
    w.Raw(tables.landmarks.View());
    w.Raw(tables.usual.View());
    w.Raw(tables.steps.View());
}

std::vector<GeoPoint> GetPoints(ByteReader& r) {
    std::vector<GeoPoint> points(r.Count(8));
    for (GeoPoint& p : points) {
        p = r.Point();
    }
    return points;
}

std::vector<std::vector<GeoPoint>> GetRings(ByteReader& r) {
    std::vector<std::vector<GeoPoint>> rings(r.Count(4));
    for (auto& ring : rings) {
        ring = GetPoints(r);
    }
    return rings;
}

GateMask GetMask(ByteReader& r) {
    GateMask mask;
    for (std::size_t word = 0; word < kMaxRoutePoints; word += 64) {
        const std::uint64_t bits = r.U64();
        for (std::size_t i = 0; i < 64; ++i) {
            mask[word + i] = ((bits >> i) & 1U) != 0;
        }
    }
    return mask;
}

RoutePoint GetRoutePoint(ByteReader& r) {
    RoutePoint p;
    p.id = r.Text();
    p.name = r.Text();
    p.node = r.U32();
    p.shut = r.U8() != 0;
    p.cost = r.F32();
    p.gate = GetPoints(r);
    p.groups.resize(r.Count(4));
    for (AlternativeGroup& group : p.groups) {
        group.resize(r.Count(2));
        for (std::uint16_t& i : group) {
            i = r.U16();
        }
    }
    return p;
}

NetworkTables GetTables(ByteReader& r, const std::shared_ptr<const void>& keeper) {
    NetworkTables tables;
    tables.land.landPieces = r.U32();
    tables.land.pieces = FrozenArray(r.Raw<CoastPiece>(), keeper);
    for (CoastCells* cells : {&tables.land.cells, &tables.land.near}) {
        cells->start = FrozenArray(r.Raw<std::uint32_t>(), keeper);
        cells->items = FrozenArray(r.Raw<std::uint32_t>(), keeper);
    }
    tables.landmarks = FrozenArray(r.Raw<float>(), keeper);
    tables.usual = FrozenArray(r.Raw<std::uint8_t>(), keeper);
    tables.steps = FrozenArray(r.Raw<std::uint8_t>(), keeper);
    return tables;
}

}  // namespace

NetworkData SeaNetworkFile::GetPayload(ByteReader& r, const std::shared_ptr<const void>& keeper) {
    NetworkData data;
    data.nodes = GetPoints(r);
    data.edges.resize(r.Count(15));
    for (NetworkEdge& e : data.edges) {
        e.a = r.U32();
        e.b = r.U32();
        e.nm = r.F32();
        e.mask = r.U16();
        e.kind = static_cast<EdgeKind>(r.U8());
    }
    data.masks.resize(r.Count(kMaxRoutePoints / 8));
    for (GateMask& mask : data.masks) {
        mask = GetMask(r);
    }
    data.routePoints.resize(r.Count(25));
    for (RoutePoint& p : data.routePoints) {
        p = GetRoutePoint(r);
    }
    data.ports.resize(r.Count(16));
    for (NetworkPort& p : data.ports) {
        p = {r.Text(), r.Text(), r.Text(), r.U32()};
    }
    data.land = GetRings(r);
    data.areas = GetRings(r);
    data.reach.resize(r.Count(4));
    for (auto& row : data.reach) {
        row.resize(r.Count(5));
        for (ReachEntry& entry : row) {
            entry.nm = r.F32();
            entry.side = r.U8();
        }
    }
    if (r.U8() != 0) {
        data.tables = GetTables(r, keeper);
    }
    return data;
}

std::string SeaNetworkFile::PutPayload(const NetworkData& data) {
    ByteWriter w;
    PutPoints(w, data.nodes);
    w.Count(data.edges.size());
    for (const NetworkEdge& e : data.edges) {
        w.U32(e.a);
        w.U32(e.b);
        w.F32(e.nm);
        w.U16(e.mask);
        w.U8(static_cast<std::uint8_t>(e.kind));
    }
    w.Count(data.masks.size());
    for (const GateMask& mask : data.masks) {
        PutMask(w, mask);
    }
    w.Count(data.routePoints.size());
    for (const RoutePoint& p : data.routePoints) {
        PutRoutePoint(w, p);
    }
    w.Count(data.ports.size());
    for (const NetworkPort& p : data.ports) {
        w.Text(p.id);
        w.Text(p.unlocode);
        w.Text(p.name);
        w.U32(p.node);
    }
    PutRings(w, data.land);
    PutRings(w, data.areas);
    w.Count(data.reach.size());
    for (const auto& row : data.reach) {
        w.Count(row.size());
        for (const ReachEntry& entry : row) {
            w.F32(entry.nm);
            w.U8(entry.side);
        }
    }
    w.U8(data.tables ? 1 : 0);
    if (data.tables) {
        PutTables(w, *data.tables);
    }
    return w.Bytes();
}

}  // namespace Tarvik::Server
