// SPDX-License-Identifier: MIT
#include <tarvik/bus/ChartContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>

#include "bench/Memory.h"
#include "bench/Track.h"
#include "seaplan/chart/VoyageLayer.h"

namespace {

using namespace Tarvik;

/// A chart that takes every line and draws none.
class DeafChart : public Core::TObject {
  public:
    DeafChart() {
        event_.Set<&DeafChart::OnLine>(this);
        Core::TrvKernel::Instance()->CreateTrvService(Interface::Bus::MapAddLine.name, this, "", "", &event_);
    }
    ~DeafChart() override {
        Core::TrvKernel::Instance()->UnBindTrvService(Interface::Bus::MapAddLine.name, &event_);
        Core::TrvKernel::Instance()->DeleteTrvService(Interface::Bus::MapAddLine.name, this);
    }
    DeafChart(const DeafChart&) = delete;
    DeafChart& operator=(const DeafChart&) = delete;

    std::size_t points = 0;

  private:
    void* OnLine(void* input) {
        points += static_cast<const Interface::TrvMapLineParams*>(input)->points.size();
        return nullptr;
    }

    Core::TEvent event_;
};

/// A line cut at the date line every 1,000 points, handed to a chart that does nothing with it.
void DrawLine(benchmark::State& state) {
    DeafChart chart;
    auto track = Bench::Track(static_cast<std::size_t>(state.range(0)));
    for (std::size_t i = 999; i < track.size(); i += 1000) {
        track[i] = "180,12.34567";
    }
    Seaplan::VoyageLayer layer;
    const auto work = [&] {
        chart.points = 0;
        if (layer.DrawLine(layer.mainLine, track, 0) != 0) {
            state.SkipWithError("no line");
        }
    };
    Bench::CountMemory(state, work);
    if (chart.points < track.size() - 1) {
        state.SkipWithError("points are missing");
    }
    for (auto _ : state) {
        work();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(DrawLine)
    ->Arg(12500)
    ->Arg(25000)
    ->Arg(50000)
    ->Arg(100000)
    ->Arg(200000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace
