// SPDX-License-Identifier: MIT
// 20,000 ships on the chart at 1920x1080, painted in software: a frame as the chart paints it, ships and
// land, and the setting of all ships, as happens every other second. Aim: a frame under 16 ms.
#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "bench/Ships.h"
#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/widget/ChartScene.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kShips = 20'000;
constexpr QSize kFrame(1920, 1080);

/// As a feed brings them: with words, in four colours.
Interface::TrvMapShips NamedShips() {
    Interface::TrvMapShips ships = Bench::SomeShips(kShips);
    ships.type = "AISFEEDTYPE";
    int number = 0;
    for (Interface::TrvMapShip& ship : ships.ships) {
        ship.tip = "SAMPLE SHIP\n12.0 kn 090°";
        ship.colour = number++ % 4 * 0x303010;
    }
    return ships;
}

/// `state.range(0)` is how much of the world is seen: 1 all, 8 an eighth of its width.
void PaintFrame(benchmark::State& state) {
    ChartObjects objects;
    objects.Ships().Set(NamedShips());
    ChartScene scene(objects);
    MercatorView view;
    view.Resize(kFrame.width(), kFrame.height());
    view.Show(Project({60, 20}), kFrame.width() * state.range(0));
    QImage frame(kFrame, QImage::Format_ARGB32_Premultiplied);
    for (auto turn : state) {
        QPainter painter(&frame);
        scene.Paint(painter, view, 1, nullptr);
    }
}
BENCHMARK(PaintFrame)->Arg(1)->Arg(2)->Arg(8)->Unit(benchmark::kMillisecond);

void SetShips(benchmark::State& state) {
    const Interface::TrvMapShips ships = NamedShips();
    ChartShips chart;
    for (auto turn : state) {
        chart.Set(ships);
    }
}
BENCHMARK(SetShips)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace Tarvik::Seamap

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
