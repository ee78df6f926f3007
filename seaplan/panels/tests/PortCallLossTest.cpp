// SPDX-License-Identifier: MIT
/// Nothing typed or stored is lost by a save that fails, a question or a table that could not be read.
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;
using ::testing::ElementsAre;
using ::testing::Not;

namespace {

/// A person who answers every question with yes, and notes whether the panel was in sight.
class WatchingSink final : public Interface::SysMsgSink {
  public:
    explicit WatchingSink(const RecordingPortCallView& view) : view_(view) { Set(this); }
    ~WatchingSink() override { Set(nullptr); }
    WatchingSink(const WatchingSink&) = delete;
    WatchingSink& operator=(const WatchingSink&) = delete;

    std::vector<bool> inSight;
    SysMsgHandleRes SyncSendMsg(int, const std::u16string&, int, void*, const std::u16string&) override {
        inSight.push_back(view_.visible);
        return SysMsgHandleRes::Yes;
    }

  private:
    const RecordingPortCallView& view_;
};

class PortCallLossTest : public PortCallFixture {
  protected:
    /// What the server has of the saved voyage, by names of its ports.
    std::vector<std::string> Stored() {
        VoyInfo& voyage = store.voyages[kept];
        voyage.portCalls.clear();
        voyage.positionBook.points.clear();
        PortCallRows rows;
        EXPECT_EQ(desk.voyages.LoadSchedule(kept, rows, -1), 0) << "what is stored opens";
        std::vector<std::string> names;
        for (const VoyPortCall& row : rows) {
            names.push_back(row.ppn);
        }
        return names;
    }
    int Leave() {
        panel.SetVoyage(fresh);
        return panel.FillForVoyage(-1);
    }
};

}  // namespace

TEST_F(PortCallLossTest, YesToTheQuestionCalculatesRowsThatMoved) {
    desk.routes->SetLeg("ROTTERDAM", "GDANSK", 300);
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    messages.Answer(SysMsgHandleRes::Yes);
    EXPECT_EQ(Leave(), 0);
    EXPECT_EQ(Calculations(), 1);
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "GDANSK", "HAMBURG"));
    EXPECT_NEAR(SavedRows(kept)[1].distance, 300, 0.01);
    EXPECT_EQ(Cell(0, ColPort), " ") << "the other voyage is on show";
}

TEST_F(PortCallLossTest, ARefusedSaveBeforeAnotherVoyageKeepsTheOldOneOnShow) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    messages.Answer(SysMsgHandleRes::Yes);
    EXPECT_LT(Leave(), 0);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(view.visible);
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    desk.Heal();
    panel.Commands().OnSave();
    EXPECT_THAT(saved, ElementsAre(kept));
}

TEST_F(PortCallLossTest, ARefusedSaveBeforeAnEmptyTableKeepsTheOldOneOnShow) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    messages.Answer(SysMsgHandleRes::Yes);
    panel.SetVoyage(fresh);
    panel.Reset();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
}

TEST_F(PortCallLossTest, TheQuestionComesWhileItsTableIsInSight) {
    Open(kept);
    Type(1, ColSpeed, "12");
    const WatchingSink sink(view);
    Leave();
    EXPECT_THAT(sink.inSight, ElementsAre(true));
}

TEST_F(PortCallLossTest, AFailedSaveBehindACalculationIsTold) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnCalculate();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
}

TEST_F(PortCallLossTest, ACalculationThatWasGivenUpIsNotShownAsWhatIsStored) {
    Open(kept);
    for (const bool byClearing : {false, true}) {
        Type(1, ColSpeed, "12");
        desk.Refuse(Ask::kSavePortCalls);
        panel.Commands().OnCalculate();
        desk.Heal();
        ASSERT_TRUE(view.state.changed);
        messages.Answer(byClearing ? SysMsgHandleRes::Ok : SysMsgHandleRes::No);
        if (byClearing) {
            panel.Commands().OnClear();
        } else {
            Leave();
        }
        Open(kept);
        EXPECT_EQ(Cell(1, ColSpeed), "10.00");
        EXPECT_FALSE(view.state.changed);
    }
}

TEST_F(PortCallLossTest, AnotherVoyageIsNotShownOverAPortThatIsBeingTyped) {
    Open(kept);
    panel.Cells().OnCellClicked(2, ColPort);
    Retype(CellEditor::Port, "ROUEN");
    messages.Answer(SysMsgHandleRes::Yes);
    EXPECT_EQ(Leave(), 0);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "ROUEN"));
}

TEST_F(PortCallLossTest, ChangesThatWereGivenUpAreGoneFromSight) {
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    EXPECT_TRUE(panel.AskToLeave());
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
}

TEST_F(PortCallLossTest, APortThatWasTypedOverIsSavedWithItsOwnRoute) {
    desk.routes->SetLeg("HAMBURG", "ROUEN", 100);
    Open(kept);
    Type(2, ColPort, "ROUEN");
    panel.Commands().OnSave();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "ROUEN"));
    EXPECT_NEAR(SavedRows(kept)[2].distance, 100, 0.01);
}

TEST_F(PortCallLossTest, ASaveWhoseCalculationFailsSendsNothing) {
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    desk.routes->Close(true);
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 0);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_EQ(Cell(1, ColPort), "GDANSK");
    EXPECT_TRUE(view.state.changed);
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK"));
}

TEST_F(PortCallLossTest, SettingThePortCallsOfAVoyageThatHasSomeShowsThem) {
    panel.SetVoyage(kept);
    panel.Reset();
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
}

TEST_F(PortCallLossTest, ATableThatCouldNotBeReadIsNotSavedOverTheServersPlan) {
    desk.Lose(Ask::kLoadPortCalls);
    Open(kept);
    ASSERT_EQ(Cell(0, ColPort), " ");
    desk.Heal();
    EnterPorts({"ROUEN", "GDANSK"});
    panel.Commands().OnCalculate();
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 0);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK"));
}

TEST_F(PortCallLossTest, ATableThatCouldNotBeReadIsNotSavedOnceTheVoyageWasReadForTheChart) {
    desk.Lose(Ask::kLoadPortCalls);
    Open(kept);
    ASSERT_EQ(Cell(0, ColPort), " ");
    desk.Heal();
    ASSERT_EQ(desk.voyages.ShowVoyage(kept), 0) << "as a tick of the timer does, or a press in the tree";
    EnterPorts({"ROUEN", "GDANSK"});
    for (const bool bySaving : {false, true}) {
        bySaving ? panel.Commands().OnSave() : panel.Commands().OnCalculate();
        EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
        EXPECT_EQ(LastDetail(), "IDS_VIEW_FAULTUNREAD");
        EXPECT_TRUE(view.state.changed);
        EXPECT_EQ(Cell(0, ColPort), "ROUEN");
    }
    EXPECT_EQ(Saves(), 0);
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK"));
}

TEST_F(PortCallLossTest, RowsWithoutTheirBookOpenMarkedAndCanBeCalculated) {
    PortCallRows other = PanelDesk::Calls(5, 4);
    desk.voyages.ResolvePortIds(other);
    ASSERT_EQ(desk.portCallModule.SavePortCalls(kept, other), 0) << "as a save that broke off behind this";
    Open(kept);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", "ROSTOCK", " ", " "));
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canCalculate);
    panel.Commands().OnCalculate();
    panel.Commands().OnSave();
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", "ROSTOCK"));
}

TEST_F(PortCallLossTest, ANameLongerThanTheEditorIsShownWholeAndStays) {
    const std::string name = "A PORT WITH A NAME OF MORE THAN THIRTY LETTERS";
    Open(fresh);
    EnterPorts({name.c_str(), "HAMBURG"});
    panel.Cells().OnCellClicked(0, ColPort);
    EXPECT_EQ(view.editorTexts[CellEditor::Port], name);
    panel.Cells().CommitEditors();
    EXPECT_EQ(Cell(0, ColPort), name);
}

TEST_F(PortCallLossTest, ACopyOfTheSheetIsPutBackWhole) {
    Open(kept);
    const PortCallSheet before = panel.Sheet();
    panel.Commands().OnUnitChosen(UnitKind::Distance, "KM");
    Type(1, ColPort, "ROUEN");
    ASSERT_EQ(panel.Sheet().table.ReadRow(1).ppi, DeskPortId("ROUEN"));
    ASSERT_EQ(view.state.distanceUnit, "KM");
    panel.PutBack(before);
    EXPECT_EQ(view.table, before.table);
    EXPECT_EQ(view.state, before.state);
    EXPECT_EQ(panel.Sheet().table.ReadRow(1).ppi, DeskPortId("HAMBURG"));
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
    EXPECT_FALSE(view.state.changed);
    Type(1, ColSpeed, "12");
    panel.Commands().OnSave();
    ASSERT_THAT(desk.Sent(Ask::kSavePortCalls), ::testing::SizeIs(1));
    EXPECT_THAT(desk.Sent(Ask::kSavePortCalls)[0], Not(::testing::HasSubstr("ROUEN")));
    EXPECT_THAT(Stored(), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK"));
}

}  // namespace Tarvik::Seaplan
