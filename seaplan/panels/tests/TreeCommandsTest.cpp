// SPDX-License-Identifier: MIT
/// What a click on an item does step by step, and where a failed step leaves it.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/PortCallOpener.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/VoyageTreeSortDlg.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class TreeCommandsTest : public TreeFixture {
  protected:
    class Panel final : public PortCallOpener {
      public:
        std::vector<std::string> calls;
        int filled = 0;
        void SetVoyage(const std::string& vi) override { calls.push_back("SetVoyage " + vi); }
        int FillForVoyage(int mode) override {
            calls.push_back("Fill " + std::to_string(mode));
            return filled;
        }
        void Reset() override { calls.emplace_back("Reset"); }
        void ShowBesideTree() override { calls.emplace_back("Show"); }
        bool AskToLeave() override { return true; }
        int ShowAisCorrection() override { return 0; }
        void SetCorrectionTime(const std::string&) override {}
    };
    Panel panel;

    TreeCommandsTest() {
        ctrl.SetPortCallPanel([this] { return &panel; });
        desk.AddCategory("Full");
        desk.AddCategory("Other");
        desk.AddVoyage("Full", {.name = "A", .pinned = true, .calls = PanelDesk::Calls(1)});
        desk.AddVoyage("Full", {.name = "B", .pinned = true, .calls = PanelDesk::Calls(5)});
        desk.AddVoyage("Full", {.name = "Binned", .state = InRecycleBin});
        ctrl.SetShowDeleted(true);
        desk.ForgetRecords();
        panel.calls.clear();
    }
    int StateOf(const std::string& voyage) { return store.categoryVoyages[CategoryId("Full")][Id(voyage)]; }
};

}  // namespace

TEST_F(TreeCommandsTest, ANoonReportIsANoticeAndNothingElse) {
    EXPECT_EQ(Click("A", "Voyage.child.svr6"), 1);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_NOONREPORTWARN");
    EXPECT_EQ(messages.messages[0].level, 1);
    EXPECT_EQ(messages.messages[0].flags, 0);
    EXPECT_EQ(messages.messages[0].title, "");
    EXPECT_THAT(tree.enabled, ElementsAre(false, true));
    EXPECT_THAT(desk.host.requests, IsEmpty());
    EXPECT_THAT(panel.calls, ElementsAre("SetVoyage " + Id("A")));
}

TEST_F(TreeCommandsTest, AQuestionHasItsOwnFlagsAndNoTitle) {
    messages.Answer(Interface::SysMsgHandleRes::No);
    EXPECT_EQ(Click("Binned", Item::kClearVoyage), 1);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].level, 1);
    EXPECT_EQ(messages.messages[0].flags, 4);
    EXPECT_EQ(messages.messages[0].title, "");
    EXPECT_EQ(StateOf("Binned"), InRecycleBin);
}

TEST_F(TreeCommandsTest, UnpinningTellsTheServerAndDrawsTheVoyageAnew) {
    ASSERT_EQ(Voyage("A").vr, 1);
    EXPECT_EQ(Click("A", "Voyage.child.svr1.auto"), 1);
    EXPECT_EQ(desk.Count(Ask::kCloseRoute, Id("A")), 1);
    EXPECT_EQ(Voyage("A").vr, 0);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr1.default"));
    EXPECT_FALSE(Shows("A", "Voyage.child.svr1.auto"));
    EXPECT_EQ(ctrl.Context().chartMarks[Id("A")].drawState, OnChart);
    EXPECT_EQ(ctrl.Context().chartMarks[Id("A")].routePinned, 0);
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(TreeCommandsTest, ARefusedUnpinningIsSilentAndLeavesThePin) {
    desk.Refuse(Ask::kCloseRoute);
    EXPECT_EQ(Click("A", "Voyage.child.svr1.auto"), -24);
    EXPECT_EQ(Voyage("A").vr, 1);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr1.auto"));
    EXPECT_FALSE(Shows("A", "Voyage.child.svr1.default"));
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(Removals(Id("A")), 0) << "nothing was drawn";
}

TEST_F(TreeCommandsTest, PinningAVoyageWithBookAndPortCallsShowsIt) {
    Click("A", "Voyage.child.svr1.auto");
    ASSERT_FALSE(Voyage("A").positionBook.points.empty());
    EXPECT_EQ(Click("A", "Voyage.child.svr1.default"), 1);
    EXPECT_EQ(desk.Count(Ask::kOpenRoute, Id("A")), 1);
    EXPECT_EQ(Voyage("A").vr, 1);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr1.auto"));
    EXPECT_EQ(ctrl.Context().chartMarks[Id("A")].routePinned, 1);
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(TreeCommandsTest, ADeletionThatCannotBeUnpinnedStopsThere) {
    desk.Refuse(Ask::kCloseRoute);
    EXPECT_EQ(Click("A", Item::kDeleteVoyage), -31);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage), 1);
    EXPECT_EQ(desk.Count(Ask::kCloseAis), 0);
    EXPECT_EQ(StateOf("A"), InRecycleBin) << "the server said yes to that much";
    EXPECT_NE(tree.Find("A"), kNoRow);
    EXPECT_EQ(ctrl.Context().voyageNames["A"], InUse);
    EXPECT_GT(Removals(Id("A")), 0);
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(TreeCommandsTest, ADeletionWhoseTrackCannotBeHiddenStopsThere) {
    desk.Refuse(Ask::kCloseAis);
    EXPECT_EQ(Click("A", Item::kDeleteVoyage), -32);
    EXPECT_EQ(desk.Count(Ask::kCloseRoute), 1);
    EXPECT_EQ(desk.Count(Ask::kCloseAis), 1);
    EXPECT_EQ(StateOf("A"), InRecycleBin);
    EXPECT_NE(tree.Find("A"), kNoRow);
    EXPECT_EQ(ctrl.Context().voyageNames["A"], InUse);
    EXPECT_EQ(Voyage("A").va, 1) << "as the step leaves it";
}

TEST_F(TreeCommandsTest, ADeletionAsksTheServerInItsOrder) {
    const std::string vi = Id("A");
    EXPECT_EQ(Click("A", Item::kDeleteVoyage), 1);
    const auto asked = desk.host.Texts();
    ASSERT_GE(asked.size(), 3U);
    EXPECT_EQ(asked[0], "5 " + desk.Sent(Ask::kDeleteVoyage).at(0));
    EXPECT_EQ(asked[1], "5 " + desk.Sent(Ask::kCloseRoute).at(0));
    EXPECT_EQ(asked[2], "5 " + desk.Sent(Ask::kCloseAis).at(0));
    EXPECT_EQ(tree.GetItemStyle(tree.Find("A")), kDeletedVoyageStyle);
}

TEST_F(TreeCommandsTest, ACategoryDeletionWalksOnBehindAVoyageThatCannotBeUnpinned) {
    desk.Refuse(Ask::kCloseRoute);
    EXPECT_EQ(Click("Full", Item::kDeleteCategory), 1);
    EXPECT_EQ(desk.Count(Ask::kCloseRoute), 2);
    EXPECT_EQ(desk.Count(Ask::kCloseAis), 0);
    EXPECT_EQ(tree.GetItemStyle(tree.Find("Full")), kDeletedCategoryStyle);
    EXPECT_EQ(ctrl.Context().categoryNames["Full"], InRecycleBin);
}

// The lines of a voyage without an id cannot be taken off the chart.
TEST_F(TreeCommandsTest, ACategoryDeletionWalksOnBehindAVoyageThatCannotBeTakenOffTheChart) {
    store.voyages[""].vr = 1;
    store.categoryVoyages[CategoryId("Full")][""] = InUse;
    const std::vector<std::string> pinned = {Id("A"), Id("B")};
    EXPECT_EQ(Click("Full", Item::kDeleteCategory), 1);
    EXPECT_EQ(desk.Count(Ask::kCloseRoute), 2) << "of the others alone";
    for (const std::string& vi : pinned) {
        EXPECT_EQ(desk.Count(Ask::kCloseRoute, vi), 1);
        EXPECT_GT(Removals(vi), 0);
    }
    EXPECT_EQ(ctrl.Context().categoryNames["Full"], InRecycleBin);
}

TEST_F(TreeCommandsTest, EveryClickOnAVoyageSetsItForThePortCalls) {
    EXPECT_EQ(Click("A", "no.such.item"), 1);
    EXPECT_EQ(Click("Binned", "no.such.item"), 1);
    EXPECT_EQ(Click("Full", "no.such.item"), 1);
    EXPECT_THAT(panel.calls, ElementsAre("SetVoyage " + Id("A"), "SetVoyage " + Id("Binned")));
}

TEST_F(TreeCommandsTest, AVoyageOnTheChartStaysThereWhenItsPortCallsOpen) {
    const auto lines = [this](const std::string& name) {
        const auto drawn = desk.host.ChartCallsOf(Interface::Bus::MapAddLine.name);
        return std::count_if(drawn.begin(), drawn.end(), [vi = Id(name)](const TestSupport::ChartCall& call) {
            return call.id.find(vi) != std::string::npos;
        });
    };
    for (const char* item : {"Voyage.child.svr4", "Voyage_setPortCall"}) {
        Press("A");
        desk.ForgetRecords();
        EXPECT_EQ(Click("A", item), 1);
        EXPECT_GT(lines("A"), 0);
        EXPECT_GT(lines("B"), 0) << "it is pinned";
    }
    EXPECT_EQ(Click("B", Item::kPinned), 1);
    Press("A");
    desk.ForgetRecords();
    EXPECT_EQ(Click("A", "Voyage.child.svr4"), 1);
    EXPECT_GT(lines("A"), 0);
    EXPECT_EQ(lines("B"), 0) << "it was not on the chart";
    desk.ForgetRecords();
    panel.filled = -1;
    EXPECT_EQ(Click("A", "Voyage.child.svr4"), -25);
    EXPECT_EQ(lines("A"), 0) << "the chart was not emptied";
}

TEST_F(TreeCommandsTest, PortCallsThatCannotBeFilledAreNotPlaced) {
    panel.filled = -1;
    EXPECT_EQ(Click("A", "Voyage.child.svr4"), -25);
    EXPECT_THAT(panel.calls, ElementsAre("SetVoyage " + Id("A"), "Fill -1"));
    panel.calls.clear();
    EXPECT_EQ(Click("A", "Voyage_setPortCall"), 1);
    EXPECT_THAT(panel.calls, ElementsAre("SetVoyage " + Id("A"), "Reset", "Show"));
}

TEST_F(TreeCommandsTest, RowsWithoutARecordOrAnIdEndTheClick) {
    const TreeRow full = tree.Find("Full");
    const TreeRow voyage = tree.Find("A");
    void* category = tree.GetItemData(full);
    void* record = tree.GetItemData(voyage);
    VoyCategory noCategory;
    VoyInfo noVoyage;
    noCategory.ci.clear();
    noVoyage.vi.clear();
    tree.SetItemData(full, nullptr);
    EXPECT_EQ(ctrl.OnItemClicked(full, "x"), -1);
    EXPECT_EQ(ctrl.OnItemClicked(voyage, "x"), -19);
    tree.SetItemData(full, &noCategory);
    EXPECT_EQ(ctrl.OnItemClicked(full, "x"), -2);
    EXPECT_EQ(ctrl.OnItemClicked(voyage, "x"), -20);
    tree.SetItemData(full, category);
    tree.SetItemData(voyage, nullptr);
    EXPECT_EQ(ctrl.OnItemClicked(voyage, "x"), -21);
    tree.SetItemData(voyage, &noVoyage);
    EXPECT_EQ(ctrl.OnItemClicked(voyage, "x"), -22);
    EXPECT_THAT(panel.calls, IsEmpty());
    tree.SetItemData(voyage, record);
}

TEST_F(TreeCommandsTest, ASortPanelOnShowStaysAsItIs) {
    EXPECT_EQ(Click("Full", Item::kSort), 1);
    ASSERT_TRUE(sortPopup.visible);
    EXPECT_EQ(Click("Other", Item::kSort), 1);
    EXPECT_EQ(ctrl.Categories().SortPanel().OnChosen(TextId{268}), 0);
    EXPECT_EQ(ctrl.Context().categorySorts[CategoryId("Full")].sortKey, SortByDate);
    EXPECT_EQ(ctrl.Context().categorySorts[CategoryId("Other")].sortKey, SortByName);
}

TEST_F(TreeCommandsTest, SortingNamesWhatIsMissing) {
    EXPECT_EQ(ctrl.SetSortKey("", SortByDate), -1);
    EXPECT_EQ(ctrl.SetSortKey("4711", SortByDate), -2);
    ctrl.Context().categorySorts.clear();
    EXPECT_EQ(Click("Full", Item::kSort), -13);
    EXPECT_FALSE(sortPopup.visible);
}

TEST_F(TreeCommandsTest, ATypedNameThatIsTheOldOneSendsAndShowsNothing) {
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("A "), -13);
    Click("Full", Item::kRenameCategory);
    EXPECT_EQ(Rename(" Full"), -7);
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_THAT(desk.host.requests, IsEmpty());
}

TEST_F(TreeCommandsTest, NamesTooWideOrOfBlanksAloneAreTold) {
    Click("Full", Item::kRenameCategory);
    EXPECT_EQ(Rename(std::string(31, 'x')), -4);
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("\xE3\x80\x80"), -2);
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename(""), -1) << "without a word";
    ASSERT_EQ(messages.messages.size(), 2U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_TOOMUCHNUM30");
    EXPECT_EQ(messages.messages[1].text, "IDS_TREE_SHOWVISIBLE");
}

TEST_F(TreeCommandsTest, ANameThatWasRenamedAwayStaysTaken) {
    Click("A", Item::kRenameVoyage);
    ASSERT_EQ(Rename("C"), 0);
    Click("B", Item::kRenameVoyage);
    EXPECT_EQ(Rename("A"), -13);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_SAMENAMEWARN");
}

}  // namespace Tarvik::Seaplan
