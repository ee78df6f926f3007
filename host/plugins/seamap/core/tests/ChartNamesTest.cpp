// SPDX-License-Identifier: MIT
#include <algorithm>
#include <fstream>
#include <map>
#include <set>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "host/plugins/seamap/core/ChartNames.h"

namespace Tarvik::Seamap {

using ::testing::ElementsAre;

namespace {

Ports::Place Port(const char* name, const char* nameCn, const char* code = "") {
    return {"40001", name, nameCn, code, GeoPoint{4, 52}, true};
}

/// Every key as its own text, port names in the column that is given.
NameTexts Keys(const std::string& column) {
    return [column](const char* section, const char* key) {
        return std::string(section) == "Chart" ? column : std::string(key);
    };
}

std::vector<std::string> PortTexts(const std::vector<ChartName>& names) {
    std::vector<std::string> texts;
    for (const ChartName& name : names) {
        if (name.kind == ChartName::Kind::Port) {
            texts.push_back(name.text);
        }
    }
    return texts;
}

nlohmann::json TextsOf(const std::string& language) {
    std::ifstream file(std::string(SEAMAP_LANGUAGES) + "/client." + language + ".json");
    return nlohmann::json::parse(file).at("Waters");
}

TEST(ChartNames, AtLeastAHundredAndFiftyWatersStandOnTheGlobeWidestFirst) {
    const auto waters = Waters();
    EXPECT_GE(waters.size(), 150U);
    std::set<std::string> keys;
    for (const Water& water : waters) {
        keys.insert(water.key);
        EXPECT_TRUE(water.position.x >= -180 && water.position.x <= 180) << water.key;
        EXPECT_TRUE(water.position.y > -85 && water.position.y < 85) << water.key;
        EXPECT_GT(water.miles, 0) << water.key;
    }
    EXPECT_EQ(keys.size(), waters.size());
    EXPECT_TRUE(std::is_sorted(waters.begin(), waters.end(),
                               [](const Water& a, const Water& b) { return a.miles > b.miles; }));
}

TEST(ChartNames, EachLanguageNamesEveryWaterAndNothingElse) {
    for (const char* language : {"en-US", "zh-CN", "zh-TW"}) {
        const nlohmann::json texts = TextsOf(language);
        for (const Water& water : Waters()) {
            ASSERT_TRUE(texts.contains(water.key)) << language << " " << water.key;
            EXPECT_NE(texts.at(water.key), "") << language << " " << water.key;
        }
        EXPECT_EQ(texts.size(), Waters().size()) << language;
    }
    EXPECT_EQ(TextsOf("zh-CN").at("TAIWAN_STRAIT"), "台湾海峡");
    EXPECT_EQ(TextsOf("zh-TW").at("STRAIT_OF_MALACCA"), "麻六甲海峽");
}

TEST(ChartNames, PortsThatTheTradeKnowsFindRoomBeforeTheOthersAndBehindTheWaters) {
    const auto names = NamesOfChart(
        Keys("name"), {Port("AARHUS", "AARHUS"), Port("ROTTERDAM", "鹿特丹"), Port("ZADAR", "")});
    EXPECT_THAT(PortTexts(names), ElementsAre("ROTTERDAM", "AARHUS", "ZADAR"));
    EXPECT_EQ(names.front().kind, ChartName::Kind::Ocean);
    EXPECT_EQ(names.size(), Waters().size() + 3);
}

TEST(ChartNames, AChineseChartHasChinesePortNamesWhereThereAreSome) {
    const auto names = NamesOfChart(Keys("namecn"), {Port("ROTTERDAM", "鹿特丹"), Port("ZADAR", "")});
    EXPECT_THAT(PortTexts(names), ElementsAre("鹿特丹", "ZADAR"));
}

TEST(ChartNames, APortOfTheUsersOwnHasItsIdAndFindsRoomFirst) {
    const NameTexts none = [](const char*, const char*) { return std::string(); };
    Ports::Place berth = Port("Berth 7", "Berth 7");
    berth.id = "1000040";
    const auto names = NamesOfChart(none, {Port("Alkmaar", ""), Port("Amsterdam", "阿姆斯特丹"), berth});
    EXPECT_THAT(PortTexts(names), ElementsAre("Berth 7", "Amsterdam", "Alkmaar"));
    EXPECT_EQ(names[0].own, "1000040");
    EXPECT_TRUE(names[0].isMajor);
    EXPECT_EQ(names[1].own, "");
}

TEST(ChartNames, RoutePointsAndPlacesWithoutPositionOrNameAreLeftOut) {
    Ports::Place canal = Port("SUEZ CANAL", "");
    canal.isPort = false;
    Ports::Place nowhere = Port("NOWHERE", "");
    nowhere.position.reset();
    EXPECT_THAT(PortTexts(NamesOfChart(Keys("name"), {canal, nowhere, Port("", "")})), ElementsAre());
}

TEST(ChartNames, WithoutTextsThereAreNoWaters) {
    const NameTexts none = [](const char*, const char*) { return std::string(); };
    EXPECT_TRUE(NamesOfChart(none, {}).empty());
}

TEST(ChartNames, AWaterIsNamedWhereItsNameFitsIntoIt) {
    const ChartName water{.text = "North Sea", .miles = 300};
    EXPECT_FALSE(water.IsShownAt(8, 60)) << "the name would be 480 miles long";
    EXPECT_TRUE(water.IsShownAt(5, 60));
    EXPECT_TRUE(water.IsShownAt(0.1, 60));
}

TEST(ChartNames, PortsAreNamedFromSomeZoomOnMajorOnesEarlier) {
    ChartName port{.kind = ChartName::Kind::Port};
    EXPECT_FALSE(port.IsShownAt(2, 60));
    EXPECT_TRUE(port.IsShownAt(0.5, 60));
    port.isMajor = true;
    EXPECT_TRUE(port.IsShownAt(2, 60));
    EXPECT_FALSE(port.IsShownAt(10, 60));
    EXPECT_FALSE(ChartName::HasCodeAt(0.5));
    EXPECT_TRUE(ChartName::HasCodeAt(0.1));
}

}  // namespace

}  // namespace Tarvik::Seamap
