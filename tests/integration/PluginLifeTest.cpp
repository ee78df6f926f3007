// SPDX-License-Identifier: MIT
#include <cstdlib>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/PlanRecords.h>

#include "tests/integration/TinyHost.h"

namespace Tarvik::Integration {

namespace {

class PluginLifeTest : public TinyHost {};

TEST_F(PluginLifeTest, RecordIsReadableBeforeLoadAndNeverMoves) {
    Plugin::CPluginInfo* before = plugin.info();
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(before->name, "Seaplan");
    EXPECT_EQ(before->version, "2.0.1.0");
    EXPECT_EQ(before->dependencies.Entries().size(), 2U);
    EXPECT_TRUE(plugin.load());
    EXPECT_EQ(plugin.info(), before);
}

TEST_F(PluginLifeTest, EveryStartCallAccepts) {
    EXPECT_TRUE(plugin.checkEnvironment());
    plugin.init();
    plugin.suiteLoaded();
    EXPECT_TRUE(plugin.load());
    EXPECT_TRUE(plugin.load()) << "a second load changes nothing";
    EXPECT_TRUE(host.requests.empty()) << "nothing is asked of the server before it is needed";
}

TEST_F(PluginLifeTest, UnloadLeavesTheBindings) {
    plugin.load();
    EXPECT_TRUE(plugin.unload());
    for (const char* name : {"TRV_S_VOY_PLAN", "TRV_MAP_LCLICK_VOYAGETYPE", "TRV_MAP_LCLICK_RPOINTTYPE",
                             "TRV_MAP_LCLICK_AISSHIPTYPE"}) {
        EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound(name)) << name;
    }
}

TEST_F(PluginLifeTest, LoadingAgainAfterUnloadingBindsNothingTwice) {
    std::vector<std::string> noticed;
    Core::TrvKernel::Instance()->SetObserver(
        [&](Core::KernelNotice, const std::string& name) { noticed.push_back(name); });
    plugin.load();
    plugin.unload();
    plugin.load();
    Core::TrvKernel::Instance()->SetObserver({});
    EXPECT_EQ(noticed, std::vector<std::string>());
    const Interface::PlanRequest request;
    EXPECT_NE(Interface::Call(Interface::Bus::PlanVoyage, &request), nullptr);
}

TEST_F(PluginLifeTest, HostThatClosesTheLibraryFindsItsServicesAnswering) {
    testing::GTEST_FLAG(death_test_style) = "fast";
    const auto closeAndCall = [this] {
        plugin.load();
        plugin.unload();
        plugin.Close();
        const Interface::PlanRequest request;
        const Interface::PlanResult* result = Interface::Call(Interface::Bus::PlanVoyage, &request);
        std::_Exit(result != nullptr && result->code == Interface::PlanNotLoaded ? 0 : 1);
    };
    EXPECT_EXIT(closeAndCall(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace Tarvik::Integration
