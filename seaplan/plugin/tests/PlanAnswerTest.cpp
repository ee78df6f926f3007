// SPDX-License-Identifier: MIT
// What the planning service tells of a schedule: its table in the units and the language of the person.
#include <gmock/gmock.h>

#include <tarvik/interface/LoadString.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/plugin/PlanAnswer.h"

namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;

class SomeTexts : public Interface::LanguageSource {
  public:
    SomeTexts() { Set(this); }
    ~SomeTexts() override { Set(nullptr); }
    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& /*name*/,
                                       const std::u16string& key) const override {
        if (section != u"Seaplan") {
            return std::nullopt;
        }
        if (key == u"IDS_PORTCALL_SPEED") {
            return u"Speed";
        }
        return key == u"IDS_PORTCALL_AVARGERSPD" ? std::optional<std::u16string>(u"Average speed")
                                                 : std::nullopt;
    }
};

/// A voyage with figures that are easy to check.
PortCallRows SampleRows() {
    const Util::_datetime_t start(0, 0, 8, 1, 12, 2026);
    const Util::_datetime_t sailing(0, 0, 20, 1, 12, 2026);
    const Util::_datetime_t arrival(0, 0, 20, 11, 12, 2026);
    return {{"40001", "Port, \"A\"", "L", 14.0F, 0, 0, 12.0F, start, sailing, 0},
            {"40002", "B", "D", 10.1F, 0.125F, 240.0F, 0, arrival, arrival, 2400.5F}};
}

Interface::PlanResult Told(const UnitSet& units) {
    const SomeTexts texts;
    Interface::PlanResult plan;
    TellSchedule(SampleRows(), plan);
    TellTable(SampleRows(), units, plan);
    return plan;
}

/// The cells of the columns that rules name.
std::vector<std::string> Named(const std::vector<std::string>& cells) {
    return {cells.begin(), cells.begin() + ColDistance + 1};
}

TEST(PlanAnswerTest, TableCarriesThePanelsTextsAndUnits) {
    const Interface::PlanTable table = Told({}).table;
    ASSERT_EQ(table.columns.size(), kPortCallColumns.size());
    EXPECT_EQ(table.columns[3].title, "Speed");
    EXPECT_EQ(table.columns[3].unit, "kts");
    EXPECT_TRUE(table.columns[3].right);
    EXPECT_EQ(table.columns[5].key, "IDS_PORTCALL_STEAMTIME");
    EXPECT_EQ(table.columns[5].title, "IDS_PORTCALL_STEAMTIME") << "a gap is seen";
    EXPECT_EQ(table.columns[5].unit, "days");
    EXPECT_FALSE(table.columns[1].right);
    EXPECT_EQ(table.columns[1].unit, "");
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_THAT(Named(table.rows[1]), ElementsAre("2", "B", "D", "10.10", "12%", "10.00", "0.00",
                                                  "2026-12-11 20:00:00", "2026-12-11 20:00:00", "2400.50"));
    EXPECT_THAT(Named(table.totals), ElementsAre("RES", "", "", "", "", "10.0", "0.50", "2026-12-01 08:00:00",
                                                 "2026-12-11 20:00:00", "2400.50"));
}

TEST(PlanAnswerTest, TableIsConvertedToOtherUnits) {
    const Interface::PlanTable table = Told({"KPH", "KM", "hour"}).table;
    EXPECT_EQ(table.columns[3].unit, "KPH");
    EXPECT_EQ(table.rows[1][3], "18.71");
    EXPECT_EQ(table.rows[1][5], "240.00");
    EXPECT_EQ(table.rows[1][9], "4445.73");
}

TEST(PlanAnswerTest, NumbersStayInStandardUnits) {
    const Interface::PlanResult plan = Told({"KPH", "KM", "hour"});
    EXPECT_EQ(plan.rows[1].speed, 10.1F);
    EXPECT_EQ(plan.rows[1].weather, 0.125F);
    EXPECT_EQ(plan.totals.portTime, 12.0F);
    EXPECT_EQ(plan.summary.totalDistance, 2400.5F);
}

TEST(PlanAnswerTest, FiguresStandInTheUnitsOfTheTable) {
    const auto figures = Told({}).figures;
    ASSERT_EQ(figures.size(), 3U);
    EXPECT_EQ(figures[0].title + " " + figures[0].text + " " + figures[0].unit, "Average speed 10.0 kts");
    EXPECT_EQ(figures[1].text + " " + figures[1].unit, "2400.5 NM");
    EXPECT_EQ(figures[2].text + " " + figures[2].unit, "10.00 days");
}

TEST(PlanAnswerTest, RouteIsToldAsWaypointsAndLines) {
    BookPoints book(2);
    book[0].pointId = "40001";
    book[0].position = "170,10";
    book[0].pst = PortPoint;
    book[1].position = "175,12";
    Interface::PlanResult plan;
    EXPECT_TRUE(TellRoute(book, plan));
    EXPECT_EQ(plan.route[0].kind, Interface::WaypointKind::Port);
    EXPECT_EQ(plan.route[0].id, "40001");
    EXPECT_EQ(plan.route[1].kind, Interface::WaypointKind::Plain);
    EXPECT_EQ(plan.linePieces, (std::vector<std::vector<std::string>>{{"170,10", "175,12"}}));
}

}  // namespace

}  // namespace Tarvik::Seaplan
