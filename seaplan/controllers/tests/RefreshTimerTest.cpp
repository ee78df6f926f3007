// SPDX-License-Identifier: MIT
#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"
#include "testsupport/ManualTimer.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

class RefreshTimerTest : public ScheduleFixture {
  protected:
    ~RefreshTimerTest() override { voyages.StopTimer(); }

    TestSupport::ManualTimer timer;
};

TEST_F(RefreshTimerTest, SecondStartLeavesOneTimerRunning) {
    voyages.StartTimer();
    voyages.StartTimer();
    EXPECT_EQ(timer.Running(), 1U);
    EXPECT_EQ(timer.LastPeriod(), 100000);
    voyages.StopTimer();
    EXPECT_EQ(timer.Running(), 0U);
    voyages.StartTimer();
    EXPECT_EQ(timer.Running(), 1U);
}

TEST_F(RefreshTimerTest, WithoutTimersOfTheHostNothingStarts) {
    Util::TimerService::Set(nullptr);
    voyages.StartTimer();
    voyages.StopTimer();
    Util::TimerService::Set(&timer);
    voyages.StartTimer();
    EXPECT_EQ(timer.Running(), 1U) << "the earlier attempt left no id behind";
}

TEST_F(RefreshTimerTest, TimerRefreshesPositionsAndDrawsShownVoyagesWithoutMovingTheView) {
    bool visible = false;
    voyages.SetTreeVisible([&] { return visible; });
    Voyage().vr = 1;
    Voyage().vsi = "s";
    store.voyages["8"].vi = "8";
    ReplySchedule();
    voyages.StartTimer();
    timer.Fire();
    EXPECT_EQ(host.positionQueries, (std::vector<Texts>{{"s|0"}}));
    EXPECT_TRUE(host.chartCalls.empty()) << "the tree is hidden";
    visible = true;
    timer.Fire();
    EXPECT_FALSE(host.ChartCallsOf("TRV_MAP_ADD_LINE").empty());
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_SET_EXTENT").empty());
    EXPECT_TRUE(module.Layer().autoExtent);
}

TEST_F(RefreshTimerTest, TimerDrawsWhenNobodyTellsWhetherTheTreeIsVisible) {
    Voyage().vr = 1;
    ReplySchedule();
    voyages.StartTimer();
    timer.Fire();
    EXPECT_FALSE(host.ChartCallsOf("TRV_MAP_ADD_LINE").empty());
}

TEST_F(RefreshTimerTest, VoyageThatIsNotShownIsNotDrawn) {
    Voyage().vr = 0;
    ReplySchedule();
    voyages.StartTimer();
    timer.Fire();
    EXPECT_TRUE(host.requests.empty());
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(RefreshTimerTest, FailingVoyageIsSkippedAndTheOthersGoOn) {
    store.voyages["1"].vi = "1";
    store.voyages["1"].vr = 1;
    store.categoryVoyages["1"]["1"] = InUse;
    store.voyages["2"].vi = "2";
    store.voyages["2"].vr = 1;
    Voyage().vr = 1;
    host.ReplyNothing(10);
    ReplySchedule();
    voyages.StartTimer();
    timer.Fire();
    EXPECT_EQ(host.TextsOf(10), (std::vector<std::string>{R"({vi:"1"})", R"({vi:"9"})"}))
        << "the voyage of no category counts as deleted";
    EXPECT_EQ(module.Pending().DrawnVoyage(), "9");
}

TEST_F(RefreshTimerTest, ShipMovesWithTheClock) {
    Voyage().vr = 1;
    clock.SetUtc(2024, 3, 1, 18);
    ReplySchedule();
    voyages.StartTimer();
    timer.Fire();
    clock.AdvanceSeconds(3600);
    timer.Fire();
    const auto ships = host.ChartCallsOf("TRV_MAP_ADD_IMAGE");
    ASSERT_EQ(ships.size(), 2U);
    EXPECT_LT(std::stod(ships[0].position), std::stod(ships[1].position));
    EXPECT_EQ(host.requests.size(), 2U) << "the schedule is read once";
}

TEST_F(RefreshTimerTest, TimerEndsWithItsOwner) {
    {
        VoyController other(&module, &catalog, &store);
        other.StartTimer();
        EXPECT_EQ(timer.Running(), 1U);
    }
    EXPECT_EQ(timer.Running(), 0U);
}

}  // namespace
}  // namespace Tarvik::Seaplan
