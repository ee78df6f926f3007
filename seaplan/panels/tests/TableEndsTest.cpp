// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "testsupport/RecordingHost.h"

/// How the table's buttons end: what they leave of chart, marks and requests where there is little or nothing
/// to do.
namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TableEndsTest : public PortCallFixture {
  protected:
    std::size_t Cleared() const { return Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE"); }
    /// The voyage goes out of the records while its table is open.
    void LoseRecord() {
        Open(kept);
        Type(1, ColSpeed, "12");
        store.voyages.erase(kept);
        desk.ForgetRecords();
    }
};

TEST_F(TableEndsTest, CloseTakesTheVoyageOffTheChart) {
    Open(kept);
    desk.ForgetRecords();
    panel.Commands().OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_GT(Cleared(), 0U);
}

TEST_F(TableEndsTest, CloseThatIsTakenBackLeavesTheChart) {
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.ForgetRecords();
    messages.Answer(Interface::SysMsgHandleRes::No);
    panel.Commands().OnClose();
    EXPECT_TRUE(view.visible);
    EXPECT_THAT(desk.host.chartCalls, IsEmpty());
}

TEST_F(TableEndsTest, ClearTakesTheVoyageOffTheChartAndCancelLeavesIt) {
    Open(kept);
    desk.ForgetRecords();
    messages.Answer(Interface::SysMsgHandleRes::Cancel);
    panel.Commands().OnClear();
    EXPECT_EQ(Cleared(), 0U);
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    messages.Answer(Interface::SysMsgHandleRes::Ok);
    panel.Commands().OnClear();
    EXPECT_GT(Cleared(), 0U);
    EXPECT_EQ(Cell(0, ColPort), " ");
}

TEST_F(TableEndsTest, AChangedTableThatFallsToOnePlaceStaysChanged) {
    Open(kept);
    panel.Rows().OnItemImage(2, PortCallImage::kDelete);
    ASSERT_TRUE(view.state.changed);
    panel.Rows().OnItemImage(1, PortCallImage::kDelete);
    EXPECT_FALSE(view.state.canCalculate);
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 0) << "one place cannot be saved";
    EXPECT_TRUE(view.state.changed);
}

TEST_F(TableEndsTest, CalculateAndSaveOfAVoyageThatIsGoneEndThere) {
    LoseRecord();
    panel.Commands().OnCalculate();
    panel.Commands().OnSave();
    EXPECT_THAT(desk.host.requests, IsEmpty());
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(Cell(1, ColSpeed), "12.00");
    EXPECT_TRUE(view.state.changed);
}

TEST_F(TableEndsTest, AnEmptyVoyageLeavesThePanelHidden) {
    Open(kept);
    panel.SetVoyage("");
    ASSERT_LT(panel.FillForVoyage(-1), 0);
    EXPECT_FALSE(view.visible);
    EXPECT_EQ(messages.messages.back().flags, 0) << "a notice";
}

TEST_F(TableEndsTest, AMoveDownOverABlankRowSelectsWhereItWent) {
    Open(fresh);
    Type(0, ColPort, "ROTTERDAM");
    Type(2, ColPort, "HAMBURG");
    EXPECT_EQ(panel.Rows().OnItemImage(0, PortCallImage::kMoveDown), 0);
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", "ROTTERDAM", " ", " ", " ", " "));
    EXPECT_EQ(view.selectedRow, 1);
}

}  // namespace

}  // namespace Tarvik::Seaplan
