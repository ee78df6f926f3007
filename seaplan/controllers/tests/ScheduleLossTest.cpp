// SPDX-License-Identifier: MIT
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "seaplan/controllers/tests/ScheduleFaultsFixture.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/ManualClock.h"
#include "testsupport/ManualTimer.h"

/// What must not be dropped, taken for empty or taken from another voyage.
namespace Tarvik::Seaplan {

namespace {

using ScheduleLossTest = ScheduleFaultsFixture;

TEST_F(ScheduleLossTest, RecalculationTakesNoLegOfAnotherPort) {
    const std::string vi = Voyage({"ROTTERDAM", "GDANSK"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    // What a save of other ports over the old book once left behind.
    desk.store.FindVoyage(vi)->portCalls[1].ppn = "HAMBURG";
    desk.store.FindVoyage(vi)->portCalls[1].ppi = DeskPortId("HAMBURG");
    desk.routes->SetLeg("ROTTERDAM", "HAMBURG", 100);
    const PortCallRows healed = Calculated(vi, {"ROTTERDAM", "HAMBURG"});
    EXPECT_NEAR(healed[1].distance, 100.0F, 0.1F);
    EXPECT_EQ(desk.store.FindVoyage(vi)->positionBook.points.back().psn, "HAMBURG");
    EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    EXPECT_NEAR(rows[1].distance, 100.0F, 0.1F);
}

TEST_F(ScheduleLossTest, PendingRouteOutlivesOtherVoyagesAndTheTimer) {
    const std::string other = Voyage({"ROTTERDAM", "HAMBURG"});
    const std::string vi = Voyage({});
    const PortCallRows mine = Calculated(vi, {"ROTTERDAM", "GDANSK"});
    PortCallRows rows;
    EXPECT_EQ(desk.voyages.LoadSchedule(other, rows, 1), 0);
    EXPECT_EQ(desk.catalog.OpenRoute(other), 0);
    desk.voyages.StartTimer();
    desk.timer.Fire();
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor(vi));
    EXPECT_EQ(desk.voyages.SaveSchedule(other, rows, -1), 0);
    EXPECT_EQ(desk.voyages.SaveSchedule(vi, mine, -1), 0);
    EXPECT_EQ(OnServer(vi).second, (Names{"ROTTERDAM", "GDANSK"}));
}

TEST_F(ScheduleLossTest, DrawingAVoyageLeavesItsOwnPendingRoute) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    Calculated(vi, {"ROTTERDAM", "GDANSK"});
    EXPECT_EQ(desk.voyages.ShowVoyage(vi), 0);
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor(vi)) << "a tick of the timer is no reload";
    EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(desk.voyages.Module().Pending().IsThere());
}

TEST_F(ScheduleLossTest, VoyageOfASaveThatBrokeOffOpensWithItsRows) {
    for (const DeskRequest lost : {Ask::kBookDate, Ask::kSaveBook}) {
        const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
        PortCallRows rows;
        ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
        desk.store.FindVoyage(vi)->portCalls.clear();
        const PortCallRows mine = Calculated(vi, {"ROTTERDAM", "GDANSK", "ROSTOCK"});
        desk.Lose(lost);
        EXPECT_LT(desk.voyages.SaveSchedule(vi, mine, -1), 0);
        desk.Heal();
        Restart();
        EXPECT_LT(desk.voyages.LoadSchedule(vi, rows, -1), 0);
        ASSERT_EQ(rows.size(), 3U);
        EXPECT_EQ(rows[2].ppn, "ROSTOCK");
        EXPECT_EQ(rows[0].eta.fmt("%H:%M"), "08:00") << "the book's start is kept";
        EXPECT_LT(desk.voyages.ShowVoyage(vi), 0);
        const PortCallRows healed = Calculated(vi, {"ROTTERDAM", "GDANSK", "ROSTOCK"});
        EXPECT_EQ(desk.voyages.SaveSchedule(vi, healed, -1), 0);
        Restart();
        EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    }
}

TEST_F(ScheduleLossTest, VoyageWithoutABookOpensWithItsRowsButNotWhenTheServerIsSilent) {
    const std::string vi = Voyage({});
    const PortCallRows mine = Calculated(vi, {"ROTTERDAM", "GDANSK"});
    desk.Lose({8});
    EXPECT_LT(desk.voyages.SaveSchedule(vi, mine, -1), 0);
    desk.Heal();
    Restart();
    PortCallRows rows;
    EXPECT_LT(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    EXPECT_EQ(rows.size(), 2U);
    for (const bool refused : {true, false}) {
        refused ? desk.Refuse(Ask::kLoadBook) : desk.Lose(Ask::kLoadBook);
        EXPECT_LT(desk.voyages.LoadSchedule(vi, rows, -1), 0);
        EXPECT_TRUE(rows.empty()) << "what was not read must not look like a broken voyage";
        desk.Heal();
    }
}

TEST_F(ScheduleLossTest, BookOfOtherPortsThanTheRowsDoesNotOpen) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows = Rows({"ROTTERDAM", "GDANSK"});
    ASSERT_EQ(desk.voyages.Module().SavePortCalls(vi, rows), 0);
    EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), -5);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1].ppn, "GDANSK");
}

TEST_F(ScheduleLossTest, RefusedListsAreNoEmptyOnes) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    desk.store.Clear();
    desk.Refuse(Ask::kLoad);
    EXPECT_EQ(desk.catalogModule.LoadAll("u"), -2);
    std::string user;
    EXPECT_EQ(desk.catalog.Connect(user), 0);
    EXPECT_EQ(desk.catalog.Load(user), -2);
    EXPECT_TRUE(desk.store.categories.empty());
    desk.Refuse(Ask::kLoadBook);
    std::string book = "x";
    EXPECT_EQ(desk.voyages.Module().EnsurePositionBook(vi, "2024-03-01 08:00:00", book), -2);
    EXPECT_EQ(book, "");
    desk.Refuse(Ask::kLoadPortCalls);
    PortCallRows rows;
    EXPECT_EQ(desk.voyages.Module().LoadPortCalls(vi, rows), -2);
    desk.Refuse({12});
    Names times{"x"};
    EXPECT_EQ(desk.catalogModule.GetAisModTimes(vi, times), -2);
    EXPECT_TRUE(times.empty());
}

TEST_F(ScheduleLossTest, KnownLegsStandInForAServerThatIsNotThere) {
    const std::string first = Voyage({});
    const PortCallRows known = Calculated(first, {"ROTTERDAM", "GDANSK", "ROSTOCK"});
    EXPECT_FALSE(desk.voyages.Module().Pending().KnownSince().has_value());
    EXPECT_EQ(desk.Count(Ask::kRoute), 1) << "one request for the whole list";
    desk.clock.AdvanceSeconds(200 * 24 * 3600);
    desk.Lose(Ask::kRoute);
    const std::string vi = Voyage({});
    const PortCallRows rows = Calculated(vi, {"GDANSK", "ROSTOCK"});
    EXPECT_NEAR(rows.at(1).distance, known.at(2).distance, 1e-3F);
    ASSERT_TRUE(desk.voyages.Module().Pending().KnownSince().has_value());
    EXPECT_EQ(desk.voyages.Module().Pending().KnownSince()->fmt("%Y-%m-%d"), "2024-03-01");
    PortCallRows out;
    EXPECT_LT(desk.voyages.CalculatePortCalls(Rows({"ROSTOCK", "GDANSK"}), out), 0)
        << "nobody knows this leg";
    desk.Heal();
    desk.routes->Close(true);
    EXPECT_LT(desk.voyages.CalculatePortCalls(Rows({"GDANSK", "ROSTOCK"}), out), 0)
        << "a server that refuses is there";
    desk.routes->Close(false);
    Calculated(vi, {"GDANSK", "ROSTOCK"});
    EXPECT_FALSE(desk.voyages.Module().Pending().KnownSince().has_value());
}

TEST_F(ScheduleLossTest, TheDayOfKnownLegsIsThatOfTheOldestWhereverItStands) {
    Calculated(Voyage({}), {"GDANSK", "ROSTOCK"});
    desk.clock.AdvanceSeconds(40 * 24 * 3600);
    Calculated(Voyage({}), {"ROTTERDAM", "GDANSK"});
    Calculated(Voyage({}), {"ROSTOCK", "ROTTERDAM"});
    desk.Lose(Ask::kRoute);
    for (const Names& ports :
         {Names{"ROTTERDAM", "GDANSK", "ROSTOCK"}, Names{"GDANSK", "ROSTOCK", "ROTTERDAM"}}) {
        Calculated(Voyage({}), ports);
        ASSERT_TRUE(desk.voyages.Module().Pending().KnownSince().has_value());
        EXPECT_EQ(desk.voyages.Module().Pending().KnownSince()->fmt("%Y-%m-%d"), "2024-03-01");
    }
}

TEST_F(ScheduleLossTest, APassageThatWasChosenIsNoKnownLeg) {
    const Names ports{"ROTTERDAM", "HAMBURG"};
    const float usual = Calculated(Voyage({}), ports).at(1).distance;
    const std::string points[] = {"118", "105"};
    Interface::Raise(Interface::Bus::ClickVoyageType, &points[0]);
    Interface::Raise(Interface::Bus::ClickRoutePointType, &points[1]);
    ASSERT_NE(desk.voyages.Module().Pending().Stops().at(1).distance, usual);
    desk.Lose(Ask::kRoute);
    EXPECT_EQ(Calculated(Voyage({}), ports).at(1).distance, usual);
}

}  // namespace
}  // namespace Tarvik::Seaplan
