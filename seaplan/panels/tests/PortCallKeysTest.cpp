// SPDX-License-Identifier: MIT
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>

#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

/// A search plug-in that answers every query with a window of its own.
class SearchPlugin final : public Core::TObject {
  public:
    SearchPlugin() {
        event_.Set<&SearchPlugin::onQuery>(this);
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
    void* onQuery(void* input) {
        queries.push_back(*static_cast<const Interface::MatchPortQuery*>(input));
        return &window;
    }
    Core::TEvent event_;
};

}  // namespace

TEST_F(PortCallFixture, TabLeadsFromTheFirstPortToTheNextPort) {
    Open("10");
    panel.OnCellClicked(0, ColPort);
    view.editorTexts[CellEditor::Port] = "ROTTERDAM";
    panel.OnEditorKey(CellEditor::Port, EditorKey::Tab);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 1);
}

TEST_F(PortCallFixture, TabLeadsFromALaterPortThroughSpeedAndWeatherToTheNextPort) {
    Open("10");
    Type(0, ColPort, "ROTTERDAM");
    panel.OnCellClicked(1, ColPort);
    view.editorTexts[CellEditor::Port] = "HAMBURG";
    panel.OnEditorKey(CellEditor::Port, EditorKey::Tab);
    EXPECT_EQ(view.openEditor, CellEditor::Speed);
    EXPECT_TRUE(view.editorSelectsAll);
    view.editorTexts[CellEditor::Speed] = "14";
    panel.OnEditorKey(CellEditor::Speed, EditorKey::Tab);
    EXPECT_EQ(view.openEditor, CellEditor::Weather);
    EXPECT_EQ(view.editorRow, 1);
    view.editorTexts[CellEditor::Weather] = "5";
    panel.OnEditorKey(CellEditor::Weather, EditorKey::Tab);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 2);
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
    EXPECT_EQ(Cell(1, ColWeather), "5%");
}

TEST_F(PortCallFixture, EnterTakesThePortAndOpensTheNextEnterInTheSpeedOnlyCloses) {
    Open("20");
    panel.OnCellClicked(1, ColPort);
    view.editorTexts[CellEditor::Port] = "ROUEN";
    panel.OnEditorKey(CellEditor::Port, EditorKey::Enter);
    EXPECT_EQ(view.editorRow, 2);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    panel.OnCellClicked(1, ColSpeed);
    panel.OnEditorKey(CellEditor::Speed, EditorKey::Enter);
    EXPECT_FALSE(view.openEditor.has_value());
    panel.OnCellClicked(1, ColWeather);
    panel.OnEditorKey(CellEditor::Weather, EditorKey::Enter);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 2);
}

TEST_F(PortCallFixture, AnEmptyPortEditorStaysOpen) {
    Open("10");
    panel.OnCellClicked(0, ColPort);
    panel.OnEditorKey(CellEditor::Port, EditorKey::Tab);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorRow, 0);
}

TEST_F(PortCallFixture, EnterInTheLastRowGrowsTheTable) {
    Open("10");
    panel.OnCellClicked(4, ColPort);
    view.editorTexts[CellEditor::Port] = "ROUEN";
    panel.OnEditorKey(CellEditor::Port, EditorKey::Enter);
    EXPECT_EQ(view.editorRow, 5);
    EXPECT_EQ(view.table.RowCount(), 7);
}

TEST_F(PortCallFixture, LeavingTheSpeedCommitsLeavingThePortDoesNot) {
    Open("20");
    panel.OnCellClicked(1, ColSpeed);
    view.editorTexts[CellEditor::Speed] = "15";
    panel.OnEditorFocusLost(CellEditor::Speed);
    EXPECT_EQ(Cell(1, ColSpeed), "15.00");
    panel.OnCellClicked(1, ColPort);
    view.editorTexts[CellEditor::Port] = "ROUEN";
    panel.OnEditorFocusLost(CellEditor::Port);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    panel.OnTableLeft();
    EXPECT_EQ(Cell(1, ColPort), "ROUEN");
    EXPECT_FALSE(view.openEditor.has_value());
}

TEST_F(PortCallFixture, EscapeClosesTheListThenAnEditorThatWasNotChanged) {
    Open("20");
    panel.OnCellClicked(3, ColPort);
    view.editorTexts[CellEditor::Port] = "RO";
    panel.OnPortTyped("RO");
    ASSERT_TRUE(view.matchesShown);
    panel.OnEditorKey(CellEditor::Port, EditorKey::Escape);
    EXPECT_FALSE(view.matchesShown);
    panel.OnEditorKey(CellEditor::Port, EditorKey::Escape);
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    view.editorTexts[CellEditor::Port] = "";
    panel.OnEditorKey(CellEditor::Port, EditorKey::Escape);
    EXPECT_FALSE(view.openEditor.has_value());
    EXPECT_EQ(Cell(3, ColPort), " ");
}

TEST_F(PortCallFixture, TypingOffersThePortsThatBeginSo) {
    Open("10");
    panel.OnCellClicked(0, ColPort);
    EXPECT_FALSE(view.matchesShown);
    panel.OnPortTyped("ro");
    EXPECT_THAT(view.matches, ElementsAre("ROTTERDAM", "ROUEN"));
    panel.OnPortTyped("rx");
    EXPECT_FALSE(view.matchesShown);
    panel.OnPortTyped("ro");
    panel.OnPortTyped("");
    EXPECT_FALSE(view.matchesShown);
}

TEST_F(PortCallFixture, AMatchIsTakenWhenItIsChosen) {
    Open("10");
    panel.OnCellClicked(0, ColPort);
    panel.OnPortTyped("ro");
    panel.OnMatchMoved("ROUEN", true);
    EXPECT_EQ(view.EditorText(CellEditor::Port), "");
    panel.OnMatchChosen();
    EXPECT_EQ(Cell(0, ColPort), " ");
    panel.OnMatchMoved("ROUEN", false);
    EXPECT_EQ(view.EditorText(CellEditor::Port), "ROUEN");
    panel.OnMatchChosen();
    EXPECT_EQ(Cell(0, ColPort), "ROUEN");
    EXPECT_FALSE(view.openEditor.has_value());
    panel.OnMatchMoved("HAMBURG", false);
    panel.OnMatchChosen();
    EXPECT_EQ(Cell(0, ColPort), "ROUEN");
}

TEST_F(PortCallFixture, TheSearchPluginIsAskedAtEachTextButTheOneSetOnTheWayToTheNextRow) {
    SearchPlugin plugin;
    Open("20");
    panel.OnCellClicked(1, ColPort);
    ASSERT_EQ(plugin.queries.size(), 1U);
    EXPECT_EQ(plugin.queries[0].text, "HAMBURG");
    EXPECT_EQ(plugin.queries[0].editor, view.Handle());
    EXPECT_EQ(plugin.queries[0].edit, view.EditorHandle(CellEditor::Port));
    EXPECT_THAT(view.matchWindows, ElementsAre(&plugin.window));
    view.editorTexts[CellEditor::Port] = "ROUEN";
    panel.OnEditorKey(CellEditor::Port, EditorKey::Enter);
    EXPECT_EQ(view.editorRow, 2);
    EXPECT_EQ(plugin.queries.size(), 1U);
    EXPECT_TRUE(view.matchWindows.empty());
    panel.OnPortTyped("G");
    EXPECT_EQ(plugin.queries.size(), 2U);
    EXPECT_FALSE(view.matchesShown);
}

TEST_F(PortCallFixture, AnEmptyTextHidesTheMatchWindowAndBackspaceIsToldOnce) {
    SearchPlugin plugin;
    Open("10");
    panel.OnCellClicked(0, ColPort);
    view.editorTexts[CellEditor::Port] = "R";
    panel.OnPortTyped("R");
    EXPECT_FALSE(plugin.queries.back().textRemains);
    EXPECT_FALSE(view.matchWindows.empty());
    panel.OnPortBackspace();
    panel.OnPortTyped("");
    EXPECT_TRUE(plugin.queries.back().textRemains);
    EXPECT_TRUE(view.matchWindows.empty());
    panel.OnPortTyped("H");
    EXPECT_FALSE(plugin.queries.back().textRemains);
}

}  // namespace Tarvik::Seaplan
