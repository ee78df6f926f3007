// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "host/client/plan/PlanFormats.h"
#include "host/client/tests/SamplePlan.h"

namespace Tarvik::Client {

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;

LanguageFiles Texts() {
    LanguageFiles texts;
    texts.Merge(R"({"Client":{"ZONE_NAME":"Time zone"}})");
    return texts;
}

TEST(PlanJson, HoldsRowsTotalsSummaryAndRouteInStandardUnits) {
    const json plan = json::parse(PlanJson(SamplePlan()));
    ASSERT_EQ(plan["rows"].size(), 2U);
    const json& row = plan["rows"][1];
    EXPECT_EQ(row["ppi"], "40002");
    EXPECT_EQ(row["pp"], "D");
    EXPECT_EQ(row["pw"], 0.125);
    EXPECT_EQ(row["steamTime"], 240.0);
    EXPECT_EQ(row["distance"], 2400.5);
    EXPECT_EQ(row["eta"], "2026-12-11 20:00:00");
    EXPECT_EQ(plan["rows"][0]["ppn"], "Port, \"A\"");
    EXPECT_EQ(plan["rows"][0]["etd"], "2026-12-01 20:00:00");
    EXPECT_EQ(plan["totals"]["portTime"], 12.0);
    EXPECT_EQ(plan["totals"]["eta"], "2026-12-01 08:00:00");
    EXPECT_EQ(plan["summary"]["averageSpeed"], 10.0);
    ASSERT_EQ(plan["route"].size(), 3U);
    EXPECT_EQ(plan["route"][2]["x"], -170.5);
    EXPECT_EQ(plan["route"][2]["y"], -14.0);
    EXPECT_EQ(plan["route"][1]["psr"], "RL");
    EXPECT_EQ(plan["route"][0]["kind"], 5);
}

TEST(PlanJson, NumbersKeepEveryBitOfTheField) {
    const json plan = json::parse(PlanJson(SamplePlan()));
    EXPECT_EQ(plan["rows"][1]["psp"].get<float>(), 10.1F);
    EXPECT_EQ(plan["rows"][1]["psp"].get<double>(), static_cast<double>(10.1F));
}

TEST(PlanGeoJson, HasOneLinePerPieceAndThePortsAsPoints) {
    const json features = json::parse(PlanGeoJson(SamplePlan()))["features"];
    ASSERT_EQ(features.size(), 4U);
    EXPECT_EQ(features[0]["geometry"]["type"], "LineString");
    EXPECT_EQ(features[1]["geometry"]["coordinates"], json::parse("[[-179.99,12.0],[-170.5,-14.0]]"));
    EXPECT_EQ(features[1]["properties"]["piece"], 1);
    EXPECT_EQ(features[2]["geometry"]["coordinates"], json::parse("[170.0,10.0]"));
    EXPECT_EQ(features[3]["properties"]["name"], "B");
    EXPECT_EQ(features[3]["properties"]["kind"], "port");
}

TEST(PlanCells, CarryThePanelsTextsAndUnits) {
    const auto cells = PlanCells(SamplePlan());
    ASSERT_EQ(cells.size(), 4U);
    EXPECT_EQ(cells[0][3], "Speed (kts)");
    EXPECT_EQ(cells[0][5], "IDS_PORTCALL_STEAMTIME (days)");
    EXPECT_THAT(cells[2], ElementsAre("2", "B", "D", "10.10", "12%", "10.00", "0.00", "2026-12-11 20:00:00",
                                      "2026-12-11 20:00:00", "2400.50"));
    EXPECT_THAT(cells[3], ElementsAre("RES", "", "", "", "", "10.0", "0.50", "2026-12-01 08:00:00",
                                      "2026-12-11 20:00:00", "2400.50"));
}

TEST(PlanCsv, QuotesWhatNeedsIt) {
    const std::string csv = PlanCsv(SamplePlan());
    EXPECT_THAT(csv, HasSubstr("\n1,\"Port, \"\"A\"\"\",L,14.00,0%,0.00,0.50,"));
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 4);
}

TEST(PlanTable, NamesTheZoneAlignsColumnsAndClosesWithTheSummary) {
    const std::string table = PlanTable(SamplePlan(), "UTC", Texts());
    EXPECT_TRUE(table.starts_with("Time zone: UTC\nNo."));
    EXPECT_THAT(table, HasSubstr("\n  2  B "));
    EXPECT_TRUE(
        table.ends_with("\nAverage speed 10.0 kts, Total distance 2400.5 NM, Total time 10.00 days\n"));
    EXPECT_EQ(table.find(" \n"), std::string::npos);
}

}  // namespace
}  // namespace Tarvik::Client
