// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace {

class PanelDeskTest : public ::testing::Test {
  protected:
    PanelDesk desk;

    int Load() {
        std::string user;
        return desk.catalog.Connect(user) == 0 ? desk.catalog.Load(user) : -1;
    }
};

}  // namespace

TEST_F(PanelDeskTest, WhatLiesOnTheServerIsLoaded) {
    desk.AddCategory("Full", true);
    desk.AddVoyage("Full", {.name = "A", .vsi = "7", .vsn = "ANNA", .vsmsi = 55, .pinned = true});
    desk.AddVoyage("Full", {.name = "B", .state = InRecycleBin, .traced = true, .remark = true});
    desk.AddVoyage("Full", {.name = "C", .state = Destroyed});
    desk.AddCategory("Old");
    desk.MoveCategory("Old", InRecycleBin);
    EXPECT_TRUE(desk.host.requests.empty());
    ASSERT_EQ(Load(), 0);
    EXPECT_EQ(desk.Category("Full").crk, 1);
    EXPECT_EQ(desk.store.categoryStates.at(desk.Category("Old").ci), InRecycleBin);
    EXPECT_EQ(desk.Voyage("A").vsmsi, 55);
    EXPECT_EQ(desk.Voyage("A").vr, 1);
    EXPECT_EQ(desk.Voyage("B").va, 1);
    EXPECT_EQ(desk.Voyage("B").vrk, 1);
    EXPECT_EQ(desk.store.categoryVoyages.at(desk.Category("Full").ci).at(desk.Voyage("B").vi), InRecycleBin);
    EXPECT_THAT(desk.store.voyages, SizeIs(2));
    EXPECT_THAT(desk.Sent(Ask::kLoad), SizeIs(1));
}

TEST_F(PanelDeskTest, PortCallsComeBackWithTimesAndDistances) {
    desk.AddCategory("Full");
    const std::string vi = desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(5, 3)});
    ASSERT_EQ(Load(), 0);
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    ASSERT_THAT(rows, SizeIs(3));
    EXPECT_EQ(rows[0].ppn, "ROTTERDAM");
    EXPECT_EQ(rows[0].eta, Util::_datetime_t(0, 0, 8, 5, 3, 2024));
    EXPECT_NEAR(rows[1].distance, 240, 0.01);
    EXPECT_NEAR(rows[2].distance, 240, 0.01);
    EXPECT_EQ(rows[2].eta.fmt("%Y-%m-%d %H"), "2024-03-07 08");
    EXPECT_THAT(desk.Voyage("A").positionBook.points, SizeIs(5));
}

TEST_F(PanelDeskTest, RefusedAndLostRequestsFailAndTheServerKeepsWhatItHas) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ASSERT_EQ(Load(), 0);
    const std::string vi = desk.Voyage("A").vi;
    desk.Refuse(Ask::kRenameVoyage);
    desk.Lose(Ask::kOpenAis);
    EXPECT_LT(desk.catalog.RenameVoyage(vi, "B"), 0);
    EXPECT_LT(desk.catalog.OpenAis(vi), 0);
    EXPECT_EQ(desk.catalog.OpenRoute(vi), 0);
    desk.Heal();
    desk.store.Clear();
    ASSERT_EQ(Load(), 0);
    EXPECT_EQ(desk.Voyage("A").va, 0);
    EXPECT_EQ(desk.Voyage("A").vr, 1);
    EXPECT_EQ(desk.Count(Ask::kRenameVoyage, "\"B\""), 1);
}

TEST_F(PanelDeskTest, LegsAreAsLongAsTheTestSays) {
    desk.routes->SetLeg("ROTTERDAM", "HAMBURG", 3000);
    desk.routes->SetPassage("HAMBURG", "GDANSK", 480);
    PortCallRows calls = PanelDesk::Calls(1, 3);
    desk.voyages.ResolvePortIds(calls);
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.CalculatePortCalls(calls, rows), 0);
    EXPECT_NEAR(rows[1].distance, 3000, 0.01);
    EXPECT_NEAR(rows[2].distance, 240, 0.01);
    const std::string passage = "118";
    const std::string other = "105";
    Interface::Raise(Interface::Bus::ClickVoyageType, &passage);
    Interface::Raise(Interface::Bus::ClickRoutePointType, &other);
    desk.voyages.ResolvePortIds(rows);
    ASSERT_EQ(desk.voyages.ScheduleCurrentRoute(rows, calls), 0);
    EXPECT_NEAR(calls[2].distance, 480, 0.01);
    desk.routes->Close(true);
    EXPECT_LT(desk.voyages.CalculatePortCalls(rows, calls), 0);
}

TEST_F(PanelDeskTest, NearestWayEndsAtThePort) {
    std::vector<std::string> points;
    ASSERT_EQ(desk.portCallModule.RequestNearestRoute("0.5,1", DeskPortId("HAMBURG"), points), 0);
    EXPECT_THAT(points, ElementsAre("0.5,1", "0.8,0"));
}

}  // namespace Tarvik::Seaplan
