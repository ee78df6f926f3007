// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "bench/Memory.h"
#include "bench/Track.h"
#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyageStore.h"
#include "testsupport/DataFolder.h"

namespace {

using namespace Tarvik::Seaplan;

constexpr std::size_t kPointsOfLeg = 100;

/// Different pairs of ports over the same hundred points.
LegCache LegsOf(std::size_t count) {
    RouteLegCacheEntry entry;
    entry.stops = Bench::RouteOf(2, kPointsOfLeg);
    entry.stops[1].rp_groups = {{1, "101", "40001,40002", {"102", "107", "109", "110"}}};
    LegCache legs;
    for (std::size_t i = 0; i < count; ++i) {
        entry.from = fmt::format("Port {}", i / 150);
        entry.to = fmt::format("Harbour {}", i);
        legs.emplace(LegCacheKey(entry.from, entry.to), entry);
    }
    return legs;
}

/// From the file in the data folder to the map in memory.
void LoadLegCache(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const Tarvik::TestSupport::DataFolder folder;
    VoyageStore store;
    PortDirectory directory;
    VoyPortCallModule module(&store, &directory);
    if (module.SaveCache("", LegsOf(count)) != 0) {
        state.SkipWithError("no cache file");
    }
    const auto work = [&] {
        LegCache legs;
        if (module.LoadCache("", legs) != 0 || legs.size() != count) {
            state.SkipWithError("legs are missing");
        }
    };
    Bench::CountMemory(state, work);
    state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(folder.LegCacheFile())) / 1e6;
    for (auto _ : state) {
        work();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(LoadLegCache)
    ->Arg(2500)
    ->Arg(5000)
    ->Arg(10000)
    ->Arg(20000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace
