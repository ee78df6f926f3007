// SPDX-License-Identifier: MIT
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/interface/PlanTerms.h>

#include "seaplan/data/Purposes.h"

namespace Tarvik::Seaplan {

TEST(Purposes, TheCodeIsTheFirstCharacterOfTheText) {
    std::set<std::string> codes;
    for (const Interface::Purpose& purpose : Interface::kPurposes) {
        EXPECT_EQ(std::string(purpose.text).substr(0, 1), purpose.code);
        EXPECT_TRUE(codes.insert(purpose.code).second) << purpose.code;
    }
    EXPECT_EQ(Interface::PurposeCodes("").substr(0, 10), "12BCDLOWYZ");
    EXPECT_STREQ(Interface::kPurposes[1].text, "2 Redelivery onTC");
    EXPECT_STREQ(Interface::kPurposes[7].text, "W (Waiting inoff)");
}

TEST(Purposes, TheNamedOnesStandInTheList) {
    EXPECT_TRUE(Interface::IsPurposeCode(kBallast));
    EXPECT_TRUE(Interface::IsPurposeCode(kDischarge));
    EXPECT_TRUE(Interface::IsPurposeCode(kLoad));
    EXPECT_FALSE(Interface::IsPurposeCode(kAisPurpose));
    EXPECT_FALSE(Interface::IsPurposeCode(""));
    EXPECT_FALSE(Interface::IsPurposeCode("LD"));
}

TEST(Purposes, EmptyAndOneBlankAreNone) {
    EXPECT_TRUE(IsPurposeMissing(""));
    EXPECT_TRUE(IsPurposeMissing(kAisPurpose));
    EXPECT_FALSE(IsPurposeMissing(kLoad));
    EXPECT_FALSE(IsPurposeMissing("  "));
}

}  // namespace Tarvik::Seaplan
