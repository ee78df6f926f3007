// SPDX-License-Identifier: MIT
// The voyage tree in its real window over replies that are at hand: what a person waits for is the time until
// the rows are laid out and drawn. Needs no display: QT_QPA_PLATFORM is "offscreen" unless it is given.
#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <optional>
#include <string>

#include <benchmark/benchmark.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/interface/ServerRequest.h>

#include "bench/CatalogText.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "seaplan/views/VoyageViews.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "testsupport/ManualTimer.h"
#include "testsupport/RecordingHost.h"

namespace {

using namespace Tarvik;
using namespace Tarvik::Seaplan;
/// Pixels that one notch of a mouse's wheel moves the rows.
constexpr int kWheelStep = 90;

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// The voyage panel on show, on a server that answers at once.
class OpenPanel {
  public:
    OpenPanel(std::int64_t voyages, std::int64_t ofCategory) {
        host_.server = [catalog = CatalogText(voyages, ofCategory, false)](
                           const Interface::VoyServerRequest& request) -> std::optional<std::string> {
            return request.command == 3 ? catalog : std::string("[]");
        };
        const Interface::PanelShow show{3, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
        QApplication::processEvents();
        // What is left are the timers of the tree alone.
        voyages_.StopTimer();
    }
    SeaplanTreeCtrl& Tree() { return views_.Tree(); }
    TreeRows& Rows() { return views_.VoyageWindow()->Tree().Rows(); }
    TreeSearch& Search() { return views_.Panel().Search(); }
    /// Draws what waits to be drawn, as a person would see it.
    void Draw() {
        QApplication::processEvents();
        views_.VoyageWindow()->Tree().grab();
    }
    QScrollBar& ScrollBar() { return *views_.VoyageWindow()->Tree().verticalScrollBar(); }
    /// Paints the window's pixels at once, whether or not they changed.
    void Paint() { views_.VoyageWindow()->Tree().viewport()->repaint(); }
    /// One turn of what is done between events.
    bool Tick() {
        if (timer_.Running() == 0) {
            return false;
        }
        timer_.Fire();
        return true;
    }

  private:
    TestSupport::RecordingHost host_;
    TestSupport::ManualTimer timer_;
    VoyageStore store_;
    VoyCatalogModule catalogModule_{&store_};
    VoyCatalogController catalog_{&catalogModule_, &store_};
    PortDirectory ports_;
    VoyPortCallModule portCallModule_{&store_, &ports_};
    VoyController voyages_{&portCallModule_, &catalog_, &store_};
    VoyageViews views_{{store_, catalog_, voyages_, ports_, nullptr}};
};

/// From the request to the drawn rows.
void ReloadTree(benchmark::State& state) {
    OpenPanel panel(state.range(0), 100);
    for (auto _ : state) {
        if (panel.Tree().ReloadTree() != 0) {
            state.SkipWithError("the tree did not load");
        }
        panel.Draw();
    }
}
BENCHMARK(ReloadTree)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond);

/// The longest time in which the window answers nothing while a category unfolds.
void UnfoldLongestBlock(benchmark::State& state) {
    OpenPanel panel(state.range(0), state.range(0));
    double longest = 0;
    for (auto _ : state) {
        state.PauseTiming();
        panel.Tree().ReloadTree();
        panel.Tree().Context().voyageStatuses.clear();
        state.ResumeTiming();
        auto start = Clock::now();
        panel.Tree().OnRowPressed(panel.Rows().GetRootItem(), true);
        panel.Draw();
        longest = std::max(longest, MillisecondsSince(start));
        for (start = Clock::now(); panel.Tick(); start = Clock::now()) {
            longest = std::max(longest, MillisecondsSince(start));
        }
    }
    state.counters["longest_ms"] = longest;
}
BENCHMARK(UnfoldLongestBlock)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(5);

/// A letter typed into the search field, until the answers are drawn.
void SearchKey(benchmark::State& state) {
    OpenPanel panel(state.range(0), 100);
    panel.Search().Open();
    std::size_t length = 0;
    const std::string word = "voyage 99";
    for (auto _ : state) {
        length = length % word.size() + 1;
        panel.Search().OnTyped(word.substr(0, length));
        panel.Draw();
    }
}
BENCHMARK(SearchKey)->Arg(10000)->Unit(benchmark::kMillisecond);

/// One step of the wheel over unfolded categories, until the whole window is painted anew: a sixtieth of a
/// second is what a person sees as flowing.
void ScrollFrame(benchmark::State& state) {
    OpenPanel panel(state.range(0), 100);
    for (TreeRow row = panel.Rows().GetRootItem(); row != kNoRow;
         row = panel.Rows().GetNextSiblingItem(row)) {
        panel.Rows().Expand(row, true);
    }
    panel.Draw();
    QScrollBar& bar = panel.ScrollBar();
    double worst = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        bar.setValue(bar.value() == bar.maximum() ? 0 : bar.value() + kWheelStep);
        panel.Paint();
        worst = std::max(worst, MillisecondsSince(start));
    }
    state.counters["worst_ms"] = worst;
}
BENCHMARK(ScrollFrame)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(600);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toLatin1());
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
