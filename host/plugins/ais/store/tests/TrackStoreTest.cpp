// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/ais/store/TrackStore.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Ais {

namespace {

constexpr std::int64_t kNow = 1'700'000'400;
constexpr std::int64_t kDay = 86'400;

Fix At(std::int64_t time, double longitude = 10.1234567) {
    return {time, longitude, -20.7654321, 12.3, 359.9, 77};
}

Vessel Ship(std::uint32_t mmsi, bool watched) {
    Vessel vessel;
    vessel.mmsi = mmsi;
    vessel.particulars.name = "SHIP " + std::to_string(mmsi);
    vessel.particulars.toBow = 100;
    vessel.heard = kNow;
    vessel.watched = watched;
    return vessel;
}

class TrackStoreTest : public testing::Test {
  protected:
    TestSupport::DataFolder folder;
    std::string file = (folder.Path() / "ais.db").string();
};

TEST_F(TrackStoreTest, TracksAndVesselsOutliveTheProgram) {
    TrackStore(file).Write({{1, At(kNow - 60, 10)}, {1, At(kNow, 11)}, {2, At(kNow, 12)}},
                           {Ship(1, true), Ship(2, false)});
    const TrackStore store(file);
    EXPECT_EQ(store.Track(1, kNow - 60, kNow), (std::vector<Fix>{At(kNow - 60, 10), At(kNow, 11)}));
    EXPECT_EQ(store.Track(1, kNow - 59, kNow), (std::vector<Fix>{At(kNow, 11)}));
    const std::vector<Vessel> vessels = store.Load(kNow);
    ASSERT_EQ(vessels.size(), 2U);
    EXPECT_EQ(vessels[0].particulars.name, "SHIP 1");
    EXPECT_EQ(vessels[0].particulars.toBow, 100);
    EXPECT_EQ(vessels[0].last, At(kNow, 11));
    EXPECT_TRUE(vessels[0].watched);
    EXPECT_FALSE(vessels[1].watched);
}

TEST_F(TrackStoreTest, NewestFixAtStartIsNotAheadOfTheClock) {
    TrackStore store(file);
    store.Write({{1, At(kNow, 10)}, {1, At(kNow + 7200, 11)}}, {Ship(1, true)});
    EXPECT_EQ(store.Load(kNow)[0].last, At(kNow, 10));
    EXPECT_EQ(store.Load(kNow + 7200)[0].last, At(kNow + 7200, 11));
}

TEST_F(TrackStoreTest, FixOfTheSameSecondIsReplaced) {
    TrackStore store(file);
    store.Write({{1, At(kNow, 10)}}, {});
    store.Write({{1, At(kNow, 11)}}, {});
    EXPECT_EQ(store.Track(1, 0, kNow), (std::vector<Fix>{At(kNow, 11)}));
}

TEST_F(TrackStoreTest, OlderFixesAreThinnedByAge) {
    TrackStore store(file);
    std::vector<KeptFix> fixes;
    for (std::int64_t age = 0; age < 10 * kDay; age += 60) {
        fixes.push_back({1, At(kNow - age)});
    }
    store.Write(fixes, {Ship(1, true)});
    store.Thin(kNow);
    const auto count = [&store](std::int64_t from, std::int64_t to) {
        return store.Track(1, kNow - from, kNow - to).size();
    };
    EXPECT_EQ(count(kDay, 0), 1441U) << "the last day is whole";
    EXPECT_NEAR(double(count(2 * kDay, kDay + 1)), kDay / 300.0, 1);
    EXPECT_NEAR(double(count(9 * kDay, 8 * kDay)), kDay / 1800.0, 1);
    const std::int64_t once = store.CountFixes();
    store.Thin(kNow);
    EXPECT_EQ(store.CountFixes(), once) << "thinning again takes no more";
}

TEST_F(TrackStoreTest, TracksNobodyFollowsGoAfterADay) {
    TrackStore store(file);
    store.Write({{1, At(kNow - 2 * kDay)}, {2, At(kNow - 2 * kDay)}, {1, At(kNow - 181 * kDay)}},
                {Ship(1, true), Ship(2, false)});
    store.Thin(kNow);
    EXPECT_EQ(store.Track(1, 0, kNow).size(), 1U);
    EXPECT_TRUE(store.Track(2, 0, kNow).empty());
}

TEST_F(TrackStoreTest, FixesAreBoundedTheOldestGo) {
    TrackStore store(file);
    std::vector<KeptFix> fixes;
    for (int i = 0; i < 100; ++i) {
        fixes.push_back({1, At(kNow - i * 60)});
    }
    store.Write(fixes, {Ship(1, true)});
    store.Thin(kNow, 40);
    const std::vector<Fix> track = store.Track(1, 0, kNow);
    ASSERT_EQ(track.size(), 40U);
    EXPECT_EQ(track.back().time, kNow);
}

TEST_F(TrackStoreTest, FixesOfAClockDaysAheadGo) {
    TrackStore store(file);
    store.Write({{1, At(kNow)}, {1, At(kNow + 2 * kDay)}}, {Ship(1, true)});
    store.Thin(kNow);
    EXPECT_EQ(store.Track(1, 0, kNow + 3 * kDay), (std::vector<Fix>{At(kNow)}));
}

TEST_F(TrackStoreTest, DamagedFileIsPutAside) {
    std::ofstream(file) << std::string(10000, 'x');
    TrackStore store(file);
    store.Write({{1, At(kNow)}}, {});
    EXPECT_EQ(store.CountFixes(), 1);
    EXPECT_TRUE(std::filesystem::exists(file + ".damaged"));
}

}  // namespace
}  // namespace Tarvik::Ais
