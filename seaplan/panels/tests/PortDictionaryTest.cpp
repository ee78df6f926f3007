// SPDX-License-Identifier: MIT
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/portcall/PortDictionary.h"
#include "seaplan/panels/portcall/PurposeList.h"
#include "testsupport/DataFolder.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

PortDictionary ports() {
    return {{"Rouen", "ROTTERDAM", "Rostock", "HAMBURG", "ROTTERDAM"},
            {{"鹿特丹", "ROTTERDAM"}, {"鹿儿岛", "KAGOSHIMA"}, {"汉堡", "HAMBURG"}},
            {{"1-2", ""}, {"2-1", ""}}};
}

}  // namespace

TEST(PortDictionary, MatchesBeginWithTheTypedTextInAnyCase) {
    EXPECT_THAT(ports().Match("ro", 10), ElementsAre("Rostock", "ROTTERDAM", "Rouen"));
    EXPECT_THAT(ports().Match("RO", 2), ElementsAre("Rostock", "ROTTERDAM"));
    EXPECT_THAT(ports().Match("xyz", 10), IsEmpty());
    EXPECT_THAT(ports().Match("", 10), IsEmpty());
    EXPECT_THAT(ports().Match("otter", 10), IsEmpty());
}

TEST(PortDictionary, LocalNamesMatchAndGiveThePortsName) {
    EXPECT_THAT(ports().Match("鹿", 10), ElementsAre("KAGOSHIMA", "ROTTERDAM"));
    EXPECT_EQ(ports().NameOf("鹿特丹"), "ROTTERDAM");
    EXPECT_EQ(ports().NameOf("上海"), "");
}

TEST(PortDictionary, TheCaseOfATypedNameDoesNotMatter) {
    EXPECT_EQ(ports().NameOf("rotterdam"), "ROTTERDAM");
    EXPECT_EQ(ports().NameOf("ROUEN"), "Rouen");
    EXPECT_EQ(ports().NameOf("Atlantis"), "Atlantis");
    EXPECT_TRUE(ports().Knows("Rouen"));
    EXPECT_FALSE(ports().Knows("Atlantis"));
    EXPECT_TRUE(PortDictionary({}, {}, {}).Knows("Atlantis"));
}

TEST(PortDictionary, TakesPlacesFromTheTableAndNamesFromTheHost) {
    const TestSupport::DataFolder folder;
    folder.WriteSamplePoints();
    const TestSupport::PortDictionary host(
        {{"Aberdeen", "40001"}, {"Bergen", "40002"}, {"Elsewhere", "49999"}});
    const PortDictionary read = PortDictionary::FromDatabase();
    EXPECT_TRUE(read.Knows("Bergen"));
    EXPECT_FALSE(read.Knows("Elsewhere")) << "the table has no place for it";
    EXPECT_FALSE(read.Knows(""));
    EXPECT_THAT(read.Match("a", 10), ElementsAre("Aberdeen"));
    EXPECT_TRUE(read.IsSamePlace("40003", "40004"));
}

TEST(PortDictionary, LinkedIdsAreOnePlace) {
    EXPECT_TRUE(ports().IsSamePlace("1", "2"));
    EXPECT_FALSE(ports().IsSamePlace("1", "3"));
}

TEST(Purposes, TheCodeIsTheFirstCharacterOfTheText) {
    std::set<std::string> codes;
    for (int i = 0; i < 10; ++i) {
        ASSERT_NE(PurposeCode(i), nullptr);
        EXPECT_EQ(std::string(kPurposes[i].text).substr(0, 1), PurposeCode(i));
        codes.insert(PurposeCode(i));
    }
    EXPECT_EQ(codes.size(), 10U);
    EXPECT_STREQ(kPurposes[1].text, "2 Redelivery onTC");
    EXPECT_STREQ(kPurposes[7].text, "W (Waiting inoff)");
    EXPECT_EQ(PurposeCode(-1), nullptr);
    EXPECT_EQ(PurposeCode(10), nullptr);
}

}  // namespace Tarvik::Seaplan
