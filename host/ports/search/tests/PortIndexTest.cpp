// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/ports/search/PortIndex.h"

namespace Tarvik::Ports {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<Port> Sample() {
    return {{"Busan", "釜山", "KRPUS", 129.05, 35.13, {"Pusan"}},
            {"New Plymouth", "", "NZNPL", 174, -39, {}},
            {"Plymouth", "Plymouth", "GBPLY", -4.1, 50.3, {}},
            {"Rotterdam", "鹿特丹", "NLRTM", 4.5, 51.92, {}},
            {"Rotterdam, United States", "Rotterdam, United States", "USRAJ", -74, 42.8, {}},
            {"Shanghai, China", "上海", "CNSGH", 121.47, 31.23, {}},
            {"Shanghai", "上海", "CNSHA", 121.47, 31.23, {}},
            {"Tianjin Xingang", "天津新港", "CNTXG", 117.7, 39, {}}};
}

class PortIndexTest : public testing::Test {
  protected:
    std::vector<std::string> Names(const std::string& typed, std::size_t limit = 8) const {
        std::vector<std::string> names;
        for (const PortHit& hit : index.Search(typed, limit)) {
            names.push_back(hit.port->name);
        }
        return names;
    }
    PortIndex index{Sample()};
};

TEST_F(PortIndexTest, BeginningsComeBeforeWordsAndWordsBeforeSlips) {
    EXPECT_THAT(Names("plym"), ElementsAre("Plymouth", "New Plymouth"));
    EXPECT_THAT(Names("plimo"), ElementsAre("Plymouth", "New Plymouth"));
    EXPECT_EQ(index.Search("plimo", 8)[0].fit, Fit::Slip);
    EXPECT_THAT(Names("rott"), ElementsAre("Rotterdam", "Rotterdam, United States"));
    EXPECT_THAT(Names("states rotter"), ElementsAre("Rotterdam, United States"));
}

TEST_F(PortIndexTest, TellsByWhichOtherNameAPortWasFound) {
    EXPECT_EQ(index.Search("pusan", 1)[0].by, "Pusan");
    EXPECT_EQ(index.Search("釜", 1)[0].by, "釜山");
    EXPECT_EQ(index.Search("busan", 1)[0].by, "");
    EXPECT_EQ(index.Search("KR PUS", 1)[0].by, "");
}

TEST_F(PortIndexTest, CodesAreFoundWholeAndByTheirBeginning) {
    EXPECT_EQ(index.Search("krpus", 8)[0].fit, Fit::Whole);
    EXPECT_THAT(Names("KRP"), ElementsAre("Busan"));
}

TEST_F(PortIndexTest, APlaceThatIsListedTwiceIsOnePort) {
    EXPECT_THAT(Names("shanghai"), ElementsAre("Shanghai"));
    EXPECT_THAT(Names("CNSGH"), ElementsAre("Shanghai")) << "by its other code too";
    EXPECT_EQ(index.Size(), 7U);
}

TEST_F(PortIndexTest, ChineseNamesAreFoundByAnyPartAndWithOneWrongCharacter) {
    EXPECT_THAT(Names("新港"), ElementsAre("Tianjin Xingang"));
    EXPECT_THAT(Names("鹿得丹"), ElementsAre("Rotterdam"));
    EXPECT_EQ(index.Search("鹿特丹港", 1)[0].fit, Fit::Whole);
}

TEST_F(PortIndexTest, TheCountryGoesWithANameButNotAlone) {
    EXPECT_THAT(Names("plymouth new zealand"), ElementsAre("New Plymouth"));
    EXPECT_THAT(Names("rotterdam netherlands"), ElementsAre("Rotterdam"));
    EXPECT_THAT(Names("zealand"), IsEmpty());
}

TEST_F(PortIndexTest, KeepsToTheLimitAndAnswersNothingToNothing) {
    EXPECT_EQ(Names("r", 1).size(), 1U);
    EXPECT_THAT(Names("rott", 0), IsEmpty());
    EXPECT_THAT(Names(""), IsEmpty());
    EXPECT_THAT(Names(" - "), IsEmpty());
    EXPECT_THAT(Names("qqqq"), IsEmpty());
    EXPECT_THAT(PortIndex({}).Search("a", 8), IsEmpty());
}

}  // namespace
}  // namespace Tarvik::Ports
