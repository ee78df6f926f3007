// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/PluginInfo.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/SiblingRecords.h>

#include "testsupport/DataFolder.h"
#include "testsupport/LoadedPlugin.h"

namespace Tarvik {

namespace {

TEST(InfoSearchPlugin, OffersItsServicesFromLoadToUnLoadAlsoWithoutAWindowSystem) {
    const TestSupport::DataFolder folder;
    folder.WriteSamplePoints();
    const TestSupport::LoadedPlugin plugin(INFOSEARCH_LIBRARY);
    const auto* kernel = Core::TrvKernel::Instance();
    EXPECT_EQ(plugin.Call<Plugin::CPluginInfo*>("PluginInfo")->name, "PlgInfoSearch");
    EXPECT_TRUE(plugin.Call<bool>("CheckEnvironment"));
    EXPECT_TRUE(plugin.Call<bool>("Load"));
    EXPECT_TRUE(plugin.Call<bool>("Load"));
    plugin.Call<void>("InitPlugin");
    plugin.Call<void>("SuiteLoaded");
    EXPECT_TRUE(kernel->IsBound(Interface::Bus::MatchPorts.name));
    EXPECT_TRUE(kernel->IsBound(Interface::Bus::ShowVesselInfo.name));
    int handle = 0;
    const Interface::MatchPortQuery query{&handle, &handle, "A", false};
    EXPECT_EQ(Interface::Call(Interface::Bus::MatchPorts, &query), nullptr);
    EXPECT_TRUE(plugin.Call<bool>("UnLoad"));
    EXPECT_TRUE(plugin.Call<bool>("UnLoad"));
    EXPECT_FALSE(kernel->IsBound(Interface::Bus::MatchPorts.name));
    EXPECT_FALSE(kernel->IsBound(Interface::Bus::ShowVesselInfo.name));
}

}  // namespace
}  // namespace Tarvik
