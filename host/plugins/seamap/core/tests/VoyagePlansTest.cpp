// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/VoyagePlans.h"

namespace Tarvik::Seamap {

namespace {

constexpr PlanTime kHour = 3600;

/// From A, left at hour 10, by a point at 20 to B, where she lies from 30 to 40, and on to C at 60.
Interface::TrvMapPlan PlanAt(const std::string& id, PlanTime later = 0) {
    const auto at = [later](PlanTime hour) { return (hour + later) * kHour; };
    return {"VOYAGE",
            id,
            "SHIP",
            "Voyage " + id,
            "",
            {{170, 0, at(0), at(10), "A", true},
             {179, 0, at(20), at(20), "", false},
             {-171, 0, at(30), at(40), "B", true},
             {-171, -20, at(60), at(60), "C", true}}};
}

class VoyagePlansTest : public ::testing::Test {
  protected:
    PlannedShip ShipAt(PlanTime hour, PlanTime seconds = 0) {
        const auto ships = plans_.At(hour * kHour + seconds);
        EXPECT_EQ(ships.size(), 1U);
        return ships.at(0);
    }
    VoyagePlans plans_;
};

TEST_F(VoyagePlansTest, AShipStandsWhereItsPlanHasIt) {
    plans_.Set(PlanAt("7"));
    EXPECT_NEAR(Unproject(ShipAt(-5).place).x, 170, 1e-9) << "before all";
    EXPECT_NEAR(Unproject(ShipAt(9).place).x, 170, 1e-9) << "before departure";
    EXPECT_LT(ShipAt(9).course, 0) << "in port";
    EXPECT_EQ(ShipAt(9).nextPort, 0U);
    EXPECT_NEAR(Unproject(ShipAt(15).place).x, 174.5, 1e-9);
    EXPECT_NEAR(ShipAt(15).course, 90, 1e-9);
    EXPECT_EQ(ShipAt(15).nextPort, 2U) << "the port behind the point of the way";
    EXPECT_NEAR(Unproject(ShipAt(25).place).x, -176, 1e-9) << "over the date line the short way";
    EXPECT_NEAR(ShipAt(25).course, 90, 1e-9);
    EXPECT_NEAR(Unproject(ShipAt(35).place).x, -171, 1e-9);
    EXPECT_LT(ShipAt(35).course, 0);
    EXPECT_EQ(ShipAt(35).nextPort, 2U);
    EXPECT_NEAR(ShipAt(50).course, 180, 1e-9);
    EXPECT_NEAR(Unproject(ShipAt(60).place).y, -20, 1e-9);
    EXPECT_NEAR(Unproject(ShipAt(1000).place).y, -20, 1e-9);
    EXPECT_EQ(ShipAt(1000).nextPort, 3U);
}

TEST_F(VoyagePlansTest, TimesReachFromTheFirstDepartureToTheLastArrival) {
    EXPECT_FALSE(plans_.Times().has_value());
    plans_.Set(PlanAt("7"));
    plans_.Set(PlanAt("8", 100));
    ASSERT_TRUE(plans_.Times().has_value());
    EXPECT_EQ(plans_.Times()->first, 10 * kHour);
    EXPECT_EQ(plans_.Times()->last, 160 * kHour);
    EXPECT_EQ(plans_.At(0).size(), 2U);
}

TEST_F(VoyagePlansTest, PlansAreForgottenByIdByLayerAndWhenTheyAreNone) {
    int told = 0;
    plans_.SetObserver([&told] { ++told; });
    for (const char* id : {"7", "8", "9", "10"}) {
        plans_.Set(PlanAt(id));
    }
    plans_.Set({"VOYAGE", "7", "SHIP", "", "", {}});
    EXPECT_EQ(plans_.All().size(), 3U);
    Interface::TrvMapPlan back = PlanAt("8");
    back.places[2].arrival = 0;
    plans_.Set(back);
    EXPECT_EQ(plans_.All().count("8"), 0U) << "times that go back";
    Interface::TrvMapPlan nowhere = PlanAt("9");
    nowhere.places[1].x = std::numeric_limits<double>::quiet_NaN();
    plans_.Set(nowhere);
    EXPECT_EQ(plans_.All().count("9"), 0U);
    plans_.Set({"OTHER", "", "", "", "", {}});
    EXPECT_EQ(plans_.All().size(), 1U);
    plans_.Set({"VOYAGE", "", "", "", "", {}});
    EXPECT_TRUE(plans_.IsEmpty());
    EXPECT_EQ(told, 9);
}

TEST_F(VoyagePlansTest, LinesAndShipsBelongToTheirVoyage) {
    plans_.Set(PlanAt("7"));
    EXPECT_NE(plans_.Find("VOYAGE", "7"), nullptr);
    EXPECT_NE(plans_.Find("VOYAGE", "7_5"), nullptr);
    EXPECT_EQ(plans_.Find("VOYAGE", "77_5"), nullptr);
    EXPECT_EQ(plans_.Find("BOOK", "7"), nullptr);
    EXPECT_TRUE(plans_.IsShip("VOYAGE", "SHIP", "7"));
    EXPECT_FALSE(plans_.IsShip("VOYAGE", "LINE", "7"));
    EXPECT_FALSE(plans_.IsShip("VOYAGE", "SHIP", "7_5"));
}

TEST_F(VoyagePlansTest, ALegIsFoundByItsEndsAndByOneWhereTheShipCutsIt) {
    plans_.Set(PlanAt("7"));
    const VoyagePlan& plan = plans_.All().at("7");
    const auto leg = [&plan](GeoPoint from, GeoPoint to) {
        const auto found = VoyagePlans::LegOf(plan, Project(from), Project(to));
        return found ? std::pair(static_cast<int>(found->from), static_cast<int>(found->to))
                     : std::pair(-1, -1);
    };
    EXPECT_EQ(leg({179, 0}, {-171, 0}), std::pair(1, 2)) << "though the line is cut at the date line";
    EXPECT_EQ(leg({-171, 0}, {-171, -20}), std::pair(2, 3));
    EXPECT_EQ(leg({170, 0}, {174, 0}), std::pair(0, 1)) << "sailed";
    EXPECT_EQ(leg({174, 0}, {179, 0}), std::pair(0, 1)) << "ahead";
    EXPECT_EQ(leg({0, 10}, {5, 10}), std::pair(-1, -1));
}

TEST(PlanTimeText, IsReadInTheZoneOfPlanTimes) {
    EXPECT_EQ(PlanTimeText(1709272800), "2024-03-01 14:00");
}

TEST_F(VoyagePlansTest, AVoyageKeepsItsColourAndANewOneTakesTheFirstThatIsFree) {
    for (const char* id : {"7", "3", "9"}) {
        plans_.Set(PlanAt(id));
    }
    const auto tint = [this](const char* id) { return plans_.All().at(id).tint; };
    EXPECT_EQ(std::vector({tint("7"), tint("3"), tint("9")}), (std::vector<std::size_t>{0, 1, 2}));
    const std::uint64_t before = plans_.Revision();
    plans_.Set(PlanAt("3", 5));
    EXPECT_EQ(tint("3"), 1U) << "planned anew";
    EXPECT_GT(plans_.Revision(), before);
    plans_.Set({"VOYAGE", "7", "SHIP", "", "", {}});
    plans_.Set(PlanAt("4"));
    EXPECT_EQ(tint("4"), 0U) << "the colour of the one that has gone";
    EXPECT_EQ(tint("9"), 2U);
}

}  // namespace
}  // namespace Tarvik::Seamap
