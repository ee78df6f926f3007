// SPDX-License-Identifier: MIT
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/ais/core/Decoder.h"
#include "host/plugins/ais/demo/DemoFeed.h"

namespace Tarvik::Ais {

namespace {

class DemoFeedTest : public testing::Test {
  protected:
    std::vector<Message> Decoded(const std::string& text) {
        messages.clear();
        Decoder decoder([this](const Message& message) { messages.push_back(message); });
        decoder.Take(text, 0);
        EXPECT_EQ(decoder.Count(Cause::BadChecksum) + decoder.Count(Cause::BadFields), 0U);
        return messages;
    }
    std::vector<Message> messages;
    std::vector<DemoShip> ships{*DemoShip::Parse("232000001;ALPHA;12;0;0,50|10,50", 0),
                                *DemoShip::Parse("232000002;BETA;20;1000000;5,51|5,52", 0)};
};

TEST_F(DemoFeedTest, SentencesTellNamesAndPlacesWithSomeNoise) {
    DemoFeed feed(ships, 1);
    std::set<std::string> names;
    std::size_t positions = 0;
    for (std::int64_t time = 0; time < 36'000; time += 60) {
        for (const Message& message : Decoded(feed.Next(time))) {
            if (message.tellsName) {
                names.insert(message.particulars.name);
                continue;
            }
            ++positions;
            const DemoShip& ship = ships[message.mmsi - 232000001];
            const DemoPlace place = PlaceOf(ship, time);
            EXPECT_NEAR(message.movement.longitude, place.at.longitude, 0.001);
            EXPECT_NEAR(message.movement.latitude, place.at.latitude, 0.001);
            EXPECT_NEAR(message.movement.speed, place.knots, 1);
            if (place.sails) {
                EXPECT_LE(std::abs(std::remainder(message.movement.course - place.course, 360)), 8);
                EXPECT_EQ(message.movement.heading, 90);
            }
        }
    }
    EXPECT_EQ(names, (std::set<std::string>{"ALPHA", "BETA"}));
    EXPECT_GT(positions, 900U);
    EXPECT_LT(positions, 1200U) << "some spans are gaps";
}

TEST_F(DemoFeedTest, SameSeedGivesTheSameFeed) {
    DemoFeed one(ships, 7), same(ships, 7), other(ships, 8);
    const std::string text = one.Next(100);
    EXPECT_EQ(text, same.Next(100));
    EXPECT_NE(text, other.Next(100));
}

}  // namespace
}  // namespace Tarvik::Ais
