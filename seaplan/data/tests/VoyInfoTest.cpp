// SPDX-License-Identifier: MIT
#include <type_traits>

#include <gtest/gtest.h>

#include "seaplan/data/VoyInfo.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

namespace {

using Util::_datetime_t;

_datetime_t At(int hour) {
    return {0, 0, hour, 1, 12, 2026};
}

PortCallRows PortCalls(int departure, int arrival) {
    PortCallRows rows(2);
    rows.front().etd = At(departure);
    rows.back().eta = At(arrival);
    return rows;
}

TEST(VoyInfo, DefaultVoyageHasDefaultIdAndNothingElse) {
    const VoyInfo voyage;
    EXPECT_EQ(voyage.vi, "1000000");
    for (const auto* text : {&voyage.vn, &voyage.vsi, &voyage.vsn, &voyage.lastPosText}) {
        EXPECT_EQ(*text, "");
    }
    for (int number : {voyage.vsmsi, voyage.lastPosTime, voyage.lastAisModTime, voyage.va, voyage.vr,
                       voyage.vrk, voyage.modais}) {
        EXPECT_EQ(number, 0);
    }
    EXPECT_EQ(voyage.figures, BunkerFigures{});
    EXPECT_TRUE(voyage.portCalls.empty());
    EXPECT_TRUE(voyage.aisModTimes.empty());
    EXPECT_TRUE(voyage.positionBook.points.empty());
    EXPECT_EQ(voyage.positionBook.pbi, "");
}

TEST(VoyInfo, DefaultCategoryHasDefaultIdAndNoRemark) {
    const VoyCategory category;
    EXPECT_EQ(category.ci, "1000000");
    EXPECT_EQ(category.cn, "");
    EXPECT_EQ(category.crk, 0);
}

TEST(VoyInfo, DefaultPortCallDischargesAtTenKnots) {
    const VoyPortCall row;
    EXPECT_EQ(row.ppi, "");
    EXPECT_EQ(row.ppn, "");
    EXPECT_EQ(row.pp, "D");
    EXPECT_EQ(row.psp, 10.0F);
    EXPECT_EQ(row.pw, 0.0F);
    EXPECT_EQ(row.steamTime, 0.0F);
    EXPECT_EQ(row.apt, 0.0F);
    EXPECT_EQ(row.distance, 0.0F);
}

TEST(VoyInfo, DefaultBookPointIsAPlainGreatCircleRow) {
    const PosBookPoint point;
    EXPECT_EQ(point.pointId, "");
    EXPECT_EQ(point.psn, "");
    EXPECT_EQ(point.position, "");
    EXPECT_EQ(point.psr, "GC");
    EXPECT_EQ(point.pli, 5);
    EXPECT_EQ(point.psp, 10.0F);
    EXPECT_EQ(point.course, 0.0F);
    EXPECT_EQ(point.pst, 0);
}

TEST(VoyInfo, TimesOfANewRecordAreThePresentLocalTime) {
    TestSupport::ManualClock clock;
    clock.SetUtc(2026, 3, 2, 5, 30);
    Util::Clock::SetLocalZone("China Standard Time");
    const _datetime_t present(0, 30, 13, 2, 3, 2026);
    const VoyPortCall row;
    EXPECT_EQ(row.eta, present);
    EXPECT_EQ(row.etd, present);
    const PosBookPoint point;
    EXPECT_EQ(point.eta, present);
    EXPECT_EQ(point.etd, present);
    EXPECT_EQ(VoyPositionBook().eta, present);
}

// Dialog and wire go through the seven figures by place.
TEST(VoyInfo, FiguresKeepTheirPlaces) {
    EXPECT_EQ(BunkerFigures().size(), 7U);
    const int places[] = {Vfn, Vff, Vfa, Vdn, Vda, Vwn, Vwa};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(places[i], i);
    }
}

TEST(VoyInfo, StatesAndKindsHaveTheServersNumbers) {
    EXPECT_EQ(InUse, 0);
    EXPECT_EQ(InRecycleBin, 1);
    EXPECT_EQ(Destroyed, 2);
    EXPECT_EQ(PlainPoint, 0);
    EXPECT_EQ(LongIdRoutePoint, 2);
    EXPECT_EQ(ShortIdRoutePoint, 3);
    EXPECT_EQ(AisTrackPoint, 4);
    EXPECT_EQ(PortPoint, 5);
    EXPECT_EQ(static_cast<int>(VoyageStatus::Plan), -1);
    EXPECT_EQ(static_cast<int>(VoyageStatus::Underway), 0);
    EXPECT_EQ(static_cast<int>(VoyageStatus::Finished), 1);
}

TEST(VoyInfo, RecordsHaveNoVirtualOperation) {
    EXPECT_FALSE(std::is_polymorphic_v<VoyCategory> || std::is_polymorphic_v<VoyInfo> ||
                 std::is_polymorphic_v<VoyPortCall> || std::is_polymorphic_v<VoyPositionBook> ||
                 std::is_polymorphic_v<PosBookPoint>);
}

TEST(VoyInfo, ACopyIsDeep) {
    VoyInfo original;
    original.portCalls.resize(2);
    original.aisModTimes = {"2026-12-01 00:00:00"};
    original.positionBook.points.resize(3);
    original.figures[Vwa] = 7;
    VoyInfo copy = original;
    EXPECT_EQ(copy.figures[Vwa], 7);
    EXPECT_EQ(copy.portCalls.size(), 2U);
    EXPECT_EQ(copy.aisModTimes, original.aisModTimes);
    EXPECT_EQ(copy.positionBook.points.size(), 3U);
    copy.portCalls[0].ppn = "Kiel";
    copy.aisModTimes[0] = "2027-01-01 00:00:00";
    copy.positionBook.points[2].psn = "Skagen";
    EXPECT_EQ(original.portCalls[0].ppn, "");
    EXPECT_EQ(original.aisModTimes[0], "2026-12-01 00:00:00");
    EXPECT_EQ(original.positionBook.points[2].psn, "");
    VoyInfo assigned;
    assigned = copy;
    assigned.portCalls[0].ppn = "Turku";
    EXPECT_EQ(copy.portCalls[0].ppn, "Kiel");
    EXPECT_EQ(assigned.positionBook.points.size(), 3U);
}

TEST(VoyInfo, StatusFollowsTheClock) {
    EXPECT_EQ(StatusAt({}, At(5)), VoyageStatus::Plan);
    EXPECT_EQ(StatusAt(PortCalls(6, 8), At(5)), VoyageStatus::Plan);
    EXPECT_EQ(StatusAt(PortCalls(4, 8), At(5)), VoyageStatus::Underway);
    EXPECT_EQ(StatusAt(PortCalls(2, 4), At(5)), VoyageStatus::Finished);
    EXPECT_EQ(StatusAt(PortCalls(2, 5), At(5)), VoyageStatus::Finished);
}

TEST(VoyInfo, StatusOfOnePortCallFollowsItsOwnTimes) {
    PortCallRows one(1);
    one.front().eta = At(3);
    one.front().etd = At(6);
    EXPECT_EQ(StatusAt(one, At(5)), VoyageStatus::Plan);
    EXPECT_EQ(StatusAt(one, At(7)), VoyageStatus::Finished);
}

TEST(VoyInfo, ADepartureExactlyNowCountsAsFinished) {
    EXPECT_EQ(StatusAt(PortCalls(5, 8), At(5)), VoyageStatus::Finished);
}

}  // namespace
}  // namespace Tarvik::Seaplan
