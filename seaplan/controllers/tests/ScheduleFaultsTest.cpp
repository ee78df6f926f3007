// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/tests/PanelDesk.h"

/// What must not be stored, dropped or made up, over the real controllers and the real server.
namespace Tarvik::Seaplan {

namespace {

using Names = std::vector<std::string>;

class ScheduleFaultsTest : public testing::Test {
  protected:
    ScheduleFaultsTest() {
        desk.AddCategory("Cat");
        std::string user;
        EXPECT_EQ(desk.catalog.Connect(user), 0);
        user_ = user;
    }
    /// A voyage on the server, saved with these ports unless there are none, and all loaded.
    std::string Voyage(const Names& ports) {
        DeskVoyage voyage;
        voyage.name = "V" + std::to_string(++made_);
        voyage.calls = Rows(ports);
        const std::string vi = desk.AddVoyage("Cat", voyage);
        Restart();
        return vi;
    }
    /// A new client of the same user.
    void Restart() {
        desk.store.Clear();
        desk.voyages.Module().Pending().Forget();
        EXPECT_EQ(desk.catalog.Load(user_), 0);
        desk.ForgetRecords();
    }
    static PortCallRows Rows(const Names& ports) {
        PortCallRows rows(ports.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].ppn = ports[i];
            rows[i].pp = i == 0 ? "L" : "D";
            rows[i].psp = i == 0 ? 0.0F : 10.0F;
        }
        if (!rows.empty()) {
            rows.front().eta = Util::_datetime_t(0, 0, 8, 1, 3, 2024);
        }
        return rows;
    }
    PortCallRows Calculated(const std::string& vi, const Names& ports) {
        PortCallRows rows = Rows(ports);
        PortCallRows out;
        int had = 0;
        desk.voyages.ResolvePortIds(rows);
        EXPECT_EQ(desk.voyages.CalculateForVoyage(vi, rows, out, had), 0);
        return out;
    }
    /// Port names of the rows and of the book as the server has them.
    std::pair<Names, Names> OnServer(const std::string& vi) {
        PortCallRows rows;
        VoyPositionBook book;
        desk.voyages.Module().LoadPortCalls(vi, rows);
        desk.voyages.Module().LoadPositionBook(vi, book);
        std::pair<Names, Names> names;
        for (const VoyPortCall& row : rows) {
            names.first.push_back(row.ppn);
        }
        for (const PosBookPoint& point : book.points) {
            if (point.pst == PortPoint) {
                names.second.push_back(point.psn);
            }
        }
        return names;
    }
    /// Whether anything was sent that changes the server.
    bool SentAChange() const {
        return desk.Count(Ask::kSavePortCalls) + desk.Count(Ask::kBookDate) + desk.Count(Ask::kSaveBook) +
                   desk.Count({8}) >
               0;
    }

    PanelDesk desk;

  private:
    std::string user_;
    int made_ = 0;
};

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

TEST_F(ScheduleFaultsTest, ScheduleThatCouldNotBeOpenedAgainIsNotSaved) {
    const std::string vi = Voyage({});
    PortCallRows rows = Calculated(vi, {"ROTTERDAM", "GDANSK"});
    rows[1].pw = 2;
    EXPECT_LT(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(SentAChange());
}

TEST_F(ScheduleFaultsTest, RecalculationTakesNoLegOfAnotherPort) {
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

TEST_F(ScheduleFaultsTest, PendingRouteOutlivesOtherVoyagesAndTheTimer) {
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

TEST_F(ScheduleFaultsTest, DrawingAVoyageLeavesItsOwnPendingRoute) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    Calculated(vi, {"ROTTERDAM", "GDANSK"});
    EXPECT_EQ(desk.voyages.ShowVoyage(vi), 0);
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor(vi)) << "a tick of the timer is no reload";
    EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    EXPECT_FALSE(desk.voyages.Module().Pending().IsThere());
}

TEST_F(ScheduleFaultsTest, VoyageOfASaveThatBrokeOffOpensWithItsRows) {
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

TEST_F(ScheduleFaultsTest, VoyageWithoutABookOpensWithItsRowsButNotWhenTheServerIsSilent) {
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

TEST_F(ScheduleFaultsTest, BookOfOtherPortsThanTheRowsDoesNotOpen) {
    const std::string vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows = Rows({"ROTTERDAM", "GDANSK"});
    ASSERT_EQ(desk.voyages.Module().SavePortCalls(vi, rows), 0);
    EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), -5);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1].ppn, "GDANSK");
}

TEST_F(ScheduleFaultsTest, RefusedListsAreNoEmptyOnes) {
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

TEST_F(ScheduleFaultsTest, KnownLegsStandInForAServerThatIsNotThere) {
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

}  // namespace
}  // namespace Tarvik::Seaplan
