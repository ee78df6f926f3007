// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/PluginInfo.h>
#include <tarvik/core/TrvKernel.h>

#include "testsupport/DataFolder.h"
#include "testsupport/LoadedPlugin.h"
#include "testsupport/ManualTimer.h"

namespace Tarvik {

namespace {

class AisPluginTest : public ::testing::Test {
  protected:
    template <class Result>
    Result Call(const char* name) const {
        return plugin_.Call<Result>(name);
    }
    TestSupport::DataFolder folder_;
    TestSupport::ManualTimer timer_;
    TestSupport::LoadedPlugin plugin_{AIS_LIBRARY};
};

TEST_F(AisPluginTest, DescribesItself) {
    const auto* info = Call<Plugin::CPluginInfo*>("PluginInfo");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->name, "PlgAis");
    EXPECT_EQ(info->dependencyText, "TRV,1.1.4");
}

TEST_F(AisPluginTest, OffersItsServicesFromLoadToUnLoadAlsoWithoutAWindowSystem) {
    const auto* kernel = Core::TrvKernel::Instance();
    EXPECT_TRUE(Call<bool>("CheckEnvironment"));
    EXPECT_TRUE(Call<bool>("Load"));
    EXPECT_TRUE(Call<bool>("Load"));
    Call<void>("InitPlugin");
    Call<void>("SuiteLoaded");
    for (const char* name : {Interface::Bus::VesselPositions.name, Interface::Bus::VesselTrace.name,
                             Interface::Bus::HideAisTrack.name, Interface::Bus::ShowVesselCard.name,
                             Interface::Bus::ShowShips.name}) {
        EXPECT_TRUE(kernel->IsBound(name)) << name;
    }
    EXPECT_EQ(timer_.Running(), 1U);
    timer_.Fire();
    const bool hide = false;
    const bool* shown = Interface::Call(Interface::Bus::ShowShips, &hide);
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(*shown);
    EXPECT_TRUE(Call<bool>("UnLoad"));
    EXPECT_TRUE(Call<bool>("UnLoad"));
    EXPECT_FALSE(kernel->IsBound(Interface::Bus::VesselPositions.name));
    EXPECT_EQ(timer_.Running(), 0U);
    EXPECT_TRUE(std::filesystem::exists(folder_.Path() / "businessdata" / "ais" / "settings.json"));
    EXPECT_TRUE(std::filesystem::exists(folder_.Path() / "businessdata" / "ais" / "ais.db"));
}

}  // namespace
}  // namespace Tarvik
