// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/client/plan/PlanArguments.h"

namespace Tarvik::Client {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

PlanArguments Good(std::vector<std::string> words) {
    words.insert(words.begin(), {"A", "B", "C"});
    const ParsedPlan parsed = ParsePlanArguments(words);
    EXPECT_EQ(parsed.error, "");
    return parsed.arguments;
}

std::string Error(const std::vector<std::string>& words) {
    return ParsePlanArguments(words).error;
}

TEST(PlanArguments, HasTheUsualValues) {
    const PlanArguments usual = Good({});
    EXPECT_THAT(usual.ports, ElementsAre("A", "B", "C"));
    EXPECT_FALSE(usual.depart);
    EXPECT_EQ(usual.speed, 10.0);
    EXPECT_EQ(usual.weather, 0.0);
    EXPECT_THAT(usual.stays, ElementsAre(0, 0, 0));
    EXPECT_THAT(usual.purposes, ElementsAre("L", "D", "D"));
    EXPECT_EQ(usual.format, PlanFormat::Table);
}

TEST(PlanArguments, ReadsDepartWithAndWithoutSeconds) {
    EXPECT_EQ(Good({"--depart", "2026-12-01 08:00"}).depart->time.fmt("%Y-%m-%d %H:%M:%S"),
              "2026-12-01 08:00:00");
    EXPECT_EQ(Good({"--depart=2028-02-29 23:59:58"}).depart->time.fmt("%Y-%m-%d %H:%M:%S"),
              "2028-02-29 23:59:58");
}

TEST(PlanArguments, ReadsNumbersUnitsFormatAndNames) {
    const PlanArguments all =
        Good({"--speed", "14.5", "--weather", "12.5%", "--units", "kph,KM,hour", "--format", "GeoJSON",
              "--save", "Mine/To the/East", "--picture", "a.png", "--zone", "UTC"});
    EXPECT_EQ(all.speed, 14.5);
    EXPECT_EQ(all.weather, 0.125);
    EXPECT_EQ(all.speedUnit + all.distanceUnit + all.timeUnit, "KPHKMhour");
    EXPECT_EQ(all.format, PlanFormat::GeoJson);
    EXPECT_EQ(all.saveCategory, "Mine");
    EXPECT_EQ(all.saveVoyage, "To the/East");
    EXPECT_EQ(all.picture, "a.png");
    EXPECT_EQ(all.zone, "UTC");
}

TEST(PlanArguments, OneStayCountsForAllSeveralGoByPort) {
    EXPECT_THAT(Good({"--stay", "24"}).stays, ElementsAre(24, 24, 24));
    EXPECT_THAT(Good({"--stay", "24,12.5,0"}).stays, ElementsAre(24, 12.5, 0));
    EXPECT_THAT(Good({"--purpose", "c"}).purposes, ElementsAre("C", "C", "C"));
    EXPECT_THAT(Good({"--purpose", "B,L,D"}).purposes, ElementsAre("B", "L", "D"));
}

TEST(PlanArguments, ADoubleDashEndsTheOptions) {
    const ParsedPlan parsed = ParsePlanArguments({"A", "--", "--speed", "B"});
    EXPECT_EQ(parsed.error, "");
    EXPECT_THAT(parsed.arguments.ports, ElementsAre("A", "--speed", "B"));
}

struct BadCase {
    std::vector<std::string> words;
    std::string expected;
};

class BadPlanArguments : public testing::TestWithParam<BadCase> {};

TEST_P(BadPlanArguments, NameTheBadWord) {
    EXPECT_THAT(Error(GetParam().words), HasSubstr(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    All, BadPlanArguments,
    testing::Values(BadCase{{}, "No ports given"},
                    BadCase{{"Rotterdam"}, "Only one port given, \"Rotterdam\""},
                    BadCase{{"A", "B", "--speed", "0"}, "\"0\" of --speed"},
                    BadCase{{"A", "B", "--speed", "-3"}, "\"-3\" of --speed"},
                    BadCase{{"A", "B", "--speed", "nan"}, "\"nan\" of --speed"},
                    BadCase{{"A", "B", "--speed", "14kn"}, "\"14kn\" of --speed"},
                    BadCase{{"A", "B", "--speed", "1,5"}, "\"1,5\" of --speed"},
                    BadCase{{"A", "B", "--weather", "100"}, "\"100\" of --weather"},
                    BadCase{{"A", "B", "--weather", "-1"}, "\"-1\" of --weather"},
                    BadCase{{"A", "B", "--depart", "2026-02-30 08:00"}, "\"2026-02-30 08:00\" of --depart"},
                    BadCase{{"A", "B", "--depart", "tomorrow"}, "\"tomorrow\" of --depart"},
                    BadCase{{"A", "B", "--depart", "2026-12-01T"}, "of --depart"},
                    BadCase{{"A", "B", "--zone", "Middle/Earth"}, "\"Middle/Earth\" of --zone"},
                    BadCase{{"A", "B", "--stay", "1,x"}, "\"x\" of --stay"},
                    BadCase{{"A", "B", "--stay", ""}, "of --stay"},
                    BadCase{{"A", "B", "--stay", "1,2,3"}, "3 values of --stay for 2 ports"},
                    BadCase{{"A", "B", "C", "--stay", "1,2"}, "2 values of --stay for 3 ports"},
                    BadCase{{"A", "B", "C", "--purpose", "L,D"}, "2 values of --purpose for 3 ports"},
                    BadCase{{"A", "B", "--purpose", "Q"}, "\"Q\" of --purpose"},
                    BadCase{{"A", "B", "--units", "kts,ell"}, "\"ell\" of --units"},
                    BadCase{{"A", "B", "--format", "xml"}, "\"xml\" of --format"},
                    BadCase{{"A", "B", "--save", "noslash"}, "\"noslash\" of --save"},
                    BadCase{{"A", "B", "--save", "a/"}, "\"a/\" of --save"},
                    BadCase{{"A", "B", "--picture", ""}, "of --picture"},
                    BadCase{{"A", "B", "--speed"}, "--speed needs a value"},
                    BadCase{{"A", "B", "--sped", "9"}, "Unknown option \"--sped\""}));

TEST(ReadNumber, TakesTheWholeTextOnly) {
    EXPECT_EQ(ReadNumber("1.5"), 1.5);
    EXPECT_EQ(ReadNumber("-2e1"), -20.0);
    for (const char* bad : {"", " 1", "1 ", "1.5.2", "inf", "nan", "0x10", "1e999"}) {
        EXPECT_FALSE(ReadNumber(bad)) << bad;
    }
}

}  // namespace
}  // namespace Tarvik::Client
