// SPDX-License-Identifier: MIT
/// What a person is told: why a save came to nothing, what an answer loses, what the rows on show are.
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;

namespace {

class PortCallWordsTest : public PortCallFixture {
  protected:
    PortCallWordsTest() {
        texts.given[u"IDS_VIEW_FAULTPORT"] = u"row %1, port %2";
        texts.given[u"IDS_VIEW_KNOWNLEGS"] = u"oldest of %1";
        texts.given[u"IDS_VIEW_LOSTROWS"] = u"%1 loses %2";
        texts.given[u"IDS_VIEW_LOSTROUTE"] = u"%1 loses its route";
        texts.given[u"IDS_VIEW_LOSTFIX"] = u"%1 loses its correction";
        texts.given[u"IDS_VIEW_LOSTVOYAGE"] = u"%1";
    }
    /// What the question about closing says is lost; the answer is no.
    std::string Lost() {
        messages.Answer(SysMsgHandleRes::No);
        panel.Commands().OnClose();
        EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLOSESAVE");
        return LastDetail();
    }
    std::string CauseOfSave() {
        panel.Commands().OnSave();
        EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
        return LastDetail();
    }
};

}  // namespace

TEST_F(PortCallWordsTest, AFailedSaveNamesTheUnknownPortWithItsRow) {
    Open(kept);
    Type(4, ColPort, "GDANKS");
    EXPECT_EQ(CauseOfSave(), "row 5, port GDANKS");
    EXPECT_EQ(Saves(), 0);
}

TEST_F(PortCallWordsTest, AFailedCalculationHasNoBoxAndTellsItsCauseInTheStatusLine) {
    texts.given[u"IDS_VIEW_NOTCALCULATED"] = u"not so: %1";
    Open(fresh);
    EnterPorts({"ROTTERDAM", "GDANKS", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(statusWord, "not so: row 2, port GDANKS");
    Type(1, ColPort, "ROTTERDAM");
    Type(2, ColPort, "EUROPOORT");
    panel.Commands().OnCalculate();
    EXPECT_EQ(statusWord, "not so: IDS_VIEW_NEEDTWOPORTS") << "one place is no voyage";
    Type(2, ColPort, "HAMBURG");
    desk.routes->Close(true);
    panel.Commands().OnCalculate();
    EXPECT_EQ(statusWord, "not so: IDS_VIEW_FAULTROUTE");
    desk.routes->Close(false);
    panel.Commands().OnCalculate();
    EXPECT_EQ(statusWord, "") << "a calculation takes the words away";
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallWordsTest, AFailedSaveNamesTheMissingRoute) {
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    desk.routes->Close(true);
    EXPECT_EQ(CauseOfSave(), "IDS_VIEW_FAULTROUTE");
}

TEST_F(PortCallWordsTest, AFailedSaveTellsSilenceFromARefusal) {
    Open(kept);
    Type(1, ColSpeed, "12");
    for (const DeskRequest request : {Ask::kSavePortCalls, Ask::kBookDate, Ask::kSaveBook}) {
        desk.Lose(request);
        EXPECT_EQ(CauseOfSave(), "IDS_VIEW_FAULTCONNECTION") << request.command;
        desk.Heal();
        desk.Refuse(request);
        EXPECT_EQ(CauseOfSave(), "IDS_VIEW_FAULTREFUSED") << request.command;
        desk.Heal();
    }
    ASSERT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    desk.Lose(Ask::kRoute);
    store.voyages[kept].positionBook.points.clear();
    Type(2, ColPort, "ROUEN");
    EXPECT_EQ(CauseOfSave(), "IDS_VIEW_FAULTCONNECTION") << "no route, and none is known";
}

TEST_F(PortCallWordsTest, ARefusedSaveBehindACalculationOrAQuestionNamesItsCauseToo) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnCalculate();
    EXPECT_EQ(LastDetail(), "IDS_VIEW_FAULTREFUSED");
    messages.Answer(SysMsgHandleRes::Yes);
    panel.SetVoyage(fresh);
    EXPECT_LT(panel.FillForVoyage(-1), 0);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_EQ(LastDetail(), "IDS_VIEW_FAULTREFUSED");
}

TEST_F(PortCallWordsTest, ATableThatCouldNotBeReadSaysSoWhenItIsNotSaved) {
    desk.Lose(Ask::kLoadPortCalls);
    Open(kept);
    desk.Heal();
    EnterPorts({"ROUEN", "GDANSK"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(CauseOfSave(), "IDS_VIEW_FAULTUNREAD");
    desk.Lose(Ask::kLoadPortCalls);
    EXPECT_EQ(CauseOfSave(), "IDS_VIEW_FAULTCONNECTION");
}

TEST_F(PortCallWordsTest, AnUnfinishedSaveIsToldInOneLineUntilItIsCalculated) {
    PortCallRows other = PanelDesk::Calls(5, 4);
    desk.voyages.ResolvePortIds(other);
    ASSERT_EQ(desk.portCallModule.SavePortCalls(kept, other), 0) << "as a save that broke off behind this";
    Open(kept);
    EXPECT_EQ(view.state.note, "IDS_VIEW_UNFINISHED");
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Lost(), "Saved") << "its rows are stored, and its route is not found yet";
    texts.prefix = u"zh ";
    panel.ApplyLanguage();
    EXPECT_EQ(view.state.note, "zh IDS_VIEW_UNFINISHED");
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.state.note, "");
}

TEST_F(PortCallWordsTest, KnownLegsAreToldWithTheDayOfTheOldest) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.state.note, "");
    clock.AdvanceSeconds(30 * 24 * 3600);
    desk.Lose(Ask::kRoute);
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.state.note, "oldest of 2024-03-01");
    Open(kept);
    EXPECT_EQ(view.state.note, "");
    Type(1, ColSpeed, "12");
    desk.Heal();
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.state.note, "");
}

TEST_F(PortCallWordsTest, TheDayOfTheOldestLegIsThatOfTheZoneOnShow) {
    panel.OnTimeZone("Eastern Standard Time");
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    desk.Lose(Ask::kRoute);
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.state.note, "oldest of 2024-02-29") << "the evening before, where it is midnight in UTC";
}

TEST_F(PortCallWordsTest, KnownLegsOfASavedVoyageAreToldAsWell) {
    SaveOther([](PortCallRows&) {});
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Lose(Ask::kRoute);
    panel.Commands().OnCalculate();
    EXPECT_EQ(view.state.note, "oldest of 2024-03-01");
}

TEST_F(PortCallWordsTest, QuestionsTellHowManyRowsAreLost) {
    Open(kept);
    Type(1, ColSpeed, "12");
    EXPECT_EQ(Lost(), "Saved loses 1") << "later times follow, and nobody typed them";
    panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH");
    panel.Commands().OnUnitChosen(UnitKind::Time, "hour");
    EXPECT_EQ(Lost(), "Saved loses 1") << "a unit is no change";
    Type(3, ColPort, "ROUEN");
    EXPECT_EQ(Lost(), "Saved loses 3") << "from the first changed row to the last";
    messages.Answer(SysMsgHandleRes::Yes);
    panel.Commands().OnClose();
    Open(kept);
    ASSERT_EQ(panel.Rows().OnItemImage(0, "itemdel"), 0);
    EXPECT_EQ(Lost(), "Saved loses 1");
}

TEST_F(PortCallWordsTest, QuestionsTellThatACalculatedRouteIsLost) {
    desk.routes->SetPassage("ROTTERDAM", "HAMBURG", 300);
    SaveOther([](PortCallRows&) {});
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    messages.Answer(SysMsgHandleRes::No);
    Open(kept);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(LastDetail(), "New loses 2");
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Lost(), "Saved loses its route") << "calculated anew, and not saved";
}

TEST_F(PortCallWordsTest, ClearingTellsWhoseTableIsEmptied) {
    Open(kept);
    messages.Answer(SysMsgHandleRes::Cancel);
    panel.Commands().OnClear();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_CLEARFORBLANK");
    EXPECT_EQ(LastDetail(), "Saved");
}

TEST_F(PortCallWordsTest, ALanguageThatIsSwitchedWhileThePanelIsHiddenIsTheOneItShows) {
    Open(kept);
    panel.Commands().OnClose();
    ASSERT_FALSE(view.visible);
    texts.prefix = u"zh ";
    panel.ApplyLanguage();
    EXPECT_FALSE(view.visible);
    Open(kept);
    EXPECT_EQ(view.caption, "zh IDS_PORTCALL_TITLE");
    EXPECT_EQ(view.state.calculateText, "zh IDS_PORTCALL_COMPUTE");
    EXPECT_EQ(view.textsApplied, 1);
}

TEST_F(PortCallWordsTest, AnotherZoneLoadsTheTableAnewAfterItsQuestion) {
    Open(kept);
    EXPECT_EQ(view.state.zone, "China Standard Time");
    const std::string there = Cell(0, ColEta);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::Yes);
    desk.Refuse(Ask::kSavePortCalls);
    desk.host.zone = "UTC";
    panel.OnTimeZone("UTC");
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_EQ(view.state.zone, "China Standard Time") << "the times on show are still those";
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    messages.Answer(SysMsgHandleRes::No);
    panel.OnTimeZone("UTC");
    EXPECT_EQ(view.state.zone, "UTC");
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_NE(Cell(0, ColEta), there);
    desk.host.zone = "Somewhere else";
    Open(fresh);
    EXPECT_EQ(view.state.zone, "UTC") << "what the event told counts";
}

TEST_F(PortCallWordsTest, NoToTheQuestionDropsACalculationFromTheRecordToo) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnCalculate();
    ASSERT_EQ(SavedRows(kept)[1].psp, 12.0F) << "the calculation stands in the record";
    messages.Answer(SysMsgHandleRes::No);
    Open(fresh);
    Open(kept);
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallWordsTest, OpeningAVoyageLeavesAnothersPendingRoute) {
    desk.voyages.Module().Pending().Take(RouteStops(2));
    desk.voyages.Module().Pending().Assign("another");
    Open(kept);
    panel.SetVoyage("");
    panel.Reset();
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor("another"));
    panel.HideAfterLogout();
    EXPECT_FALSE(desk.voyages.Module().Pending().IsThere());
}

}  // namespace Tarvik::Seaplan
