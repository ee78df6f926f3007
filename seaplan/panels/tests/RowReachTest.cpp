// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"

/// Which row an image, a key or a press means, and what of the table is brought into view.
namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;

class RowReachTest : public PortCallFixture {
  protected:
    /// ROTTERDAM, a blank row, HAMBURG, GDANSK.
    void EnterGap() {
        Open(fresh);
        Type(0, ColPort, "ROTTERDAM");
        Type(2, ColPort, "HAMBURG");
        Type(3, ColPort, "GDANSK");
    }
    static auto Gap() { return ElementsAre("ROTTERDAM", " ", "HAMBURG", "GDANSK", " ", " "); }
};

TEST_F(RowReachTest, BelowABlankRowNothingIsMovedOrDeleted) {
    EnterGap();
    for (const char* image : {PortCallImage::kDelete, PortCallImage::kMoveUp, PortCallImage::kMoveDown}) {
        EXPECT_LT(panel.Rows().OnItemImage(2, image), 0) << image;
        EXPECT_THAT(Column(ColPort), Gap()) << image;
    }
    EXPECT_TRUE(panel.Rows().OnTableKey({Key::Delete}, 2, ColPort));
    EXPECT_THAT(Column(ColPort), Gap());
}

TEST_F(RowReachTest, ItsImagesAreOffAndThoseAboveAreOn) {
    EnterGap();
    for (const int row : {2, 3}) {
        const RowActions can = ActionsOf(view.table, row);
        EXPECT_FALSE(can.moveUp || can.moveDown || can.remove) << row;
        EXPECT_TRUE(can.remark) << row;
    }
    EXPECT_TRUE(ActionsOf(view.table, 0).remove);
    EXPECT_TRUE(ActionsOf(view.table, 0).moveDown);
}

TEST_F(RowReachTest, AGapThatIsFilledGivesItsRowsBack) {
    EnterGap();
    Type(1, ColPort, "ROUEN");
    EXPECT_EQ(panel.Rows().OnItemImage(2, PortCallImage::kDelete), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "ROUEN", "GDANSK", " ", " ", " "));
}

TEST_F(RowReachTest, ATypedSpeedThatClosesTheGapLeavesThePressedRowMeant) {
    EnterGap();
    panel.Cells().OnCellClicked(3, ColSpeed);
    Retype(CellEditor::Speed, "12");
    EXPECT_EQ(panel.Rows().OnItemImage(2, PortCallImage::kDelete), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "GDANSK", " ", " ", " ", " "));
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
}

TEST_F(RowReachTest, APortTypedIntoTheGapLeavesThePressedRowMeant) {
    EnterGap();
    panel.Cells().OnCellClicked(1, ColPort);
    Retype(CellEditor::Port, "ROUEN");
    EXPECT_EQ(panel.Rows().OnItemImage(3, PortCallImage::kDelete), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "ROUEN", "HAMBURG", " ", " ", " "));
}

TEST_F(RowReachTest, AMoveOntoTheLastRowSelectsIt) {
    Open(kept);
    EXPECT_EQ(panel.Rows().OnItemImage(1, PortCallImage::kMoveDown), 0);
    EXPECT_EQ(view.selectedRow, 2);
}

TEST_F(RowReachTest, AnotherVoyageOpensWithTheKeyboardOnItsFirstPort) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColSpeed);
    ASSERT_TRUE(panel.Cells().OnEditorKey(CellEditor::Speed, {Key::Down}));
    ASSERT_EQ(view.selectedRow, 2);
    Open(fresh);
    EXPECT_EQ(view.selectedRow, 0);
    EXPECT_EQ(view.selectedColumn, ColPort);
    view.selectedColumn = ColSpeed;
    ASSERT_EQ(panel.OpenDistanceTable(), 0);
    EXPECT_EQ(view.selectedColumn, ColPort);
}

TEST_F(RowReachTest, ThePortEditorOfTheNextRowIsBroughtIntoView) {
    Open(fresh);
    panel.Cells().OnCellClicked(4, ColPort);
    Retype(CellEditor::Port, "ROUEN");
    panel.Cells().OnEditorKey(CellEditor::Port, {Key::Enter});
    EXPECT_EQ(view.editorRow, 5);
    EXPECT_EQ(view.rowInView, 5);
    EXPECT_EQ(view.table.RowCount(), 7) << "the last row was opened";
}

TEST_F(RowReachTest, OpeningAVoyageAndClearingBringTheFirstRowIntoView) {
    view.rowInView = 4;
    Open(kept);
    EXPECT_EQ(view.rowInView, 0);
    view.rowInView = 4;
    messages.Answer(Interface::SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    EXPECT_EQ(view.rowInView, 0);
}

TEST_F(RowReachTest, SpeedAndWeatherOfTheFirstRowAreNoughtAgain) {
    Open(kept);
    Type(0, ColSpeed, "12");
    EXPECT_EQ(Cell(0, ColSpeed), "0.00");
    Type(0, ColWeather, "0");
    EXPECT_EQ(Cell(0, ColWeather), "0%");
}

}  // namespace

}  // namespace Tarvik::Seaplan
