// SPDX-License-Identifier: MIT
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

/// The ports A and B, with a count of how often each name was looked up.
class CountingDictionary final : public Interface::ValueDictionary {
  public:
    CountingDictionary() { Set(this); }
    ~CountingDictionary() override { Set(nullptr); }
    CountingDictionary(const CountingDictionary&) = delete;
    CountingDictionary& operator=(const CountingDictionary&) = delete;

    std::string KeyOfValue(const std::string& path, const std::string& value, int language) const override {
        EXPECT_EQ(path, "/points");
        EXPECT_EQ(language, 1033);
        ++lookups[value];
        return value == "A" ? "40001" : value == "B" ? "40002" : "";
    }
    std::string ValueOfKey(const std::string&, const std::string& key, int) const override {
        return key == "40001" ? "A" : key == "40002" ? "B" : "";
    }

    mutable std::map<std::string, int> lookups;
};

class PortIdsTest : public ScheduleFixture {
  protected:
    using Counts = std::map<std::string, int>;

    PortIdsTest() { folder.WriteSamplePoints(); }
    static PortCallRows RowsWithoutIds() {
        PortCallRows typed = TypedRows();
        typed[0].ppi.clear();
        typed[1].ppi.clear();
        return typed;
    }
    void ReplySave() {
        host.Reply(11, "{eid:0}");
        host.Reply(7, "[]");
        host.Reply(8, R"({eid:0,psb:"5"})");
        host.Reply(9, "{eid:0}");
    }

    CountingDictionary counting;
};

// What the panel does between two typed ports and the saved, drawn voyage.
TEST_F(PortIdsTest, TwoTypedPortsAreLookedUpOnceEachFromTheirCalculationToTheirDrawing) {
    PortCallRows typed = RowsWithoutIds();
    int hadPortCalls = 1;
    voyages.ResolvePortIds(typed);
    host.Reply(1, kRouteAb);
    ASSERT_EQ(voyages.CalculateForVoyage("9", typed, rows, hadPortCalls), 0);
    EXPECT_EQ(rows[0].ppi + " " + rows[1].ppi, "40001 40002");
    voyages.ResolvePortIds(rows);
    ReplySave();
    ASSERT_EQ(voyages.SaveSchedule("9", rows, 1), 0);
    EXPECT_EQ(host.TextsOf(11).at(0).find("0|40001|A|"), 6U) << host.TextsOf(11).at(0);
    EXPECT_EQ(counting.lookups, (Counts{{"A", 1}, {"B", 1}}));
    EXPECT_EQ(Voyage().portCalls[1].ppi, "40002");
}

TEST_F(PortIdsTest, SavedVoyageIsCalculatedAndSavedAgainWithTheIdsItHas) {
    ReplySchedule();
    ASSERT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    int hadPortCalls = 0;
    voyages.ResolvePortIds(rows);
    host.Reply(1, kRouteAb);
    ASSERT_EQ(voyages.CalculateForVoyage("9", rows, rows, hadPortCalls), 0);
    host.Reply(11, "{eid:0}");
    host.Reply(14, "{eid:0}");
    host.Reply(9, "{eid:0}");
    ASSERT_EQ(voyages.SaveSchedule("9", rows, 1), 0);
    EXPECT_TRUE(counting.lookups.empty());
}

TEST_F(PortIdsTest, FollowedRouteKeepsTheIdsItWasFollowedWith) {
    PortCallRows typed = RowsWithoutIds();
    voyages.ResolvePortIds(typed);
    host.Reply(1, kRouteAb);
    ASSERT_EQ(voyages.CalculatePortCalls(typed, rows), 0);
    PortCallRows followed;
    ASSERT_EQ(voyages.ScheduleCurrentRoute(rows, followed), 0);
    EXPECT_EQ(followed[1].ppi, "40002");
    EXPECT_EQ(counting.lookups, (Counts{{"A", 1}, {"B", 1}}));
}

TEST_F(PortIdsTest, RowThatIsRenamedWithoutItsIdIsLookedUpAgain) {
    PortCallRows typed = RowsWithoutIds();
    voyages.ResolvePortIds(typed);
    typed[0].ppn = "nowhere";
    typed[0].ppi.clear();
    voyages.ResolvePortIds(typed);
    EXPECT_EQ(typed[0].ppi, "");
    EXPECT_EQ(counting.lookups, (Counts{{"A", 1}, {"B", 1}, {"nowhere", 1}}));
}

}  // namespace
}  // namespace Tarvik::Seaplan
