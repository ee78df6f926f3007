// SPDX-License-Identifier: MIT
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"

/// The start of a plan and its blank cells, after rows were moved or deleted.
namespace Tarvik::Seaplan {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;

class PlanStartTest : public PortCallFixture {
  protected:
    static constexpr const char* kStart = "2024-03-05 08:00:00";  ///< of the saved voyage

    void MoveUp(int row) { ASSERT_EQ(panel.Rows().OnItemImage(row, PortCallImage::kMoveUp), 0); }
    void ExpectBlankFigures() {
        for (const int column : {ColSteamTime, ColEta, ColEtd, ColDistance}) {
            EXPECT_THAT(Column(column), Each(" ")) << column;
            EXPECT_EQ(Cell(view.table.RowCount(), column), " ") << column;
        }
    }
};

TEST_F(PlanStartTest, ASavedPlanKeepsItsStartWhenRowsMove) {
    Open(kept);
    MoveUp(2);
    ExpectBlankFigures();
    panel.Commands().OnCalculate();
    EXPECT_THAT(Column(ColPort), ElementsAre("ROTTERDAM", "GDANSK", "HAMBURG", " ", " ", " "));
    EXPECT_EQ(Cell(0, ColEta), kStart);
    EXPECT_EQ(SavedRows(kept)[0].eta.fmt(kTimeFormat), kStart);
    EXPECT_EQ(store.voyages[kept].positionBook.eta.fmt(kTimeFormat), kStart);
    EXPECT_THAT(desk.Sent(Ask::kBookDate), ElementsAre(::testing::HasSubstr("2024-03-05")));
}

TEST_F(PlanStartTest, AnotherFirstPortKeepsIt) {
    Open(kept);
    MoveUp(1);
    MoveUp(1);
    MoveUp(1);
    panel.Commands().OnSave();
    EXPECT_EQ(Cell(0, ColPort), "HAMBURG");
    EXPECT_EQ(Cell(0, ColEta), kStart);
}

TEST_F(PlanStartTest, DeletingTheFirstRowKeepsIt) {
    SaveOther([](PortCallRows& calls) { calls.push_back(PanelDesk::Calls(5, 4)[3]); });
    Open(kept);
    panel.Rows().OnItemImage(0, PortCallImage::kDelete);
    panel.Rows().OnItemImage(2, PortCallImage::kDelete);
    ExpectBlankFigures();
    panel.Commands().OnCalculate();
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", "GDANSK", " ", " ", " ", " "));
    EXPECT_EQ(Cell(0, ColEta), kStart);
}

TEST_F(PlanStartTest, AnEditedStartIsKept) {
    Open(kept);
    PickTime(0, ColEta, "2024-04-01 06:30:00");
    MoveUp(2);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), "2024-04-01 06:30:00");
}

TEST_F(PlanStartTest, AnEditBeforeTheCalculationGoesOnFromIt) {
    Open(kept);
    MoveUp(2);
    Type(1, ColSpeed, "12");
    EXPECT_EQ(Cell(0, ColEta), kStart);
}

TEST_F(PlanStartTest, ANewVoyageStartsNow) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG", "GDANSK"});
    MoveUp(2);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), "2024-03-01 00:00:00");
}

TEST_F(PlanStartTest, TheStartOfOneVoyageIsNotThatOfTheNext) {
    Open(kept);
    MoveUp(2);
    messages.Answer(Interface::SysMsgHandleRes::No);
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), "2024-03-01 00:00:00");
}

TEST_F(PlanStartTest, AnEmptiedTableStartsNow) {
    Open(kept);
    MoveUp(2);
    messages.Answer(Interface::SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), "2024-03-01 00:00:00");
}

TEST_F(PlanStartTest, AnEmptiedTableHasNoLineBelowIt) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    desk.Lose(Ask::kRoute);
    panel.Commands().OnCalculate();
    ASSERT_NE(view.state.note, "");
    messages.Answer(Interface::SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    EXPECT_EQ(view.state.note, "");
    panel.ApplyLanguage();
    EXPECT_EQ(view.state.note, "");
}

TEST_F(PlanStartTest, AUnitLeavesBlankCellsBlankAndConvertsTheOthers) {
    Open(kept);
    MoveUp(2);
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH"), 0);
    ExpectBlankFigures();
    EXPECT_EQ(Cell(1, ColSpeed), "18.52");
    EXPECT_EQ(view.state.summary.averageSpeed, "14.8") << "8.0 knots over the plan that was";
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Time, "hour"), 0);
    ExpectBlankFigures();
    EXPECT_EQ(Cell(2, ColPortTime), "12.00");
    EXPECT_EQ(view.state.summary.totalTime, "60.00");
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Distance, "KM"), 0);
    EXPECT_EQ(view.state.summary.totalDistance, "889.0");
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(0, ColEta), kStart);
    EXPECT_EQ(SavedRows(kept)[1].psp, 10.0F);
    EXPECT_EQ(SavedRows(kept)[2].apt, 12.0F);
}

TEST_F(PlanStartTest, AUnitLeavesARowThatWasJustTypedBlank) {
    Open(kept);
    Type(3, ColPort, "ROUEN");
    EXPECT_EQ(panel.Commands().OnUnitChosen(UnitKind::Distance, "KM"), 0);
    EXPECT_EQ(Cell(2, ColDistance), "444.48");
    for (int column = ColPurpose; column < kPortCallColumnCount; ++column) {
        EXPECT_EQ(Cell(3, column), " ") << column;
    }
}

}  // namespace

}  // namespace Tarvik::Seaplan
