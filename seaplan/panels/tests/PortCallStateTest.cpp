// SPDX-License-Identifier: MIT
/// What the port call panel leaves in its cells and asks of the schedule.
#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "testsupport/ManualClock.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Seaplan {

namespace {

/// The host's port names, with every name whose id was asked for. In force while it lives.
class CountedNames final : public Interface::ValueDictionary {
  public:
    explicit CountedNames(const Interface::ValueDictionary& names) : names_(names) { Set(this); }
    ~CountedNames() override { Set(&names_); }
    CountedNames(const CountedNames&) = delete;
    CountedNames& operator=(const CountedNames&) = delete;

    mutable std::vector<std::string> asked;
    std::string KeyOfValue(const std::string& path, const std::string& value, int language) const override {
        asked.push_back(value);
        return names_.KeyOfValue(path, value, language);
    }
    std::string ValueOfKey(const std::string& path, const std::string& key, int language) const override {
        return names_.ValueOfKey(path, key, language);
    }

  private:
    const Interface::ValueDictionary& names_;
};

}  // namespace

TEST_F(PortCallFixture, AnUnknownLocalNameLeavesAFilledCell) {
    Open(kept);
    Type(1, ColPort, "上海");
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_FALSE(view.state.changed);
}

// The next user's voyages may have the same ids: what is left here would be written into them.
TEST_F(PortCallFixture, ALogoutLeavesNeitherRowsNorMarkNorVoyage) {
    Open(kept);
    Type(1, ColSpeed, "12");
    ASSERT_TRUE(view.state.changed);
    panel.HideAfterLogout();
    EXPECT_FALSE(view.state.changed);
    EXPECT_THAT(Column(ColPort), testing::Each(" "));
    EXPECT_TRUE(messages.messages.empty()) << "there is nobody left to answer a question";
    desk.ForgetRecords();
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 0);
    const std::size_t told = messages.messages.size();
    Open(fresh);
    EXPECT_EQ(messages.messages.size(), told) << "nothing is left to be saved first";
    EXPECT_EQ(Saves(), 0);
}

TEST_F(PortCallFixture, ABlankSpeedTakesTenAlsoWhenTheScheduleFails) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    ShowFullWeather(1);
    ASSERT_EQ(Cell(1, ColWeather), "100%");
    Type(2, ColSpeed, "0");
    EXPECT_EQ(Cell(2, ColSpeed), "10.0");
}

TEST_F(PortCallFixture, TheFirstEtaStandsInBothCellsAlsoWhenTheScheduleFails) {
    Open(kept);
    ShowFullWeather(1);
    PickTime(0, ColEta, "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(0, ColEta), "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(0, ColEtd), "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-06 08:00:00");
}

TEST_F(PortCallFixture, SavingAMovedRowCalculatesFirst) {
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    panel.Commands().OnSave();
    EXPECT_EQ(Calculations(), 1) << "the voyage has a book, but the rows have no distances";
    EXPECT_EQ(Saves(), 2) << "once as the calculation ends, and once with the drawing";
}

TEST_F(PortCallFixture, SavingWithoutABookOrAPendingRouteCalculatesFirst) {
    Open(kept);
    store.voyages[kept].positionBook.points.clear();
    Type(1, ColSpeed, "12");
    panel.Commands().OnSave();
    EXPECT_EQ(Calculations(), 1);
}

TEST_F(PortCallFixture, OpeningAVoyageForgetsTheRouteThatWasPending) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    ASSERT_TRUE(desk.voyages.Module().Pending().IsThere());
    messages.Answer(Interface::SysMsgHandleRes::No);
    Open(kept);
    EXPECT_FALSE(desk.voyages.Module().Pending().IsThere());
}

TEST_F(PortCallFixture, APortIsLookedUpOnceAndTheWindowIsToldOnlyWhatChanged) {
    Open(fresh);
    CountedNames names(desk.names);
    view.statesShown = 0;
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    panel.Commands().OnSave();
    EXPECT_THAT(names.asked, ::testing::ElementsAre("ROTTERDAM", "HAMBURG"));
    ASSERT_THAT(desk.Sent(Ask::kSavePortCalls), ::testing::SizeIs(1));
    EXPECT_NE(desk.Sent(Ask::kSavePortCalls)[0].find("|" + DeskPortId("HAMBURG") + "|"), std::string::npos);
    EXPECT_LE(view.statesShown, 3);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, ACopyOfTheSheetKeepsWhatStoodThere) {
    Open(kept);
    const PortCallSheet before = panel.Sheet();
    Type(1, ColSpeed, "12");
    ASSERT_EQ(panel.Sheet().table.Cell(1, ColSpeed), "12.00");
    EXPECT_EQ(before.table.Cell(1, ColSpeed), "10.00");
    EXPECT_EQ(before.table.ReadRow(1).psp, 10.0F);
    EXPECT_FALSE(before.state.changed);
}

TEST_F(PortCallFixture, ARowsRecordTellsNoMoreThanItsCells) {
    Open(kept);
    Type(1, ColWeather, "12.6");
    for (const TableRow& row : panel.Sheet().table.Rows()) {
        const VoyPortCall shown = CellsToRow(row.cells);
        EXPECT_EQ(row.record.ppn, shown.ppn);
        EXPECT_EQ(row.record.psp, shown.psp);
        EXPECT_EQ(row.record.pw, shown.pw);
        EXPECT_EQ(row.record.steamTime, shown.steamTime);
        EXPECT_EQ(row.record.distance, shown.distance);
        EXPECT_EQ(row.record.pp, shown.pp);
    }
    EXPECT_EQ(panel.Sheet().table.ReadRow(1).ppi, DeskPortId("HAMBURG"));
}

TEST_F(PortCallFixture, ANewVoyageStartsAtTheMomentOfItsCalculation) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    clock.SetUtc(2024, 3, 2);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), "2024-03-02 00:00:00");
}

TEST(PortCallTable, ARowWithoutDistanceIsNoPositionOfTheShip) {
    PortCallTable table;
    for (int row = 0; row < 2; ++row) {
        table.SetPort(row, "52.000,4.100", "");
    }
    table.SetCell(0, ColDistance, "10.00");
    table.SetCell(1, ColDistance, "0.00");
    EXPECT_EQ(table.FindLastAisRow(), 0);
    table.SetCell(1, ColDistance, "0.01");
    EXPECT_EQ(table.FindLastAisRow(), 1);
    table.SetCell(1, ColPurpose, "D");
    EXPECT_EQ(table.FindLastAisRow(), 0);
}

}  // namespace Tarvik::Seaplan
