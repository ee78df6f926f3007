// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/ais/store/Traffic.h"
#include "host/plugins/ais/store/tests/Reports.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Ais {

namespace {

constexpr std::int64_t kNow = 1'700'000'000;

class TrafficTest : public testing::Test {
  protected:
    static std::vector<std::int64_t> Times(const std::vector<Fix>& track) {
        std::vector<std::int64_t> times;
        for (const Fix& fix : track) {
            times.push_back(fix.time - kNow);
        }
        return times;
    }
    TestSupport::DataFolder folder;
    std::string file = (folder.Path() / "ais.db").string();
};

TEST_F(TrafficTest, TrackIsWholeFromMemoryAndFile) {
    Traffic traffic(file, kNow);
    traffic.Watch(1);
    traffic.Take(PositionOf(1, 10, 20), kNow);
    traffic.Take(PositionOf(1, 10, 20), kNow + 60);
    traffic.Flush();
    traffic.Take(PositionOf(1, 10, 20), kNow + 120);
    traffic.Take(PositionOf(1, 10, 20), kNow + 130);
    EXPECT_EQ(Times(traffic.Track(1, kNow, kNow + 1000)), (std::vector<std::int64_t>{0, 60, 120, 130}));
    EXPECT_EQ(Times(traffic.Track(1, kNow + 1, kNow + 120)), (std::vector<std::int64_t>{60, 120}));
    EXPECT_TRUE(traffic.Track(2, 0, kNow + 1000).empty());
}

TEST_F(TrafficTest, RestartKeepsTracksNamesAndWhoIsFollowed) {
    {
        Traffic traffic(file, kNow);
        traffic.Watch(1);
        traffic.Take(NameOf(1, "ALPHA"), kNow);
        traffic.Take(PositionOf(1, 10, 20), kNow);
    }
    Traffic traffic(file, kNow + 10);
    const auto vessel = traffic.Find(1);
    ASSERT_TRUE(vessel);
    EXPECT_EQ(vessel->particulars.name, "ALPHA");
    EXPECT_EQ(vessel->last.longitude, 10);
    traffic.Take(PositionOf(1, 11, 20), kNow + 60);
    EXPECT_EQ(Times(traffic.Track(1, 0, kNow + 100)), (std::vector<std::int64_t>{0, 60}));
}

TEST_F(TrafficTest, RestartWithAClockThatWentBackKeepsOrderAndGoesOn) {
    {
        Traffic traffic(file, kNow);
        traffic.Watch(1);
        traffic.Take(PositionOf(1, 10, 20), kNow);
        traffic.Take(PositionOf(1, 11, 20), kNow + 7200);
    }
    Traffic traffic(file, kNow + 100);
    EXPECT_EQ(traffic.Find(1)->last.longitude, 10) << "what is ahead of the clock is not the newest";
    traffic.Take(PositionOf(1, 12, 20), kNow + 160);
    EXPECT_EQ(traffic.Find(1)->last.longitude, 12);
    EXPECT_EQ(Times(traffic.Track(1, 0, kNow + 1000)), (std::vector<std::int64_t>{0, 160}));
}

TEST_F(TrafficTest, WithoutAFileAllGoesOnInMemory) {
    Traffic traffic((folder.Path() / "missing" / "ais.db").string(), kNow);
    EXPECT_FALSE(traffic.Error().empty());
    traffic.Take(PositionOf(1, 10, 20), kNow);
    traffic.Flush();
    traffic.Thin(kNow);
    EXPECT_TRUE(traffic.Find(1));
    EXPECT_EQ(traffic.HeardSince(kNow).size(), 1U);
    EXPECT_TRUE(traffic.HeardSince(kNow + 1).empty());
}

TEST_F(TrafficTest, WithoutAFileTracksStayInMemoryWithinBounds) {
    Traffic traffic("", kNow);
    traffic.Watch(1);
    traffic.Take(PositionOf(1, 10, 20), kNow);
    traffic.Flush();
    traffic.Take(PositionOf(1, 10, 20), kNow + 60);
    EXPECT_EQ(Times(traffic.Track(1, kNow, kNow + 1000)), (std::vector<std::int64_t>{0, 60}));
    const auto more = static_cast<std::int64_t>(Traffic::kMostWaiting) + 10;
    for (std::int64_t minute = 2; minute < more; ++minute) {
        traffic.Take(PositionOf(1, 10, 20), kNow + minute * 60);
    }
    const std::vector<std::int64_t> times = Times(traffic.Track(1, kNow, kNow + more * 60));
    EXPECT_LE(times.size(), Traffic::kMostWaiting);
    EXPECT_GE(times.size(), Traffic::kMostWaiting / 2);
    EXPECT_EQ(times.back(), (more - 1) * 60) << "the oldest go";
}

TEST_F(TrafficTest, QuestionsWhileMessagesComeAreAnswered) {
    Traffic traffic(file, kNow);
    std::thread taking([&traffic] {
        for (int i = 0; i < 20000; ++i) {
            traffic.Take(PositionOf(1 + static_cast<std::uint32_t>(i) % 1000, 10, 20), kNow + i);
            if (i % 1000 == 0) {
                traffic.Flush();
            }
        }
    });
    std::size_t most = 0;
    for (int i = 0; i < 200; ++i) {
        most = std::max(most, traffic.HeardSince(0).size());
        traffic.Track(1, 0, kNow + 20000);
    }
    taking.join();
    EXPECT_LE(most, 1000U);
    EXPECT_EQ(traffic.HeardSince(0).size(), 1000U);
    EXPECT_EQ(traffic.Error(), "");
}

}  // namespace
}  // namespace Tarvik::Ais
