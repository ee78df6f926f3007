// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ScheduleLoading.h"
#include "seaplan/controllers/ScheduleSaving.h"
#include "seaplan/controllers/tests/ScheduleFaultsFixture.h"
#include "seaplan/panels/tests/DeskRoutes.h"

/// What must not be stored, and what is told instead.
namespace Tarvik::Seaplan {

namespace {

using ScheduleFaultsTest = ScheduleFaultsFixture;

TEST_F(ScheduleFaultsTest, RowsOfOtherPortsThanThePendingRoutesAreNotSaved) {
    const std::string vi = Voyage({});
    PortCallRows rows = Calculated(vi, {"ROTTERDAM", "GDANSK"});
    rows[1].ppn = "HAMBURG";
    rows[1].ppi.clear();
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(SentAChange());
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor(vi)) << "nothing is lost by asking";
}

TEST_F(ScheduleFaultsTest, RowsOfOtherPortsThanTheBooksAreNotSaved) {
    const std::string vi = Voyage({"ROTTERDAM", "GDANSK"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    desk.ForgetRecords();
    PortCallRows swapped = rows;
    std::swap(swapped[0].ppn, swapped[1].ppn);
    std::swap(swapped[0].ppi, swapped[1].ppi);
    EXPECT_LT(desk.voyages.SaveSchedule(vi, swapped, -1), 0);
    swapped = rows;
    swapped.push_back(rows.front());
    EXPECT_LT(desk.voyages.SaveSchedule(vi, swapped, -1), 0);
    EXPECT_FALSE(SentAChange());
    EXPECT_EQ(desk.voyages.SaveSchedule(vi, rows, -1), 0);
}

TEST_F(ScheduleFaultsTest, RowsWithoutAnyRouteAreNotSaved) {
    const std::string vi = Voyage({});
    PortCallRows rows = Rows({"ROTTERDAM", "GDANSK"});
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(SentAChange());
}

TEST_F(ScheduleFaultsTest, AnUnknownPortIsNeverStored) {
    const std::string vi = Voyage({"ROTTERDAM", "GDANSK"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    desk.ForgetRecords();
    rows[1].ppn = "Gdanks";
    rows[1].ppi.clear();
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(SentAChange());
    // A client that sends it all the same is refused, and nothing of it is kept.
    EXPECT_LT(desk.voyages.Module().SavePortCalls(vi, rows), 0);
    rows[1].ppi = "77777";
    EXPECT_LT(desk.voyages.Module().SavePortCalls(vi, rows), 0);
    EXPECT_EQ(OnServer(vi).first, (Names{"ROTTERDAM", "GDANSK"}));
}

TEST_F(ScheduleFaultsTest, APortThatTheDictionaryHasLostIsNotSavedThoughItsBookFits) {
    const std::string vi = Voyage({"ROTTERDAM", "GDANSK"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    desk.store.FindVoyage(vi)->positionBook.points.back().psn = "Danzig";
    rows[1].ppn = "Danzig";
    rows[1].ppi.clear();
    desk.ForgetRecords();
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(SentAChange());
    EXPECT_EQ(desk.voyages.LastFault().cause, ScheduleFault::Cause::UnknownPort);
}

TEST_F(ScheduleFaultsTest, ScheduleThatCouldNotBeOpenedAgainIsNotSaved) {
    const std::string vi = Voyage({});
    PortCallRows rows = Calculated(vi, {"ROTTERDAM", "GDANSK"});
    for (const float weather : {2.0F, 0.9995F, 0.99999F}) {
        rows[1].pw = weather;
        EXPECT_EQ(desk.voyages.SaveSchedule(vi, rows, -1), -7) << weather;
    }
    EXPECT_FALSE(SentAChange());
    rows[1].pw = 0.999F;
    EXPECT_EQ(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    desk.store.FindVoyage(vi)->portCalls.clear();
    EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0) << "what is stored opens";
}

TEST_F(ScheduleFaultsTest, PortCallsWithoutNameOrPurposeAreRefusedByTheServer) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    for (const auto& [name, purpose] :
         {std::pair("", "D"), std::pair("GDANSK", " "), std::pair("GDANSK", "")}) {
        PortCallRows rows = Rows({"ROTTERDAM", "GDANSK"});
        desk.voyages.ResolvePortIds(rows);
        rows[1].ppn = name;
        rows[1].pp = purpose;
        EXPECT_EQ(desk.voyages.Module().SavePortCalls(vi, rows), -3) << name << "," << purpose;
    }
    EXPECT_EQ(OnServer(vi).first, (Names{"ROTTERDAM", "HAMBURG"}));
}

TEST_F(ScheduleFaultsTest, PlaceOfTheShipIsNoPortCall) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    desk.ForgetRecords();
    VoyPortCall ship;
    ship.ppn = "0.100,0.400";
    ship.pp = " ";
    rows.insert(rows.begin() + 1, ship);
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(SentAChange());
}

TEST_F(ScheduleFaultsTest, MissingPurposesAreFilledBeforeASave) {
    const std::string vi = Voyage({});
    PortCallRows rows = Calculated(vi, {"ROTTERDAM", "GDANSK", "ROSTOCK"});
    rows[0].pp = " ";
    rows[1].pp = " ";
    rows[2].pp = "";
    EXPECT_EQ(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    ASSERT_EQ(desk.voyages.Module().LoadPortCalls(vi, rows), 0);
    EXPECT_EQ(rows[0].pp + rows[1].pp + rows[2].pp, "LDD");
}

TEST_F(ScheduleFaultsTest, VesselThatIsSavedIsNoFailureWhereNothingIsToBeAsked) {
    const std::string vi = Voyage({});
    EXPECT_EQ(desk.catalog.ChangeVessel(vi, "", "Typed by hand", 0), 0);
    EXPECT_EQ(desk.catalog.ChangeVessel(vi, "s1", "Known", 0), -4) << "no plug-in tells positions";
    EXPECT_EQ(desk.store.FindVoyage(vi)->vsn, "Known");
}

TEST(ScheduleCodes, FailureToDrawIsNoFailureToSaveOrLoad) {
    for (const int code : {0, -8, -9, -10}) {
        EXPECT_TRUE(IsScheduleSaved(code)) << code;
    }
    for (const int code : {-1, -2, -3, -4, -5, -6, -7, -11, -12}) {
        EXPECT_FALSE(IsScheduleSaved(code)) << code;
    }
    for (const int code : {0, -6, -7}) {
        EXPECT_EQ(LoadEndOf(code), LoadEnd::Loaded) << code;
    }
    for (const int code : {-1, -2, -3, -4, -5, -8}) {
        EXPECT_NE(LoadEndOf(code), LoadEnd::Loaded) << code;
    }
}

TEST_F(ScheduleFaultsTest, RouteOfNoVoyageIsNotTakenByTheNextSave) {
    const std::string vi = Voyage({});
    PortCallRows rows = Rows({"ROTTERDAM", "GDANSK"});
    PortCallRows out;
    desk.voyages.ResolvePortIds(rows);
    ASSERT_EQ(desk.voyages.CalculatePortCalls(rows, out), 0);
    EXPECT_LT(desk.voyages.SaveSchedule(vi, out, -1), 0);
    EXPECT_FALSE(SentAChange());
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor(""));
    desk.voyages.Module().Pending().Assign(vi);
    EXPECT_EQ(desk.voyages.SaveSchedule(vi, out, -1), 0);
}

TEST_F(ScheduleFaultsTest, CauseOfAFailureIsTold) {
    using Cause = ScheduleFault::Cause;
    const std::string vi = Voyage({});
    PortCallRows rows = Rows({"ROTTERDAM", "GDANSK", "Gdanks"});
    PortCallRows out;
    int had = 0;
    desk.voyages.ResolvePortIds(rows);
    EXPECT_LT(desk.voyages.CalculateForVoyage(vi, rows, out, had), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::UnknownPort);
    EXPECT_EQ(desk.voyages.LastFault().row, 2U);
    EXPECT_EQ(desk.voyages.LastFault().port, "Gdanks");
    rows.pop_back();
    desk.routes->Close(true);
    EXPECT_LT(desk.voyages.CalculateForVoyage(vi, rows, out, had), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::NoRoute);
    desk.routes->Close(false);
    desk.Lose(Ask::kRoute);
    EXPECT_LT(desk.voyages.CalculateForVoyage(vi, rows, out, had), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::Connection);
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::NotCalculated);
    desk.Heal();
    const PortCallRows mine = Calculated(vi, {"ROTTERDAM", "GDANSK"});
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::None);
    desk.Refuse(Ask::kSavePortCalls);
    EXPECT_LT(desk.voyages.SaveSchedule(vi, mine, -1), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::Refused);
    desk.Heal();
    desk.Lose(Ask::kSavePortCalls);
    EXPECT_LT(desk.voyages.SaveSchedule(vi, mine, -1), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::Connection);
}

TEST_F(ScheduleFaultsTest, PanelCanAskWhetherARowsRouteIsThere) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    EXPECT_TRUE(desk.voyages.HasRouteFor(vi, Rows({"ROTTERDAM", "HAMBURG"})));
    EXPECT_FALSE(desk.voyages.HasRouteFor(vi, Rows({"HAMBURG", "ROTTERDAM"})));
    EXPECT_FALSE(desk.voyages.HasRouteFor("x", Rows({"ROTTERDAM", "HAMBURG"})));
    Calculated(vi, {"ROTTERDAM", "GDANSK"});
    EXPECT_TRUE(desk.voyages.HasRouteFor(vi, Rows({"ROTTERDAM", "GDANSK"})));
    EXPECT_FALSE(desk.voyages.HasRouteFor(vi, Rows({"ROTTERDAM", "HAMBURG"})))
        << "the newer route counts, not the book";
}

}  // namespace
}  // namespace Tarvik::Seaplan
