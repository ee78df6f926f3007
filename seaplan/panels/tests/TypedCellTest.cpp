// SPDX-License-Identifier: MIT
/// A text typed on a cell of the port calls begins to edit it.
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

namespace {

class TypedCellTest : public PortCallFixture {
  protected:
    bool TypeOn(int row, int column, const std::string& text) {
        return panel.Cells().OnCellClicked(row, column, &text);
    }
    void Finish(CellEditor editor) { panel.Cells().OnEditorKey(editor, {Key::Enter}); }
};

TEST_F(TypedCellTest, ItTakesThePlaceOfWhatStandsThere) {
    Open(kept);
    ASSERT_TRUE(TypeOn(1, ColSpeed, "1"));
    EXPECT_EQ(view.openEditor, CellEditor::Speed);
    EXPECT_EQ(view.editorTexts[CellEditor::Speed], "1");
    Retype(CellEditor::Speed, "14");
    Finish(CellEditor::Speed);
    EXPECT_EQ(Cell(1, ColSpeed), "14.00");
    panel.Commands().OnUndo();
    EXPECT_EQ(Cell(1, ColSpeed), "10.00") << "one edit";
}

TEST_F(TypedCellTest, OneCharacterAloneIsTaken) {
    Open(kept);
    ASSERT_TRUE(TypeOn(1, ColSpeed, "9"));
    Finish(CellEditor::Speed);
    EXPECT_EQ(Cell(1, ColSpeed), "9.00");
}

TEST_F(TypedCellTest, APortsLetterAsksForItsMatchesOnly) {
    Open(kept);
    ASSERT_TRUE(TypeOn(1, ColPort, "R"));
    EXPECT_EQ(view.editorTexts[CellEditor::Port], "R");
    EXPECT_EQ(view.matches, (std::vector<std::string>{"ROTTERDAM", "ROUEN"}));
    EXPECT_TRUE(view.matchesShown);
}

TEST_F(TypedCellTest, ALetterGoesToItsPurpose) {
    Open(kept);
    ASSERT_TRUE(TypeOn(1, ColPurpose, "b"));
    EXPECT_EQ(view.purposeRow, 1);
    EXPECT_EQ(view.currentPurpose, 2);
    panel.Cells().OnPurposeKey({Key::Enter}, view.currentPurpose);
    EXPECT_EQ(Cell(1, ColPurpose), "B");
    ASSERT_TRUE(TypeOn(1, ColPurpose, "q"));
    EXPECT_EQ(view.currentPurpose, 0) << "no purpose begins so";
}

TEST_F(TypedCellTest, ADigitOpensTheCalendarOfATime) {
    Open(kept);
    EXPECT_TRUE(TypeOn(1, ColEta, "2"));
    EXPECT_EQ(view.pickerTime, Cell(1, ColEta));
}

TEST_F(TypedCellTest, WhatIsComposedBeginsInAnEmptyEditor) {
    Open(kept);
    ASSERT_TRUE(TypeOn(1, ColPort, ""));
    EXPECT_EQ(view.openEditor, CellEditor::Port);
    EXPECT_EQ(view.editorTexts[CellEditor::Port], "");
    panel.Cells().CommitEditors();
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG") << "nothing came of it";
}

TEST_F(TypedCellTest, ABlankAndAComputedCellOpenNothing) {
    Open(kept);
    EXPECT_FALSE(TypeOn(1, ColSpeed, " "));
    EXPECT_FALSE(TypeOn(1, ColDistance, "1"));
    EXPECT_FALSE(TypeOn(3 + PortCallTable::kFirstRows, ColSpeed, "1"));
    EXPECT_FALSE(TypeOn(-1, ColSpeed, "1"));
    EXPECT_FALSE(view.openEditor.has_value());
}

}  // namespace

}  // namespace Tarvik::Seaplan
