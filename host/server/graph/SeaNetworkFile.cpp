// SPDX-License-Identifier: MIT
#include "host/server/graph/SeaNetworkFile.h"

#include <cmath>
#include <fstream>
#include <iterator>

#include "host/geo/ByteReader.h"
#include "host/geo/ByteWriter.h"

namespace Tarvik::Server {
namespace {

constexpr std::string_view kMagic = "SEANET01";
constexpr size_t kHeaderBytes = 24;
constexpr const char* kAdvice = ". Build or install the client again.";

uint64_t fnv1a(std::string_view bytes) {
    uint64_t sum = 14695981039346656037ULL;
    for (const char c : bytes) sum = (sum ^ static_cast<uint8_t>(c)) * 1099511628211ULL;
    return sum;
}

void putPoints(ByteWriter& w, const std::vector<GeoPoint>& points) {
    w.count(points.size());
    for (const GeoPoint p : points) w.point(p);
}

void putMask(ByteWriter& w, const GateMask& mask) {
    for (size_t word = 0; word < kMaxRoutePoints; word += 64) {
        uint64_t bits = 0;
        for (size_t i = 0; i < 64; ++i) bits |= static_cast<uint64_t>(mask[word + i]) << i;
        w.u64(bits);
    }
}

void putRoutePoint(ByteWriter& w, const RoutePoint& p) {
    w.text(p.id);
    w.text(p.name);
    w.u32(p.node);
    w.u8(p.shut ? 1 : 0);
    putPoints(w, p.gate);
    w.count(p.groups.size());
    for (const AlternativeGroup& group : p.groups) {
        w.count(group.size());
        for (const uint16_t i : group) w.u16(i);
    }
}

std::vector<GeoPoint> getPoints(ByteReader& r) {
    std::vector<GeoPoint> points(r.count(8));
    for (GeoPoint& p : points) p = r.point();
    return points;
}

GateMask getMask(ByteReader& r) {
    GateMask mask;
    for (size_t word = 0; word < kMaxRoutePoints; word += 64) {
        const uint64_t bits = r.u64();
        for (size_t i = 0; i < 64; ++i) mask[word + i] = ((bits >> i) & 1U) != 0;
    }
    return mask;
}

RoutePoint getRoutePoint(ByteReader& r) {
    RoutePoint p;
    p.id = r.text();
    p.name = r.text();
    p.node = r.u32();
    p.shut = r.u8() != 0;
    p.gate = getPoints(r);
    p.groups.resize(r.count(4));
    for (AlternativeGroup& group : p.groups) {
        group.resize(r.count(2));
        for (uint16_t& i : group) i = r.u16();
    }
    return p;
}

NetworkData getPayload(ByteReader& r) {
    NetworkData data;
    data.nodes = getPoints(r);
    data.edges.resize(r.count(15));
    for (NetworkEdge& e : data.edges) {
        e.a = r.u32();
        e.b = r.u32();
        e.nm = r.f32();
        e.mask = r.u16();
        e.kind = static_cast<EdgeKind>(r.u8());
    }
    data.masks.resize(r.count(kMaxRoutePoints / 8));
    for (GateMask& mask : data.masks) mask = getMask(r);
    data.routePoints.resize(r.count(21));
    for (RoutePoint& p : data.routePoints) p = getRoutePoint(r);
    data.ports.resize(r.count(16));
    for (NetworkPort& p : data.ports) p = {r.text(), r.text(), r.text(), r.u32()};
    data.land.resize(r.count(4));
    for (auto& ring : data.land) ring = getPoints(r);
    return data;
}

std::string checkEdges(const NetworkData& d) {
    for (const NetworkEdge& e : d.edges) {
        if (e.a >= d.nodes.size() || e.b >= d.nodes.size()) return "an edge names a node that does not exist";
        if (e.mask >= d.masks.size()) return "an edge names a gate mask that does not exist";
        if (!std::isfinite(e.nm) || e.nm < 0.0F) return "an edge has an impossible length";
        if (e.kind > EdgeKind::Link) return "an edge has an unknown kind";
    }
    return {};
}

std::string checkPoints(const NetworkData& d) {
    for (const GeoPoint p : d.nodes) {
        if (std::abs(p.x) > 180.0 || std::abs(p.y) > 90.0) return "a node lies outside the earth";
    }
    if (d.routePoints.size() > kMaxRoutePoints) return "there are too many route points";
    for (const RoutePoint& p : d.routePoints) {
        if (p.node >= d.nodes.size()) return "a route point has no node";
        if (p.gate.size() < 2) return "a route point has no gate";
        for (const AlternativeGroup& group : p.groups) {
            for (const uint16_t i : group) {
                if (i >= d.routePoints.size()) return "an alternative does not exist";
            }
        }
    }
    for (const NetworkPort& p : d.ports) {
        if (p.node >= d.nodes.size()) return "a port has no node";
    }
    return {};
}

}  // namespace

std::string SeaNetworkFile::encode(const NetworkData& data) {
    ByteWriter w;
    putPoints(w, data.nodes);
    w.count(data.edges.size());
    for (const NetworkEdge& e : data.edges) {
        w.u32(e.a);
        w.u32(e.b);
        w.f32(e.nm);
        w.u16(e.mask);
        w.u8(static_cast<uint8_t>(e.kind));
    }
    w.count(data.masks.size());
    for (const GateMask& mask : data.masks) putMask(w, mask);
    w.count(data.routePoints.size());
    for (const RoutePoint& p : data.routePoints) putRoutePoint(w, p);
    w.count(data.ports.size());
    for (const NetworkPort& p : data.ports) {
        w.text(p.id);
        w.text(p.unlocode);
        w.text(p.name);
        w.u32(p.node);
    }
    w.count(data.land.size());
    for (const auto& ring : data.land) putPoints(w, ring);
    ByteWriter head;
    head.u64(w.bytes().size());
    head.u64(fnv1a(w.bytes()));
    return std::string(kMagic) + head.bytes() + w.bytes();
}

std::optional<NetworkData> SeaNetworkFile::decode(const std::string& bytes, std::string& error) {
    const std::string_view all(bytes);
    if (all.size() < kHeaderBytes || all.substr(0, kMagic.size()) != kMagic) {
        error = "this is not a sea network file";
        return std::nullopt;
    }
    ByteReader head(all.substr(kMagic.size(), kHeaderBytes - kMagic.size()));
    const uint64_t length = head.u64();
    const uint64_t sum = head.u64();
    const std::string_view payload = all.substr(kHeaderBytes);
    if (payload.size() != length) {
        error = "the sea network file is cut or has grown";
        return std::nullopt;
    }
    if (fnv1a(payload) != sum) {
        error = "the sea network file is damaged";
        return std::nullopt;
    }
    ByteReader r(payload);
    NetworkData data = getPayload(r);
    error = !r.ok() || !r.atEnd() ? "its lists do not fit its length" : checkEdges(data);
    if (error.empty()) error = checkPoints(data);
    if (error.empty()) return data;
    error = "the sea network file is inconsistent: " + error;
    return std::nullopt;
}

std::string SeaNetworkFile::write(const std::string& path, const NetworkData& data) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = encode(data);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? std::string() : "cannot write " + path;
}

std::optional<NetworkData> SeaNetworkFile::read(const std::string& path, std::string& error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open the sea network file " + path + kAdvice;
        return std::nullopt;
    }
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::optional<NetworkData> data = decode(bytes, error);
    if (!data) error += ": " + path + kAdvice;
    return data;
}

}  // namespace Tarvik::Server
