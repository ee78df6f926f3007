// SPDX-License-Identifier: MIT
#include <stdexcept>

#include <gmock/gmock.h>

#include "host/server/graph/report/RouteReport.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

PassageLimits LimitsOf(const std::string& lines) {
    return PassageLimits(Data::CsvTable("passage,draught,beam,length,source\n" + lines));
}

std::vector<std::string> Names(const std::vector<PassageLimits::Refusal>& refusals) {
    std::vector<std::string> names;
    for (const auto& refusal : refusals) {
        names.push_back(refusal.passage + ": " + refusal.reason);
    }
    return names;
}

TEST(PassageLimits, RefuseWhatIsLargerAndTakeWhatIsAsLarge) {
    const PassageLimits limits = LimitsOf("Lock,9.5,32.5,235,x\nStrait,12,,,x\n");
    EXPECT_THAT(limits.RefusedTo({9.5, 32.5, 235.0}), IsEmpty());
    EXPECT_THAT(Names(limits.RefusedTo({9.6, 20.0, 100.0})), ElementsAre("Lock: draught above 9.5 m"));
    EXPECT_THAT(Names(limits.RefusedTo({12.1, {}, {}})),
                ElementsAre("Lock: draught above 9.5 m", "Strait: draught above 12 m"));
    EXPECT_THAT(Names(limits.RefusedTo({{}, 40.0, 300.0})), ElementsAre("Lock: beam above 32.5 m"));
    EXPECT_THAT(limits.RefusedTo({}), IsEmpty()) << "nothing known of the ship";
}

TEST(PassageLimits, AreMetresOrNothing) {
    EXPECT_THROW(LimitsOf("Lock,deep,,,x\n"), std::runtime_error);
    EXPECT_THROW(LimitsOf("Lock,-1,,,x\n"), std::runtime_error);
    EXPECT_FALSE(ReadMetres("12,5"));
    EXPECT_FALSE(ReadMetres("0"));
    EXPECT_EQ(ReadMetres("12.5"), 12.5);
}

std::optional<std::string> Answer(const std::vector<std::string>& words, std::string& error) {
    const auto question = ReadRouteQuestion(words, error);
    RouteFiles files;
    files.limits = LimitsOf("North Cape,9,,,x\nNowhere,1,,,x\n");
    return question ? RouteText(*SmallNetwork(), files, *question, error) : std::nullopt;
}

TEST(PassageLimits, ARouteKeepsOutOfWhatIsTooSmallForTheShip) {
    std::string error;
    EXPECT_THAT(*Answer({"west", "east", "--draught", "9"}, error), HasSubstr("- North Cape"));
    const auto deep = Answer({"west", "east", "--draught", "9.1", "--explain"}, error);
    ASSERT_TRUE(deep) << error;
    EXPECT_THAT(*deep, HasSubstr("- South Cape\n"));
    EXPECT_THAT(*deep, HasSubstr("forbidden: North Cape, Canal\n"));
    EXPECT_THAT(*deep, HasSubstr("too small for the ship: North Cape (draught above 9 m)\n"));
}

TEST(PassageLimits, AShipIsRefusedWithAReason) {
    std::string error;
    EXPECT_FALSE(Answer({"west", "east", "--beam", "wide"}, error));
    EXPECT_EQ(error, "route does not know --beam wide");
    const auto question = ReadRouteQuestion({"west", "east", "--length", "300"}, error);
    EXPECT_FALSE(RouteText(*SmallNetwork(), {}, *question, error));
    EXPECT_EQ(error, "the limits of passages are unknown: passage_limits.csv is not beside the network");
}

/// Every line of the shipped file names a passage of ours, else it would never be used.
TEST(PassageLimits, TheShippedOnesNamePassages) {
    const Data::CsvTable points(Data::ReadFile(SEAPLAN_DATA "/route_points.csv"));
    std::vector<std::string> names;
    for (std::size_t i = 0; i < points.size(); ++i) {
        names.push_back(points.At(i, "name"));
    }
    const Data::CsvTable table(Data::ReadFile(SEAPLAN_DATA "/passage_limits.csv"));
    ASSERT_GE(table.size(), 10u);
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_THAT(names, Contains(table.At(i, "passage")));
    }
    EXPECT_EQ(PassageLimits(table).RefusedTo({15.0, 49.0, 366.0}).size(), 8u) << "a large container ship";
}

}  // namespace
}  // namespace Tarvik::Server
