// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/book/BookPanel.h"
#include "seaplan/calculation/book/tests/PanelBook.h"
#include "seaplan/calculation/tests/Rows.h"
#include "testsupport/ManualClock.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

struct BookPanel : ::testing::Test {
    TestSupport::PortDictionary dictionary{{{"Dalian", "40389"}, {"Busan", "40208"}}};

    static VoyInfo Voyage() {
        VoyInfo voyage;
        voyage.portCalls = {Call("Dalian", 0, 0, 0.25F, 6), Call("Busan", 100, 12, 0.125F, 9)};
        voyage.portCalls[0].pp = "L";
        voyage.portCalls[1].eta = At(3, 4);
        voyage.portCalls[1].etd = At(3, 13);
        voyage.positionBook.points = {Port("121.65,38.92", 0),
                                      Point("122.5,38", PlainPoint, 10, "GC"),
                                      Point("123,37", AisTrackPoint, 8),
                                      Point("124,36", ShortIdRoutePoint, 11),
                                      Point("125,35.5", AisTrackPoint, 9),
                                      Port("129.05,35.1", 12.5F)};
        voyage.positionBook.points[3].pointId = "131";
        voyage.positionBook.points[3].psn = "Cape";
        voyage.positionBook.points[5].pli = 3;
        return voyage;
    }
};

TEST_F(BookPanel, PortsTakeCallAndLastRowOfTheirLeg) {
    PosBookData book;
    ASSERT_EQ(BookToPanel(Voyage(), book, {}), 0);
    ASSERT_EQ(book.ports.size(), 2);
    const auto& first = book.ports[0];
    EXPECT_EQ(first.id + " " + first.name + " " + first.purpose, "40389 Dalian L");
    EXPECT_EQ(first.weather, 0.25);
    EXPECT_EQ(first.portTime, 6);
    EXPECT_TRUE(first.rows.empty());
    const auto& last = book.ports[1];
    EXPECT_EQ(last.id, "40208");
    EXPECT_EQ(last.x, 129.05);
    EXPECT_EQ(last.y, 35.1);
    EXPECT_EQ(last.speed, 12.5 * 1.852);
    EXPECT_EQ(last.interval, 3);
    EXPECT_EQ(last.track, "RL");
    EXPECT_EQ(last.eta, Util::_datetime_t(0, 0, 20, 2, 3, 2026)) << "eight hours behind the plan's zone";
    EXPECT_EQ(last.etd, Util::_datetime_t(0, 0, 5, 3, 3, 2026));
    EXPECT_FALSE(last.expanded);
    EXPECT_FALSE(book.crossesDateLine);
}

TEST_F(BookPanel, WaypointsTakeTheirRows) {
    PosBookData book;
    ASSERT_EQ(BookToPanel(Voyage(), book, {5.5F}), 0);
    const auto& rows = book.ports[1].rows;
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0].track, "GC");
    EXPECT_EQ(rows[0].kind, PlainPoint);
    EXPECT_EQ(rows[0].speed, 10 * 1.852);
    EXPECT_EQ(rows[0].interval, 5);
    EXPECT_EQ(rows[0].weather, 0) << "the speed of a row is its real one";
    EXPECT_EQ(rows[2].id + rows[2].name, "131Cape");
    EXPECT_EQ(rows[2].kind, ShortIdRoutePoint);
    EXPECT_EQ(rows[1].aisSpeed, 5.5 * 1.852);
    EXPECT_EQ(rows[3].aisSpeed, 0) << "there was one speed for two points";
    EXPECT_EQ(rows[2].aisSpeed, 0);
}

TEST_F(BookPanel, PortWithoutIdInTheDictionaryHasNone) {
    auto voyage = Voyage();
    voyage.portCalls[0].ppn = "Nowhere";
    PosBookData book;
    ASSERT_EQ(BookToPanel(voyage, book, {}), 0);
    EXPECT_EQ(book.ports[0].id, "");
    EXPECT_EQ(book.ports[0].name, "Nowhere");
}

TEST_F(BookPanel, TellsWhatIsMissingAndLeavesTheBook) {
    const auto code = [](const VoyInfo& voyage) {
        PosBookData book = BookOf({PortAt(7)});
        const int result = BookToPanel(voyage, book, {});
        EXPECT_EQ(book.ports.size(), 1);
        return result;
    };
    auto voyage = Voyage();
    voyage.portCalls.resize(1);
    EXPECT_EQ(code(voyage), -1);
    voyage = Voyage();
    voyage.positionBook.points.clear();
    EXPECT_EQ(code(voyage), -2);
    voyage.positionBook.points = Voyage().positionBook.points;
    voyage.positionBook.points[3].pst = PortPoint;
    EXPECT_EQ(code(voyage), -2);
    voyage = Voyage();
    voyage.positionBook.points[5].position = "129.05";
    EXPECT_EQ(code(voyage), -4);
    voyage = Voyage();
    voyage.positionBook.points[2].position = "";
    EXPECT_EQ(code(voyage), -5);
}

TEST_F(BookPanel, DateLineCountsPortsAndWaypoints) {
    EXPECT_FALSE(CrossesDateLine(BookOf({PortAt(178), PortAt(-178)})));
    EXPECT_FALSE(CrossesDateLine(BookOf({PortAt(179), PortAt(-179)})));
    EXPECT_TRUE(CrossesDateLine(BookOf({PortAt(179.001), PortAt(-179.001)})));
    EXPECT_TRUE(CrossesDateLine(BookOf({PortAt(170), PortAt(-179.5, 0, {Waypoint(179.5)})})));
    EXPECT_TRUE(CrossesDateLine(BookOf({PortAt(170), PortAt(-170, 0, {Waypoint(179.5), Waypoint(-179.5)})})));
    EXPECT_FALSE(CrossesDateLine({}));
}

TEST_F(BookPanel, PortsKeepFourDecimalsAndWaypointsThree) {
    auto book =
        BookOf({PortAt(0.12345, -1.00005), PortAt(2, 3, {Waypoint(1.23456, -0.0004, AisTrackPoint)})});
    VoyInfo voyage;
    ASSERT_EQ(PanelToBook(book, voyage), 0);
    EXPECT_EQ(Positions(voyage.positionBook.points), "0.1235,-1.0001|1.235,-0.000|2.0000,3.0000");
    EXPECT_EQ(voyage.positionBook.points[1].pst, AisTrackPoint);
    EXPECT_EQ(voyage.positionBook.points[2].pst, PortPoint);
}

TEST_F(BookPanel, StoredRowsTakeEveryField) {
    auto book = BookOf({PortAt(0), PortAt(2, 0, {Waypoint(1)})});
    auto& port = book.ports[1];
    port.id = "40208";
    port.name = "Busan";
    port.purpose = "L";
    port.weather = 0.1;
    port.portTime = 7.3;
    port.speed = 25;
    port.course = 91.25;
    port.interval = 2;
    port.track = "GC";
    port.eta = {0, 0, 20, 2, 3, 2026};
    port.etd = {0, 0, 5, 3, 3, 2026};
    port.rows[0].id = "131";
    port.rows[0].name = "Cape";
    port.rows[0].course = 12.5;
    VoyInfo voyage;
    ASSERT_EQ(PanelToBook(book, voyage), 0);
    const auto& call = voyage.portCalls.at(1);
    EXPECT_EQ(call.ppi + " " + call.ppn + " " + call.pp, "40208 Busan L");
    EXPECT_EQ(call.psp, static_cast<float>(25 / 1.852));
    EXPECT_EQ(call.pw, 0.1F);
    EXPECT_EQ(call.apt, 7.3F);
    EXPECT_EQ(Text(call.eta), "2026-03-03 04:00:00");
    EXPECT_EQ(Text(call.etd), "2026-03-03 13:00:00");
    const auto& last = voyage.positionBook.points.at(2);
    EXPECT_EQ(last.pointId + last.psn + last.psr, "40208BusanGC");
    EXPECT_EQ(last.psp, call.psp);
    EXPECT_EQ(last.course, 91.25F);
    EXPECT_EQ(last.pli, 2);
    const auto& waypoint = voyage.positionBook.points.at(1);
    EXPECT_EQ(waypoint.pointId + waypoint.psn + waypoint.psr, "131CapeRL");
    EXPECT_EQ(waypoint.course, 12.5F);
    EXPECT_EQ(waypoint.psp, 10);
}

TEST_F(BookPanel, OnePortIsNoBook) {
    auto voyage = Voyage();
    EXPECT_EQ(PanelToBook(BookOf({PortAt(1)}), voyage), -1);
    EXPECT_EQ(PanelToBook({}, voyage), -1);
    EXPECT_EQ(voyage.portCalls.size(), 2);
    EXPECT_EQ(voyage.positionBook.points.size(), 6);
}

TEST_F(BookPanel, ThereAndBackKeepsTheBook) {
    auto voyage = Voyage();
    const auto before = voyage;
    PosBookData book;
    ASSERT_EQ(BookToPanel(voyage, book, {}), 0);
    ASSERT_EQ(PanelToBook(book, voyage), 0);
    ASSERT_EQ(voyage.positionBook.points.size(), before.positionBook.points.size());
    for (std::size_t i = 0; i < before.positionBook.points.size(); ++i) {
        const auto& was = before.positionBook.points[i];
        const auto& is = voyage.positionBook.points[i];
        EXPECT_EQ(is.psp, was.psp) << i;
        EXPECT_EQ(is.pst, was.pst) << i;
        EXPECT_EQ(is.psr, was.psr) << i;
        EXPECT_EQ(is.pli, was.pli) << i;
    }
    for (std::size_t i = 0; i < before.portCalls.size(); ++i) {
        EXPECT_EQ(voyage.portCalls[i].eta, before.portCalls[i].eta) << i;
        EXPECT_EQ(voyage.portCalls[i].etd, before.portCalls[i].etd) << i;
        EXPECT_EQ(voyage.portCalls[i].pw, before.portCalls[i].pw) << i;
        EXPECT_EQ(voyage.portCalls[i].apt, before.portCalls[i].apt) << i;
    }
}

TEST(PanelRecords, StartWithTheirDefaults) {
    TestSupport::ManualClock clock;
    clock.SetUtc(2026, 3, 2, 5, 30);
    Util::Clock::SetLocalZone("China Standard Time");
    const PosBookRow row;
    EXPECT_EQ(row.x, 0);
    EXPECT_EQ(row.y, 0);
    EXPECT_EQ(row.id + row.name, "");
    EXPECT_EQ(row.course, 0);
    EXPECT_EQ(row.speed, 18.52);
    EXPECT_EQ(row.weather, 0);
    EXPECT_EQ(row.interval, 5);
    EXPECT_EQ(row.track, "GC");
    EXPECT_EQ(Text(row.eta), "2026-03-02 05:30:00") << "the panel's times are UTC";
    EXPECT_EQ(Text(row.etd), "2026-03-02 05:30:00");
    EXPECT_FALSE(row.expanded);
    EXPECT_EQ(row.kind, 0);
    EXPECT_EQ(row.aisSpeed, 0);
    const PosBookPortRow port;
    EXPECT_EQ(port.purpose, "B");
    EXPECT_EQ(port.portTime, 0);
    EXPECT_TRUE(port.rows.empty());
    EXPECT_FALSE(PosBookData().crossesDateLine);
}

}  // namespace
}  // namespace Tarvik::Seaplan
