// SPDX-License-Identifier: MIT
/// What the chart is told of the times of the voyages that are drawn on it.
#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BindingList.h>
#include <tarvik/bus/PlanContract.h>

#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/controllers/ProgressDrawing.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kPorts = R"([{lon:"0",ppi:"40001",ppn:"A",pp:"L",psp:"0",pw:"0",apt:"6"},)"
                               R"({lon:"1",ppi:"40002",ppn:"B",pp:"D",psp:"18.52",pw:"0",apt:"12"}])";
constexpr const char* kBook =
    R"([{pbi:"5",eta:"2024-03-01 00:00:00",pb:[)"
    R"({lon:0,psn:"A",xc:0.0,yc:0.0,psp:"18.52",pst:"5"},{lon:1,psn:"",xc:0.5,yc:0.0,psp:"18.52",pst:"0"},)"
    R"({lon:2,psn:"B",xc:1.0,yc:0.0,psp:"18.52",pst:"5"}]}])";
/// Departure of the first port in UTC: 14:00 in the zone of plan times.
constexpr std::int64_t kDeparture = 1709272800;
constexpr std::int64_t kThreeHours = 10819;  ///< 30 miles at ten knots, the earth not being a sphere

class PlanOnChartTest : public ScheduleFixture {
  protected:
    void SetUp() override {
        bindings_.Keep(Interface::Offer(Interface::Bus::MapSetPlan,
                                        [this](const Interface::TrvMapPlan& plan) { told.push_back(plan); }));
        host.Reply(10, kPorts);
        host.Reply(7, kBook);
        ASSERT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
        clock.SetUtc(2024, 3, 1, 15);
    }
    std::vector<Interface::TrvMapPlan> told;
    Interface::BindingList bindings_;
};

TEST_F(PlanOnChartTest, ADrawnVoyageTellsWhenItIsWhere) {
    Voyage().vsn = "ORION";
    ASSERT_EQ(voyages.ShowVoyage("9"), 0);
    ASSERT_FALSE(told.empty());
    const Interface::TrvMapPlan& plan = told.back();
    EXPECT_EQ(plan.layer, "VOYAGE");
    EXPECT_EQ(plan.shipType, "AISSHIPTYPE");
    EXPECT_EQ(plan.id, "9");
    EXPECT_EQ(plan.name, Voyage().vn);
    EXPECT_EQ(plan.vessel, "ORION");
    ASSERT_EQ(plan.places.size(), 3U);
    EXPECT_EQ(plan.places[0].name, "A");
    EXPECT_EQ(plan.places[0].departure, kDeparture);
    EXPECT_EQ(plan.places[1].x, 0.5);
    EXPECT_FALSE(plan.places[1].port);
    EXPECT_NEAR(double(plan.places[1].arrival), double(kDeparture + kThreeHours), 1);
    EXPECT_EQ(plan.places[1].departure, plan.places[1].arrival);
    EXPECT_TRUE(plan.places[2].port);
    EXPECT_NEAR(double(plan.places[2].arrival), double(kDeparture + 2 * kThreeHours), 2);
    EXPECT_EQ(plan.places[2].departure - plan.places[2].arrival, 12 * 3600);
}

TEST_F(PlanOnChartTest, AVoyageThatGoesIsForgottenAndWithAllOfThemAll) {
    ASSERT_EQ(voyages.ShowVoyage("9"), 0);
    EXPECT_FALSE(told.back().places.empty());
    ASSERT_EQ(voyages.RemoveVoyageObjects("9"), 0);
    EXPECT_EQ(told.back().id, "9");
    EXPECT_TRUE(told.back().places.empty());
    VoyageLayer().ClearAllObjects();
    EXPECT_EQ(told.back().id, "");
    EXPECT_EQ(told.back().layer, "VOYAGE");
}

TEST_F(PlanOnChartTest, ABookThatCannotBeTimedIsForgottenToo) {
    Voyage().positionBook.points[1].psp = 0;
    voyages.ShowVoyage("9");
    for (const Interface::TrvMapPlan& plan : told) {
        EXPECT_TRUE(plan.places.empty());
    }
    EXPECT_TRUE(PlanOf(Voyage(), {"VOYAGE", "", "AISSHIPTYPE"}).places.empty());
}

}  // namespace
}  // namespace Tarvik::Seaplan
