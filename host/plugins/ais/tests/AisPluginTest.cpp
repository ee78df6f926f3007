// SPDX-License-Identifier: MIT
#include <dlfcn.h>
#include <filesystem>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/PluginInfo.h>
#include <tarvik/core/TrvKernel.h>

#include "testsupport/DataFolder.h"
#include "testsupport/ManualTimer.h"

namespace Tarvik {

namespace {

class AisPluginTest : public ::testing::Test {
  protected:
    AisPluginTest() : library_(dlopen(AIS_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
        const char* error = library_ != nullptr ? nullptr : dlerror();
        EXPECT_NE(library_, nullptr) << (error != nullptr ? error : "");
    }
    template <class Result>
    Result Call(const char* name) const {
        auto* function = reinterpret_cast<Result (*)()>(dlsym(library_, name));
        EXPECT_NE(function, nullptr) << name;
        return function();
    }
    TestSupport::DataFolder folder_;
    TestSupport::ManualTimer timer_;
    void* library_;
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
