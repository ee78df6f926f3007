// SPDX-License-Identifier: MIT
#include "bench/Track.h"

#include <cmath>
#include <ctime>

#include <fmt/format.h>

#include <tarvik/util/Geodesy.h>

#include "seaplan/data/Position.h"

namespace Bench {

namespace {

using namespace Tarvik::Seaplan;

constexpr std::size_t kSegments = 3;
constexpr int kGeodesicPasses = 5;

std::string Joined(const std::vector<std::string>& points, std::size_t first, std::size_t last) {
    std::string text = points[first];
    for (std::size_t i = first + 1; i <= last; ++i) {
        text += "|" + points[i];
    }
    return text;
}

std::string PortId(std::size_t stop) {
    return std::to_string(40001 + stop);
}

/// The named point at the end of a stop's segment: two route points, then the port.
std::string EndId(std::size_t stop, std::size_t segment) {
    return segment + 1 == kSegments ? PortId(stop) : std::to_string(101 + segment);
}

std::string SegmentJson(const RouteSegment& segment) {
    return fmt::format(R"({{"route":"{}","from_cd":"{}","end_cd":"{}","pointset":"{}","distance":{:.3f}}})",
                       segment.route, segment.from_cd, segment.end_cd, segment.pointset, 100.0);
}

std::string StopJson(const RouteStop& stop) {
    std::string segments;
    for (const RouteSegment& segment : stop.routes) {
        segments += (segments.empty() ? "" : ",") + SegmentJson(segment);
    }
    return fmt::format(
        R"({{"point_cd":"{}","distance":300.5,"routes":[{}],"rp_groups":["101=40001,40002;105|107|109"],)"
        R"("rp_id_str":"{}","lock_rp_id_str":""}})",
        stop.point_cd, segments, stop.rp_id_str);
}

}  // namespace

double CpuMs() {
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

std::vector<std::string> Track(std::size_t count) {
    std::vector<std::string> points;
    points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto at = static_cast<double>(i);
        // 0.23 degrees a point, back and forth between 60 W and 60 E.
        const double along = std::fmod(at * 0.23, 240.0);
        const double x = along < 120.0 ? along - 60.0 : 180.0 - along;
        points.push_back(fmt::format("{:.5f},{:.5f}", x + 0.00001, 30.0 * std::sin(at * 0.01)));
    }
    return points;
}

RouteStops RouteOf(std::size_t stops, std::size_t points) {
    const std::vector<std::string> track = Track(points);
    RouteStops route(stops);
    route.front().point_cd = PortId(0);
    const std::size_t parts = (stops - 1) * kSegments;
    std::size_t part = 0;
    for (std::size_t s = 1; s < stops; ++s) {
        route[s].point_cd = PortId(s);
        std::string from = PortId(s - 1);
        for (std::size_t k = 0; k < kSegments; ++k, ++part) {
            const std::size_t first = part * (points - 1) / parts;
            const std::size_t last = (part + 1) * (points - 1) / parts;
            route[s].routes.push_back(
                {std::to_string(k + 1), from, EndId(s, k), Joined(track, first, last), 0});
            from = EndId(s, k);
        }
        route[s].rp_id_str = fmt::format("{},101,102,{}", PortId(s - 1), PortId(s));
    }
    return route;
}

std::string ReplyOf(std::size_t stops, std::size_t points) {
    std::string reply = "[";
    for (const RouteStop& stop : RouteOf(stops, points)) {
        reply += (reply.size() == 1 ? "" : ",") + StopJson(stop);
    }
    return reply + "]";
}

double GeodesicMs(const std::vector<std::string>& points, Geodesics what) {
    std::vector<GeoPoint> places(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        ReadPosition(points[i], 0, places[i]);
    }
    double best = -1;
    for (int pass = 0; pass < kGeodesicPasses; ++pass) {
        const double start = CpuMs();
        for (std::size_t i = 1; i < places.size(); ++i) {
            const GeoPoint& a = places[i - 1];
            const GeoPoint& b = places[i];
            benchmark::DoNotOptimize(Tarvik::Util::CircleLineUtl::CalculateDistance(a.x, a.y, b.x, b.y));
            if (what == Geodesics::DistanceAndCourse) {
                benchmark::DoNotOptimize(Tarvik::Util::CCourse::CalCourse(a.x, a.y, b.x, b.y));
            }
        }
        const double took = CpuMs() - start;
        if (best < 0 || took < best) {
            best = took;
        }
    }
    return best;
}

Shares::~Shares() {
    state_.counters["best_ms"] = best_;
    state_.counters["geodesic_ms"] = geodesicMs_;
    state_.counters["own_ms"] = best_ - geodesicMs_;
}

}  // namespace Bench
