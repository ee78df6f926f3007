// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/server/graph/report/DistanceTable.h"
#include "host/server/graph/report/RouteReport.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::optional<std::string> Answer(const std::vector<std::string>& words, std::string& error) {
    const auto question = ReadRouteQuestion(words, error);
    return question ? RouteText(*SmallNetwork(), {}, *question, error) : std::nullopt;
}

TEST(StatedPassages, FindsThePassagesOfARemark) {
    const StatedPassages two = PassagesOf("via Tsugaru-Kaikyo and  north of Aleutian Islands");
    EXPECT_THAT(two.through, ElementsAre("Tsugaru Strait", "Unimak Pass"));
    EXPECT_THAT(PassagesOf("south of Greece").without, ElementsAre("Corinth Canal"));
    const StatedPassages none = PassagesOf("not stated (fits the route without the Panama Canal)");
    EXPECT_THAT(none.through, IsEmpty());
    EXPECT_THAT(none.without, ElementsAre("Panama Canal"));
    EXPECT_THAT(PassagesOf("not stated").through, IsEmpty());
}

TEST(DistanceTable, MeasuresByTheStatedRoutingAndTellsTheErrors) {
    const auto network = SmallNetwork();
    const Data::CsvTable table(
        "from_unlocode,to_unlocode,nm,via\nAAAAA,BBBBB,2000,\nAAAAA,BBBBB,,\nAAAAA,QQQQQ,5,\n");
    const auto lines = MeasureDistances(*network, RouteEngine(network), table);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_NEAR(lines[0].nm, 1860, 30);
    EXPECT_EQ(lines[0].nm, lines[0].usualNm);
    EXPECT_FALSE(lines[1].published);
    EXPECT_EQ(lines[2].fault, "there is no port QQQQQ");
    EXPECT_THAT(DistanceStatistics(lines),
                HasSubstr("above 1,000 NM by the stated routing: 1 pairs, median "));
    EXPECT_THAT(DistanceText(lines), HasSubstr("\"there is no port QQQQQ\""));
}

TEST(RouteReport, ShowsTheLegsAndOtherWays) {
    std::string error;
    const auto text = Answer({"west", "BBBBB", "--explain"}, error);
    ASSERT_TRUE(text) << error;
    EXPECT_THAT(*text, HasSubstr("West (AAAAA) - North Cape\n"));
    EXPECT_THAT(*text, HasSubstr("forbidden: Canal\n"));
    EXPECT_THAT(*text, HasSubstr("by South Cape instead of North Cape\n"));
}

TEST(RouteReport, TakesAndLeavesPassagesAsAsked) {
    std::string error;
    EXPECT_THAT(*Answer({"40001", "40002", "--without", "North Cape"}, error), HasSubstr("- South Cape\n"));
    EXPECT_THAT(*Answer({"40001", "40002", "--open", "canal"}, error), HasSubstr("- Canal\n"));
    EXPECT_THAT(*Answer({"40001", "40002", "--via", "2", "--format", "geojson"}, error),
                HasSubstr(R"("to":"South Cape")"));
}

TEST(RouteReport, RefusesWhatItDoesNotKnow) {
    std::string error;
    EXPECT_FALSE(Answer({"west"}, error));
    EXPECT_EQ(error, "route needs two ports");
    EXPECT_FALSE(Answer({"west", "nowhere"}, error));
    EXPECT_EQ(error, "there is no port nowhere");
    EXPECT_FALSE(Answer({"west", "east", "--via", "Nothing"}, error));
    EXPECT_EQ(error, "there is no passage Nothing");
    EXPECT_FALSE(Answer({"west", "east", "--format", "svg"}, error));
    EXPECT_EQ(error, "route does not know --format svg");
    EXPECT_FALSE(Answer({"west", "pond"}, error));
    EXPECT_THAT(error, HasSubstr("no way by sea"));
}

}  // namespace
}  // namespace Tarvik::Server
