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
    for (const char* required : {"1", "2", "B", "C", "D", "L", "O", "W", "Y", "Z"}) {
        EXPECT_TRUE(codes.contains(required)) << required;
    }
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
