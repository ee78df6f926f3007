// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Picture.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

// Colours of the points on the light chart.
constexpr std::uint32_t kRoutePoint = 0xFF6496;
constexpr std::uint32_t kAlternative = 0xFF00FF;
constexpr int kLeastPixels = 12;

/// The second row of the port call table from its number to the distance.
std::string SecondRow(const std::string& portCalls) {
    return Cut(portCalls, 10, 94, 700, 19);
}

class Alternatives : public testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(display_.Name(), ""); }

    /// The one patch of the colour that the chart comes to show.
    Spot AwaitSpot(const std::string& window, std::uint32_t colour, const std::string& what) const {
        std::vector<Spot> spots;
        std::string last;
        const auto still = [&] {
            const std::string now = person_.Look(window);
            const bool same = now == last;
            last = now;
            spots = SpotsOf(now, colour, kLeastPixels);
            return same && spots.size() == 1;
        };
        AwaitOrThrow(still, "the chart does not show one " + what);
        return spots.front();
    }
    void Await(const std::string& sql, long number) const {
        AwaitOrThrow([&] { return client_.Number(sql) == number; }, sql);
    }

    Display display_;
    Person person_{display_.Name()};
    ClientTree client_;
};

TEST_F(Alternatives, AClickOnAnAlternativeChangesRouteAndFigures) {
    Sitting sitting(client_, person_, display_.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    sitting.TypePorts({"Hong Kong", "Shanghai"});
    // Out of the way of the chart.
    person_.Drag(sitting.portCalls, 740, 660);
    const std::string typed = person_.Look(sitting.portCalls);
    person_.Press({"F9"});
    const std::string through = person_.LookForChange(sitting.portCalls, typed);

    const Spot strait = AwaitSpot(sitting.main, kRoutePoint, "route point");
    person_.Click(sitting.main, strait.x, strait.y);
    const Spot outside = AwaitSpot(sitting.main, kAlternative, "alternative");
    Keep("alternatives.ppm", person_.Look(sitting.main));
    person_.Click(sitting.main, outside.x, outside.y);

    const std::string around = person_.LookForChange(sitting.portCalls, through);
    EXPECT_NE(SecondRow(around), SecondRow(through)) << "the figures of the leg did not follow";
    person_.Click(sitting.portCalls, 300, 12);
    person_.Press({"ctrl+s"});
    Await("select count(*) from port_calls", 2);
    Await("select count(*) from book_rows where psn='East of Taiwan'", 1);
    Await("select count(*) from book_rows where psn='Taiwan Strait'", 0);
    EXPECT_EQ(sitting.Leave().exitCode, 0);
}

TEST(Spots, AreJoinedPixelsOfOneColourFromLeftToRight) {
    const std::string picture = "P6\n4 2\n255\n" + std::string("bbb---aaaaaa") + std::string("---bbb---aaa");
    const auto spots = SpotsOf(picture, 0x616161, 1);
    ASSERT_EQ(spots.size(), 1U);
    EXPECT_EQ(spots[0].pixels, 3);
    EXPECT_EQ(spots[0].x, 2);
    EXPECT_EQ(SpotsOf(picture, 0x626262, 1).size(), 2U);
    EXPECT_EQ(SpotsOf(picture, 0x626262, 2).size(), 0U);
    EXPECT_TRUE(SpotsOf("no picture", 0x616161, 1).empty());
}

}  // namespace
}  // namespace Tarvik::Programs
