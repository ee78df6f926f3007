// SPDX-License-Identifier: MIT
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/panels/remark/ClistCtrlViewEx.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

/// A search plug-in that answers every query with a window of its own.
class SearchPlugin final : public Core::TObject {
  public:
    SearchPlugin() {
        event_.Set<&SearchPlugin::OnQuery>(this);
        auto* kernel = Core::TrvKernel::Instance();
        kernel->CreateTrvService(kName, this, "", "", nullptr);
        kernel->BindTrvService(kName, &event_);
    }
    ~SearchPlugin() override {
        auto* kernel = Core::TrvKernel::Instance();
        kernel->UnBindTrvService(kName, &event_);
        kernel->DeleteTrvService(kName, this);
    }

    std::vector<Interface::MatchPortQuery> queries;
    int window = 0;

  private:
    static constexpr const char* kName = Interface::Bus::MatchPorts.name;
    void* OnQuery(void* input) {
        queries.push_back(*static_cast<const Interface::MatchPortQuery*>(input));
        return &window;
    }
    Core::TEvent event_;
};

}  // namespace

TEST_F(PortCallFixture, TabLeadsFromTheFirstPortToTheNextPort) {
    Open(fresh);
    panel.Cells().OnCellClicked(0, ColPort);
    Retype(CellEditor::Port, "ROTTERDAM");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Tab});
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 1);
}

TEST_F(PortCallFixture, TabLeadsFromALaterPortThroughSpeedAndWeatherToTheNextPort) {
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    panel.Cells().OnCellClicked(1, ColPort);
    Retype(CellEditor::Port, "HAMBURG");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Tab});
    EXPECT_EQ(view.openEditor, CellEditor::Speed);
    EXPECT_TRUE(view.editorSelectsAll);
    Retype(CellEditor::Speed, "14");
    panel.Cells().OnEditorKey(CellEditor::Speed, {Key::Tab});
    EXPECT_EQ(view.openEditor, CellEditor::Weather);
    EXPECT_EQ(view.editorRow, 1);
    Retype(CellEditor::Weather, "5");
    panel.Cells().OnEditorKey(CellEditor::Weather, {Key::Tab});
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 2);
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
    EXPECT_EQ(Cell(1, ColWeather), "5%");
}

TEST_F(PortCallFixture, EnterTakesThePortAndOpensTheNextEnterInTheSpeedOnlyCloses) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColPort);
    Retype(CellEditor::Port, "ROUEN");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Enter});
    EXPECT_EQ(view.editorRow, 2);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    panel.Cells().OnCellClicked(1, ColSpeed);
    panel.Cells().OnEditorKey(CellEditor::Speed, {Key::Enter});
    EXPECT_FALSE(view.openEditor.has_value());
    panel.Cells().OnCellClicked(1, ColWeather);
    panel.Cells().OnEditorKey(CellEditor::Weather, {Key::Enter});
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 2);
}

TEST_F(PortCallFixture, AnEmptyPortEditorStaysOpen) {
    Open(fresh);
    panel.Cells().OnCellClicked(0, ColPort);
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Tab});
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 0);
}

TEST_F(PortCallFixture, EnterInTheLastRowGrowsTheTable) {
    Open(fresh);
    panel.Cells().OnCellClicked(4, ColPort);
    Retype(CellEditor::Port, "ROUEN");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Enter});
    EXPECT_EQ(view.editorRow, 5);
    EXPECT_EQ(view.table.RowCount(), 7);
}

TEST_F(PortCallFixture, LeavingTheSpeedCommitsLeavingThePortDoesNot) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "15");
    panel.Cells().OnEditorFocusLost(CellEditor::Speed);
    EXPECT_EQ(Cell(1, ColSpeed), "15.00");
    panel.Cells().OnCellClicked(1, ColPort);
    Retype(CellEditor::Port, "ROUEN");
    panel.Cells().OnEditorFocusLost(CellEditor::Port);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    panel.Cells().CommitEditors();
    EXPECT_EQ(Cell(1, ColPort), "ROUEN");
    EXPECT_FALSE(view.openEditor.has_value());
}

TEST_F(PortCallFixture, EscapeClosesTheListThenAnEditorThatWasNotChanged) {
    Open(kept);
    panel.Cells().OnCellClicked(3, ColPort);
    Retype(CellEditor::Port, "RO");
    ASSERT_TRUE(view.matchesShown);
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Escape});
    EXPECT_FALSE(view.matchesShown);
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Escape});
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    Retype(CellEditor::Port, "");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Escape});
    EXPECT_FALSE(view.openEditor.has_value());
    EXPECT_EQ(Cell(3, ColPort), " ");
}

TEST_F(PortCallFixture, TypingOffersThePortsThatBeginSo) {
    Open(fresh);
    panel.Cells().OnCellClicked(0, ColPort);
    EXPECT_FALSE(view.matchesShown);
    Retype(CellEditor::Port, "ro");
    EXPECT_THAT(view.matches, ElementsAre("ROTTERDAM", "ROUEN"));
    Retype(CellEditor::Port, "rx");
    EXPECT_FALSE(view.matchesShown);
    Retype(CellEditor::Port, "ro");
    Retype(CellEditor::Port, "");
    EXPECT_FALSE(view.matchesShown);
}

TEST_F(PortCallFixture, AMatchIsTakenWhenItIsChosen) {
    Open(fresh);
    panel.Cells().OnCellClicked(0, ColPort);
    Retype(CellEditor::Port, "ro");
    panel.Cells().OnMatchMoved("ROUEN", true);
    EXPECT_EQ(view.editorTexts[CellEditor::Port], "ro");
    panel.Cells().OnMatchChosen();
    EXPECT_EQ(Cell(0, ColPort), " ");
    panel.Cells().OnMatchMoved("ROUEN", false);
    EXPECT_EQ(view.editorTexts[CellEditor::Port], "ROUEN");
    panel.Cells().OnMatchChosen();
    EXPECT_EQ(Cell(0, ColPort), "ROUEN");
    EXPECT_FALSE(view.openEditor.has_value());
    panel.Cells().OnMatchMoved("HAMBURG", false);
    panel.Cells().OnMatchChosen();
    EXPECT_EQ(Cell(0, ColPort), "ROUEN");
}

TEST_F(PortCallFixture, WhatIsTypedBehindAChosenMatchIsTheNextPort) {
    Open(kept);
    panel.Cells().OnCellClicked(2, ColPort);
    Retype(CellEditor::Port, "ro");
    ASSERT_TRUE(panel.Cells().OnEditorKey(CellEditor::Port, {Key::Down}));
    panel.Cells().OnMatchPressed(1);
    EXPECT_EQ(Cell(2, ColPort), "ROUEN");
    EXPECT_EQ(view.selectedRow, 3);
    EXPECT_EQ(view.selectedColumn, ColPort);
    EXPECT_FALSE(view.openEditor.has_value());
    const std::string typed = "G";
    panel.Cells().OnCellClicked(view.selectedRow, view.selectedColumn, &typed);
    EXPECT_EQ(view.editorRow, 3);
}

TEST_F(PortCallFixture, AMatchInTheLastRowMakesAnother) {
    Open(fresh);
    panel.Cells().OnCellClicked(4, ColPort);
    Retype(CellEditor::Port, "ro");
    panel.Cells().OnMatchPressed(0);
    EXPECT_EQ(view.selectedRow, 5);
    EXPECT_EQ(view.table.RowCount(), 7);
}

TEST_F(PortCallFixture, UpAndDownTakeWhatIsTypedToTheRowBeside) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "15");
    EXPECT_TRUE(panel.Cells().OnEditorKey(CellEditor::Speed, {Key::Down}));
    EXPECT_EQ(Cell(1, ColSpeed), "15.00");
    EXPECT_FALSE(view.openEditor.has_value());
    EXPECT_EQ(view.selectedRow, 2);
    EXPECT_EQ(view.selectedColumn, ColSpeed);
    panel.Cells().OnCellClicked(3, ColPort);
    EXPECT_TRUE(panel.Cells().OnEditorKey(CellEditor::Port, {Key::Up}));
    EXPECT_EQ(view.selectedRow, 2);
    EXPECT_EQ(Cell(3, ColPort), " ") << "an editor that was only looked into changes nothing";
}

TEST_F(PortCallFixture, UpAndDownStayInTheEditorBesideTheEndsAndOverAMatchWindow) {
    Open(kept);
    panel.Cells().OnCellClicked(0, ColPort);
    EXPECT_FALSE(panel.Cells().OnEditorKey(CellEditor::Port, {Key::Up}));
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    const SearchPlugin plugin;
    Retype(CellEditor::Port, "RO");
    ASSERT_NE(view.matchWindow, nullptr);
    EXPECT_FALSE(panel.Cells().OnEditorKey(CellEditor::Port, {Key::Down}));
    EXPECT_EQ(view.openEditor, CellEditor::Port);
}

TEST_F(PortCallFixture, TheSearchPluginIsAskedAtEachTextButTheOneSetOnTheWayToTheNextRow) {
    SearchPlugin plugin;
    Open(kept);
    panel.Cells().OnCellClicked(1, ColPort);
    ASSERT_EQ(plugin.queries.size(), 1U);
    EXPECT_EQ(plugin.queries[0].text, "HAMBURG");
    EXPECT_EQ(plugin.queries[0].editor, view.Handle());
    EXPECT_EQ(plugin.queries[0].edit, view.EditorHandle(CellEditor::Port));
    EXPECT_EQ(view.matchWindow, &plugin.window);
    Retype(CellEditor::Port, "ROUEN");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Enter});
    EXPECT_EQ(view.editorRow, 2);
    EXPECT_EQ(plugin.queries.size(), 2U) << "one for the opening and one for the typed name";
    EXPECT_EQ(view.matchWindow, nullptr);
    Retype(CellEditor::Port, "G");
    EXPECT_EQ(plugin.queries.size(), 3U);
    EXPECT_FALSE(view.matchesShown);
}

TEST_F(PortCallFixture, AnEmptyTextHidesTheMatchWindowAndTextLeftByBackspaceIsToldOnce) {
    SearchPlugin plugin;
    Open(fresh);
    panel.Cells().OnCellClicked(0, ColPort);
    Retype(CellEditor::Port, "R");
    EXPECT_FALSE(plugin.queries.back().textRemains);
    EXPECT_NE(view.matchWindow, nullptr);
    Retype(CellEditor::Port, "RO");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Backspace});
    Retype(CellEditor::Port, "R");
    EXPECT_TRUE(plugin.queries.back().textRemains);
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Backspace});
    Retype(CellEditor::Port, "");
    EXPECT_FALSE(plugin.queries.back().textRemains) << "nothing is left";
    EXPECT_EQ(view.matchWindow, nullptr);
    Retype(CellEditor::Port, "H");
    EXPECT_FALSE(plugin.queries.back().textRemains);
}

}  // namespace Tarvik::Seaplan
