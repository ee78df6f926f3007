// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/tree/search/SearchText.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// Two calls, the first left and the last reached at 08:00:00 on these days of March 2024.
VoyInfo Sailing(int departs, int arrives) {
    VoyInfo voyage;
    voyage.vn = "Spring";
    voyage.vsn = "Anna Maersk";
    voyage.portCalls.resize(2);
    voyage.portCalls[0].ppn = "ROTTERDAM";
    voyage.portCalls[1].ppn = "HAMBURG";
    voyage.portCalls[0].etd = Util::_datetime_t(0, 0, 8, departs, 3, 2024);
    voyage.portCalls[1].eta = Util::_datetime_t(0, 0, 8, arrives, 3, 2024);
    return voyage;
}

bool Found(const VoyInfo& voyage, const std::string& typed) {
    return HoldsAll(SearchTextOf(voyage), SearchWords(typed));
}

}  // namespace

TEST(SearchText, FoldsLatinLettersAndLeavesTheRest) {
    EXPECT_EQ(FoldSearch("Ab-Z9"), "ab-z9");
    EXPECT_EQ(FoldSearch("ÅRHUS Ñ × ß"), "århus ñ × ß");
    EXPECT_EQ(FoldSearch("航次 A"), "航次 a");
}

TEST(SearchText, WordsEndAtAnyWhiteSpace) {
    EXPECT_THAT(SearchWords("  Rot\tHAM\u3000航次 "), ElementsAre("rot", "ham", "航次"));
    EXPECT_THAT(SearchWords(" \u00A0"), IsEmpty());
}

TEST(SearchText, AVoyageIsFoundByNameVesselPortAndDay) {
    const VoyInfo voyage = Sailing(5, 9);
    for (const char* typed : {"spri", "maersk anna", "rotter hamb", "2024-03-05", "03-09 ham", ""}) {
        EXPECT_TRUE(Found(voyage, typed)) << typed;
    }
    for (const char* typed : {"winter", "anna bremen", "2024-03-06", "springanna"}) {
        EXPECT_FALSE(Found(voyage, typed)) << typed;
    }
}

TEST(SearchText, AWordIsNotFoundAcrossTwoTexts) {
    EXPECT_FALSE(Found(Sailing(5, 9), "rotterdamhamburg"));
}

TEST(VoyageFilters, UnderWayIsBetweenDepartureAndArrival) {
    const VoyInfo voyage = Sailing(5, 9);
    const auto at = [&](int day) {
        return Passes(voyage, VoyageFilter::UnderWay, Util::_datetime_t(0, 0, 12, day, 3, 2024));
    };
    EXPECT_FALSE(at(4));
    EXPECT_TRUE(at(7));
    EXPECT_FALSE(at(10));
    EXPECT_FALSE(Passes(VoyInfo(), VoyageFilter::UnderWay, Util::_datetime_t()));
}

TEST(VoyageFilters, AnArrivalIsSoonForSevenDaysUpToTheSecond) {
    const VoyInfo voyage = Sailing(1, 9);
    const auto at = [&](int second, int minute, int hour, int day) {
        return Passes(voyage, VoyageFilter::ArrivingSoon,
                      Util::_datetime_t(second, minute, hour, day, 3, 2024));
    };
    EXPECT_FALSE(at(59, 59, 7, 2));
    EXPECT_TRUE(at(0, 0, 8, 2));
    EXPECT_TRUE(at(0, 0, 8, 9));
    EXPECT_FALSE(at(1, 0, 8, 9));
    VoyInfo one = voyage;
    one.portCalls.resize(1);
    EXPECT_FALSE(Passes(one, VoyageFilter::ArrivingSoon, one.portCalls[0].eta)) << "one port is no arrival";
}

TEST(VoyageFilters, WithoutRouteHasNoSavedPoint) {
    VoyInfo voyage = Sailing(5, 9);
    EXPECT_TRUE(Passes(voyage, VoyageFilter::WithoutRoute, Util::_datetime_t()));
    voyage.positionBook.points.resize(1);
    EXPECT_FALSE(Passes(voyage, VoyageFilter::WithoutRoute, Util::_datetime_t()));
    EXPECT_TRUE(Passes(voyage, VoyageFilter::All, Util::_datetime_t()));
}

}  // namespace Tarvik::Seaplan
