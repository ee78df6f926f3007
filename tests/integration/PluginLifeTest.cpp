// SPDX-License-Identifier: MIT
#include "tests/integration/TinyHost.h"

#include <tarvik/core/TrvKernel.h>

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
    EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound("TRV_S_VOY_PLAN"));
    EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound("TRV_MAP_LCLICK_VOYAGETYPE"));
    EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound("TRV_MAP_LCLICK_RPOINTTYPE"));
}

}  // namespace
}  // namespace Tarvik::Integration
