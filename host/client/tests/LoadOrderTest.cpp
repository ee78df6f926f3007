// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/client/plugins/LoadOrder.h"

namespace Tarvik::Client {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

PluginRecord Record(const std::string& name, const std::string& version, const std::string& needs = {}) {
    PluginRecord record;
    record.name = name;
    record.version = Core::Version::Parse(version);
    record.dependencies = Plugin::DependencyList(needs).Entries();
    record.file = "/plugins/" + name;
    return record;
}

const Core::Version kHost = Core::Version::Parse("1.1.4");

TEST(LoadOrder, PutsDependenciesFirstAndKeepsTheRestInOrder) {
    const auto plan = ResolveLoadOrder(
        {Record("C", "1", "B,1|A,1"), Record("B", "1", "A,1"), Record("D", "1"), Record("A", "1")}, kHost);
    EXPECT_THAT(plan.order, ElementsAre(3, 1, 0, 2));
    EXPECT_TRUE(plan.rejected.empty());
}

TEST(LoadOrder, AcceptsTheVoyagePluginsOwnNeeds) {
    const auto plan = ResolveLoadOrder(
        {Record("Seaplan", "2.0.1.0", "TRV,1.1.4|PlgSeamap,1.1"), Record("PlgSeamap", "1.1")}, kHost);
    EXPECT_THAT(plan.order, ElementsAre(1, 0));
}

TEST(LoadOrder, RefusesAnOlderHost) {
    const auto plan = ResolveLoadOrder({Record("Seaplan", "2", "TRV,1.1.4")}, Core::Version::Parse("1.1.3"));
    ASSERT_EQ(plan.rejected.size(), 1U);
    EXPECT_EQ(plan.rejected[0].name, "Seaplan");
    EXPECT_EQ(plan.rejected[0].reason, "needs TRV 1.1.4 or newer, present is 1.1.3");
}

TEST(LoadOrder, AVersionIsComparedByNumbersNotByText) {
    const auto plan = ResolveLoadOrder({Record("A", "1", "B,1.9"), Record("B", "1.10")}, kHost);
    EXPECT_EQ(plan.order.size(), 2U);
}

TEST(LoadOrder, APluginThatNeedsItselfIsACircle) {
    const auto plan = ResolveLoadOrder({Record("A", "1", "A,1"), Record("B", "1")}, kHost);
    EXPECT_THAT(plan.order, ElementsAre(1));
    ASSERT_EQ(plan.rejected.size(), 1U);
    EXPECT_THAT(plan.rejected[0].reason, HasSubstr("A > A"));
}

TEST(LoadOrder, OnlyTheCircleIsNamedACircleWhatLeadsIntoItIsLeftOut) {
    const auto plan = ResolveLoadOrder(
        {Record("Leader", "1", "A,1"), Record("A", "1", "B,1"), Record("B", "1", "A,1")}, kHost);
    EXPECT_TRUE(plan.order.empty());
    ASSERT_EQ(plan.rejected.size(), 3U);
    for (const RejectedPlugin& rejected : plan.rejected) {
        EXPECT_THAT(rejected.reason, HasSubstr(rejected.name == "Leader" ? "needs A, which is left out"
                                                                         : "depends on itself"));
    }
}

TEST(LoadOrder, ABrokenOneTakesItsFollowersAlong) {
    PluginRecord broken = Record("B", "1");
    broken.error = "torn";
    const auto plan = ResolveLoadOrder({Record("A", "1", "B,1"), broken}, kHost);
    EXPECT_TRUE(plan.order.empty());
    ASSERT_EQ(plan.rejected.size(), 2U);
    EXPECT_EQ(plan.rejected[0].reason, "torn");
}

TEST(LoadOrder, ABrokenOneDoesNotTakeASoundOnesName) {
    PluginRecord broken = Record("A", "1");
    broken.error = "torn";
    const auto plan = ResolveLoadOrder({broken, Record("A", "2"), Record("B", "1", "A,2")}, kHost);
    EXPECT_THAT(plan.order, ElementsAre(1, 2));
    ASSERT_EQ(plan.rejected.size(), 1U);
    EXPECT_EQ(plan.rejected[0].index, 0U);
    EXPECT_EQ(plan.rejected[0].reason, "torn");
}

TEST(LoadOrder, TheSecondOfOneNameIsLeftOut) {
    const auto plan = ResolveLoadOrder({Record("A", "1"), Record("A", "2")}, kHost);
    EXPECT_THAT(plan.order, ElementsAre(0));
    ASSERT_EQ(plan.rejected.size(), 1U);
    EXPECT_EQ(plan.rejected[0].index, 1U);
}

}  // namespace
}  // namespace Tarvik::Client
