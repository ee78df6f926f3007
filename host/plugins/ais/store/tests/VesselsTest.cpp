// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/ais/store/Vessels.h"
#include "host/plugins/ais/store/tests/Reports.h"

namespace Tarvik::Ais {

namespace {

constexpr std::int64_t kNow = 1'700'000'000;

class VesselsTest : public testing::Test {
  protected:
    Vessels vessels{100};
    std::vector<KeptFix> kept;
};

TEST_F(VesselsTest, NewestFixAndNameAreKnown) {
    vessels.Take(PositionOf(1, 10, 20), kNow, kept);
    vessels.Take(NameOf(1, "ALPHA"), kNow + 1, kept);
    vessels.Take(PositionOf(1, 10.1, 20.1), kNow + 10, kept);
    const Vessel* vessel = vessels.Find(1);
    ASSERT_NE(vessel, nullptr);
    EXPECT_EQ(vessel->particulars.name, "ALPHA");
    EXPECT_EQ(vessel->last, (Fix{kNow + 10, 10.1, 20.1, 12.5, 90, 91}));
    EXPECT_EQ(vessel->heard, kNow + 10);
    EXPECT_EQ(vessels.Find(2), nullptr);
}

TEST_F(VesselsTest, HistoryIsThinnedFinerForAFollowedVessel) {
    vessels.Watch(1);
    for (int second = 0; second < 1200; second += 10) {
        vessels.Take(PositionOf(1, 10, 20), kNow + second, kept);
        vessels.Take(PositionOf(2, 10, 20), kNow + second, kept);
    }
    int counts[3] = {};
    for (const KeptFix& fix : kept) {
        ++counts[fix.mmsi];
    }
    EXPECT_EQ(counts[1], 20);
    EXPECT_EQ(counts[2], 2);
}

TEST_F(VesselsTest, TimeOfTheTagBlockCountsUnlessItIsAhead) {
    vessels.Take(PositionOf(1, 10, 20, kNow - 30), kNow, kept);
    EXPECT_EQ(vessels.Find(1)->last.time, kNow - 30);
    vessels.Take(PositionOf(1, 11, 20, kNow + 3600), kNow + 1, kept);
    EXPECT_EQ(vessels.Find(1)->last.time, kNow + 1);
    EXPECT_EQ(vessels.Find(1)->last.longitude, 11);
}

TEST_F(VesselsTest, LateFixDoesNotReplaceTheNewest) {
    vessels.Take(PositionOf(1, 10, 20, kNow), kNow, kept);
    vessels.Take(PositionOf(1, 9, 20, kNow - 300), kNow + 1, kept);
    EXPECT_EQ(vessels.Find(1)->last.longitude, 10);
}

TEST_F(VesselsTest, ClockThatGoesBackDoesNotFreezeAShip) {
    vessels.Watch(1);
    vessels.Take(PositionOf(1, 10, 20), kNow + 7200, kept);
    vessels.Take(PositionOf(1, 11, 20), kNow, kept);
    EXPECT_EQ(vessels.Find(1)->last, (Fix{kNow, 11, 20, 12.5, 90, 91}));
    vessels.Take(PositionOf(1, 12, 20), kNow + 60, kept);
    ASSERT_EQ(kept.size(), 3U);
    EXPECT_EQ(kept.back().fix.time, kNow + 60);
}

TEST_F(VesselsTest, FullBookDropsThoseHeardLongestAgoThatNobodyFollows) {
    vessels.Watch(1);
    for (std::uint32_t mmsi = 1; mmsi <= 101; ++mmsi) {
        vessels.Take(PositionOf(mmsi, 10, 20), kNow + mmsi, kept);
    }
    EXPECT_EQ(vessels.All().size(), 91U);
    EXPECT_NE(vessels.Find(1), nullptr);
    EXPECT_EQ(vessels.Find(2), nullptr);
    EXPECT_EQ(vessels.Find(11), nullptr);
    EXPECT_NE(vessels.Find(12), nullptr);
}

TEST_F(VesselsTest, ReportWithoutPlaceChangesNoFix) {
    Message message = PositionOf(1, 0, 0);
    message.movement.hasPlace = false;
    vessels.Take(message, kNow, kept);
    EXPECT_FALSE(vessels.Find(1)->hasFix);
    EXPECT_TRUE(kept.empty());
}

TEST_F(VesselsTest, ChangedParticularsAreToldOnce) {
    vessels.Take(NameOf(1, "ALPHA"), kNow, kept);
    EXPECT_EQ(vessels.TakeRenamed().size(), 1U);
    vessels.Take(NameOf(1, "ALPHA"), kNow, kept);
    EXPECT_TRUE(vessels.TakeRenamed().empty());
    vessels.Take(NameOf(1, "BETA"), kNow, kept);
    EXPECT_EQ(vessels.TakeRenamed().size(), 1U);
}

}  // namespace
}  // namespace Tarvik::Ais
