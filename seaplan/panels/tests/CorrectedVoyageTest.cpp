// SPDX-License-Identifier: MIT
#include "seaplan/panels/tests/FakeAis.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::ElementsAre;

namespace {

VoyPortCall Call(const std::string& name, const std::string& purpose, float distance, int day) {
    VoyPortCall row;
    row.ppn = name;
    row.pp = purpose;
    row.distance = distance;
    row.steamTime = 24;
    row.apt = 12;
    row.eta = Util::_datetime_t(0, 0, 0, day, 3, 2024);
    row.etd = Util::_datetime_t(0, 0, 12, day, 3, 2024);
    return row;
}

class CorrectedPanelTest : public PortCallFixture {
  protected:
    FakeAis ais{store};

    CorrectedPanelTest() {
        panel.SetAisCommands(&ais);
        store.voyages[kept].modais = 1;
        PortCallRows rows;
        schedule.LoadSchedule(kept, rows, -1);
        ais.before = {Call("ROTTERDAM", "L", 0, 1), Call("52.000,4.100", " ", 100, 2)};
        ais.after = {Call("HAMBURG", "D", 140, 3), Call("GDANSK", "D", 240, 4)};
    }
    RowClass Look(int row) const { return view.table.Rows()[row].look; }
};

}  // namespace

TEST_F(CorrectedPanelTest, HistoryAndPlanStandInOneTable) {
    Open(kept);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "52.000,4.100", "HAMBURG", "GDANSK", " ", " "));
    EXPECT_EQ(Look(0), RowClass::Disabled);
    EXPECT_EQ(Look(1), RowClass::Highlighted);
    EXPECT_EQ(Look(2), RowClass::Normal);
    EXPECT_EQ(Cell(6, ColOrder), "RES");
    EXPECT_EQ(Look(7), RowClass::Disabled);
    EXPECT_EQ(Cell(1, ColSteamTime), "1.00");
    EXPECT_EQ(Cell(1, ColPortTime), "0.50");
    EXPECT_EQ(Cell(6, ColDistance), "480.00");
    EXPECT_FALSE(view.state.canClear);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.changed);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_TRUE(view.state.canOpenBook);
}

TEST_F(CorrectedPanelTest, ManyRowsEndWithOneFreeRowAndTheClosingRow) {
    for (int i = 0; i < 5; ++i) {
        ais.after.push_back(Call("ROUEN", "D", 10, 5 + i));
    }
    Open(kept);
    EXPECT_EQ(view.table.RowCount(), 10);
    EXPECT_EQ(Cell(9, ColPort), " ");
    EXPECT_EQ(Cell(10, ColOrder), "RES");
    EXPECT_EQ(view.table.Rows().size(), 12U);
}

TEST_F(CorrectedPanelTest, ACorrectionThatCannotBeSplitShowsThePlainVoyage) {
    panel.SetVoyage(kept);
    ais.refused = {"SplitAisRows"};
    EXPECT_LT(panel.ShowAisCorrection(), 0);
    EXPECT_EQ(store.voyages[kept].modais, 0);
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_EQ(view.state.calculateText, "IDS_PORTCALL_COMPUTE");
}

TEST_F(CorrectedPanelTest, AClickOnAHistoryRowDoesNothing) {
    Open(kept);
    for (const int row : {0, 1}) {
        panel.Cells().OnCellClicked(row, ColSpeed);
        EXPECT_FALSE(view.openEditor.has_value()) << row;
    }
    panel.Cells().OnCellClicked(2, ColSpeed);
    EXPECT_TRUE(view.openEditor.has_value());
}

TEST_F(CorrectedPanelTest, NoPortMovesAboveTheShip) {
    Open(kept);
    EXPECT_FALSE(view.table.ActionsOf(2).moveUp);
    panel.Rows().OnItemImage(2, "itemMoveUp");
    EXPECT_EQ(Cell(2, ColPort), "HAMBURG");
    EXPECT_FALSE(view.state.changed);
    panel.Rows().OnItemImage(3, "itemMoveUp");
    EXPECT_EQ(Cell(2, ColPort), "GDANSK");
    EXPECT_EQ(Cell(1, ColDistance), "100.00");
    EXPECT_EQ(Cell(2, ColDistance), " ");
    EXPECT_EQ(Cell(2, ColEta), " ");
    EXPECT_TRUE(view.state.changed);
}

TEST_F(CorrectedPanelTest, WithoutAPositionRowTheVoyageIsAPlainOneAgain) {
    ais.refused = {"SplitAisRows"};
    Open(kept);
    EXPECT_EQ(store.voyages[kept].modais, 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    EXPECT_TRUE(view.state.canClear);
}

TEST_F(CorrectedPanelTest, CalculatingReplansTheRestAndSaves) {
    Open(kept);
    Type(2, ColSpeed, "12");
    panel.SetCorrectionTime("2024-03-02 08:00:00");
    desk.ForgetRecords();
    desk.voyages.RemoveVoyageObjects(kept);
    const std::size_t before = Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE") + Drawn("TRV_MAP_DEL_OBJECTS");
    ASSERT_GT(before, 0U);
    desk.ForgetRecords();
    panel.Commands().OnCalculate();
    EXPECT_THAT(ais.calls, Contains("ReplanFromAis " + kept + " 2 2"));
    EXPECT_EQ(Saves(), 1);
    EXPECT_THAT(ais.calls, Contains("AddAisModTime " + kept + " 2024-03-02 08:00:00"));
    EXPECT_THAT(Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE") + Drawn("TRV_MAP_DEL_OBJECTS"), ::testing::Ge(2 * before))
        << "taken off the chart, and once more as it is shown anew";
    EXPECT_THAT(saved, ElementsAre(kept));
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(messages.messages.empty());
    panel.Commands().OnCalculate();
    EXPECT_EQ(
        std::count(ais.calls.begin(), ais.calls.end(), "AddAisModTime " + kept + " 2024-03-02 08:00:00"), 1);
}

TEST_F(CorrectedPanelTest, AFailedReplanIsToldByTheCalculateButtonOnly) {
    Open(kept);
    Type(2, ColSpeed, "12");
    ais.refused = {"ReplanFromAis"};
    panel.Commands().OnSave();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_TRUE(view.state.changed);
    panel.Commands().OnCalculate();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_AISCOMPUTWARN");
}

TEST_F(CorrectedPanelTest, AFreshCorrectionMustBeRecalculatedOrSaved) {
    panel.SetVoyage(kept);
    ASSERT_EQ(panel.ShowAisCorrection(), 0);
    EXPECT_EQ(view.state.calculateText, "IDS_PORTCALL_RECOMPUT_FORAIS");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    EXPECT_FALSE(view.state.canOpenBook);
    EXPECT_FALSE(view.state.canClear);
    texts.prefix = u"zh ";
    panel.ApplyLanguage();
    EXPECT_EQ(view.state.calculateText, "zh IDS_PORTCALL_RECOMPUT_FORAIS");
    panel.Commands().OnSave();
    EXPECT_EQ(view.state.calculateText, "zh IDS_PORTCALL_COMPUTE");
    EXPECT_FALSE(view.state.changed);
}

}  // namespace Tarvik::Seaplan
