// SPDX-License-Identifier: MIT
#include <cstdint>

#include <benchmark/benchmark.h>

#include "seaplan/calculation/Schedule.h"

namespace {

using namespace Tarvik::Seaplan;

PortCallRows RowsOf(std::int64_t count) {
    const Tarvik::Util::_datetime_t start(0, 0, 0, 1, 3, 2026);
    VoyPortCall row;
    row.ppn = "Rotterdam Maasvlakte";
    row.eta = start;
    row.etd = start;
    row.psp = 14.5F;
    row.pw = 0.05F;
    row.apt = 12;
    row.distance = 350;
    return PortCallRows(static_cast<std::size_t>(count), row);
}

/// The pass behind every edited cell.
void RecomputeRows(benchmark::State& state) {
    const auto rows = RowsOf(state.range(0));
    for (auto _ : state) {
        PortCallRows out;
        benchmark::DoNotOptimize(RecomputeSchedule(rows, out));
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(RecomputeRows)->Arg(10)->Arg(1000);

}  // namespace
