// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/Units.h>

namespace Tarvik::Util {

TEST(UnitsTest, LengthsAndSpeedsGoThereAndBack) {
    EXPECT_EQ(KmFromNm(1), 1.852);
    EXPECT_EQ(NmFromKm(1.852), 1.0);
    EXPECT_EQ(KmhFromKnots(10), 18.52);
    EXPECT_EQ(KnotsFromKmh(18.52), 10.0);
}

// The tables of the plug-in hold the factor in 32 bits; a constant of its own there would be the same number.
TEST(UnitsTest, TheFactorRoundsToItsOwnShortForm) {
    EXPECT_EQ(static_cast<float>(kKmPerNauticalMile), 1.852F);
}

}  // namespace Tarvik::Util
