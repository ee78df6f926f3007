// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

TEST(PendingRoute, RollbackPutsTheRouteBackUnlessItIsKept) {
    PendingRoute pending;
    pending.Take(RouteStops(2));
    pending.Assign("9");
    {
        const PendingRoute::Rollback before(pending);
        pending.Take(RouteStops(3));
    }
    EXPECT_EQ(pending.Stops().size(), 2U);
    EXPECT_TRUE(pending.IsFor("9"));
    EXPECT_FALSE(pending.IsFor("8")) << "the voyage comes back with its route";
    {
        PendingRoute::Rollback before(pending);
        pending.Drop();
        before.Keep();
    }
    EXPECT_FALSE(pending.IsThere());
}

TEST(PendingRoute, BelongsToItsVoyageOrToNone) {
    PendingRoute pending;
    EXPECT_FALSE(pending.IsFor("9")) << "there is none";
    EXPECT_FALSE(pending.IsFor(""));
    pending.Take(RouteStops(2));
    EXPECT_FALSE(pending.IsFor("9")) << "it was calculated for another table";
    EXPECT_TRUE(pending.IsFor(""));
    pending.Assign("9");
    EXPECT_TRUE(pending.IsFor("9"));
    pending.Assign("8");
    EXPECT_FALSE(pending.IsFor("9"));
    pending.Change(RouteStops(2));
    EXPECT_FALSE(pending.IsFor("9")) << "another way is still the same voyage's";
    pending.Take(RouteStops(2));
    EXPECT_TRUE(pending.IsFor("")) << "a new route is nobody's";
}

TEST(PendingRoute, EmptyingOneTableLeavesAnothersRoute) {
    PendingRoute pending;
    pending.Take(RouteStops(2));
    pending.Assign("9");
    pending.NoteShown(PortCallRows(1));
    pending.ForgetFor("8");
    EXPECT_TRUE(pending.IsFor("9"));
    EXPECT_TRUE(pending.PortNames().empty());
    pending.ForgetFor("9");
    EXPECT_FALSE(pending.IsThere());
}

/// Voyage 9 with a route that was calculated for it, and voyage 8 on the server.
class PendingRouteOfVoyageTest : public ScheduleFixture {
  protected:
    PendingRouteOfVoyageTest() {
        folder.WriteSamplePoints();
        store.voyages["8"].vi = "8";
        store.categoryVoyages["1"]["8"] = InUse;
        int hadPortCalls = 0;
        host.Reply(1, kRouteAb);
        EXPECT_EQ(voyages.CalculateForVoyage("9", TypedRows(), rows, hadPortCalls), 0);
    }
};

TEST_F(PendingRouteOfVoyageTest, LoadingOrShowingAnotherVoyageLeavesIt) {
    PortCallRows others;
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("8", others, -1), 0);
    EXPECT_TRUE(module.Pending().IsFor("9"));
    EXPECT_EQ(module.Pending().PortNames(), (Texts{"A", "B"}));
    EXPECT_EQ(voyages.ShowVoyage("8"), 0);
    EXPECT_TRUE(module.Pending().IsFor("9"));
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", others, -1), 0);
    EXPECT_FALSE(module.Pending().IsThere()) << "its own reload drops it";
}

TEST_F(PendingRouteOfVoyageTest, SavingAnotherVoyageNeitherTakesNorDropsIt) {
    PortCallRows others;
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("8", others, -1), 0);
    store.voyages["8"].positionBook.points[1].position = "0.500,2.000";
    host.Reply(11, "{eid:0}");
    host.Reply(14, "{eid:0}");
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(voyages.SaveSchedule("8", others, -1), 0);
    EXPECT_NE(host.TextsOf(9).at(0).find("0.500|2.000"), std::string::npos) << "it is its own book";
    EXPECT_TRUE(module.Pending().IsFor("9"));
}

TEST_F(PendingRouteOfVoyageTest, ForgettingDropsItAndThePortNames) {
    module.Pending().Forget();
    EXPECT_FALSE(module.Pending().IsThere());
    EXPECT_TRUE(module.Pending().PortNames().empty());
}

}  // namespace
}  // namespace Tarvik::Seaplan
