// SPDX-License-Identifier: MIT
#include <cstdint>
#include <optional>
#include <string>

#include <tarvik/util/Jsona.h>

#include "bench/Memory.h"
#include "bench/Track.h"
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/calculation/book/BookRecompute.h"

namespace {

using namespace Tarvik::Seaplan;
using Bench::Geodesics;

constexpr std::size_t kStops = 30;

std::size_t CountOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

PortCallRows PortsOf(std::size_t count) {
    VoyPortCall row;
    row.psp = 14.5F;
    row.pw = 0.05F;
    row.apt = 12;
    row.eta = Tarvik::Util::_datetime_t(0, 0, 0, 1, 3, 2026);
    return PortCallRows(count, row);
}

PointMap RoutePoints() {
    return {{"101", {"101", "First Cape", "0,0"}}, {"102", {"102", "Second Cape", "1,1"}}};
}

BookPoints BookOf(std::size_t rows) {
    BookPoints book;
    BookFromStops(Bench::RouteOf(kStops, rows), RoutePoints(), book);
    return book;
}

/// Memory, time and the share of it that the geodesics of as many points take, where the work has some.
template <class Work>
void Measure(benchmark::State& state, const Work& work, std::optional<Geodesics> geodesics) {
    Bench::CountMemory(state, work);
    Bench::Shares shares(state, geodesics ? Bench::GeodesicMs(Bench::Track(CountOf(state)), *geodesics) : 0);
    for (auto _ : state) {
        shares.Run(work);
    }
    state.SetComplexityN(state.range(0));
}

/// Five sizes, each twice the one before.
void Doubled(benchmark::internal::Benchmark* one, std::int64_t first) {
    for (std::int64_t size = first; size <= 16 * first; size *= 2) {
        one->Arg(size);
    }
    one->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
}

/// Reply text of 30 stops to stops with their lengths.
void ParseReply(benchmark::State& state) {
    const std::string reply = Bench::ReplyOf(kStops, CountOf(state));
    const auto work = [&] {
        Tarvik::Util::Jsona json;
        RouteStops stops;
        if (!json.parse(reply) || ParseRouteReply(json, stops) != 0) {
            state.SkipWithError("reply refused");
        }
        benchmark::DoNotOptimize(stops.data());
    };
    Measure(state, work, Geodesics::Distance);
}
BENCHMARK(ParseReply)->Apply([](auto* one) { Doubled(one, 750); });

/// No geodesic calls in it.
void MakeBook(benchmark::State& state) {
    const RouteStops stops = Bench::RouteOf(kStops, CountOf(state));
    const PointMap points = RoutePoints();
    const auto work = [&] {
        BookPoints rows;
        if (BookFromStops(stops, points, rows) != 0) {
            state.SkipWithError("no book");
        }
        benchmark::DoNotOptimize(rows.data());
    };
    Measure(state, work, std::nullopt);
}
BENCHMARK(MakeBook)->Apply([](auto* one) { Doubled(one, 2500); });

void TimeBook(benchmark::State& state) {
    const PortCallRows ports = PortsOf(kStops);
    BookPoints rows = BookOf(CountOf(state));
    const auto work = [&] {
        if (ComputeBookTimes(ports.front().eta, ports, rows) != 0) {
            state.SkipWithError("no times");
        }
        benchmark::DoNotOptimize(rows.data());
    };
    Measure(state, work, Geodesics::Distance);
}
BENCHMARK(TimeBook)->Apply([](auto* one) { Doubled(one, 2500); });

/// The panel's book of ports with as many waypoints each.
PosBookData PanelBook(std::size_t rows) {
    const BookPoints book = BookOf(rows);
    PosBookData data;
    PosBookPortRow port;
    for (const PosBookPoint& point : book) {
        const auto comma = point.position.find(',');
        PosBookRow row;
        row.x = std::stod(point.position.substr(0, comma));
        row.y = std::stod(point.position.substr(comma + 1));
        if (point.pst != PortPoint) {
            port.rows.push_back(row);
            continue;
        }
        port.x = row.x;
        port.y = row.y;
        data.ports.push_back(port);
        port.rows.clear();
    }
    return data;
}

void RecomputePanelBook(benchmark::State& state) {
    PosBookData book = PanelBook(CountOf(state));
    const Tarvik::Util::_datetime_t now(0, 0, 0, 1, 6, 2026);
    const auto work = [&] { benchmark::DoNotOptimize(RecomputeBook(book, BookUnits(), now)); };
    Measure(state, work, Geodesics::DistanceAndCourse);
}
BENCHMARK(RecomputePanelBook)->Apply([](auto* one) { Doubled(one, 2500); });

}  // namespace
