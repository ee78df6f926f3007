// SPDX-License-Identifier: MIT
// The position book and the port distance table in their real windows, over the real controllers: what a
// person waits for is the time until the table is drawn again and the chart has its lines. Needs no display:
// QT_QPA_PLATFORM is "offscreen" unless it is given.
#include <QApplication>
#include <cmath>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "host/server/app/EmbeddedServer.h"
#include "host/server/graph/adapter/GraphRouteSource.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/Position.h"
#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "seaplan/views/VoyageViews.h"
#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "testsupport/PortDictionary.h"
#include "testsupport/RecordingHost.h"

namespace {

using namespace Tarvik;
using namespace Tarvik::Seaplan;

void Draw(QWidget& window) {
    QApplication::processEvents();
    window.grab();
}

/// Waypoints that go to and fro between two ports, so that none can be left out.
void PutWaypoints(BookPoints& points, std::size_t count) {
    const PosBookPoint last = points.back();
    points.resize(1);
    points.reserve(count);
    while (points.size() + 1 < count) {
        PosBookPoint point;
        const double place = static_cast<double>(points.size());
        point.position = PositionText({std::fmod(place * 0.01, 20), 40 + (points.size() % 2 == 0 ? 0.1 : 0)});
        points.push_back(point);
    }
    points.push_back(last);
}

/// An edit of a speed in the middle of a book, until table and chart stand.
void EditBook(benchmark::State& state) {
    PanelDesk desk;
    PortDirectory ports({"ROTTERDAM", "HAMBURG", "GDANSK"}, {}, {});
    VoyageViews views({desk.store, desk.catalog, desk.voyages, ports, nullptr});
    desk.AddCategory("Plans");
    const std::string vi = desk.AddVoyage("Plans", {.name = "Long", .calls = PanelDesk::Calls(1)});
    desk.Load();
    views.PortCalls().SetVoyage(vi);
    if (views.PortCalls().FillForVoyage(-1) != 0) {
        return state.SkipWithError("the voyage does not open");
    }
    views.PortCalls().ShowBesideTree();
    PutWaypoints(desk.store.voyages[vi].positionBook.points, static_cast<std::size_t>(state.range(0)));
    views.PortCalls().Commands().OnPositionBook();
    views.Book().Commands().OnExpand(0);
    QWidget& window = *views.BookWindowMade();
    Draw(window);
    const int row = static_cast<int>(state.range(0) / 2);
    bool faster = false;
    for (auto _ : state) {
        faster = !faster;
        BookEditing& cells = views.Book().Cells();
        cells.OnCellClicked(row, BookSpeed);
        cells.OnTyped(faster ? "15" : "14");
        cells.OnTextKey({Key::Enter});
        cells.CommitEditors();
        Draw(window);
    }
    state.counters["rows"] = views.Book().Sheet().RowCount();
}
BENCHMARK(EditBook)->Arg(500)->Arg(2000)->Unit(benchmark::kMillisecond);

/// Ports of the real network for a table, spread over the whole list.
std::map<std::string, std::string> SomePorts(const Server::SeaNetwork& network, std::size_t count) {
    std::map<std::string, std::string> idsByName;
    const auto& ports = network.data().ports;
    for (std::size_t i = 0; idsByName.size() < count; i += ports.size() / count) {
        idsByName[ports[i % ports.size()].name] = ports[i % ports.size()].id;
    }
    return idsByName;
}

/// A distance table calculated by the server in the client, until table and chart stand.
void CalculateDistances(benchmark::State& state) {
    std::string error;
    const auto network = Server::SeaNetwork::Load(SEAPLAN_NETWORK, error);
    if (!network) {
        return state.SkipWithError(error.c_str());
    }
    const auto ids = SomePorts(*network, static_cast<std::size_t>(state.range(0)));
    const TestSupport::PortDictionary names{ids};
    TestSupport::RecordingHost host;
    const auto server =
        Server::EmbeddedServer::Open(":memory:", std::make_unique<Server::GraphRouteSource>(network), error);
    host.server = [&](const Interface::VoyServerRequest& request) {
        return server->Exchange(host.user.value_or(""), &request);
    };
    VoyageStore store;
    PortDirectory ports{SEAPLAN_POINTS};
    VoyCatalogModule catalogModule{&store};
    VoyCatalogController catalog{&catalogModule, &store};
    VoyPortCallModule module{&store, &ports};
    VoyController voyages{&module, &catalog, &store};
    VoyageViews views({store, catalog, voyages, ports, nullptr});
    CPortCallPanelDlg& panel = views.PortCalls();
    panel.OpenDistanceTable();
    for (const auto& [name, id] : ids) {
        panel.AddPortByName(name);
    }
    for (auto _ : state) {
        panel.Commands().OnCalculate();
        Draw(*views.PortCallsWindow());
        host.requests.clear();
    }
    if (IsBlankCell(panel.Sheet().table.Cell(panel.Sheet().table.RowCount(), ColDistance))) {
        return state.SkipWithError(("nothing was calculated: " + panel.Sheet().cause).c_str());
    }
    state.counters["miles"] =
        std::atof(panel.Sheet().table.Cell(panel.Sheet().table.RowCount(), ColDistance).c_str());
}
BENCHMARK(CalculateDistances)->Arg(30)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toLatin1());
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
