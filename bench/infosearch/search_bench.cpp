// SPDX-License-Identifier: MIT
// One search over the ports that are shipped, for what is typed: a beginning, a word, a name with an error
// (the dearest, which compares every word), Chinese. Aim: under a millisecond each.
#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "host/ports/PlaceTable.h"
#include "host/ports/search/PortIndex.h"

namespace Tarvik::Ports {

namespace {

constexpr const char* kTyped[] = {"r", "rott", "plymouth new", "rottredam", "qqqqqqqq", "鹿得丹", "廣州"};

const PortIndex& Index() {
    static const PortIndex index = [] {
        std::vector<Ports::Place> places;
        std::string error;
        Ports::ReadPlaces(SEAPLAN_POINTS, places, error);
        return PortIndex(PortsOf(places));
    }();
    return index;
}

void Search(benchmark::State& state) {
    const std::string typed = kTyped[state.range(0)];
    const PortIndex& index = Index();
    std::size_t found = 0;
    for (auto turn : state) {
        found = index.Search(typed, 8).size();
    }
    state.SetLabel(typed + ": " + std::to_string(found) + " of " + std::to_string(index.Size()));
}

}  // namespace

BENCHMARK(Search)->DenseRange(0, std::size(kTyped) - 1)->Unit(benchmark::kMicrosecond);

}  // namespace Tarvik::Ports
