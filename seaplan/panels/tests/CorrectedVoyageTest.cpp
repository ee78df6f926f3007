// SPDX-License-Identifier: MIT
/// The port call table of a voyage that was corrected from its vessel's last position.
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

/// The saved voyage half-way from Rotterdam to Hamburg, twelve hours behind its start.
class CorrectedPanelTest : public PortCallFixture {
  protected:
    static constexpr const char* kShip = "0.000,-1.196";  ///< latitude first, as the table tells it

    CorrectedPanelTest() { Correct(); }
    /// Puts the vessel's position into the voyage's plan.
    void Correct() {
        constexpr int kTwelveHoursBehindTheStart = 1709640000;
        PortCallRows rows;
        desk.voyages.LoadSchedule(kept, rows, -1);
        VoyInfo& voyage = store.voyages[kept];
        voyage.vsi = "7";
        voyage.vsn = "ANNA";
        voyage.lastPosText = "-1.196,0.000";
        voyage.lastPosTime = kTwelveHoursBehindTheStart;
        int applied = 0;
        if (desk.voyages.ApplyAisPosition(kept, applied) != 0 || applied != 1) {
            throw std::runtime_error("the voyage cannot be corrected");
        }
    }
    /// The voyage counts as corrected, but its book has no position of the ship.
    void LosePosition() {
        auto& points = store.voyages[kept].positionBook.points;
        std::erase_if(points, [](const PosBookPoint& point) { return point.pst == AisTrackPoint; });
    }
    RowClass Look(int row) const { return view.table.Rows()[row].look; }
};

}  // namespace

TEST_F(CorrectedPanelTest, HistoryAndPlanStandInOneTable) {
    Open(kept);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", kShip, "HAMBURG", "GDANSK", " ", " "));
    EXPECT_EQ(Look(0), RowClass::Disabled);
    EXPECT_EQ(Look(1), RowClass::Highlighted);
    EXPECT_EQ(Look(2), RowClass::Normal);
    EXPECT_EQ(Cell(6, ColOrder), "RES");
    EXPECT_EQ(Look(7), RowClass::Disabled);
    EXPECT_EQ(Cell(1, ColSteamTime), "0.50");
    EXPECT_EQ(Cell(2, ColPortTime), "0.50");
    EXPECT_EQ(Cell(6, ColDistance), "481.27") << "the ship is a little off the straight way";
    EXPECT_FALSE(view.state.canClear);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.changed);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_TRUE(view.state.canOpenBook);
}

TEST_F(CorrectedPanelTest, ManyRowsEndWithOneFreeRowAndTheClosingRow) {
    SaveOther([](PortCallRows& calls) {
        for (const char* port : {"ROSTOCK", "SUEZ CANAL", "COLOMBO", "SINGAPORE", "SHANGHAI"}) {
            calls.push_back(calls.back());
            calls.back().ppn = port;
        }
    });
    Correct();
    Open(kept);
    EXPECT_EQ(view.table.RowCount(), 10);
    EXPECT_EQ(Cell(9, ColPort), " ");
    EXPECT_EQ(Cell(10, ColOrder), "RES");
    EXPECT_EQ(view.table.Rows().size(), 12U);
}

TEST_F(CorrectedPanelTest, ACorrectionThatCannotBeSplitShowsThePlainVoyage) {
    panel.SetVoyage(kept);
    LosePosition();
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
    EXPECT_FALSE(ActionsOf(view.table, 2).moveUp);
    panel.Rows().OnItemImage(2, "itemMoveUp");
    EXPECT_EQ(Cell(2, ColPort), "HAMBURG");
    EXPECT_FALSE(view.state.changed);
    panel.Rows().OnItemImage(3, "itemMoveUp");
    EXPECT_EQ(Cell(2, ColPort), "GDANSK");
    EXPECT_EQ(Cell(1, ColDistance), "121.29");
    EXPECT_EQ(Cell(2, ColDistance), " ");
    EXPECT_EQ(Cell(2, ColEta), " ");
    EXPECT_TRUE(view.state.changed);
}

TEST_F(CorrectedPanelTest, RowsKeepTheirLooksWhenOthersMoveOrGo) {
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemMovedown"), 0);
    EXPECT_EQ(Look(1), RowClass::Highlighted);
    EXPECT_EQ(Look(2), RowClass::Normal);
    ASSERT_EQ(panel.Rows().OnItemImage(0, "itemdel"), 0);
    EXPECT_EQ(Cell(0, ColPort), kShip);
    EXPECT_EQ(Look(0), RowClass::Highlighted) << "the ship's own row, one place higher";
    EXPECT_EQ(Look(1), RowClass::Normal);
}

TEST_F(CorrectedPanelTest, WithoutAPositionRowTheVoyageIsAPlainOneAgain) {
    LosePosition();
    Open(kept);
    EXPECT_EQ(store.voyages[kept].modais, 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    EXPECT_TRUE(view.state.canClear);
}

TEST_F(CorrectedPanelTest, CalculatingReplansTheRestAndSaves) {
    Open(kept);
    Type(2, ColSpeed, "12");
    panel.SetCorrectionTime("2024-03-05 20:00:00");
    desk.ForgetRecords();
    desk.voyages.RemoveVoyageObjects(kept);
    const std::size_t before = Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE") + Drawn("TRV_MAP_DEL_OBJECTS");
    ASSERT_GT(before, 0U);
    desk.ForgetRecords();
    panel.Commands().OnCalculate();
    EXPECT_THAT(desk.Sent(Ask::kNearest),
                ElementsAre(AllOf(HasSubstr("-1.196,0.000"), HasSubstr(DeskPortId("HAMBURG")))));
    EXPECT_THAT(desk.Sent(Ask::kRoute),
                ElementsAre(AllOf(HasSubstr(DeskPortId("HAMBURG")), HasSubstr(DeskPortId("GDANSK")))));
    EXPECT_EQ(Saves(), 1);
    EXPECT_THAT(store.voyages[kept].aisModTimes, ElementsAre("2024-03-05 20:00:00"));
    EXPECT_THAT(Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE") + Drawn("TRV_MAP_DEL_OBJECTS"), ::testing::Ge(2 * before))
        << "taken off the chart, and once more as it is shown anew";
    EXPECT_THAT(saved, ElementsAre(kept));
    EXPECT_EQ(Cell(2, ColSpeed), "5.45") << "ten hours at 12 knots; twelve hours in port count as well";
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(messages.messages.empty());
    panel.Commands().OnCalculate();
    EXPECT_EQ(desk.Count(Ask::kAddAisTime), 1);
}

TEST_F(CorrectedPanelTest, YesToTheQuestionPlansTheRestAndStoresNoPositionAsAPort) {
    panel.SetVoyage(kept);
    ASSERT_EQ(panel.ShowAisCorrection(), 0);
    panel.ShowBesideTree();
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Open(fresh);
    EXPECT_EQ(desk.Count(Ask::kNearest), 2) << "the correction asked for one, its plan for the other";
    ASSERT_EQ(Saves(), 1);
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls, kShip), 0);
    store.voyages[kept].portCalls.clear();
    store.voyages[kept].positionBook.points.clear();
    PortCallRows rows;
    EXPECT_EQ(desk.voyages.LoadSchedule(kept, rows, -1), 0);
}

TEST_F(CorrectedPanelTest, ARefusedPlanOfTheRestKeepsTheCorrectionOnShow) {
    panel.SetVoyage(kept);
    ASSERT_EQ(panel.ShowAisCorrection(), 0);
    desk.Refuse(Ask::kNearest);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    panel.SetVoyage(fresh);
    EXPECT_LT(panel.FillForVoyage(-1), 0);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_EQ(Cell(1, ColPort), kShip);
    EXPECT_TRUE(view.state.changed);
}

TEST_F(CorrectedPanelTest, ARefusedSaveOfThePlannedRestKeepsTheTableAsItWas) {
    Open(kept);
    Type(3, ColSpeed, "12");
    ASSERT_EQ(panel.Rows().OnItemImage(0, "itemdel"), 0);
    const PortCallTable before = view.table;
    desk.Refuse(Ask::kSavePortCalls);
    for (const bool byLeaving : {true, false}) {
        messages.Answer(Interface::SysMsgHandleRes::Yes);
        if (byLeaving) {
            EXPECT_FALSE(panel.AskToLeave());
        } else {
            panel.Commands().OnSave();
        }
        EXPECT_EQ(view.table, before);
        EXPECT_TRUE(view.state.changed);
        EXPECT_TRUE(view.state.canSave);
    }
}

TEST_F(CorrectedPanelTest, ACorrectionThatWasGivenUpIsNoPartOfTheVoyageAndLeavesNoTime) {
    panel.SetVoyage(kept);
    panel.SetCorrectionTime("2024-03-05 20:00:00");
    ASSERT_EQ(panel.ShowAisCorrection(), 0);
    messages.Answer(Interface::SysMsgHandleRes::No);
    Open(kept);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    EXPECT_EQ(store.voyages[kept].modais, 0);
    Correct();
    Open(kept);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Saves(), 1);
    EXPECT_EQ(desk.Count(Ask::kAddAisTime), 0);
}

TEST_F(CorrectedPanelTest, AFailedReplanIsToldInABoxByTheCalculateButtonAlone) {
    Open(kept);
    Type(2, ColSpeed, "12");
    desk.Refuse(Ask::kNearest);
    panel.Commands().OnSave();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(statusWord, "IDS_VIEW_CORRECTIONNOTSAVED");
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Saves(), 0);
    panel.Commands().OnCalculate();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_AISCOMPUTWARN");
}

TEST_F(CorrectedPanelTest, AFreshCorrectionThatIsGivenUpLeavesNothingBehind) {
    texts.given[u"IDS_VIEW_LOSTFIX"] = u"%1 loses its correction";
    for (const bool byClosing : {true, false}) {
        Correct();
        panel.SetVoyage(kept);
        panel.SetCorrectionTime("2024-03-05 20:00:00");
        ASSERT_EQ(panel.ShowAisCorrection(), 0);
        messages.Answer(byClosing ? Interface::SysMsgHandleRes::Yes : Interface::SysMsgHandleRes::No);
        byClosing ? panel.Commands().OnClose() : Open(fresh);
        EXPECT_EQ(LastDetail(), "Saved loses its correction");
        EXPECT_EQ(store.voyages[kept].modais, 0);
        Open(kept);
        EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
        EXPECT_EQ(view.state.calculateText, "IDS_PORTCALL_COMPUTE");
    }
    Type(1, ColSpeed, "12");
    panel.Commands().OnCalculate();
    EXPECT_EQ(desk.Count(Ask::kAddAisTime), 0) << "the time of a correction that nobody kept";
}

TEST_F(CorrectedPanelTest, AVoyageIsLeftBeforeItIsCorrectedAnew) {
    store.voyages[kept].modais = 0;
    SaveOther([](PortCallRows&) {});
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    EXPECT_FALSE(panel.AskToLeave()) << "what could not be saved stays on show";
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_TRUE(view.state.changed);
    messages.Answer(Interface::SysMsgHandleRes::No);
    EXPECT_TRUE(panel.AskToLeave());
    EXPECT_EQ(Cell(1, ColSpeed), "10.00") << "what was given up does not stand there as if it were stored";
    EXPECT_FALSE(view.state.changed);
    const std::size_t asked = messages.messages.size();
    EXPECT_TRUE(panel.AskToLeave());
    EXPECT_EQ(messages.messages.size(), asked) << "there is nothing to ask about";
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
