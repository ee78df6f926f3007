// SPDX-License-Identifier: MIT
#include <algorithm>

#include <gtest/gtest.h>

#include <tarvik/util/DateTimeUtl.h>

#include "host/client/services/CommandLine.h"
#include "host/client/services/ZoneList.h"

namespace Tarvik::Client {

namespace {

constexpr std::int64_t kWinter = 1768478400;  ///< 15 January 2026, noon
constexpr std::int64_t kSummer = 1784116800;  ///< 15 July 2026, noon

/// The names of the zones that a typed text leaves.
std::vector<std::string> Left(const std::string& typed, const std::string& language = "en-US",
                              std::int64_t moment = kWinter) {
    std::vector<std::string> names;
    for (const ZoneLine& line : ListZones(language, moment)) {
        if (line.Answers(typed)) {
            names.push_back(line.name);
        }
    }
    return names;
}

bool Has(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(ZoneList, BeginsWithTheZoneOfPlanTimesAndHoldsKnownZonesAlone) {
    const std::vector<ZoneLine> lines = ListZones("en-US", kWinter);
    ASSERT_GT(lines.size(), 400U);
    EXPECT_EQ(lines[0].name, Util::kPlanZone);
    EXPECT_EQ(lines[1].name, "UTC");
    for (const ZoneLine& line : lines) {
        EXPECT_TRUE(Util::DateTimeUtl::IsKnownZone(line.name)) << line.name;
    }
}

TEST(ZoneList, IsFoundByCityCountryAndOffset) {
    EXPECT_EQ(Left("rome"), std::vector<std::string>{"Europe/Rome"});
    EXPECT_TRUE(Has(Left("ITALY"), "Europe/Rome"));
    EXPECT_EQ(Left("new york"), std::vector<std::string>{"America/New_York"});
    EXPECT_EQ(Left("york united"), std::vector<std::string>{"America/New_York"}) << "in any order";
    EXPECT_TRUE(Has(Left("china"), Util::kPlanZone));
    const std::vector<std::string> eight = Left("+8");
    EXPECT_TRUE(Has(eight, "Asia/Singapore"));
    EXPECT_FALSE(Has(eight, "Asia/Tokyo"));
    EXPECT_EQ(Left("UTC+08:00"), eight);
    EXPECT_TRUE(Has(Left("+05:30 india"), "Asia/Kolkata"));
    EXPECT_TRUE(Has(Left("-330"), "America/St_Johns"));
    EXPECT_TRUE(Left("middle earth").empty());
    EXPECT_EQ(Left(" ").size(), ListZones("en-US", kWinter).size());
}

TEST(ZoneList, IsFoundInTheLanguageInForceAndInEnglish) {
    EXPECT_TRUE(Has(Left("新加坡", "zh-CN"), "Asia/Singapore"));
    EXPECT_TRUE(Has(Left("義大利", "zh-TW"), "Europe/Rome"));
    EXPECT_TRUE(Has(Left("italy", "zh-TW"), "Europe/Rome"));
}

TEST(ZoneList, TellsTheOffsetOfTheMoment) {
    const auto text = [](std::int64_t moment) {
        const std::vector<ZoneLine> lines = ListZones("en-US", moment);
        const auto rome = std::find_if(lines.begin(), lines.end(),
                                       [](const ZoneLine& line) { return line.name == "Europe/Rome"; });
        return rome == lines.end() ? std::string() : rome->Text();
    };
    EXPECT_EQ(text(kWinter), "Europe/Rome · Rome, Italy · UTC+01:00");
    EXPECT_EQ(text(kSummer), "Europe/Rome · Rome, Italy · UTC+02:00");
}

TEST(ZoneList, TheZonesThatTheHelpNamesAreThere) {
    const std::string help = HelpText({"en-US"});
    const std::size_t begin = help.find('(', help.find("--zone NAME"));
    const std::string examples = help.substr(begin + 1, help.find(')', begin) - begin - 1);
    std::istringstream words(examples);
    int seen = 0;
    for (std::string name; std::getline(words >> std::ws, name, ',');) {
        name.erase(std::remove(name.begin(), name.end(), '"'), name.end());
        EXPECT_TRUE(Util::DateTimeUtl::IsKnownZone(name)) << name;
        ++seen;
    }
    EXPECT_EQ(seen, 3) << examples;
}

}  // namespace
}  // namespace Tarvik::Client
