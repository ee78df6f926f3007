// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/gui/ClientTree.h"

namespace Tarvik::Programs {

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;
namespace fs = std::filesystem;

const std::vector<std::string> kLong{"Rotterdam", "Singapore", "--speed",
                                     "14",        "--depart",  "2026-12-01 08:00"};

std::vector<std::string> With(std::vector<std::string> words, const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

/// A failure tells one line on standard error and nothing on standard output.
void ExpectOneLine(const Ended& ended, int exitCode, const std::vector<std::string>& parts) {
    EXPECT_EQ(ended.exitCode, exitCode) << ended.err;
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(std::count(ended.err.begin(), ended.err.end(), '\n'), 1) << ended.err;
    for (const std::string& part : parts) {
        EXPECT_THAT(ended.err, HasSubstr(part));
    }
}

TEST(PlanProgram, PrintsTheScheduleOfRealPortsAsJson) {
    const ClientTree client;
    const Ended ended = client.Plan(With(kLong, {"--format", "json", "--stay", "12"}));
    ASSERT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_EQ(ended.err, "");
    const Json plan = Json::parse(ended.out);
    ASSERT_EQ(plan["rows"].size(), 2U);
    EXPECT_EQ(plan["rows"][0]["eta"], "2026-12-01 08:00:00");
    EXPECT_EQ(plan["rows"][0]["etd"], "2026-12-01 20:00:00");
    EXPECT_EQ(plan["rows"][1]["psp"], 14.0);
    EXPECT_NEAR(plan["totals"]["distance"].get<double>(), 8290.0, 0.04 * 8290.0);
    EXPECT_EQ(plan["totals"]["distance"], plan["rows"][1]["distance"]);
    const Json& route = plan["route"];
    ASSERT_GT(route.size(), 10U);
    EXPECT_EQ(route.front()["id"], plan["rows"][0]["ppi"]);
    EXPECT_EQ(route.back()["id"], plan["rows"][1]["ppi"]);
}

TEST(PlanProgram, CrossesThePacificOverTheDateLine) {
    const ClientTree client;
    const Ended ended = client.Plan({"Shanghai", "Los Angeles", "--speed", "14", "--format", "geojson"});
    ASSERT_EQ(ended.exitCode, 0) << ended.err;
    const Json drawing = Json::parse(ended.out);
    std::vector<Json> lines;
    for (const Json& feature : drawing["features"]) {
        if (feature["geometry"]["type"] == "LineString") {
            lines.push_back(feature["geometry"]["coordinates"]);
        }
    }
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].back()[0], 179.99);
    EXPECT_EQ(lines[1].front()[0], -179.99);
    const Ended json = client.Plan({"Shanghai", "Los Angeles", "--speed", "14", "--format", "json"});
    EXPECT_LT(Json::parse(json.out)["summary"]["totalDistance"].get<double>(), 6100.0);
}

TEST(PlanProgram, WritesCsvAndTableInTheUnitsAskedFor) {
    const ClientTree client;
    const Ended csv = client.Plan(With(kLong, {"--format", "csv", "--units", "kph,km,hour"}));
    EXPECT_THAT(csv.out,
                StartsWith("No.,Port,Pur.,Speed (KPH),Weather,At sea (hours),In port (hours),ETA,ETD,"
                           "Distance (KM)"));
    EXPECT_THAT(csv.out, HasSubstr("\n1,Rotterdam"));
    EXPECT_THAT(csv.out, HasSubstr(",25.93,0%,"));
    const Ended table = client.Plan(With(kLong, {"--zone", "UTC"}));
    EXPECT_THAT(table.out, StartsWith("Time zone: UTC\n"));
    EXPECT_THAT(table.out, HasSubstr("14.00"));
}

TEST(PlanProgram, WritesAPictureWithoutADisplay) {
    const ClientTree client;
    auto start = client.Words(With({"plan"}, With(kLong, {"--picture", client.Data("route.png")})));
    start.environment["DISPLAY"] = "";
    const Ended ended = RunToEnd(start);
    ASSERT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_EQ(ended.err, "");
    EXPECT_GT(fs::file_size(client.Data("route.png")), 20000U);
}

TEST(PlanProgram, SavesAVoyageOnce) {
    const ClientTree client;
    const auto words = With(kLong, {"--save", "Trade/First"});
    ASSERT_EQ(client.Plan(words).exitCode, 0);
    EXPECT_EQ(client.Number("select count(*) from port_calls"), 2);
    EXPECT_GT(client.Number("select count(*) from book_rows"), 10);
    ExpectOneLine(client.Plan(words), 2, {"a voyage of this name exists"});
    ASSERT_EQ(client.Plan(With(kLong, {"--save", "Trade/Second"})).exitCode, 0);
    EXPECT_EQ(client.Number("select count(*) from categories"), 1);
    EXPECT_EQ(client.Number("select count(*) from voyages"), 2);
}

TEST(PlanProgram, NamesTheBadWordOfEveryBadInput) {
    const ClientTree client;
    const std::pair<std::vector<std::string>, std::vector<std::string>> cases[] = {
        {{"Rotterdam", "Singapoer"}, {"Unknown port \"Singapoer\"", "Did you mean Singapore"}},
        {{"Rotterdam", "Port"}, {"\"Port\" is ambiguous", "Did you mean"}},
        {{"Rotterdam"}, {"Only one port given, \"Rotterdam\""}},
        {{}, {"No ports given"}},
        {{"Rotterdam", "Rotterdam"}, {"follows itself"}},
        {{"Rotterdam", "Singapore", "--speed", "0"}, {"\"0\" of --speed", "above 0"}},
        {{"Rotterdam", "Singapore", "--speed", "-3"}, {"\"-3\" of --speed"}},
        {{"Rotterdam", "Singapore", "--weather", "100"}, {"\"100\" of --weather", "below 100"}},
        {{"Rotterdam", "Singapore", "--depart", "2026-02-30 08:00"}, {"\"2026-02-30 08:00\" of --depart"}},
        {{"Rotterdam", "Singapore", "--zone", "Nowhere"}, {"\"Nowhere\" of --zone"}},
        {{"Rotterdam", "Singapore", "--save", "Trade"}, {"\"Trade\" of --save", "CATEGORY/VOYAGE"}},
        {{"Rotterdam", "Singapore", "--picture", "/nowhere/a.png"}, {"/nowhere", "missing"}},
        {{"Rotterdam", "Singapore", "--colour", "red"}, {"Unknown option \"--colour\""}}};
    for (const auto& [words, parts] : cases) {
        ExpectOneLine(client.Plan(words), 2, parts);
    }
    EXPECT_EQ(client.Number("select count(*) from categories"), 0);
}

}  // namespace
}  // namespace Tarvik::Programs
