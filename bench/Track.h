// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "seaplan/data/RouteStop.h"

/// Made-up tracks over the ocean and the time that geodesic calls over them take.
namespace Bench {

/// `count` different points "x,y" of five decimals, some 20 NM apart, that wander from 60 W to 60 E.
std::vector<std::string> Track(std::size_t count);
/// A calculated route of `stops` stops over `points` points, three segments between two stops.
Tarvik::Seaplan::RouteStops RouteOf(std::size_t stops, std::size_t points);
/// The server's reply with that route.
std::string ReplyOf(std::size_t stops, std::size_t points);

/// What a geodesic pass does for each pair of neighbouring points.
enum class Geodesics { Distance, DistanceAndCourse };
/// Fastest of a few passes over the points in milliseconds.
double GeodesicMs(const std::vector<std::string>& points, Geodesics what);

/// Time of the processor that the program has used, in milliseconds.
double CpuMs();

/// Times the loop body and puts its fastest run, the geodesic calls in it and the rest into counters.
class Shares {
  public:
    Shares(benchmark::State& state, double geodesicMs) : state_(state), geodesicMs_(geodesicMs) {}
    ~Shares();
    Shares(const Shares&) = delete;
    Shares& operator=(const Shares&) = delete;

    template <class Work>
    void Run(const Work& work) {
        const double start = CpuMs();
        work();
        const double took = CpuMs() - start;
        if (best_ < 0 || took < best_) {
            best_ = took;
        }
    }

  private:
    benchmark::State& state_;
    double geodesicMs_;
    double best_ = -1;
};

}  // namespace Bench
