// SPDX-License-Identifier: MIT
// The route calculator as a sibling plug-in meets it: by the bus alone, offered by the loaded plug-in.
#include <map>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/interface/ChartRecords.h>

#include "tests/integration/FreshPlugin.h"

namespace Tarvik::Integration {

namespace {

namespace Bus = Interface::Bus;
using Interface::TrvMapPort;

/// A host whose chart knows the three ports of the stored route, with the route points that it can change.
struct ChartedHost {
    ChartedHost() {
        std::vector<TestSupport::PointTableRow> rows;
        for (const auto* id : {"101", "119", "120", "125", "126", "140", "163", "179"}) {
            rows.push_back({id, std::string("point ") + id, "1", "2", false});
        }
        folder.WritePoints(rows);
    }
    std::size_t Calls(const char* service) const { return host.ChartCallsOf(service).size(); }

    TestSupport::DataFolder folder;
    TestSupport::RecordingHost host;
    std::map<std::string, TrvMapPort> ports{{"40358", {"40358", "Tianjin", 117.75, 38.98}},
                                            {"41117", {"41117", "Rotterdam", 4.05, 51.98}},
                                            {"40430", {"40430", "Hamburg", 9.97, 53.54}}};
    Interface::Binding port =
        Interface::Offer(Bus::MapGetPort, [this](const std::string& id) -> const TrvMapPort* {
            const auto found = ports.find(id);
            return found == ports.end() ? nullptr : &found->second;
        });
};

const Interface::VoyCalResult* Calculate(const std::string& ids) {
    return Interface::Call(Bus::CalculateVoyage, &ids);
}

TEST(CalculatorOverTheBusTest, LoadedPluginDrawsTheRouteThatItKnows) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        const ChartedHost charted;
        const bool silentBefore = Calculate("40358,41117,40430") == nullptr;
        plugin.load();
        const bool layerAdded = charted.Calls(Bus::MapAddLayer.name) > 0;
        const auto* result = Calculate("40358,41117,40430");
        return silentBefore && layerAdded && result != nullptr && result->valid == 1 &&
               result->mainLine.points.front() == "117.7500,38.9833" &&
               charted.Calls(Bus::MapAddLine.name) == 1 && charted.Calls(Bus::MapAddPointLabel.name) == 5;
    }));
}

TEST(CalculatorOverTheBusTest, RouteOfOtherPortsIsNotKnown) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        const ChartedHost charted;
        plugin.load();
        const auto* result = Calculate("41117,40430");
        return result != nullptr && result->valid == 0 && charted.Calls(Bus::MapAddLine.name) == 0;
    }));
}

TEST(CalculatorOverTheBusTest, ClickOnARoutePointShowsItsAlternatives) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        const ChartedHost charted;
        plugin.load();
        Calculate("40358,41117,40430");
        const std::size_t labels = charted.Calls(Bus::MapAddPointLabel.name);
        Interface::RaiseClick("RPOINT", "119");
        return charted.Calls(Bus::MapAddPointLabel.name) > labels;
    }));
}

TEST(CalculatorOverTheBusTest, LoadingAgainOffersItOnce) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        const ChartedHost charted;
        plugin.load();
        const std::size_t layers = charted.Calls(Bus::MapAddLayer.name);
        return plugin.load() && charted.Calls(Bus::MapAddLayer.name) == layers;
    }));
}

}  // namespace
}  // namespace Tarvik::Integration
