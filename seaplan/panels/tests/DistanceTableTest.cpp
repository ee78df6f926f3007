// SPDX-License-Identifier: MIT
/// The port call panel as the port distance table.
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr const char* kTableCaption = "IDS_PORTCALL_DISTTABTITLE";

class DistanceTableTest : public PortCallFixture {
  protected:
    int kept_ = 0;  ///< how often a name was asked for

    DistanceTableTest() {
        keepTable = [this] { ++kept_; };
    }
    void AddPorts(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            EXPECT_EQ(panel.AddPortByName(name), 0) << name;
        }
    }
    int LeaveFor(const std::string& vi) {
        panel.SetVoyage(vi);
        return panel.FillForVoyage(-1);
    }
    /// Requests that change something on the server.
    long Changes() const {
        return desk.Count(Ask::kSavePortCalls) + desk.Count(Ask::kSaveBook) + desk.Count(Ask::kBookDate);
    }
};

}  // namespace

TEST_F(DistanceTableTest, OpeningEmptiesThePanelAndShowsItAsTheTable) {
    Open(kept);
    EXPECT_EQ(panel.OpenDistanceTable(), 0);
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(view.caption, kTableCaption);
    EXPECT_EQ(panel.Sheet().voyageId, "DISTANCE TABLE USE");
    EXPECT_TRUE(view.state.distanceTable);
    EXPECT_THAT(Column(ColPort), ElementsAre(" ", " ", " ", " ", " ", " "));
    EXPECT_TRUE(view.state.canClear);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.canOpenBook);
    EXPECT_FALSE(view.state.canCalculate);
    EXPECT_EQ(view.state.summary.totalDistance, "");
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(DistanceTableTest, ItsHelpIsAPageOfItsOwn) {
    panel.OpenDistanceTable();
    panel.Commands().OnHelp();
    EXPECT_EQ(view.help, "distances 370x440");
    Open(kept);
    panel.Commands().OnHelp();
    EXPECT_EQ(view.help, "func034 370x440");
}

TEST_F(DistanceTableTest, PortsGoIntoTheFirstBlankRowsInOrder) {
    AddPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    AddPorts({"ROUEN", "HAMBURG"});
    EXPECT_EQ(view.table.RowCount(), 6);
    AddPorts({"GDANSK"});
    EXPECT_EQ(view.table.RowCount(), 7) << "the last row has grown another one";
    EXPECT_EQ(Cell(7, ColOrder), "RES");
    AddPorts({"ROTTERDAM"});
    EXPECT_EQ(Cell(6, ColPort), "ROTTERDAM");
    EXPECT_EQ(view.table.RowCount(), 8);
}

TEST_F(DistanceTableTest, APortFillsTheGapThatWasLeft) {
    panel.OpenDistanceTable();
    Type(0, ColPort, "ROTTERDAM");
    Type(2, ColPort, "GDANSK");
    AddPorts({"HAMBURG", "ROUEN"});
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", "ROUEN", " ", " "));
}

TEST_F(DistanceTableTest, APortThatArrivesFillsNoOtherCell) {
    AddPorts({"ROTTERDAM"});
    for (int column = ColPort + 1; column < kPortCallColumnCount; ++column) {
        EXPECT_EQ(Cell(0, column), " ") << column;
    }
}

TEST_F(DistanceTableTest, AnEmptyNameOpensNothing) {
    Open(kept);
    EXPECT_EQ(panel.AddPortByName(""), -1);
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    EXPECT_FALSE(view.state.distanceTable);
}

TEST_F(DistanceTableTest, TwoPlacesMarkTheTableAndCanBeCalculated) {
    AddPorts({"ROTTERDAM"});
    EXPECT_FALSE(view.state.changed);
    AddPorts({"EUROPOORT"});
    EXPECT_FALSE(view.state.changed) << "the same place";
    EXPECT_FALSE(view.state.canCalculate);
    AddPorts({"HAMBURG"});
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_EQ(panel.Sheet().editedVoyageId, "DISTANCE TABLE USE");
}

TEST_F(DistanceTableTest, ANameOfAnotherSpellingTakesTheDictionarysAndAStrangeOneStands) {
    AddPorts({"hamburg", "鹿特丹", "NOWHERE"});
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", "ROTTERDAM", "NOWHERE", " ", " ", " "));
    EXPECT_TRUE(view.table.Rows()[2].unknownPort);
}

TEST_F(DistanceTableTest, ANameBeingTypedTakesItsRowBeforeTheOneThatArrives) {
    panel.OpenDistanceTable();
    panel.Cells().OnCellClicked(0, ColPort);
    Retype(CellEditor::Port, "ROTTERDAM");
    AddPorts({"HAMBURG"});
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", " ", " ", " ", " "));
    EXPECT_THAT(view.openEditors, IsEmpty());
}

TEST_F(DistanceTableTest, APortOverAVoyageOpensTheTable) {
    Open(kept);
    AddPorts({"HAMBURG"});
    EXPECT_EQ(view.caption, kTableCaption);
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", " ", " ", " ", " ", " "));
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(DistanceTableTest, APortOverAChangedVoyageAsksFirstAndYesSavesTheVoyage) {
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::Yes);
    AddPorts({"HAMBURG"});
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_THAT(saved, ElementsAre(kept));
    EXPECT_EQ(SavedRows(kept)[1].psp, 12.0F);
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", " ", " ", " ", " ", " "));
}

TEST_F(DistanceTableTest, AVoyageThatCannotBeSavedKeepsThePanel) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    messages.Answer(SysMsgHandleRes::Yes);
    EXPECT_EQ(panel.AddPortByName("HAMBURG"), -2);
    EXPECT_EQ(view.caption, "IDS_PORTCALL_TITLE");
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_TRUE(view.state.changed);
}

TEST_F(DistanceTableTest, APortIntoATableThatIsHiddenBeginsANewOne) {
    AddPorts({"ROTTERDAM"});
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    AddPorts({"HAMBURG"});
    EXPECT_TRUE(view.visible);
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", " ", " ", " ", " ", " "));
}

TEST_F(DistanceTableTest, CalculateAsksForTheRouteAloneAndSavesNothing) {
    AddPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(Calculations(), 1);
    EXPECT_EQ(desk.host.requests.size(), 1U) << "nothing but the route";
    EXPECT_THAT(Column(ColDistance), ElementsAre("0.00", "240.00", "240.00", " ", " ", " "));
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_EQ(view.state.summary.totalDistance, "480.0");
    EXPECT_TRUE(view.state.changed);
    EXPECT_FALSE(view.state.canOpenBook);
    EXPECT_GT(Drawn("TRV_MAP_ADD_LINE"), 0U);
}

TEST_F(DistanceTableTest, AFailedCalculationShowsNothing) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    desk.Refuse(Ask::kRoute);
    panel.Commands().OnCalculate();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(Cell(1, ColDistance), " ");
}

TEST_F(DistanceTableTest, CellsRowsAndUnitsWorkAsThoseOfAVoyage) {
    AddPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    panel.Commands().OnCalculate();
    Type(1, ColSpeed, "20");
    EXPECT_EQ(Cell(1, ColSteamTime), "0.50");
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Distance, "KM"), 0);
    EXPECT_EQ(Cell(1, ColDistance), "444.48");
    EXPECT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "GDANSK", "HAMBURG", " ", " ", " "));
    EXPECT_EQ(panel.Rows().OnItemImage(1, "itemdel"), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", " ", " ", " ", " "));
}

TEST_F(DistanceTableTest, AnotherPassageOnTheChartGoesIntoTheTable) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    ChooseOtherPassage();
    EXPECT_EQ(panel.Commands().OnRouteChosen(), 0);
    EXPECT_TRUE(view.state.distanceTable);
}

TEST_F(DistanceTableTest, SaveAsksForANameAndOnlyForAChangedTable) {
    AddPorts({"ROTTERDAM"});
    panel.Commands().OnSave();
    EXPECT_EQ(kept_, 0) << "nothing is marked";
    AddPorts({"HAMBURG"});
    panel.Commands().OnSave();
    EXPECT_EQ(kept_, 1);
    EXPECT_TRUE(desk.host.requests.empty());
    EXPECT_TRUE(view.state.changed);
}

TEST_F(DistanceTableTest, AClearedTableIsStillTheDistanceTable) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    messages.Answer(SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLEARFORBLANK");
    EXPECT_THAT(Column(ColPort), Each(" "));
    EXPECT_TRUE(view.state.distanceTable);
    EXPECT_EQ(view.caption, kTableCaption);
    AddPorts({"GDANSK"});
    EXPECT_EQ(Cell(0, ColPort), "GDANSK");
}

TEST_F(DistanceTableTest, LeavingForAVoyageAsksAndNoLosesTheRows) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    messages.Answer(SysMsgHandleRes::No);
    EXPECT_EQ(LeaveFor(kept), 0);
    ASSERT_EQ(messages.messages.size(), 1U) << "one question, and no word about a save";
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(LastDetail(), "IDS_VIEW_LOSTTABLE") << "it names what would be lost";
    EXPECT_EQ(kept_, 0);
    EXPECT_EQ(Changes(), 0);
    EXPECT_EQ(view.caption, "IDS_PORTCALL_TITLE");
    EXPECT_FALSE(view.state.distanceTable);
    EXPECT_EQ(Cell(2, ColPort), "GDANSK") << "the voyage is on show";
    EXPECT_FALSE(view.state.changed);
}

TEST_F(DistanceTableTest, YesToLeavingAsksForANameAndTheTableStaysUntilThen) {
    AddPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    panel.Commands().OnCalculate();
    desk.ForgetRecords();
    const auto leave = [this] {
        messages.messages.clear();
        messages.Answer(SysMsgHandleRes::Yes);
    };
    const auto expectTable = [this](int asked) {
        ASSERT_EQ(messages.messages.size(), 1U) << "one question, and no word about a save";
        EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
        EXPECT_EQ(kept_, asked);
        EXPECT_TRUE(view.visible);
        EXPECT_EQ(view.caption, kTableCaption);
        EXPECT_THAT(Column(ColDistance), ElementsAre("0.00", "240.00", "240.00", " ", " ", " "));
        EXPECT_TRUE(view.state.changed);
        EXPECT_TRUE(desk.portCallModule.Pending().IsFor("DISTANCE TABLE USE")) << "its route stays with it";
    };
    leave();
    EXPECT_EQ(LeaveFor(kept), -4);
    expectTable(1);
    leave();
    panel.SetVoyage(fresh);
    panel.Reset();
    expectTable(2);
    leave();
    EXPECT_FALSE(panel.AskToLeave());
    expectTable(3);
    EXPECT_THAT(desk.host.requests, IsEmpty());
}

TEST_F(DistanceTableTest, AnUnchangedTableIsLeftWithoutAQuestion) {
    AddPorts({"ROTTERDAM"});
    EXPECT_EQ(LeaveFor(kept), 0);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(DistanceTableTest, TheRouteOfATableThatWasLeftIsNoVoyages) {
    AddPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    panel.Commands().OnCalculate();
    messages.Answer(SysMsgHandleRes::No);
    LeaveFor(fresh);
    EXPECT_FALSE(desk.portCallModule.Pending().IsThere());
}

TEST_F(DistanceTableTest, ClosingAChangedTableAsksAndYesDropsItsRows) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    messages.Answer(SysMsgHandleRes::No);
    panel.Commands().OnClose();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLOSESAVE");
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    messages.Answer(SysMsgHandleRes::Yes);
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_FALSE(view.state.changed);
    EXPECT_THAT(Column(ColPort), Each(" "));
    EXPECT_TRUE(desk.host.requests.empty());
}

TEST_F(DistanceTableTest, LogoutEndsItWithoutAQuestion) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    panel.HideAfterLogout();
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_FALSE(view.state.distanceTable);
    EXPECT_EQ(panel.Sheet().voyageId, "");
    EXPECT_THAT(Column(ColPort), Each(" "));
}

TEST_F(DistanceTableTest, AnotherLanguageOrZoneLeavesTheRows) {
    AddPorts({"ROTTERDAM", "HAMBURG"});
    panel.ApplyLanguage();
    EXPECT_EQ(view.caption, kTableCaption);
    panel.OnTimeZone("UTC");
    EXPECT_EQ(view.state.zone, "UTC");
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(DistanceTableTest, APortThatArrivesIsBroughtIntoView) {
    AddPorts({"ROTTERDAM", "HAMBURG", "ROTTERDAM", "HAMBURG", "ROTTERDAM", "HAMBURG"});
    EXPECT_EQ(view.rowInView, 5);
    AddPorts({"GDANSK"});
    EXPECT_EQ(view.rowInView, 6);
}

}  // namespace Tarvik::Seaplan
