// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/Purposes.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

TEST_F(PortCallFixture, APortInTheFirstRowSetsItsOtherCells) {
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    EXPECT_EQ(Cell(0, ColSpeed), "0.00");
    EXPECT_EQ(Cell(0, ColWeather), "0%");
    EXPECT_EQ(Cell(0, ColPortTime), "0.00");
    Type(1, ColPort, "HAMBURG");
    EXPECT_EQ(Cell(1, ColSpeed), " ");
    EXPECT_EQ(Cell(1, ColPortTime), " ");
}

TEST_F(PortCallFixture, ATableOfOnePlaceIsNeverMarked) {
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    Type(1, ColPort, "ROTTERDAM");
    Type(2, ColPort, "EUROPOORT");
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.canCalculate);
    Type(3, ColPort, "HAMBURG");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    EXPECT_TRUE(view.state.canCalculate);
}

TEST_F(PortCallFixture, ALocalNameGivesThePortsNameAndAnUnknownOneIsDropped) {
    Open(fresh);
    Type(0, ColPort, "鹿特丹");
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    Type(1, ColPort, "上海");
    EXPECT_EQ(Cell(1, ColPort), " ");
}

TEST_F(PortCallFixture, ANameThatNoPortHasIsTakenAndMarked) {
    Open(fresh);
    Type(0, ColPort, "Atlantis");
    EXPECT_EQ(Cell(0, ColPort), "Atlantis");
    EXPECT_TRUE(view.table.Rows()[0].unknownPort);
    Type(0, ColPort, "rouen");
    EXPECT_EQ(Cell(0, ColPort), "ROUEN");
    EXPECT_FALSE(view.table.Rows()[0].unknownPort);
}

TEST_F(PortCallFixture, ANewPortClearsTheTotals) {
    Open(kept);
    EXPECT_EQ(Cell(6, ColDistance), "480.00");
    Type(1, ColPort, "ROUEN");
    EXPECT_EQ(Cell(6, ColDistance), " ");
    EXPECT_EQ(Cell(6, ColEta), " ");
    EXPECT_EQ(Cell(1, ColDistance), "240.00");
}

TEST_F(PortCallFixture, LookingIntoAnEditorChangesNothing) {
    Open(kept);
    for (const int column : {ColPort, ColSpeed, ColWeather}) {
        panel.Cells().OnCellClicked(1, column);
        panel.Cells().CommitEditors();
    }
    EXPECT_FALSE(view.state.changed);
    EXPECT_EQ(Cell(6, ColDistance), "480.00");
}

TEST_F(PortCallFixture, ASpeedRecomputesTheSchedule) {
    Open(kept);
    Type(1, ColSpeed, "20");
    EXPECT_EQ(Cell(1, ColSpeed), "20.00");
    EXPECT_EQ(Cell(1, ColSteamTime), "0.50");
    EXPECT_EQ(Cell(1, ColEta), "2024-03-05 20:00:00");
    EXPECT_EQ(Cell(2, ColSpeed), "10.00");
    EXPECT_EQ(Cell(2, ColEta), "2024-03-07 08:00:00");
    EXPECT_TRUE(view.state.changed);
}

TEST_F(PortCallFixture, ATypedZeroLeavesTheSpeedAndABlankCellTakesTen) {
    Open(kept);
    for (const char* text : {"0", "-4", "fast"}) {
        Type(1, ColSpeed, text);
        EXPECT_EQ(Cell(1, ColSpeed), "10.00") << text;
    }
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    Type(1, ColSpeed, "0");
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_EQ(Cell(1, ColWeather), "0%");
}

TEST_F(PortCallFixture, ARowWithoutPortTakesNoSpeedWeatherOrPurpose) {
    Open(kept);
    Type(3, ColSpeed, "12");
    panel.Cells().OnCellClicked(3, ColWeather);
    Retype(CellEditor::Weather, "5");
    panel.Cells().CommitEditors();
    panel.Cells().OnCellClicked(3, ColPurpose);
    panel.Cells().OnPurposeChosen(0);
    for (const int column : {ColSpeed, ColWeather, ColPurpose}) {
        EXPECT_EQ(Cell(3, column), " ") << column;
    }
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, AWeatherFactorIsTypedInPercent) {
    Open(kept);
    Type(1, ColWeather, "20%");
    EXPECT_EQ(Cell(1, ColWeather), "20%");
    EXPECT_EQ(Cell(1, ColSteamTime), "1.25");
    Type(1, ColWeather, "12.6");
    EXPECT_EQ(Cell(1, ColWeather), "13%");
    for (const char* text : {"100", "-3", "bad"}) {
        Type(1, ColWeather, text);
        EXPECT_EQ(Cell(1, ColWeather), "13%") << text;
    }
    Type(1, ColWeather, "0.0");
    EXPECT_EQ(Cell(1, ColWeather), "0%");
}

TEST_F(PortCallFixture, AFactorThatPrintsAsWholeIsNotTaken) {
    Open(kept);
    for (const char* whole : {"99.5", "99.6", "99.9999", "100"}) {
        Type(1, ColWeather, whole);
        EXPECT_EQ(Cell(1, ColWeather), "0%") << whole;
    }
    Type(1, ColWeather, "99.4");
    EXPECT_EQ(Cell(1, ColWeather), "99%");
}

TEST_F(PortCallFixture, AFactorThatLeavesNoSpeedKeepsTheTypedCellAndTheOtherCells) {
    Open(kept);
    const std::string eta = Cell(1, ColEta);
    ShowFullWeather(1);
    Type(1, ColSpeed, "12");
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_EQ(Cell(1, ColWeather), "100%");
    EXPECT_EQ(Cell(1, ColEta), eta);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, APurposeWritesItsCodeAndComputesNothing) {
    Open(kept);
    panel.Cells().OnCellClicked(1, ColPurpose);
    EXPECT_EQ(view.purposeRow, 1);
    panel.Cells().OnPurposeChosen(9);
    EXPECT_EQ(Cell(1, ColPurpose), "Z");
    EXPECT_TRUE(view.state.changed);
    panel.Cells().OnCellClicked(1, ColPurpose);
    panel.Cells().OnPurposeChosen(-1);
    EXPECT_EQ(Cell(1, ColPurpose), "Z");
}

TEST_F(PortCallFixture, ThePurposeListOpensOnThePresentCode) {
    Open(kept);
    for (const int purpose : {9, 2, 0}) {
        panel.Cells().OnCellClicked(1, ColPurpose);
        panel.Cells().OnPurposeChosen(purpose);
        panel.Cells().OnCellClicked(1, ColPurpose);
        EXPECT_EQ(view.currentPurpose, purpose);
        panel.Cells().CommitEditors();
    }
}

TEST_F(PortCallFixture, ALaterEtaSlowsTheLegDown) {
    Open(kept);
    PickTime(2, ColEta, "2024-03-07 07:00:00");
    EXPECT_EQ(Cell(2, ColEta), "2024-03-07 07:00:00");
    EXPECT_EQ(Cell(2, ColSpeed), "21.82");
    EXPECT_EQ(Cell(1, ColSpeed), "10.00");
    EXPECT_TRUE(view.pickerTime.empty());
    EXPECT_TRUE(view.state.changed);
}

TEST_F(PortCallFixture, AnEtaMustBeLaterThanThePreviousEtd) {
    Open(kept);
    const std::string etd = Cell(1, ColEtd);
    const std::string eta = Cell(2, ColEta);
    PickTime(2, ColEta, etd);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_ERRETA");
    EXPECT_EQ(Cell(2, ColEta), eta);
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, AnEtdEqualToTheEtaIsAcceptedAnEarlierOneIsNot) {
    Open(kept);
    const std::string eta = Cell(1, ColEta);
    PickTime(1, ColEtd, "2024-03-06 07:00:00");
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_ERRETD");
    EXPECT_EQ(Cell(1, ColPortTime), "0.50");
    PickTime(1, ColEtd, eta);
    EXPECT_EQ(Cell(1, ColPortTime), "0.00");
    EXPECT_EQ(Cell(2, ColEta), "2024-03-07 08:00:00");
    EXPECT_EQ(messages.messages.size(), 1U);
}

TEST_F(PortCallFixture, TheFirstEtaMovesTheWholeScheduleAndWipesTheFirstStay) {
    SaveOther([](PortCallRows& calls) { calls[0].apt = 6; });
    Open(kept);
    EXPECT_EQ(Cell(0, ColPortTime), "0.25");
    PickTime(0, ColEta, "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(0, ColPortTime), "0.00");
    EXPECT_EQ(Cell(0, ColEtd), "2024-04-01 00:00:00");
    EXPECT_EQ(Cell(1, ColEta), "2024-04-02 00:00:00");
}

TEST_F(PortCallFixture, ATimeOfAnotherLengthIsDropped) {
    Open(kept);
    const auto before = Column(ColEta);
    PickTime(1, ColEta, "2024-03-09");
    EXPECT_EQ(Column(ColEta), before);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallFixture, ThePickerNeedsAFilledRow) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Cells().OnCellClicked(1, ColEta);
    EXPECT_TRUE(view.pickerTime.empty());
    panel.Commands().OnCalculate();
    panel.Cells().OnCellClicked(1, ColEta);
    EXPECT_EQ(view.pickerTime, Cell(1, ColEta));
}

TEST_F(PortCallFixture, AnEtaOnALegWithoutDistanceStandsAlone) {
    Open(kept);
    PortCallDesk parts({desk.catalog, desk.voyages, ports, view, {}});
    PortCallRows rows = SavedRows(kept);
    rows[1].distance = 0;
    PortCallRows timed;
    ASSERT_EQ(RecomputeSchedule(rows, timed), 0);
    ASSERT_EQ(parts.Sheet().ShowRows(timed, false), 0);
    CellEdits(parts).SetTime(1, ColEta, "2024-03-08 00:00:00");
    const PortCallTable& table = parts.Sheet().table;
    EXPECT_EQ(table.Cell(1, ColEta), "2024-03-08 00:00:00");
    EXPECT_EQ(table.Cell(2, ColEta), "2024-03-06 20:00:00");
    EXPECT_FALSE(parts.Sheet().state.changed);
    EXPECT_EQ(statusWord, "IDS_VIEW_ETANODISTANCE");
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PortCallFixture, ClickingTheLastNumberedRowAddsOne) {
    Open(fresh);
    panel.Cells().OnCellClicked(5, ColSteamTime);
    EXPECT_EQ(view.table.RowCount(), 7);
    EXPECT_EQ(Cell(7, ColOrder), "RES");
    panel.Cells().OnCellClicked(7, ColPort);
    EXPECT_FALSE(view.openEditor.has_value());
    panel.Cells().OnCellClicked(-1, ColPort);
    EXPECT_FALSE(view.openEditor.has_value());
}

TEST_F(PortCallFixture, ColumnsThatAreComputedHaveNoEditor) {
    Open(kept);
    for (const int column : {ColOrder, ColSteamTime, ColPortTime, ColDistance}) {
        panel.Cells().OnCellClicked(1, column);
        EXPECT_FALSE(view.openEditor.has_value()) << column;
        EXPECT_TRUE(view.pickerTime.empty()) << column;
    }
}

TEST_F(PortCallFixture, MovingARowBlanksTheFiguresOfAllRows) {
    Open(kept);
    EXPECT_EQ(panel.Rows().OnItemImage(2, "itemMoveUp"), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "GDANSK", "HAMBURG", " ", " ", " "));
    for (const int column : {ColSteamTime, ColEta, ColEtd, ColDistance}) {
        for (int row = 0; row < 3; ++row) {
            EXPECT_EQ(Cell(row, column), " ") << row << " " << column;
        }
    }
    EXPECT_EQ(Cell(2, ColPortTime), "0.50");
    EXPECT_EQ(view.selectedRow, 1);
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(panel.Rows().OnItemImage(0, "itemMovedown"), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("GDANSK", "ROTTERDAM", "HAMBURG", " ", " ", " "));
    EXPECT_EQ(view.selectedRow, 1);
}

TEST_F(PortCallFixture, TheFirstRowDoesNotMoveUpNorTheLastDown) {
    Open(kept);
    EXPECT_LT(panel.Rows().OnItemImage(0, "itemMoveUp"), 0);
    EXPECT_LT(panel.Rows().OnItemImage(2, "itemMovedown"), 0);
    EXPECT_LT(panel.Rows().OnItemImage(4, "itemdel"), 0);
    EXPECT_LT(panel.Rows().OnItemImage(1, "itemElse"), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "HAMBURG", "GDANSK", " ", " ", " "));
    EXPECT_FALSE(view.state.changed);
}

TEST_F(PortCallFixture, DeletingARowKeepsTheOthers) {
    Open(kept);
    EXPECT_EQ(panel.Rows().OnItemImage(1, "itemdel"), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "GDANSK", " ", " ", " ", " "));
    EXPECT_TRUE(view.state.canCalculate);
    EXPECT_EQ(panel.Rows().OnItemImage(1, "itemdel"), 0);
    EXPECT_FALSE(view.state.canCalculate);
}

TEST_F(PortCallFixture, ARowBelowABlankRowCountsByItsPlaceInTheTable) {
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    Type(2, ColPort, "HAMBURG");
    EXPECT_LT(panel.Rows().OnItemImage(2, "itemdel"), 0);
    EXPECT_EQ(Cell(2, ColPort), "HAMBURG");
}

}  // namespace Tarvik::Seaplan
