// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"

/// Figures of other ports than those in the table, and the voyage's name behind the caption.
namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StaleFiguresTest : public PortCallFixture {
  protected:
    std::vector<int> StaleRows() const {
        std::vector<int> rows;
        for (int row = 0; row < view.table.RowCount(); ++row) {
            if (view.table.Rows()[row].stale) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    void ExpectFresh() {
        EXPECT_THAT(StaleRows(), IsEmpty());
        EXPECT_FALSE(view.state.staleSummary);
    }
};

TEST_F(StaleFiguresTest, ALoadedAndACalculatedPlanHaveNone) {
    Open(kept);
    ExpectFresh();
    Type(1, ColSpeed, "12");
    ExpectFresh();
    panel.Commands().OnCalculate();
    ExpectFresh();
    Open(fresh);
    ExpectFresh();
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    EXPECT_FALSE(view.state.staleSummary) << "there are no figures";
    panel.Commands().OnCalculate();
    ExpectFresh();
}

TEST_F(StaleFiguresTest, AnotherPortMakesItsRowAndThoseBehindStaleUntilTheCalculation) {
    Open(kept);
    Type(1, ColPort, "ROUEN");
    EXPECT_THAT(StaleRows(), ElementsAre(1, 2));
    EXPECT_TRUE(view.state.staleSummary);
    Type(2, ColSpeed, "12");
    EXPECT_THAT(StaleRows(), ElementsAre(1, 2)) << "a schedule over other legs mends nothing";
    panel.Commands().OnCalculate();
    ExpectFresh();
}

TEST_F(StaleFiguresTest, ThePortThatWasThereBeforeMakesThemGoodAgain) {
    Open(kept);
    Type(1, ColPort, "ROUEN");
    Type(1, ColPort, "HAMBURG");
    ExpectFresh();
}

TEST_F(StaleFiguresTest, APortMoreAndARowMovedMakeTheSummaryStale) {
    Open(kept);
    Type(3, ColPort, "ROUEN");
    EXPECT_THAT(StaleRows(), ElementsAre(3));
    EXPECT_TRUE(view.state.staleSummary);
    panel.Rows().OnItemImage(3, PortCallImage::kDelete);
    panel.Rows().OnItemImage(2, PortCallImage::kMoveUp);
    EXPECT_THAT(StaleRows(), ElementsAre(1, 2));
    EXPECT_TRUE(view.state.staleSummary);
    messages.Answer(Interface::SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    ExpectFresh();
}

TEST_F(StaleFiguresTest, TimesOverLegsThatNobodyHasCalculatedAreStale) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    Type(1, ColSpeed, "12");
    ASSERT_EQ(Cell(1, ColDistance), "0.00");
    EXPECT_THAT(StaleRows(), ElementsAre(0, 1));
}

TEST_F(StaleFiguresTest, ACalculationThatIsNotSavedIsGoodAllTheSame) {
    Open(kept);
    Type(1, ColPort, "ROUEN");
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnCalculate();
    ASSERT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    ExpectFresh();
}

TEST_F(StaleFiguresTest, TheWindowIsToldTheVoyagesName) {
    Open(kept);
    EXPECT_EQ(view.state.voyage, "Saved");
    Open(fresh);
    EXPECT_EQ(view.state.voyage, "New");
    ASSERT_EQ(panel.OpenDistanceTable(), 0);
    EXPECT_EQ(view.state.voyage, "");
}

}  // namespace

}  // namespace Tarvik::Seaplan
