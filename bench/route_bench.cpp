// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "host/server/graph/adapter/GraphRouteSource.h"

namespace {

using namespace Tarvik::Server;

constexpr std::size_t kPairs = 1000;
constexpr unsigned kSeed = 20261121;

std::vector<std::string> RequestsOf(const SeaNetwork& network) {
    std::mt19937 random(kSeed);
    const auto& ports = network.data().ports;
    std::uniform_int_distribution<std::size_t> any(0, ports.size() - 1);
    std::vector<std::string> requests;
    for (std::size_t i = 0; i < kPairs; ++i) {
        const std::size_t from = any(random);
        requests.push_back(
            fmt::format(R"({{"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"{}#{}"}})",
                        ports[from].id, ports[(from + 1 + i) % ports.size()].id));
    }
    return requests;
}

/// Request text to reply text over random pairs of ports; the slowest pair stands in the counter.
void PlanTwoPorts(benchmark::State& state) {
    std::string error;
    const auto network = SeaNetwork::Load(SEAPLAN_NETWORK, error);
    if (!network) {
        state.SkipWithError(error.c_str());
        return;
    }
    GraphRouteSource source(network);
    const auto requests = RequestsOf(*network);
    std::vector<double> times(requests.size(), 1e9);
    std::size_t next = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(source.Plan(requests[next]));
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        times[next] = std::min(times[next], took.count());
        next = (next + 1) % requests.size();
    }
    const auto measured = std::min(requests.size(), static_cast<std::size_t>(state.iterations()));
    state.counters["slowest_pair_ms"] =
        *std::max_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(measured));
}
BENCHMARK(PlanTwoPorts)->Iterations(3 * kPairs)->Unit(benchmark::kMillisecond);

/// What a client waits for before its first route.
void LoadNetwork(benchmark::State& state) {
    for (auto _ : state) {
        std::string error;
        benchmark::DoNotOptimize(SeaNetwork::Load(SEAPLAN_NETWORK, error));
    }
}
BENCHMARK(LoadNetwork)->Unit(benchmark::kMillisecond);

}  // namespace
