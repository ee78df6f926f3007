// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/client/plan/PortLookup.h"

namespace Tarvik::Client {

namespace {

PortLookup Lookup() {
    return PortLookup({{"40001", "Rotterdam", "鹿特丹", "NLRTM", 4.5, 51.9},
                       {"40002", "Singapore", "新加坡", "SGSIN", 103.8, 1.2},
                       {"40003", "San Francisco", "", "USSFO", -122.4, 37.8},
                       {"40004", "San Juan", "", "PRSJU", -66.1, 18.4},
                       {"40005", "San Juan", "", "", -115.0, -15.0},
                       {"40006", "Santos", "", "BRSSZ", -46.3, -23.9},
                       {"40007", "San", "", "", 0, 0},
                       {"40008", "Hull, Canada", "", "CAHUL", -75.7, 45.4},
                       {"40009", "Hull, United Kingdom", "赫尔", "GBHUL", -0.3, 53.7},
                       {"40010", "Shanghai, China", "上海", "CNSGH", 121.5, 31.2},
                       {"40011", "Shanghai, China (CNSHA)", "上海", "CNSHA", 121.5, 31.2},
                       {"40012", "Perth, Australia", "", "", 115.9, -31.9},
                       {"40013", "Perth, United Kingdom", "Perth, United Kingdom", "", -3.4, 56.4}});
}

std::string Id(const std::string& word) {
    const PortMatch match = Lookup().Find(word);
    return match.kind == PortMatch::Kind::Found ? match.port.id : "none";
}

TEST(PortLookup, FindsANameInAnyCase) {
    EXPECT_EQ(Id("Rotterdam"), "40001");
    EXPECT_EQ(Id("rOTTERDAM"), "40001");
}

TEST(PortLookup, FindsAChineseName) {
    EXPECT_EQ(Id("新加坡"), "40002");
}

TEST(PortLookup, FindsALocationCodeWithAndWithoutBlankInAnyCase) {
    EXPECT_EQ(Id("NLRTM"), "40001");
    EXPECT_EQ(Id("nl rtm"), "40001");
}

TEST(PortLookup, FindsAnId) {
    EXPECT_EQ(Id("40006"), "40006");
}

TEST(PortLookup, FindsABeginningThatOnlyOnePortHas) {
    EXPECT_EQ(Id("rot"), "40001");
    EXPECT_EQ(Id("San F"), "40003");
}

TEST(PortLookup, AWholeNameGoesBeforeABeginning) {
    EXPECT_EQ(Id("san"), "40007");
}

TEST(PortLookup, ASharedBeginningIsAmbiguousWithTheCandidates) {
    const PortMatch match = Lookup().Find("sant");
    EXPECT_EQ(match.kind, PortMatch::Kind::Found);
    const PortMatch shared = Lookup().Find("sa");
    EXPECT_EQ(shared.kind, PortMatch::Kind::Ambiguous);
    EXPECT_EQ(shared.candidates.size(), 5U);
}

TEST(PortLookup, ASharedNameIsAmbiguousAndAnIdSettlesIt) {
    EXPECT_EQ(Lookup().Find("San Juan").kind, PortMatch::Kind::Ambiguous);
    EXPECT_EQ(Lookup().Find("San Juan").candidates.size(), 2U);
    EXPECT_EQ(Id("40005"), "40005");
}

TEST(PortLookup, ANameWithoutItsCountryMeansTheBusyPort) {
    EXPECT_EQ(Id("Hull"), "40009");
    EXPECT_EQ(Id("hull, canada"), "40008");
}

TEST(PortLookup, APlaceListedTwiceIsOnePort) {
    EXPECT_EQ(Id("Shanghai"), "40010");
    EXPECT_EQ(Id("上海"), "40010");
    EXPECT_EQ(Id("CNSHA"), "40011");
    EXPECT_EQ(Id("shang"), "40010");
}

TEST(PortLookup, QuietPortsOfOneNameStayAmbiguous) {
    const PortMatch match = Lookup().Find("Perth");
    EXPECT_EQ(match.kind, PortMatch::Kind::Ambiguous);
    EXPECT_EQ(match.candidates.size(), 2U);
}

TEST(PortLookup, AnUnknownNameGetsTheNearestFirst) {
    const PortMatch match = Lookup().Find("Roterdam");
    EXPECT_EQ(match.kind, PortMatch::Kind::Unknown);
    ASSERT_FALSE(match.candidates.empty());
    EXPECT_EQ(match.candidates[0].name, "Rotterdam");
    const PortMatch begun = Lookup().Find("Singpo");
    ASSERT_FALSE(begun.candidates.empty());
    EXPECT_EQ(begun.candidates[0].name, "Singapore");
}

TEST(PortLookup, AnEmptyWordIsNoPortAndNoBeginning) {
    EXPECT_EQ(Lookup().Find("").kind, PortMatch::Kind::Unknown);
}

TEST(PortLookup, AWordFarFromEverythingHasNoCandidates) {
    EXPECT_TRUE(Lookup().Find("xqzjvwkpqy").candidates.empty());
}

TEST(EditDistance, CountsInsertionsDeletionsReplacementsAndSwaps) {
    EXPECT_EQ(EditDistance("", "abc"), 3U);
    EXPECT_EQ(EditDistance("abc", "abc"), 0U);
    EXPECT_EQ(EditDistance("abc", "axc"), 1U);
    EXPECT_EQ(EditDistance("abc", "acb"), 1U);
    EXPECT_EQ(EditDistance("kitten", "sitting"), 3U);
    EXPECT_EQ(EditDistance("sitting", "kitten"), 3U);
}

}  // namespace
}  // namespace Tarvik::Client
