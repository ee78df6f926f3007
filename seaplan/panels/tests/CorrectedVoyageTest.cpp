// SPDX-License-Identifier: MIT
#include "seaplan/panels/tests/FakeAis.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/tests/TreeFixture.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

namespace {

VoyPortCall call(const std::string& name, const std::string& purpose, float distance, int day) {
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
        ais.before = {call("ROTTERDAM", "L", 0, 1), call("52.000,4.100", " ", 100, 2)};
        ais.after = {call("HAMBURG", "D", 140, 3), call("GDANSK", "D", 240, 4)};
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
        ais.after.push_back(call("ROUEN", "D", 10, 5 + i));
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

namespace {

class CorrectingTreeTest : public TreeFixture {
  protected:
    class Panel final : public PortCallOpener {
      public:
        std::vector<std::string> calls;
        void SetVoyage(const std::string& vi) override { calls.push_back("SetVoyage " + vi); }
        int FillForVoyage(int) override { return 0; }
        void Reset() override {}
        void ShowBesideTree() override { calls.emplace_back("Show"); }
        int ShowAisCorrection() override {
            calls.emplace_back("Correction");
            return 0;
        }
        void SetCorrectionTime(const std::string& time) override { calls.push_back("Time " + time); }
    };
    FakeAis ais{store};
    Panel panel;

    CorrectingTreeTest() {
        ctrl.SetAisCommands(&ais);
        ctrl.SetPortCallPanel(&panel);
        AddCategory("1", "Full");
        AddVoyage("1", "10", "A");
        ctrl.ReloadTree();
        clock.SetUtc(2024, 3, 1, 20);
    }
    VoyInfo& Voyage() { return store.voyages["10"]; }
    std::string ClickModify() {
        messages.messages.clear();
        Click("A", "Voyage_modify");
        return messages.messages.empty() ? "" : messages.messages.back().text;
    }
};

}  // namespace

TEST_F(CorrectingTreeTest, EveryMissingConditionIsNamed) {
    EXPECT_EQ(ClickModify(), "IDS_TREE_WARNMODAIS");
    Voyage().vsi = "7";
    Voyage().vsn = "ANNA";
    EXPECT_EQ(ClickModify(), "IDS_TREE_AISMODNOPORTINFWARN");
    Voyage().portCalls = TwoCalls(5);
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTSEALFORAISMOD");
    Voyage().portCalls = TwoCalls(1);
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTFINDSHIPFORAISMOD");
    Voyage().lastPosText = "4.100,52.000";
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTUPDATEFORAISMOD");
    EXPECT_TRUE(ais.calls.empty());
    Voyage().lastPosTime = 1709294400;
    ais.refused = {"ApplyAisPosition"};
    EXPECT_EQ(ClickModify(), "IDS_PORTCALL_AISCOMPUTWARN");
    EXPECT_THAT(panel.calls, Not(Contains("Correction")));
}

TEST_F(CorrectingTreeTest, ACorrectionOpensThePanelWithItsTime) {
    Voyage().vsi = "7";
    Voyage().vsn = "ANNA";
    Voyage().portCalls = TwoCalls(1);
    Voyage().lastPosText = "4.100,52.000";
    Voyage().lastPosTime = 1709294400;
    Voyage().vr = 1;
    ais.applied = 1;
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_EQ(ClickModify(), "");
    EXPECT_THAT(panel.calls, ElementsAre("SetVoyage 10", "Time 2024-03-01 12:00:00", "Correction", "Show"));
    schedule.calls.clear();
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_FALSE(schedule.Called("ShowVoyage 10")) << "the first press leaves the chart alone";
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_TRUE(schedule.Called("ShowVoyage 10"));
}

TEST_F(CorrectingTreeTest, WithoutTheServiceTheItemHasNoCommand) {
    EXPECT_TRUE(ctrl.HasCommand("Voyage_modify"));
    ctrl.SetAisCommands(nullptr);
    EXPECT_FALSE(ctrl.HasCommand("Voyage_modify"));
    EXPECT_EQ(Click("A", "Voyage_modify"), 1);
    EXPECT_TRUE(messages.messages.empty());
}

}  // namespace Tarvik::Seaplan
