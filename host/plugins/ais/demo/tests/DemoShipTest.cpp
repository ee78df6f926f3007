// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/ais/demo/DemoShip.h"

namespace Tarvik::Ais {

namespace {

constexpr std::int64_t kNow = 1'700'000'000;

TEST(DemoShipTest, LineIsRead) {
    const auto ship = DemoShip::Parse("232001234;SAMPLE;14.5;1700000500;0,50|1.5,-51", kNow);
    ASSERT_TRUE(ship);
    EXPECT_EQ(ship->mmsi, 232001234U);
    EXPECT_EQ(ship->name, "SAMPLE");
    EXPECT_EQ(ship->knots, 14.5);
    EXPECT_EQ(ship->departure, 1'700'000'500);
    ASSERT_EQ(ship->route.size(), 2U);
    EXPECT_EQ(ship->route[1].longitude, 1.5);
    EXPECT_EQ(ship->route[1].latitude, -51);
    EXPECT_EQ(DemoShip::Parse("1;A;1;-60;0,0", kNow)->departure, kNow - 60);
    EXPECT_EQ(DemoShip::Parse("1;A;1;+60;0,0", kNow)->departure, kNow + 60);
}

TEST(DemoShipTest, OthersAreRefused) {
    for (const char* line :
         {"", "1", "0;A;1;0;0,0", "1000000000;A;1;0;0,0", "1;A;0;0;0,0", "1;A;61;0;0,0", "1;A;1;x;0,0",
          "1;A;1;0;", "1;A;1;0;0", "1;A;1;0;181,0", "1;A;1;0;0,90", "1;A;1;0;0,0|", "1;A;1;0;nan,0"}) {
        EXPECT_EQ(DemoShip::Parse(line, kNow).has_value(), std::string(line) == "1;A;1;0;0,0|") << line;
    }
}

TEST(DemoShipTest, SailsFromPointToPointAtItsSpeed) {
    const auto ship = DemoShip::Parse("1;A;60;0;0,0|1,0|1,1", kNow);
    ASSERT_TRUE(ship);
    const DemoPlace before = PlaceOf(*ship, -10);
    EXPECT_FALSE(before.sails);
    EXPECT_EQ(before.at.longitude, 0);
    const DemoPlace half = PlaceOf(*ship, 1800);
    EXPECT_TRUE(half.sails);
    EXPECT_NEAR(half.at.longitude, 0.5, 0.01) << "a degree of the equator is some 60 miles";
    EXPECT_NEAR(half.course, 90, 1e-6);
    const DemoPlace second = PlaceOf(*ship, 5400);
    EXPECT_NEAR(second.at.longitude, 1, 1e-9);
    EXPECT_NEAR(second.at.latitude, 0.5, 0.01);
    EXPECT_NEAR(second.course, 0, 1e-6);
    const DemoPlace after = PlaceOf(*ship, 100'000);
    EXPECT_FALSE(after.sails);
    EXPECT_EQ(after.at.latitude, 1);
    EXPECT_EQ(after.knots, 0);
}

TEST(DemoShipTest, DateLineIsCrossedTheShortWay) {
    const auto ship = DemoShip::Parse("1;A;60;0;179.5,0|-179.5,0", kNow);
    ASSERT_TRUE(ship);
    EXPECT_NEAR(PlaceOf(*ship, 900).at.longitude, 179.75, 0.01);
    EXPECT_NEAR(PlaceOf(*ship, 2700).at.longitude, -179.75, 0.01);
    EXPECT_NEAR(PlaceOf(*ship, 900).course, 90, 1e-6);
}

}  // namespace
}  // namespace Tarvik::Ais
