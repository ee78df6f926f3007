// SPDX-License-Identifier: MIT
/// Several rows chosen at once: deleting them, filling down, and one value in all of them.
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

constexpr KeyPress kDelete{Key::Delete};
constexpr KeyPress kFillDown{Key::D, false, true};
constexpr KeyPress kInAll{Key::Enter, false, true};

class ChosenRowsTest : public PortCallFixture {
  protected:
    void Choose(std::vector<int> rows) { view.chosen = std::move(rows); }
    void Press(KeyPress press, int row, int column) {
        EXPECT_TRUE(panel.Rows().OnTableKey(press, row, column));
    }
    void Undo() { panel.Commands().OnUndo(); }
    /// Types over the cell of a row, and Ctrl+Enter.
    void TypeInAll(int row, int column, CellEditor editor, const std::string& text) {
        panel.Cells().OnCellClicked(row, column);
        Retype(editor, text);
        EXPECT_TRUE(panel.Cells().OnEditorKey(editor, kInAll));
    }
    std::vector<std::string> Ports() const {
        std::vector<std::string> names = Column(ColPort);
        std::erase(names, " ");
        return names;
    }
};

TEST(StepOfChoosing, OnlyShiftAloneWithAnArrowUpOrDownChoosesARowMore) {
    EXPECT_EQ(StepOfChoosing({.key = Key::Up, .shift = true}), ChoosingStep::Above);
    EXPECT_EQ(StepOfChoosing({.key = Key::Down, .shift = true}), ChoosingStep::Below);
    for (const KeyPress press :
         {KeyPress{.key = Key::Down}, KeyPress{.key = Key::Up, .alt = true},
          KeyPress{.key = Key::Down, .ctrl = true}, KeyPress{.key = Key::Down, .ctrlShift = true},
          KeyPress{.key = Key::Left, .shift = true}, KeyPress{.key = Key::Tab, .shift = true},
          KeyPress{.key = Key::PageDown, .shift = true}}) {
        EXPECT_EQ(StepOfChoosing(press), ChoosingStep::None);
    }
}

TEST_F(ChosenRowsTest, ShiftAndAnArrowAreLeftToTheChoiceOfRows) {
    Open(kept);
    const PortCallTable before = view.table;
    for (const Key key : {Key::Up, Key::Down}) {
        EXPECT_FALSE(panel.Rows().OnTableKey({.key = key, .shift = true}, 1, ColPort));
    }
    EXPECT_TRUE(view.table == before) << "no row moves";
}

TEST_F(ChosenRowsTest, DeleteTakesAllChosenRowsAsOneEdit) {
    Open(kept);
    const PortCallTable before = view.table;
    Choose({0, 2, 4});
    Press(kDelete, 2, ColPort);
    EXPECT_THAT(Ports(), ElementsAre("HAMBURG"));
    EXPECT_EQ(view.selectedRow, 0);
    Undo();
    EXPECT_TRUE(view.table == before);
    EXPECT_TRUE(view.edits.undo.empty());
}

TEST_F(ChosenRowsTest, RowsBelowABlankOneStayAndAreTold) {
    texts.given[u"IDS_VIEW_ROWSNOTDELETED"] = u"kept %1";
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    Type(1, ColPort, "HAMBURG");
    Type(3, ColPort, "GDANSK");
    Type(4, ColPort, "ROUEN");
    Choose({1, 3, 4});
    Press(kDelete, 4, ColPort);
    EXPECT_EQ(statusWord, "kept 4, 5");
    EXPECT_THAT(Ports(), ElementsAre("ROTTERDAM", "GDANSK", "ROUEN"));
}

TEST_F(ChosenRowsTest, ASpeedTypedWithCtrlEnterStandsInAllChosenRowsAsOneEdit) {
    Open(kept);
    const PortCallTable before = view.table;
    Choose({1, 2});
    TypeInAll(2, ColSpeed, CellEditor::Speed, "14");
    EXPECT_FALSE(view.openEditor.has_value());
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
    EXPECT_EQ(Cell(2, ColSpeed), "14.00");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-06 01:08:34") << "240 miles at 14 knots";
    EXPECT_EQ(statusWord, "");
    Undo();
    EXPECT_TRUE(view.table == before);
}

TEST_F(ChosenRowsTest, RowsThatRefuseTheValueStayAsTheyWereAndAreTold) {
    texts.given[u"IDS_VIEW_ROWSREFUSED"] = u"left %1";
    Open(kept);
    Choose({1, 2, 3, 4});
    TypeInAll(2, ColSpeed, CellEditor::Speed, "15");
    EXPECT_EQ(statusWord, "left 4, 5") << "rows without a port take no speed";
    EXPECT_EQ(Cell(2, ColSpeed), "15.00");
    EXPECT_EQ(Cell(3, ColSpeed), " ");
    const PortCallTable before = view.table;
    TypeInAll(2, ColSpeed, CellEditor::Speed, "fast");
    EXPECT_EQ(statusWord, "left 2, 3, 4, 5");
    EXPECT_TRUE(view.table == before);
}

TEST_F(ChosenRowsTest, AnEtaTooEarlyForARowIsNoBoxAndLeavesIt) {
    texts.given[u"IDS_VIEW_ROWSREFUSED"] = u"left %1";
    Open(kept);
    Choose({1, 2});
    const std::string eta = Cell(1, ColEta);
    const std::string second = Cell(2, ColEta);
    Press(kFillDown, 1, ColEta);
    EXPECT_EQ(statusWord, "left 3");
    EXPECT_EQ(Cell(1, ColEta), eta);
    EXPECT_EQ(Cell(2, ColEta), second);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_TRUE(view.edits.undo.empty()) << "nothing was changed";
}

TEST_F(ChosenRowsTest, CtrlDFillsTheColumnInFrontFromTheFirstChosenRow) {
    Open(kept);
    Type(1, ColSpeed, "13");
    Type(1, ColWeather, "5");
    Choose({1, 2});
    Press(kFillDown, 2, ColSpeed);
    Press(kFillDown, 2, ColWeather);
    EXPECT_EQ(Cell(2, ColSpeed), "13.00");
    EXPECT_EQ(Cell(2, ColWeather), "5%");
    Choose({0, 1});
    Press(kFillDown, 1, ColWeather);
    EXPECT_EQ(Cell(1, ColWeather), "0%") << "no weather is a value";
}

TEST_F(ChosenRowsTest, CtrlDOverASingleRowFillsFromTheRowAbove) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    Choose({2});
    Press(kFillDown, 2, ColPort);
    EXPECT_THAT(Ports(), ElementsAre("ROTTERDAM", "HAMBURG", "HAMBURG"));
    Undo();
    EXPECT_THAT(Ports(), ElementsAre("ROTTERDAM", "HAMBURG"));
}

TEST_F(ChosenRowsTest, APortFilledIntoTheLastRowGrowsTheTable) {
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    Choose({0, 1, 2, 3, 4, 5, 6, 7});
    Press(kFillDown, 0, ColPort);
    EXPECT_EQ(Ports().size(), 6U);
    EXPECT_EQ(view.table.RowCount(), 7);
}

TEST_F(ChosenRowsTest, ABlankCellAndACalculatedColumnFillNothing) {
    Open(kept);
    Choose({1, 2});
    Press(kFillDown, 1, ColDistance);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOTHINGTOFILL");
    Choose({4, 5});
    const PortCallTable before = view.table;
    Press(kFillDown, 4, ColPort);
    EXPECT_TRUE(view.table == before);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(ChosenRowsTest, CtrlEnterOverTheTablePutsTheCellInFrontIntoTheOthers) {
    Open(kept);
    Type(2, ColSpeed, "11");
    Choose({1, 2});
    Press(kInAll, 2, ColSpeed);
    EXPECT_EQ(Cell(1, ColSpeed), "11.00");
    EXPECT_FALSE(view.openEditor.has_value());
}

TEST_F(ChosenRowsTest, APurposeIsChosenForAllRows) {
    Open(kept);
    Choose({1, 2, 3});
    panel.Cells().OnCellClicked(1, ColPurpose);
    EXPECT_TRUE(panel.Cells().OnPurposeKey(kInAll, 3));
    EXPECT_EQ(Cell(1, ColPurpose), "C");
    EXPECT_EQ(Cell(2, ColPurpose), "C");
    EXPECT_EQ(Cell(3, ColPurpose), " ");
    EXPECT_EQ(view.purposeRow, -1);
}

TEST_F(ChosenRowsTest, ATextAloneOnItsRowIsTakenThereAndClosesWithoutLeadingOn) {
    Open(kept);
    TypeInAll(1, ColPort, CellEditor::Port, "ROUEN");
    EXPECT_EQ(Cell(1, ColPort), "ROUEN");
    EXPECT_FALSE(view.openEditor.has_value());
}

}  // namespace

}  // namespace Tarvik::Seaplan
