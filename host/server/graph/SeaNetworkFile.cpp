// SPDX-License-Identifier: MIT
#include "host/server/graph/SeaNetworkFile.h"

#include <fstream>
#include <iterator>

#include "host/geo/ByteReader.h"
#include "host/geo/ByteWriter.h"

namespace Tarvik::Server {

namespace {

constexpr std::string_view kMagic = "SEANET02";
constexpr std::size_t kHeaderBytes = 24;

std::uint64_t Fnv1a(std::string_view bytes) {
    std::uint64_t sum = 14695981039346656037ULL;
    for (const char c : bytes) {
        sum = (sum ^ static_cast<std::uint8_t>(c)) * 1099511628211ULL;
    }
    return sum;
}

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

NetworkData GetPayload(ByteReader& r) {
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
    return data;
}

}  // namespace

std::string SeaNetworkFile::Encode(const NetworkData& data) {
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
    ByteWriter head;
    head.U64(w.Bytes().size());
    head.U64(Fnv1a(w.Bytes()));
    return std::string(kMagic) + head.Bytes() + w.Bytes();
}

std::optional<NetworkData> SeaNetworkFile::Decode(const std::string& bytes, std::string& error) {
    const std::string_view all(bytes);
    if (all.size() < kHeaderBytes || all.substr(0, kMagic.size()) != kMagic) {
        error = "this is not a sea network file";
        return std::nullopt;
    }
    ByteReader head(all.substr(kMagic.size(), kHeaderBytes - kMagic.size()));
    const std::uint64_t length = head.U64();
    const std::uint64_t sum = head.U64();
    const std::string_view payload = all.substr(kHeaderBytes);
    if (payload.size() != length) {
        error = "the sea network file is cut or has grown";
        return std::nullopt;
    }
    if (Fnv1a(payload) != sum) {
        error = "the sea network file is damaged";
        return std::nullopt;
    }
    ByteReader r(payload);
    NetworkData data = GetPayload(r);
    error = !r.Ok() || !r.AtEnd() ? "its lists do not fit its length" : FaultOf(data);
    if (error.empty()) {
        return data;
    }
    error = "the sea network file is inconsistent: " + error;
    return std::nullopt;
}

std::string SeaNetworkFile::Write(const std::string& path, const NetworkData& data) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = Encode(data);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? std::string() : "cannot write " + path;
}

std::optional<NetworkData> SeaNetworkFile::Read(const std::string& path, std::string& error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open the sea network file " + path + kReinstallAdvice;
        return std::nullopt;
    }
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::optional<NetworkData> data = Decode(bytes, error);
    if (!data) {
        error += ": " + path + kReinstallAdvice;
    }
    return data;
}

}  // namespace Tarvik::Server
