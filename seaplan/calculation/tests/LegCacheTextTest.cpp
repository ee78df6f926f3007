// SPDX-License-Identifier: MIT
#include <random>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/calculation/Schedule.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;

const std::string kHead = "2026-03-01 10:20:30:-:Dalian:-:Busan:-:40389:-:40208";
const std::string kSegments = "1:-:40389:-:131:-:0,0|1,0:--:2:-:131:-:40208:-:1,0|2,0";
const std::string kGroups = "118:-:40389,40208:-:105::116:--:7:-:a,b:-:";
const std::string kLine = kHead + ":---:" + kSegments + ":---:" + kGroups + ":---:131,104";

std::string Written(const LegCache& cache) {
    std::ostringstream out;
    EXPECT_EQ(WriteCache(out, cache), 0);
    return out.str();
}

TEST(LegCacheText, ReadsALine) {
    RouteLegCacheEntry entry;
    ASSERT_EQ(ParseCacheLine(kLine, entry), 0);
    EXPECT_EQ(entry.from, "Dalian");
    EXPECT_EQ(entry.to, "Busan");
    EXPECT_EQ(entry.stamp, Util::_datetime_t(30, 20, 10, 1, 3, 2026));
    ASSERT_EQ(entry.stops.size(), 2);
    EXPECT_EQ(entry.stops[0].point_cd, "40389");
    EXPECT_TRUE(entry.stops[0].routes.empty());
    const auto& end = entry.stops[1];
    EXPECT_EQ(end.point_cd, "40208");
    EXPECT_EQ(end.rp_id_str, "131,104");
    ASSERT_EQ(end.routes.size(), 2);
    EXPECT_EQ(end.routes[1].route, "2");
    EXPECT_EQ(end.routes[1].from_cd, "131");
    EXPECT_EQ(end.routes[1].end_cd, "40208");
    EXPECT_EQ(end.routes[1].pointset, "1,0|2,0");
    EXPECT_EQ(end.routes[1].distance, 0);
    ASSERT_EQ(end.rp_groups.size(), 2);
    EXPECT_EQ(end.rp_groups[0].leg, -1);
    EXPECT_THAT(end.rp_groups[0].alternatives, ElementsAre("105", "116"));
    EXPECT_TRUE(end.rp_groups[1].alternatives.empty()) << "an empty third field holds no alternatives";
}

TEST(LegCacheText, EmptySectionsAreEmptyLists) {
    RouteLegCacheEntry entry;
    ASSERT_EQ(ParseCacheLine(kHead + ":---::---::---:", entry), 0);
    EXPECT_TRUE(entry.stops[1].routes.empty());
    EXPECT_TRUE(entry.stops[1].rp_groups.empty());
    EXPECT_EQ(entry.stops[1].rp_id_str, "");
}

struct BadLine {
    std::string line;
    int code;
};

TEST(LegCacheText, TellsWhatIsWrongWithALine) {
    const std::string rest = ":-:Dalian:-:Busan:-:40389:-:40208:---::---::---:";
    for (const auto& [line, code] :
         {BadLine{"", -1}, BadLine{"x", -3}, BadLine{kHead + ":---::---:", -3}, BadLine{kLine + ":---:", -3},
          BadLine{":---::---::---:", -5}, BadLine{"a:-:b:-:c:-:d:---::---::---:", -5},
          BadLine{"2026-03-01 10:20:3" + rest, -6}, BadLine{"2026-03-01 10:20:300" + rest, -6},
          BadLine{"2026-02-30 10:20:30" + rest, -6}, BadLine{"2026-03-01 24:00:00" + rest, -6},
          BadLine{"2026-00-01 10:20:30" + rest, -6}, BadLine{"a date 19 long here" + rest, -6},
          BadLine{kHead + ":---:1:-:2:-:3:---::---:", -9},
          BadLine{kHead + ":---:1:-:2:-:3:-:4:-:5:---::---:", -9},
          BadLine{kHead + ":---:1:-:2:-:3:-:4:--::---::---:", -9},
          BadLine{kHead + ":---::---:1:-:2:---:", -12},
          BadLine{kHead + ":---::---:1:-:2:-:3:-:4:---:", -12}}) {
        RouteLegCacheEntry entry;
        entry.from = "as it was";
        EXPECT_EQ(ParseCacheLine(line, entry), code) << line;
        EXPECT_EQ(entry.from, "as it was") << line;
    }
}

TEST(LegCacheText, BadLineIsSkippedAndTheNextIsRead) {
    std::istringstream in("2026-03-01 10:20:3" + kLine.substr(19) + "\n\n" + kLine + "\r\nrubbish");
    LegCache cache;
    ReadCache(in, cache);
    ASSERT_EQ(cache.size(), 1);
    EXPECT_EQ(cache.begin()->first, "Dalian-Busan");
    EXPECT_EQ(cache.begin()->second.stops[1].rp_id_str, "131,104");
}

TEST(LegCacheText, LaterLineOfOneKeyStays) {
    auto later = kLine;
    later.replace(0, 4, "2027");
    std::istringstream in(kLine + "\n" + later + "\n");
    LegCache cache;
    ReadCache(in, cache);
    ASSERT_EQ(cache.size(), 1);
    EXPECT_EQ(cache.begin()->second.stamp.year(), 2027);
}

TEST(LegCacheText, DirectionMatters) {
    EXPECT_NE(LegCacheKey("Dalian", "Busan"), LegCacheKey("Busan", "Dalian"));
    EXPECT_EQ(LegCacheKey("Dalian", "Busan"), "Dalian-Busan");
}

TEST(LegCacheText, WritesWhatItRead) {
    LegCache cache;
    std::istringstream in(kLine);
    ReadCache(in, cache);
    EXPECT_EQ(Written(cache), kLine + "\n");
}

TEST(LegCacheText, LegWithoutSegmentsIsWrittenButNotReadAgain) {
    LegCache cache;
    std::istringstream in(kHead + ":---::---:" + kGroups + ":---:x");
    ReadCache(in, cache);
    ASSERT_EQ(cache.size(), 1);
    EXPECT_EQ(Written(cache), kHead + ":---:" + kGroups + ":---:x\n");
    std::istringstream again(Written(cache));
    LegCache second;
    ReadCache(again, second);
    EXPECT_TRUE(second.empty());
}

TEST(LegCacheText, PointsetWithASeparatorBreaksItsLine) {
    LegCache cache;
    std::istringstream in(kLine);
    ReadCache(in, cache);
    cache.begin()->second.stops[1].routes[0].pointset = "0,0:-:1,0";
    std::istringstream again(Written(cache));
    LegCache second;
    ReadCache(again, second);
    EXPECT_TRUE(second.empty());
}

TEST(LegCacheText, WriterStopsAtAnEntryWithoutTwoStops) {
    LegCache cache;
    std::istringstream in(kLine);
    ReadCache(in, cache);
    cache["Zhoushan-Busan"];
    cache["a later key"] = cache["Dalian-Busan"];
    std::ostringstream out;
    EXPECT_EQ(WriteCache(out, cache), -1);
    EXPECT_EQ(out.str(), kLine + "\n") << "what came before stays";
}

/// Texts of letters, digits and the signs that names and points hold. Neither ":" nor "-" is among them: a
/// lone "-" between two alternatives already makes a separator.
class RandomLegs {
  public:
    explicit RandomLegs(unsigned seed) : random_(seed) {}

    RouteLegCacheEntry Entry() {
        RouteLegCacheEntry entry;
        entry.from = text(true);
        entry.to = text(true);
        entry.stamp = {Number(60),     Number(60),     Number(24),
                       1 + Number(28), 1 + Number(12), 1990 + Number(100)};
        entry.stops.resize(2);
        entry.stops[0].point_cd = text(false);
        auto& end = entry.stops[1];
        end.point_cd = text(false);
        end.rp_id_str = text(false);
        for (int i = 1 + Number(4); i > 0; --i) {
            end.routes.push_back({text(false), text(false), text(false), text(false), 0});
        }
        for (int i = Number(4); i > 0; --i) {
            end.rp_groups.push_back({-1, text(false), text(false), {}});
            for (int n = Number(4); n > 0; --n) {
                end.rp_groups.back().alternatives.push_back(text(true));
            }
        }
        return entry;
    }

  private:
    int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    std::string text(bool filled) {
        static const std::string kLetters = "abcXYZ0189,|= .'\xC3\xA9";
        std::string result;
        for (int i = Number(12) + (filled ? 1 : 0); i > 0; --i) {
            result += kLetters[static_cast<std::size_t>(Number(static_cast<int>(kLetters.size())))];
        }
        return result;
    }
    std::mt19937 random_;
};

std::string Shown(const RouteLegCacheEntry& entry) {
    LegCache one{{"k", entry}};
    return Written(one);
}

TEST(LegCacheText, WhatIsWrittenIsReadBack) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomLegs legs(seed);
    for (int round = 0; round < 300; ++round) {
        LegCache cache;
        for (int i = 0; i < 5; ++i) {
            const auto entry = legs.Entry();
            cache[LegCacheKey(entry.from, entry.to)] = entry;
        }
        std::istringstream in(Written(cache));
        LegCache back;
        ReadCache(in, back);
        ASSERT_EQ(back.size(), cache.size());
        for (const auto& [key, entry] : cache) {
            ASSERT_TRUE(back.contains(key)) << key;
            const auto& copy = back[key];
            ASSERT_EQ(Shown(copy), Shown(entry));
            ASSERT_EQ(copy.stops[1].routes.size(), entry.stops[1].routes.size());
            ASSERT_EQ(copy.stops[1].rp_groups.size(), entry.stops[1].rp_groups.size());
            for (std::size_t g = 0; g < entry.stops[1].rp_groups.size(); ++g) {
                ASSERT_EQ(copy.stops[1].rp_groups[g].alternatives, entry.stops[1].rp_groups[g].alternatives);
            }
        }
    }
}

struct AgeCase {
    Util::_datetime_t stamp;
    int stale;
};

TEST(LegCacheAge, StrictlyOlderThanTheLimitIsStale) {
    const Util::_datetime_t now(0, 0, 0, 1, 12, 2026);
    const Util::_datetime_t epoch(0, 0, 0, 1, 6, 2011);
    auto limit = now;
    ASSERT_EQ(AddHours(-2160, limit), 0);
    auto older = limit - Util::_time_t::from_csecs(1);
    for (const auto& [stamp, stale] : {AgeCase{now, 0}, AgeCase{limit, 0}, AgeCase{older, 1}}) {
        RouteLegCacheEntry entry;
        entry.stamp = stamp;
        EXPECT_EQ(IsStale(entry, epoch, 2160, now), stale) << stamp.fmt("%Y-%m-%d %H:%M:%S");
    }
}

TEST(LegCacheAge, StampBeforeTheEpochIsStaleWhateverItsAge) {
    const Util::_datetime_t epoch(0, 0, 0, 1, 6, 2011);
    RouteLegCacheEntry entry;
    entry.stamp = {59, 59, 23, 31, 5, 2011};
    EXPECT_EQ(IsStale(entry, epoch, 2160, entry.stamp), 1);
    entry.stamp = epoch;
    EXPECT_EQ(IsStale(entry, epoch, 2160, epoch), 0);
}

TEST(LegCacheAge, LimitThatIsNoTimeFails) {
    const Util::_datetime_t now(0, 0, 0, 1, 12, 2026);
    RouteLegCacheEntry entry;
    entry.stamp = now;
    EXPECT_EQ(IsStale(entry, now, std::numeric_limits<float>::infinity(), now), -5);
}

}  // namespace
}  // namespace Tarvik::Seaplan
