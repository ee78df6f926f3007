// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdlib>

#include <gmock/gmock.h>

#include "tests/golden/voyages/GoldenFile.h"
#include "tests/golden/voyages/PlanDesk.h"

namespace Tarvik::Golden {

namespace {

/// Share by which a leg may differ from the printed tables, which count from pilot to pilot and over other
/// waypoints.
constexpr double kTableTolerance = 0.04;

class GoldenVoyages : public testing::TestWithParam<Voyage> {
  protected:
    void SetUp() override { ASSERT_EQ(desk_.Run(GetParam(), record_), ""); }

    void ExpectGolden(const std::string& file, const std::string& text) const {
        EXPECT_EQ(CompareOrWrite(GetParam().name, file, text), "");
    }

    PlanDesk desk_;
    VoyageRecord record_;
};

TEST_P(GoldenVoyages, RouteBookScheduleAndChartAreByteForByteThoseOfTheFiles) {
    ExpectGolden("route.txt", record_.route);
    ExpectGolden("book.txt", record_.book);
    ExpectGolden("schedule.txt", record_.schedule);
    ExpectGolden("chart.txt", record_.chart);
}

TEST_P(GoldenVoyages, LegsAreAsLongAsPrintedTablesSay) {
    const auto& calls = GetParam().calls;
    ASSERT_EQ(record_.rows.size(), calls.size());
    for (std::size_t i = 1; i < calls.size(); ++i) {
        const auto expected = static_cast<double>(calls[i].tableDistance);
        if (expected == 0) {
            continue;
        }
        EXPECT_NEAR(static_cast<double>(record_.rows[i].distance), expected, expected * kTableTolerance)
            << calls[i - 1].port << " to " << calls[i].port;
    }
}

TEST_P(GoldenVoyages, TimesNeverRunBackwards) {
    for (std::size_t i = 0; i < record_.rows.size(); ++i) {
        EXPECT_LE(record_.rows[i].eta, record_.rows[i].etd) << i;
        if (i > 0) {
            EXPECT_LT(record_.rows[i - 1].etd, record_.rows[i].eta) << i;
        }
    }
    for (std::size_t i = 1; i < record_.points.size(); ++i) {
        EXPECT_LE(record_.points[i - 1].etd, record_.points[i].eta) << "book row " << i;
    }
}

TEST_P(GoldenVoyages, BookHasEveryPortOfTheScheduleAtItsTime) {
    std::vector<const Seaplan::PosBookPoint*> ports;
    for (const auto& point : record_.points) {
        if (point.pst == Seaplan::PortPoint) {
            ports.push_back(&point);
        }
    }
    ASSERT_EQ(ports.size(), record_.rows.size());
    for (std::size_t i = 0; i < ports.size(); ++i) {
        EXPECT_EQ(ports[i]->psn, record_.rows[i].ppn);
        EXPECT_LT(std::abs(ports[i]->eta.to_gmt_timer() - record_.rows[i].eta.to_gmt_timer()), 120)
            << record_.rows[i].ppn << ": " << ports[i]->eta.fmt("%Y-%m-%d %H:%M:%S") << " and "
            << record_.rows[i].eta.fmt("%Y-%m-%d %H:%M:%S");
    }
}

TEST_P(GoldenVoyages, EveryAlternativeOfferedLeadsThroughItAndNotThroughTheOldPoint) {
    EXPECT_THAT(desk_.TryAlternatives(record_.stops), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(RealPorts, GoldenVoyages, testing::ValuesIn(AllVoyages()),
                         [](const testing::TestParamInfo<Voyage>& voyage) {
                             std::string name = voyage.param.name;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
}  // namespace Tarvik::Golden
