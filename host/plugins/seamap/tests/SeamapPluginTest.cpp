// SPDX-License-Identifier: MIT
#include <dlfcn.h>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/core/PluginInfo.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>

namespace Tarvik {

namespace {

class SeamapPluginTest : public ::testing::Test {
  protected:
    SeamapPluginTest() : library_(dlopen(SEAMAP_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
        const char* error = library_ ? nullptr : dlerror();
        EXPECT_NE(library_, nullptr) << (error ? error : "");
    }
    template <class Result>
    Result Call(const char* name) const {
        auto* function = reinterpret_cast<Result (*)()>(dlsym(library_, name));
        EXPECT_NE(function, nullptr) << name;
        return function();
    }
    void* library_;
};

TEST_F(SeamapPluginTest, DescribesItself) {
    const auto* info = Call<Plugin::CPluginInfo*>("PluginInfo");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->name, "PlgSeamap");
    EXPECT_EQ(info->version, "1.1.0.0");
    EXPECT_EQ(info->dependencyText, "TRV,1.1.4");
    ASSERT_EQ(info->dependencies.Entries().size(), 1u);
    EXPECT_EQ(info->dependencies.Entries()[0].name, "TRV");
    EXPECT_EQ(Call<Plugin::CPluginInfo*>("PluginInfo"), info);
}

TEST_F(SeamapPluginTest, ShowsOnlyItsEntryPoints) {
    EXPECT_NE(dlsym(library_, "SuiteLoaded"), nullptr);
    EXPECT_EQ(dlsym(library_, "_ZN6Tarvik6Seamap13ChartServicesC1ENS1_5PathsE"), nullptr);
}

TEST_F(SeamapPluginTest, OffersItsServicesFromLoadToUnLoadAlsoWithoutAWindowSystem) {
    auto* kernel = Core::TrvKernel::Instance();
    EXPECT_TRUE(Call<bool>("CheckEnvironment"));
    EXPECT_FALSE(kernel->IsBound(Interface::Bus::MapAddLine.name));
    EXPECT_TRUE(Call<bool>("Load"));
    EXPECT_TRUE(Call<bool>("Load"));
    Call<void>("InitPlugin");
    Call<void>("SuiteLoaded");
    EXPECT_TRUE(kernel->IsBound(Interface::Bus::MapAddLine.name));
    EXPECT_EQ(Interface::Call(Interface::Bus::ChartWindow), nullptr);
    const Interface::TrvMapExtent asked{10, 20, 30, 40};
    Interface::Call(Interface::Bus::MapSetExtent, &asked);
    auto* shown = Interface::Call(Interface::Bus::MapGetExtent);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->third, 30);
    Core::FreeBusBlock(shown);
    EXPECT_TRUE(Call<bool>("UnLoad"));
    EXPECT_FALSE(kernel->IsBound(Interface::Bus::MapAddLine.name));
    EXPECT_TRUE(Call<bool>("UnLoad"));
}

}  // namespace
}  // namespace Tarvik
