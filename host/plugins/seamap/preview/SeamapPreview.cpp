// SPDX-License-Identifier: MIT
// Draws the chart with a sample voyage into a picture, to look at the rendering without the client.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/widget/ChartWidget.h"

namespace {

using namespace Tarvik::Seamap;
namespace Records = Tarvik::Interface;

void AddSample(ChartObjects& objects) {
    const std::vector<std::string> route{
        "121.95,31.0", "122.8,29.0", "119.5,23.5", "113.0,15.0", "106.0,6.0", "104.4,1.3",
        "100.6,3.0",   "95.3,6.1",   "80.3,5.7",   "60.0,11.0",  "51.6,12.3", "45.0,12.0",
        "43.3,12.6",   "37.0,22.0",  "32.55,29.7", "32.3,31.4",  "20.0,35.0", "11.0,37.6",
        "-5.5,36.0",   "-9.8,38.5",  "-5.9,48.6",  "1.4,50.9",   "4.0,52.0"};
    Records::TrvMapLineParams line;
    line.ref = {"VOYAGE", "_0", "VOYLINETYPE"};
    line.points = route;
    line.colour = 0x6464E9;
    line.width = 2;
    objects.AddLine(line);
    line.ref = {"VOYAGE", "track", "VOYPOSTBOOKLINETYPE"};
    line.points = {"139.8,35.3", "150,40", "170,44", "-170,44", "-140,40", "-122.6,37.8"};
    line.colour = 0xC832E9;
    line.style = "dashed";
    objects.AddLine(line);
    const std::vector<std::pair<std::string, std::string>> points{
        {"Singapore Strait", "104.4,1.3"}, {"Bab el Mandeb", "43.3,12.6"}, {"Suez Canal", "32.4,30.5"},
        {"Gibraltar", "-5.5,36.0"},        {"Dover Strait", "1.4,50.9"},   {"Malacca Strait", "100.6,3.0"}};
    for (const auto& [name, position] : points) {
        objects.AddLabel({{"VOYAGE", name, "VOYAGETYPE"}, name, position, 0, "circle", 0x9664FF, 3});
    }
    objects.AddImage({{"VOYAGE", "ship", "AISSHIPTYPE"}, "AIS_Ship", "70.0,8.5"});
}

int Usage() {
    std::fputs("seamap-preview OUT.png [WIDTHxHEIGHT] [light|dark|night] [LAND] [WEST,SOUTH,EAST,NORTH]\n",
               stderr);
    return 2;
}

/// Time of the frames after each of the keys, pressed in turn.
void Report(const char* what, ChartWidget& chart, const std::vector<Qt::Key>& keys) {
    std::vector<double> times;
    QPixmap frame(chart.size());
    for (std::size_t i = 0; i < 40; ++i) {
        QKeyEvent key(QEvent::KeyPress, keys[i % keys.size()], Qt::NoModifier);
        QApplication::sendEvent(&chart, &key);
        QElapsedTimer timer;
        timer.start();
        chart.render(&frame);
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    fmt::print("{}: median {:.1f} ms, fastest {:.1f} ms, slowest {:.1f} ms\n", what, times[times.size() / 2],
               times.front(), times.back());
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        return Usage();
    }
    int width = 1280, height = 720;
    if (arguments.size() > 2 && std::sscanf(qPrintable(arguments[2]), "%dx%d", &width, &height) != 2) {
        return Usage();
    }
    ChartObjects objects;
    AddSample(objects);
    ChartWidget chart(objects);
    chart.setProperty("pictures", true);
    const auto theme = Tarvik::Skin::FindTheme(arguments.value(3, "light").toStdString());
    if (!theme) {
        return Usage();
    }
    chart.SetTheme(*theme);
    const std::string file =
        arguments.value(4, QString::fromStdString(LandFileSource::DefaultPath())).toStdString();
    QElapsedTimer timer;
    timer.start();
    chart.Change([&file](ChartScene& scene) { scene.SetLand(CoastData(LandFileSource(file).Load())); });
    fmt::print("land {} ms\n", timer.elapsed());
    chart.resize(width, height);
    chart.show();
    Records::TrvMapExtent corners{-20, -15, 150, 60};
    if (arguments.size() > 5 && std::sscanf(qPrintable(arguments[5]), "%lf,%lf,%lf,%lf", &corners.first,
                                            &corners.second, &corners.third, &corners.fourth) != 4) {
        return Usage();
    }
    chart.ShowExtent(*Extent::FromCorners(corners));
    timer.restart();
    const QPixmap picture = chart.grab();
    fmt::print("first frame {:.1f} ms\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    if (!picture.save(arguments[1])) {
        return 1;
    }
    Report("whole frames", chart, {Qt::Key_Plus, Qt::Key_Minus});
    Report("panning", chart, {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up});
    return 0;
}
