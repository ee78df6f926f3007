// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/ChartShips.h"

namespace Tarvik::Seamap {

namespace {

class ChartShipsTest : public testing::Test {
  protected:
    ChartShipsTest() {
        view.Resize(1000, 500);
        view.Show(Project({0, 0}), 3600);  // ten pixels a degree
    }
    std::string At(double x, double y) const {
        const ChartShip* ship = ships.At({x, y}, view);
        return ship == nullptr ? "" : ship->id;
    }
    MercatorView view;
    ChartShips ships;
};

TEST_F(ChartShipsTest, NearestShipWithinReachIsMet) {
    ships.Set({"A", {{"1", "", 0, 0, 10, 0}, {"2", "", 1, 0, -1, 0}}});
    EXPECT_EQ(At(502, 250), "1");
    EXPECT_EQ(At(507, 250), "2");
    EXPECT_EQ(At(502, 259), "");
}

TEST_F(ChartShipsTest, ShipsOfAKindAreReplacedTogether) {
    int changes = 0;
    ships.SetObserver([&changes] { ++changes; });
    ships.Set({"A", {{"1", "", 0, 0, -1, 0}}});
    ships.Set({"B", {{"2", "", 10, 0, -1, 0}}});
    ships.Set({"A", {{"3", "", 20, 0, -1, 0}}});
    EXPECT_EQ(At(500, 250), "");
    EXPECT_EQ(At(600, 250), "2");
    EXPECT_EQ(At(700, 250), "3");
    ships.Set({"A", {}});
    EXPECT_EQ(ships.ByType().size(), 1U);
    EXPECT_EQ(changes, 4);
}

TEST_F(ChartShipsTest, PlaceThatIsNoneIsLeftOut) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ships.Set({"A",
               {{"1", "", nan, 0, 0, 0},
                {"2", "", 181, 0, 0, 0},
                {"3", "", 0, 91, 0, 0},
                {"4", "", 180, -90, 0, 0}}});
    ASSERT_EQ(ships.ByType().at("A").size(), 1U);
    EXPECT_EQ(ships.ByType().at("A")[0].id, "4");
}

TEST_F(ChartShipsTest, ShipIsMetOnEveryTurnOfTheWorld) {
    view.Show(Project({180, 0}), 3600);
    ships.Set({"A", {{"1", "", -179, 0, 0, 0}, {"2", "", 179, 0, 0, 0}}});
    EXPECT_EQ(At(510, 250), "1");
    EXPECT_EQ(At(490, 250), "2");
}

}  // namespace
}  // namespace Tarvik::Seamap
