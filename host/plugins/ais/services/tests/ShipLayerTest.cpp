// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/plugins/ais/services/ShipLayer.h"
#include "host/plugins/ais/store/tests/Reports.h"

namespace Tarvik::Ais {

namespace {

constexpr std::int64_t kNow = 1'700'000'000;

class ShipLayerTest : public testing::Test {
  protected:
    std::vector<Interface::TrvMapShips> drawn;
    Interface::Binding chart = Interface::Offer(
        Interface::Bus::MapSetShips, [this](const Interface::TrvMapShips& ships) { drawn.push_back(ships); });
    Traffic traffic{"", kNow};
};

TEST_F(ShipLayerTest, ShipsThatAreHeardAreDrawn) {
    traffic.Take(PositionOf(1, 10, 20), kNow);
    traffic.Take(NameOf(1, "ALPHA"), kNow);
    traffic.Take(PositionOf(2, 11, 21), kNow - ShipLayer::kLongestSilence - 1);
    traffic.Take(NameOf(3, "NOWHERE"), kNow);
    ShipLayer layer(traffic);
    layer.Draw(kNow);
    EXPECT_TRUE(drawn.empty()) << "not before they are shown";
    layer.Show(true, kNow);
    ASSERT_EQ(drawn.size(), 1U);
    ASSERT_EQ(drawn[0].ships.size(), 1U);
    const Interface::TrvMapShip& ship = drawn[0].ships[0];
    EXPECT_EQ(ship.id, "1");
    EXPECT_EQ(ship.tip, "ALPHA\n12.5 kn 090°");
    EXPECT_EQ(ship.x, 10);
    EXPECT_EQ(ship.y, 20);
    EXPECT_EQ(ship.heading, 91);
}

TEST_F(ShipLayerTest, HidingTakesAllAwayOnce) {
    traffic.Take(PositionOf(1, 10, 20), kNow);
    {
        ShipLayer layer(traffic);
        layer.Show(true, kNow);
        layer.Show(false, kNow);
        layer.Draw(kNow);
        ASSERT_EQ(drawn.size(), 2U);
        EXPECT_TRUE(drawn[1].ships.empty());
        layer.Show(true, kNow);
    }
    ASSERT_EQ(drawn.size(), 4U);
    EXPECT_TRUE(drawn[3].ships.empty()) << "at its end too";
}

TEST_F(ShipLayerTest, BowIsTheHeadingElseTheCourseOfAMovingShip) {
    Vessel vessel;
    vessel.mmsi = 7;
    vessel.last = {kNow, 0, 0, 10, 123, 45};
    EXPECT_EQ(ShipOf(vessel).heading, 45);
    vessel.last.heading = -1;
    EXPECT_EQ(ShipOf(vessel).heading, 123);
    vessel.last.speed = 0.1;
    EXPECT_EQ(ShipOf(vessel).heading, -1);
    EXPECT_EQ(ShipOf(vessel).tip, "7\n0.1 kn 123°");
}

}  // namespace
}  // namespace Tarvik::Ais
