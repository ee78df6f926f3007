// SPDX-License-Identifier: MIT
#include <memory>

#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/RouteFixture.h"
#include "testsupport/BoundNames.h"

namespace Tarvik::Seaplan {

namespace {

/// Raises a click; the handler's answer, empty for success.
std::string Click(const char* event, const std::string* id) {
    const auto answers = Core::TrvKernel::Instance()->RaiseTrvEvent(event, const_cast<std::string*>(id));
    return answers.size() == 1 && answers[0] != nullptr ? static_cast<const char*>(answers[0]) : "";
}

class ChartClickTest : public RouteFixture {
  protected:
    static std::string ClickPoint(const std::string& id) { return Click("TRV_MAP_LCLICK_VOYAGETYPE", &id); }
    static std::string ClickAlternative(const std::string& id) {
        return Click("TRV_MAP_LCLICK_RPOINTTYPE", &id);
    }
    static std::string ClickShip(const std::string& vi) { return Click("TRV_MAP_LCLICK_AISSHIPTYPE", &vi); }
    /// The route of `reply` between as many of A, B and C, drawn.
    void DrawRoute(const std::string& reply, const PortCallRows& typed = TypedRows()) {
        host.Reply(1, reply);
        EXPECT_EQ(module.GetRoute(typed, rows, true), 0);
        EXPECT_EQ(module.DrawCurrentRoute(), 0);
        host.chartCalls.clear();
    }
    /// One segment to `to` with a group text.
    static std::string StopWith(const std::string& from, const std::string& to, const std::string& group,
                                const std::string& locks = "") {
        return R"({point_cd:")" + to + R"(",routes:[{route:"1",from_cd:")" + from + R"(",end_cd:")" + to +
               R"(",pointset:"0.000,0.000|1.000,0.000"}],rp_groups:[")" + group + R"("],lock_rp_id_str:")" +
               locks + R"("})";
    }
    Texts LabelIds() const {
        Texts ids;
        for (const auto& label : host.ChartCallsOf("TRV_MAP_ADD_POINT_LABEL")) {
            ids.push_back(label.id);
        }
        return ids;
    }
};

TEST_F(ChartClickTest, RoutePointShowsItsAlternatives) {
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(TypedRows(), rows, true);
    EXPECT_EQ(ClickPoint("118"), "-1") << "route points are known once the route is drawn";
    EXPECT_EQ(module.DrawCurrentRoute(), 0);
    host.chartCalls.clear();
    EXPECT_EQ(ClickPoint("118"), "");
    const auto labels = host.ChartCallsOf("TRV_MAP_ADD_POINT_LABEL");
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_EQ(labels[0].id, "105");
    EXPECT_EQ(labels[0].type, "RPOINTTYPE");
    EXPECT_EQ(labels[0].points, Texts{"South Cape"});
    EXPECT_EQ(labels[0].position, "0.5,-1.0");
    EXPECT_EQ(labels[1].id, "116");
    EXPECT_EQ(host.chartCalls.front().service, "TRV_MAP_DEL_OBJECT_BY_TYPE") << "older ones go first";
    EXPECT_EQ(host.chartCalls.front().type, "RPOINTTYPE");
    EXPECT_EQ(host.chartCalls.back().service, "TRV_MAP_SET_EXTENT");
}

TEST_F(ChartClickTest, UnknownPointAndMissingIdAreRefused) {
    DrawRoute(kRouteWithAlternatives);
    EXPECT_EQ(ClickPoint("none"), "-1");
    EXPECT_EQ(ClickPoint(""), "-1");
    EXPECT_EQ(Click("TRV_MAP_LCLICK_VOYAGETYPE", nullptr), "-1");
    EXPECT_EQ(Click("TRV_MAP_LCLICK_RPOINTTYPE", nullptr), "-1");
    EXPECT_EQ(Click("TRV_MAP_LCLICK_AISSHIPTYPE", nullptr), "-1");
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(ChartClickTest, PointOfNoGroupRemovesTheAlternativesShown) {
    DrawRoute(kRouteWithAlternatives);
    EXPECT_EQ(ClickPoint("105"), "");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_DEL_OBJECT_BY_TYPE").size(), 1U);
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_ADD_POINT_LABEL").empty());
}

TEST_F(ChartClickTest, LastStopWithAGroupOfThePointAnswers) {
    DrawRoute(R"([{point_cd:"40001"},)" + StopWith("40001", "40002", "118=40001,40002;105") + "," +
                  StopWith("40002", "40003", "118=40002,40003;116") + "]",
              ThreeRows());
    EXPECT_EQ(ClickPoint("118"), "");
    EXPECT_EQ(LabelIds(), Texts{"116"});
}

TEST_F(ChartClickTest, AlternativeThatTheTableLacksEndsTheShowing) {
    DrawRoute(R"([{point_cd:"40001"},)" + StopWith("40001", "40002", "118=40001,40002;105|999|116") + "]");
    EXPECT_EQ(ClickPoint("118"), "-2");
    EXPECT_EQ(LabelIds(), Texts{"105"});
}

TEST_F(ChartClickTest, GroupWithoutAnIdIsReadAndNeverShown) {
    host.Reply(1, R"([{point_cd:"40001"},)" + StopWith("40001", "40002", "=40001,40002;105") + "]");
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, true), 0);
    EXPECT_LT(module.DrawCurrentRoute(), 0) << "it has no label";
    EXPECT_EQ(ClickPoint(""), "-1");
}

TEST_F(ChartClickTest, ChosenAlternativeAsksForTheOtherRouteAndRedraws) {
    EXPECT_EQ(ClickAlternative("105"), "-1") << "nothing was clicked before";
    DrawRoute(kRouteWithAlternatives);
    ClickPoint("118");
    EXPECT_EQ(ClickAlternative("105"), "-3");
    EXPECT_EQ(host.Texts().back(),
              R"(1 {"rp_id":"105","orig_rp_id":"118","leg":1,"rp_group":"40001,40002;105|116|118",)"
              R"("pointList":"40001#40002|40001,118,40002|105=40001,40002"})");
    host.Reply(1, "{eid:1}");
    EXPECT_EQ(ClickAlternative("105"), "-4");
    EXPECT_EQ(module.Pending().Stops().size(), 2U) << "a failed request leaves the stops";
    host.Reply(1, kRouteAb);
    host.chartCalls.clear();
    EXPECT_EQ(ClickAlternative("105"), "");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE").size(), 1U);
    EXPECT_EQ(ClickAlternative("105"), "-2") << "the new route has no such group";
}

/// The way from A to B by the south.
constexpr const char* kLongerRoute =
    R"([{point_cd:"40001"},{point_cd:"40002",routes:[{route:"1",from_cd:"40001",end_cd:"105",)"
    R"(pointset:"0.000,0.000|0.500,-1.000"},{route:"2",from_cd:"105",end_cd:"40002",)"
    R"(pointset:"0.500,-1.000|1.000,0.000"}],rp_groups:["105=40001,40002;116|118"]}])";

TEST_F(ChartClickTest, ScheduleFollowsTheChosenRoute) {
    DrawRoute(kRouteWithAlternatives);
    int told = 0;
    module.SetRouteListener([&] { ++told; });
    ClickPoint("118");
    host.Reply(1, "{eid:1}");
    ClickAlternative("105");
    EXPECT_EQ(told, 0) << "the route is the old one";
    host.Reply(1, kLongerRoute);
    EXPECT_EQ(ClickAlternative("105"), "");
    EXPECT_EQ(told, 1);
    module.SetRouteListener({});
    PortCallRows followed;
    EXPECT_EQ(voyages.ScheduleCurrentRoute(TypedRows(), followed), 0);
    host.Reply(1, kLongerRoute);
    PortCallRows calculated;
    EXPECT_EQ(voyages.CalculatePortCalls(TypedRows(), calculated), 0);
    ASSERT_EQ(followed.size(), 2U);
    EXPECT_GT(followed[1].distance, 120.0F);
    EXPECT_EQ(followed[1].distance, calculated[1].distance);
    EXPECT_EQ(followed[1].eta, calculated[1].eta);
    EXPECT_EQ(followed[1].psp, calculated[1].psp);
}

TEST_F(ChartClickTest, ScheduleOfOtherPortsThanTheRoutesIsRefused) {
    PortCallRows followed(1);
    EXPECT_EQ(voyages.ScheduleCurrentRoute({}, followed), -1);
    EXPECT_EQ(voyages.ScheduleCurrentRoute(TypedRows(), followed), -1);
    EXPECT_TRUE(followed.empty());
    DrawRoute(kRouteWithAlternatives);
    EXPECT_EQ(voyages.ScheduleCurrentRoute(ThreeRows(), followed), -1);
    PortCallRows others = TypedRows();
    others[1].ppi = "40003";
    EXPECT_EQ(voyages.ScheduleCurrentRoute(others, followed), -1);
    PortCallRows stormy = TypedRows();
    stormy[1].pw = 1;
    EXPECT_EQ(voyages.ScheduleCurrentRoute(stormy, followed), -2);
    EXPECT_TRUE(followed.empty());
}

TEST_F(ChartClickTest, EarlierChoicesOfTheStopStayAndOtherStopsGoByTheirIds) {
    DrawRoute(R"([{point_cd:"40001"},)" +
                  StopWith("40001", "40002", "118=40001,40002;105|116", "105=a,b.116=c,d.junk") + "," +
                  StopWith("40002", "40003", "118=40002,40003;116") + "]",
              ThreeRows());
    ClickPoint("118");
    ClickAlternative("105");
    EXPECT_EQ(host.Texts().back(),
              R"(1 {"rp_id":"105","orig_rp_id":"118","leg":1,"rp_group":"40001,40002;105|116|118",)"
              R"("pointList":"40001#40002|40001,40002|105=40001,40002.116=c,d#40003"})");
}

TEST_F(ChartClickTest, RouteThatCannotBeDrawnIsTakenAllTheSame) {
    DrawRoute(kRouteWithAlternatives);
    ClickPoint("118");
    host.Reply(1, R"([{point_cd:"40001"},)" + StopWith("40001", "40002", "999=40001,40002;105") + "]");
    EXPECT_EQ(ClickAlternative("105"), "-5");
    EXPECT_EQ(module.Pending().Stops()[1].rp_groups[0].rp_id, "999");
}

TEST_F(ChartClickTest, ShipOfNoVoyageShowsNothing) {
    EXPECT_EQ(ClickShip(""), "-1");
    EXPECT_EQ(ClickShip("gone"), "-2");
    EXPECT_TRUE(host.vesselCards.empty());
}

TEST_F(ChartClickTest, ShipShowsItsCardAtTheCursor) {
    clock.SetUtc(2024, 3, 1, 9);
    ReplySchedule();
    voyages.LoadSchedule("9", rows, 1);
    Voyage().vsi = "s";
    Voyage().vsn = "Ship";
    module.SetCursorSource([] { return std::make_pair(12, 34); });
    EXPECT_EQ(ClickShip("9"), "");
    ASSERT_EQ(host.vesselCards.size(), 1U);
    const Interface::VesselCard& card = host.vesselCards[0];
    EXPECT_EQ(card.vi + card.vsi + card.vsn, "9sShip");
    EXPECT_EQ(card.vessel.x, 0.0);
    EXPECT_EQ(card.vessel.y, 0.0);
    EXPECT_EQ(card.vessel.time, 1709254800) << "the present reading less the plan zone's eight hours";
    EXPECT_EQ(card.vessel.firstPortName, "A");
    EXPECT_EQ(card.vessel.firstPortId, "40001");
    EXPECT_EQ(card.vessel.lastPortName, "B");
    EXPECT_EQ(card.vessel.lastPortId, "40002");
    EXPECT_EQ(card.cursorX, 12);
    EXPECT_EQ(card.cursorY, 34);
}

TEST_F(ChartClickTest, ShipWithoutIconOrPortsHasNoPlaceAndNoNames) {
    EXPECT_EQ(ClickShip("9"), "");
    ASSERT_EQ(host.vesselCards.size(), 1U);
    EXPECT_EQ(host.vesselCards[0].vessel.x, 361.0);
    EXPECT_EQ(host.vesselCards[0].vessel.firstPortName, "");
    EXPECT_EQ(host.vesselCards[0].cursorX, 400);
    EXPECT_EQ(host.vesselCards[0].cursorY, 200);
}

TEST(ClickChannelTest, ChannelsComeAndGoWithTheModule) {
    struct Owner {
        VoyageStore store;
        PortDirectory directory;
        VoyPortCallModule module{&store, &directory};
    };
    const char* const names[] = {"TRV_MAP_LCLICK_VOYAGETYPE", "TRV_MAP_LCLICK_RPOINTTYPE",
                                 "TRV_MAP_LCLICK_AISSHIPTYPE"};
    TestSupport::ExpectNamesGoWithTheirOwner(names, [] { return std::make_unique<Owner>(); });
}

}  // namespace
}  // namespace Tarvik::Seaplan
