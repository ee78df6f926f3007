// SPDX-License-Identifier: MIT
/// What the tree keeps, counts and leaves on the chart.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/RemarkMark.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class TreeStateTest : public TreeFixture {
  protected:
    std::string Count(const std::string& category) const {
        return tree.Row(tree.Find(category))->items.At(Item::kCount).text;
    }
    long HiddenTracks() const { return static_cast<long>(desk.host.hiddenTracks.size()); }
};

}  // namespace

TEST_F(TreeStateTest, UndatedVoyagesComeFirstAndTheTenthBeforeTheSecond) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "Dated", .calls = PanelDesk::Calls(1)});
    for (int i = 1; i <= 10; ++i) {
        desk.AddVoyage("Full", {.name = "V" + std::to_string(i)});
    }
    ctrl.ReloadTree();
    ctrl.ComputeStatus(Id("Dated"));
    ASSERT_EQ(ctrl.SetSortKey(CategoryId("Full"), SortByDate), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  V1", "  V10", "  V2", "  V3", "  V4", "  V5", "  V6",
                                          "  V7", "  V8", "  V9", "  Dated"));
}

TEST_F(TreeStateTest, ALoadSortsEqualNamesByTheBookAndASortByTheFirstDeparture) {
    desk.AddCategory("Full");
    const std::string second = desk.AddVoyage("Full", {.name = "Same", .vsn = "LATE"});
    const std::string first = desk.AddVoyage("Full", {.name = "Same", .vsn = "EARLY"});
    ctrl.ReloadTree();
    VoyInfo& early = store.voyages[first];
    early.positionBook.points.resize(2);
    early.positionBook.eta = Util::_datetime_t(0, 0, 0, 1, 3, 2024);
    early.portCalls = TwoCalls(20);
    VoyInfo& late = store.voyages[second];
    late.positionBook.points.resize(2);
    late.positionBook.eta = Util::_datetime_t(0, 0, 0, 2, 3, 2024);
    late.portCalls = TwoCalls(10);
    late.portCalls[1].etd = Util::_datetime_t(0, 0, 0, 30, 3, 2024);
    ctrl.ReloadTree();
    const auto shown = [&] { return ctrl.Context().VoyageOf(tree.GetChildItem(tree.Find("Full")))->vsn; };
    EXPECT_EQ(shown(), "EARLY");
    ASSERT_EQ(ctrl.RebuildCategory(CategoryId("Full")), 0);
    EXPECT_EQ(shown(), "LATE");
}

TEST_F(TreeStateTest, ALoadDoesNotSortByPortCalls) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "Same", .vsn = "FIRST", .calls = PanelDesk::Calls(20)});
    desk.AddVoyage("Full", {.name = "Same", .vsn = "SECOND", .calls = PanelDesk::Calls(10)});
    ctrl.ReloadTree();
    EXPECT_EQ(ctrl.Context().VoyageOf(tree.GetChildItem(tree.Find("Full")))->vsn, "FIRST");
}

TEST_F(TreeStateTest, OnePortCallShowsTheLinkAndTheLastArrivalIsTheEndDate) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "One"});
    ctrl.ReloadTree();
    Voyage("One").portCalls = {TwoCalls(1)[0]};
    Press("One");
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls, Id("One")), 2)
        << "for the chart, and as fewer than two port calls are fetched";
    EXPECT_TRUE(Shows("One", Item::kSetPortCall));
    EXPECT_FALSE(Shows("One", Item::kDates));
    VoyInfo& voyage = Voyage("One");
    voyage.portCalls = TwoCalls(1);
    voyage.portCalls[1].etd = Util::_datetime_t(0, 0, 8, 9, 3, 2024);
    EXPECT_EQ(ctrl.ShowDates(tree.Find("One"), voyage), 0);
    EXPECT_EQ(tree.Row(tree.Find("One"))->items.At(Item::kDates).values.at("Enddate"), "2024-03-02");
}

TEST_F(TreeStateTest, CountsAreOfTheVoyagesInUse) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "B", .state = InRecycleBin});
    desk.AddVoyage("Full", {.name = "C", .state = InRecycleBin});
    ctrl.SetShowDeleted(true);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    ASSERT_EQ(Click("C", Item::kClearVoyage), 1);
    EXPECT_EQ(Count("Full"), "  (1)");
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(Count("Full"), "  (2)");
}

TEST_F(TreeStateTest, OpeningMarksTheVoyagesAndFetchesThoseThatShowTheirTrack) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .traced = true});
    desk.AddVoyage("Full", {.name = "B"});
    ctrl.ReloadTree();
    ctrl.Context().chartMarks = {{Id("A"), {0, OnChart}}};
    ctrl.OnViewShown(true);
    EXPECT_EQ(ctrl.Context().chartMarks.size(), 2U) << "one mark alone is not taken for all";
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls, Id("A")), 1);
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls, Id("B")), 0);
    EXPECT_TRUE(Shows("A", Item::kAisOn));
    ctrl.OnViewShown(false);
    EXPECT_TRUE(ctrl.Context().chartMarks.empty());
}

TEST_F(TreeStateTest, ActivatingHidesTheTracksOfPinnedVoyagesAndTidiesTwiceWhenItFails) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(1)});
    desk.AddVoyage("Full", {.name = "Pinned",
                            .vsi = "7",
                            .vsn = "ANNA",
                            .vsmsi = 55,
                            .pinned = true,
                            .calls = PanelDesk::Calls(1)});
    ctrl.ReloadTree();
    desk.ForgetRecords();
    Press("A");
    EXPECT_THAT(desk.host.hiddenTracks, ElementsAre("7|55"));
    EXPECT_EQ(Removals(Id("Pinned")), 0) << "the route stays";
    ctrl.Context().chartMarks[Id("A")].drawState = OffChart;
    Voyage("A").portCalls.clear();
    desk.Lose(Ask::kLoadPortCalls);
    Press("A");
    EXPECT_EQ(HiddenTracks(), 3);
}

TEST_F(TreeStateTest, HidingATrackSetsTheFlagBeforeTheServerIsAsked) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    desk.Refuse(Ask::kCloseAis);
    EXPECT_LT(Click("A", Item::kAisOn), 0);
    EXPECT_EQ(Voyage("A").va, 1);
}

TEST_F(TreeStateTest, NamesFollowDeletionRecoveryAndClearing) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .pinned = true});
    desk.AddVoyage("Full", {.name = "B", .state = InRecycleBin});
    desk.AddVoyage("Full", {.name = "C", .state = InRecycleBin});
    ctrl.SetShowDeleted(true);
    EXPECT_EQ(Click("B", Item::kRecoverVoyage), 1);
    EXPECT_EQ(ctrl.Context().voyageNames["B"], InUse);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    EXPECT_EQ(Click("C", Item::kClearVoyage), 1);
    EXPECT_EQ(ctrl.Context().voyageNames["C"], Destroyed);
    EXPECT_EQ(Click("Full", Item::kDeleteCategory), 1);
    EXPECT_EQ(ctrl.Context().categoryNames["Full"], InRecycleBin);
    EXPECT_EQ(desk.Count(Ask::kCloseRoute, Id("A")), 1) << "a pinned voyage is unpinned";
}

TEST_F(TreeStateTest, ARenamedCategorysNewNameIsTaken) {
    desk.AddCategory("Full");
    ctrl.ReloadTree();
    Click("Full", Item::kRenameCategory);
    EXPECT_EQ(Rename("Other"), 0);
    EXPECT_EQ(ctrl.Context().categoryNames.at("Other"), InUse);
    EXPECT_TRUE(ctrl.Context().categoryNames.contains("Full")) << "a name once used stays taken";
}

TEST_F(TreeStateTest, TheRemarkMarkIsFoundAgainAfterEveryRebuild) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "B"});
    ctrl.ReloadTree();
    ctrl.Notes().Mark().Open(tree.Find("A"));
    ctrl.RebuildCategory(CategoryId("Full"));
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(Voyage("A").vrk, 1);
    EXPECT_TRUE(Shows("A", Item::kVoyageRemark));
    EXPECT_FALSE(Shows("B", Item::kVoyageRemark));
    ctrl.ReloadTree();
    ctrl.SetRemarkMark(kNoRow, false);
    EXPECT_EQ(Voyage("A").vrk, 0);
    EXPECT_TRUE(Shows("A", Item::kVoyageNoRemark));
    ctrl.Notes().Mark().Open(tree.Find("Full"));
    ctrl.ReloadTree();
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(desk.Category("Full").crk, 1);
    EXPECT_TRUE(Shows("Full", Item::kCategoryRemark));
}

TEST_F(TreeStateTest, TheRemarkMarkIsKeptWhileItsRowIsInTheBin) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    ctrl.Notes().Mark().Open(tree.Find("A"));
    ASSERT_EQ(Click("A", Item::kDeleteVoyage), 1);
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(Voyage("A").vrk, 1);
    ctrl.ForgetAfterLogout();
    Voyage("A").vrk = 0;
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(Voyage("A").vrk, 0) << "another user's voyage of the same id is not meant";
}

TEST_F(TreeStateTest, AnEmptyCategoryIsStillEmptyAfterTheBin) {
    const std::string empty = desk.AddCategory("Empty", true);
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "North"});
    ctrl.SetShowDeleted(true);
    EXPECT_EQ(Click("Empty", Item::kDeleteCategory), 1);
    EXPECT_FALSE(store.categoryVoyages.contains(empty));
    EXPECT_EQ(Click("Empty", Item::kRecoverCategory), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  North", "Empty"));
}

TEST_F(TreeStateTest, RecoveringACategoryForgetsAllSortChoicesRecoveringAVoyageNone) {
    for (const char* name : {"Full", "Gone"}) {
        desk.AddCategory(name);
    }
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "B", .state = InRecycleBin});
    desk.MoveCategory("Gone", InRecycleBin);
    ctrl.SetShowDeleted(true);
    ASSERT_EQ(ctrl.SetSortKey(CategoryId("Full"), SortByDate), 0);
    const auto key = [&] { return ctrl.Context().categorySorts[CategoryId("Full")].sortKey; };
    ASSERT_EQ(Click("B", Item::kRecoverVoyage), 1);
    EXPECT_EQ(key(), SortByDate);
    ASSERT_EQ(Click("Gone", Item::kRecoverCategory), 1);
    EXPECT_EQ(key(), SortByName);
}

TEST_F(TreeStateTest, TheQuestionBeforeTheEndNamesWhatGoes) {
    texts.given[u"IDS_VIEW_LOSTVOYAGE"] = u"voyage %1";
    texts.given[u"IDS_VIEW_LOSTCATEGORY"] = u"category %1 with %2";
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "B", .state = InRecycleBin});
    ctrl.SetShowDeleted(true);
    Click("B", Item::kClearVoyage);
    EXPECT_EQ(messages.messages.back().text, "IDS_TREE_CLEARVOYORCATE\nvoyage B");
    Click("Full", Item::kDeleteCategory);
    Click("Full", Item::kClearCategory);
    EXPECT_EQ(messages.messages.back().text, "IDS_TREE_CLEARVOYORCATE\ncategory Full with 2");
    EXPECT_EQ(desk.Count(Ask::kDestroyVoyage) + desk.Count(Ask::kDestroyCategory), 0);
}

}  // namespace Tarvik::Seaplan
