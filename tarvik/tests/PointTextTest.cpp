// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/PointText.h>

namespace Tarvik::Util {

TEST(PointText, IsCutAtItsFirstComma) {
    const auto halves = SplitPoint("4.50,51.9,x");
    ASSERT_TRUE(halves);
    EXPECT_EQ(halves->x, "4.50");
    EXPECT_EQ(halves->y, "51.9,x");
    EXPECT_EQ(SplitPoint(",")->x, "");
    EXPECT_FALSE(SplitPoint("4.5 51.9"));
    EXPECT_FALSE(SplitPoint(""));
}

TEST(PointText, OfAMessageReadsWhatIsNoNumberAsZero) {
    EXPECT_EQ(ReadPoint("4.5,51.9"), (GeoPoint{4.5, 51.9}));
    EXPECT_EQ(ReadPoint("a,51.9"), (GeoPoint{0, 51.9}));
    EXPECT_EQ(ReadPoint(","), GeoPoint());
    EXPECT_FALSE(ReadPoint("4.5"));
}

TEST(PointText, OfAFileIsReadWholeOrNotAtAll) {
    EXPECT_EQ(ParsePoint(" -179.99 , -1e1 "), (GeoPoint{-179.99, -10}));
    EXPECT_EQ(ParsePoint("+3,900"), (GeoPoint{3, 900}));
    for (const char* text :
         {"", ",", "1", "1,", ",1", "1;2", "1,2,3", "a,b", "1,2x", "nan,1", "1,inf", "+-3,0"}) {
        EXPECT_FALSE(ParsePoint(text)) << text;
    }
}

TEST(PointText, HasAsManyDecimalsAsAsked) {
    EXPECT_EQ(PointText({4.0501234, -51.98}, 5), "4.05012,-51.98000");
    EXPECT_EQ(PointText({180, 0}, 3), "180.000,0.000");
}

TEST(PointText, IsShortWhereDecimalsTellNothing) {
    EXPECT_EQ(ShortPointText({180, -0.0}, 5), "180,0");
    EXPECT_EQ(ShortPointText({-180, 12.5}, 5), "-180,12.5");
    EXPECT_EQ(ShortPointText({1.23456, -0.000001}, 5), "1.23456,0");
    EXPECT_EQ(ShortPointText({100.4, -20}, 0), "100,-20") << "zeros before the point stay";
}

}  // namespace Tarvik::Util
