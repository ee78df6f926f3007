// SPDX-License-Identifier: MIT
/// Correcting a voyage from the tree, by the last position of its vessel.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/PortCallOpener.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

namespace {

/// A voyage from 2024-03-01 08:00:00 to a day later, at half of its time.
class CorrectingTreeTest : public TreeFixture {
  protected:
    class Panel final : public PortCallOpener {
      public:
        std::vector<std::string> calls;
        bool mayLeave = true;
        void SetVoyage(const std::string& vi) override { calls.push_back("SetVoyage " + vi); }
        int FillForVoyage(int) override { return 0; }
        void Reset() override {}
        void ShowBesideTree() override { calls.emplace_back("Show"); }
        bool AskToLeave() override { return mayLeave; }
        int ShowAisCorrection() override {
            calls.emplace_back("Correction");
            return 0;
        }
        void SetCorrectionTime(const std::string& time) override { calls.push_back("Time " + time); }
    };
    Panel panel;

    CorrectingTreeTest() {
        ctrl.SetPortCallPanel([this] { return &panel; });
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(1)});
        ctrl.ReloadTree();
        desk.clock.SetUtc(2024, 3, 1, 20);
    }
    /// Where the plan has the ship now, in the words of the store.
    void SeeShip(VoyInfo& voyage) {
        voyage.lastPosText = "-1.196,0.000";
        voyage.lastPosTime = 1709294400;
    }
    std::string ClickModify() {
        messages.messages.clear();
        Click("A", "Voyage_modify");
        return messages.messages.empty() ? "" : messages.messages.back().text;
    }
};

}  // namespace

TEST_F(CorrectingTreeTest, EveryMissingConditionIsNamed) {
    EXPECT_TRUE(ctrl.HasCommand("Voyage_modify"));
    EXPECT_EQ(ClickModify(), "IDS_TREE_WARNMODAIS");
    Voyage("A").vsi = "7";
    Voyage("A").vsn = "ANNA";
    EXPECT_EQ(ClickModify(), "IDS_TREE_AISMODNOPORTINFWARN");
    Voyage("A").portCalls = TwoCalls(5);
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTSEALFORAISMOD");
    Voyage("A").portCalls.clear();
    ctrl.ComputeStatus(Id("A"));
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTFINDSHIPFORAISMOD");
    SeeShip(Voyage("A"));
    Voyage("A").lastAisModTime = Voyage("A").lastPosTime;
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTUPDATEFORAISMOD");
    EXPECT_EQ(desk.Count(Ask::kNearest), 0);
    Voyage("A").lastAisModTime = 0;
    desk.routes->Close(true);
    EXPECT_EQ(ClickModify(), "IDS_PORTCALL_AISCOMPUTWARN");
    EXPECT_EQ(desk.Count(Ask::kNearest), 1);
    EXPECT_THAT(panel.calls, Not(Contains("Correction")));
}

// Both times are read as unsigned, so that the year 2038 is no border.
TEST_F(CorrectingTreeTest, TimesBehindTheYear2038AreComparedAsTheyAre) {
    Voyage("A").vsi = "7";
    Voyage("A").vsn = "ANNA";
    Press("A");
    SeeShip(Voyage("A"));
    Voyage("A").lastPosTime = INT32_MAX;
    Voyage("A").lastAisModTime = INT32_MIN;
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTUPDATEFORAISMOD");
    Voyage("A").lastPosTime = INT32_MIN;
    EXPECT_EQ(ClickModify(), "IDS_TREE_NOTUPDATEFORAISMOD") << "the same second is not younger";
    Voyage("A").lastAisModTime = INT32_MAX;
    EXPECT_EQ(ClickModify(), "") << "a second younger";
    EXPECT_THAT(panel.calls, Contains("Correction"));
}

TEST_F(CorrectingTreeTest, NothingIsCorrectedWhereChangesHaveToStay) {
    Voyage("A").vsi = "7";
    Voyage("A").vsn = "ANNA";
    Press("A");
    SeeShip(Voyage("A"));
    panel.mayLeave = false;
    EXPECT_EQ(ClickModify(), "");
    EXPECT_EQ(desk.Count(Ask::kNearest), 0);
    EXPECT_EQ(Voyage("A").modais, 0);
    EXPECT_THAT(panel.calls, Not(Contains("Correction")));
}

TEST_F(CorrectingTreeTest, ACorrectionOpensThePanelWithItsTime) {
    Voyage("A").vsi = "7";
    Voyage("A").vsn = "ANNA";
    Voyage("A").vr = 1;
    Press("A");
    SeeShip(Voyage("A"));
    EXPECT_EQ(ClickModify(), "");
    EXPECT_THAT(panel.calls,
                ElementsAre("SetVoyage " + Id("A"), "Time 2024-03-01 20:00:00", "Correction", "Show"));
    desk.ForgetRecords();
    Press("A");
    EXPECT_EQ(Removals(Id("A")), 0) << "the first press leaves the chart alone";
    Press("A");
    EXPECT_GT(Removals(Id("A")), 0);
}

}  // namespace Tarvik::Seaplan
