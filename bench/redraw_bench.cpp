// SPDX-License-Identifier: MIT
// A full redraw of the chart in software: the world at 1920 by 1080 with land, names, 200 routes and 2,000
// ships.
#include <QApplication>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/Ships.h"
#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/core/PortTable.h"
#include "host/plugins/seamap/widget/ChartWidget.h"

namespace {

using namespace Tarvik;
using namespace Tarvik::Seamap;

constexpr int kRoutes = 200;
constexpr int kPoints = 500;
constexpr int kShips = 2000;
constexpr const char* kShare = SEAPLAN_SHARE;

/// Routes that wind over the oceans, the same at each run.
void AddRoutes(ChartObjects& objects, int routes) {
    for (int r = 0; r < routes; ++r) {
        Interface::TrvMapLineParams line;
        line.ref = {"VOYAGE", fmt::format("{}_5", r), "VOYPOSTBOOKLINETYPE"};
        line.colour = 0xC832E9;
        line.width = 2;
        double lon = -170 + (r * 37) % 340;
        double lat = -45 + (r * 23) % 90;
        for (int p = 0; p < kPoints; ++p) {
            lon += 0.25;
            lat += 0.2 * std::sin(p * 0.05 + r);
            line.points.push_back(fmt::format("{:.4f},{:.4f}", lon > 180 ? lon - 360 : lon, lat));
        }
        objects.AddLine(line);
    }
}

std::vector<ChartName> Names() {
    PortTable ports(std::string(kShare) + "/trvdb.db");
    // The keys stand for the names: they are as long.
    return NamesOfChart([](const char*, const char* key) { return std::string(key); }, ports.Places());
}

/// What the others on a shared machine take away differs from run to run; the least of them is the chart's
/// own.
double Least(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
}

/// Arguments: routes, ships, width and height in pixels.
void Redraw(benchmark::State& state) {
    ChartObjects objects;
    AddRoutes(objects, static_cast<int>(state.range(0)));
    objects.Ships().Set(Bench::SomeShips(static_cast<int>(state.range(1))));
    ChartWidget chart(objects);
    chart.setProperty("pictures", true);
    chart.Change([](ChartScene& scene) {
        scene.SetLand(CoastData(LandFileSource(std::string(kShare) + "/land.bin").Load()));
    });
    chart.SetNames(Names());
    chart.resize(static_cast<int>(state.range(2)), static_cast<int>(state.range(3)));
    chart.show();
    chart.ShowExtent(kInhabitedWorld);
    QPixmap frame(chart.size());
    for (const auto theme : {ChartPalette::Theme::Dark, ChartPalette::Theme::Light}) {
        chart.SetTheme(theme);
        chart.render(&frame);  // texts are made once
    }
    bool turned = false;
    for (auto _ : state) {
        state.PauseTiming();
        // Another size of the world and back: the kept picture of the land cannot be used.
        chart.ZoomSteps(turned ? -1 : 1);
        chart.ZoomSteps(turned ? 1 : -1);
        chart.SetTheme(turned ? ChartPalette::Theme::Light : ChartPalette::Theme::Dark);
        turned = !turned;
        state.ResumeTiming();
        chart.render(&frame);
    }
}
BENCHMARK(Redraw)
    ->Args({0, 0, 1920, 1080})
    ->Args({kRoutes, 0, 1920, 1080})
    ->Args({0, kShips, 1920, 1080})
    ->Args({kRoutes, kShips, 1920, 1080})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Iterations(5)
    ->Repetitions(15)
    ->ComputeStatistics("least", Least)
    ->ReportAggregatesOnly();

/// Frames of a chart that stands still, with and without names: what the ports cost. Arguments: whether names
/// are shown; miles to a pixel times ten in the Channel, where a region has the most of them.
void Ports(benchmark::State& state) {
    ChartObjects objects;
    ChartWidget chart(objects);
    chart.setProperty("pictures", true);
    chart.SetNames(Names());
    ChartParts parts;
    parts.names = state.range(0) != 0;
    chart.ShowParts(parts);
    chart.resize(1920, 1080);
    chart.show();
    constexpr GeoPoint kChannel{4, 50.5};
    constexpr double kMilesPerDegree = 60, kTenths = 10;
    const double milesPerPixel = static_cast<double>(state.range(1)) / kTenths;
    const double degrees = 1920 * milesPerPixel / kMilesPerDegree / std::cos(kChannel.y * M_PI / 180);
    chart.ShowExtent(*Extent::FromCorners(
        {kChannel.x - degrees / 2, kChannel.y - 1, kChannel.x + degrees / 2, kChannel.y + 1}));
    QPixmap frame(chart.size());
    chart.render(&frame);  // texts are made once
    for (auto _ : state) {
        chart.render(&frame);
    }
}
BENCHMARK(Ports)
    ->ArgsProduct({{0, 1}, {2, 7, 20, 38}})
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20)
    ->Repetitions(15)
    ->ComputeStatistics("least", Least)
    ->ReportAggregatesOnly();

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
