// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/plan/PlanOnChart.h"
#include "host/client/tests/SamplePlan.h"

namespace Tarvik::Client {

namespace {

TEST(PlanOnChart, NamesThePortsInTheirPlacesWithTheTimesOfTheTable) {
    const Interface::TrvMapPlan told = PlanOnChart(SamplePlan());
    ASSERT_EQ(told.places.size(), 3U);
    EXPECT_EQ(told.places[0].name, "Port, \"A\"");
    EXPECT_TRUE(told.places[0].port);
    EXPECT_FALSE(told.places[1].port);
    EXPECT_EQ(told.places[2].x, -170.5);
    EXPECT_EQ(told.places[2].y, -14);
    // 2026-12-11 20:00 in the zone in which the chart reads, 12:00 UTC.
    EXPECT_EQ(told.places[2].arrival, 1796990400);
    EXPECT_EQ(told.places[0].departure - told.places[0].arrival, 12 * 3600);
}

TEST(PlanOnChart, APlaceThatCannotBeReadLeavesThemAllOut) {
    Interface::PlanResult plan = SamplePlan();
    plan.route[1].position = "somewhere";
    EXPECT_TRUE(PlanOnChart(plan).places.empty());
}

}  // namespace
}  // namespace Tarvik::Client
