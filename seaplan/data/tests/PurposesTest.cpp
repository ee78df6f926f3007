// SPDX-License-Identifier: MIT
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "seaplan/data/Purposes.h"

namespace Tarvik::Seaplan {

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

TEST(Purposes, EmptyAndOneBlankAreNone) {
    EXPECT_TRUE(IsPurposeMissing(""));
    EXPECT_TRUE(IsPurposeMissing(kAisPurpose));
    EXPECT_FALSE(IsPurposeMissing(kLoad));
    EXPECT_FALSE(IsPurposeMissing("  "));
}

}  // namespace Tarvik::Seaplan
