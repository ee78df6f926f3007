// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/PlanRecords.h>

#include "tests/integration/FreshPlugin.h"

namespace Tarvik::Integration {

namespace {

/// The names that the plug-in owns or listens to without a window.
constexpr const char* kOwnNames[] = {"TRV_S_VOY_PLAN",
                                     "TRV_S_CAL_VOYAGE",
                                     "TRV_MAP_LCLICK_RPOINT",
                                     "TRV_MAP_LCLICK_RRPOINT",
                                     "TRV_MAP_LCLICK_VOYAGETYPE",
                                     "TRV_MAP_LCLICK_RPOINTTYPE",
                                     "TRV_MAP_LCLICK_AISSHIPTYPE"};
/// The names of the voyage panel.
constexpr const char* kPanelNames[] = {"TRV_S_VOY_ADDVSL", "TRV_MAP_WND_SHOW", "TRV_E_SWITCHLANGUAGE",
                                       "TRV_E_LOGOUT"};

template <std::size_t N>
bool AnyBound(const char* const (&names)[N]) {
    return std::any_of(names, names + N,
                       [](const char* n) { return Core::TrvKernel::Instance()->IsBound(n); });
}

template <std::size_t N>
bool AllBound(const char* const (&names)[N]) {
    return std::all_of(names, names + N,
                       [](const char* n) { return Core::TrvKernel::Instance()->IsBound(n); });
}

TEST(ExportCallsTest, RecordStandsBeforeLoadAndStaysInItsPlace) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        const Plugin::CPluginInfo* const before = plugin.info();
        const bool same = before != nullptr && plugin.info() == before;
        const bool whole = before->name == "Seaplan" && before->version == "2.0.1.0" && before->flag == 0 &&
                           before->dependencyText == "TRV,1.1.4|PlgSeamap,1.1" &&
                           before->dependencies.Entries().size() == 2;
        return same && whole && !AnyBound(kOwnNames) && plugin.load() && plugin.info() == before;
    }));
}

TEST(ExportCallsTest, NothingIsOnTheBusBeforeLoad) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        plugin.init();
        plugin.suiteLoaded();
        const bool accepted = plugin.checkEnvironment() && plugin.unload();
        return accepted && !AnyBound(kOwnNames) && !AnyBound(kPanelNames);
    }));
}

TEST(ExportCallsTest, OrderOfTheStartCallsDoesNotMatter) {
    std::array<int, 3> order{0, 1, 2};
    do {
        EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY,
                                        [&order](const LoadedPlugin& plugin) {
                                            const auto accepts = [&plugin](int call) {
                                                if (call == 0) {
                                                    return plugin.info() != nullptr;
                                                }
                                                return call == 1 ? plugin.checkEnvironment() : plugin.load();
                                            };
                                            return std::all_of(order.begin(), order.end(), accepts) &&
                                                   AllBound(kOwnNames);
                                        }))
            << order[0] << order[1] << order[2];
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(ExportCallsTest, LoadWithoutAWindowSystemAcceptsAndMakesNoPanel) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        return plugin.load() && AllBound(kOwnNames) && !AnyBound(kPanelNames);
    }));
}

TEST(ExportCallsTest, LoadAcceptsThoughTheMainViewBreaksDown) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_FAILING_LIBRARY, [](const LoadedPlugin& plugin) {
        const Interface::PlanRequest request;
        return plugin.load() && !AnyBound(kPanelNames) &&
               Interface::Call(Interface::Bus::PlanVoyage, &request) != nullptr;
    }));
}

TEST(ExportCallsTest, UnLoadTakesNothingBack) {
    EXPECT_TRUE(HoldsForFreshPlugin(SEAPLAN_LIBRARY, [](const LoadedPlugin& plugin) {
        return plugin.load() && plugin.unload() && plugin.unload() && AllBound(kOwnNames);
    }));
}

}  // namespace
}  // namespace Tarvik::Integration
