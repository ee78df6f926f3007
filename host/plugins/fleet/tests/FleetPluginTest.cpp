// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/PluginInfo.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/SiblingRecords.h>

#include "testsupport/LoadedPlugin.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik {

namespace {

TEST(FleetPlugin, OffersItsServicesFromLoadToUnLoadAlsoWithoutAWindowSystem) {
    TestSupport::RecordingHost host;
    host.server = [](const Interface::VoyServerRequest&) {
        return R"([{"vsi":"31","vsn":"Meridian","vsmsi":"477123456"}])";
    };
    const TestSupport::LoadedPlugin plugin(FLEET_LIBRARY);
    const auto* kernel = Core::TrvKernel::Instance();
    EXPECT_EQ(plugin.Call<Plugin::CPluginInfo*>("PluginInfo")->name, "PlgFleet");
    EXPECT_TRUE(plugin.Call<bool>("CheckEnvironment"));
    EXPECT_TRUE(plugin.Call<bool>("Load"));
    EXPECT_TRUE(plugin.Call<bool>("Load"));
    plugin.Call<void>("InitPlugin");
    plugin.Call<void>("SuiteLoaded");
    const auto* fleet = Interface::Call(Interface::Bus::AllVessels);
    ASSERT_NE(fleet, nullptr);
    ASSERT_EQ(fleet->size(), 1U);
    EXPECT_EQ(fleet->front().number, 477123456);
    const Interface::FleetEntry added{"", "Far Star", 0};
    EXPECT_EQ(Interface::Call(Interface::Bus::ShowAddVessel, &added), nullptr);
    EXPECT_TRUE(plugin.Call<bool>("UnLoad"));
    EXPECT_TRUE(plugin.Call<bool>("UnLoad"));
    for (const char* name : {Interface::Bus::AllVessels.name, Interface::Bus::VesselDetails.name,
                             Interface::Bus::ShowAddVessel.name}) {
        EXPECT_FALSE(kernel->IsBound(name)) << name;
    }
}

}  // namespace
}  // namespace Tarvik
