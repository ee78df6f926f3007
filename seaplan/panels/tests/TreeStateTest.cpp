// SPDX-License-Identifier: MIT
/// What the tree keeps, counts and leaves on the chart.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::ElementsAre;

namespace {

class TreeStateTest : public TreeFixture {
  protected:
    long Calls(const std::string& call) const {
        return std::count(schedule.calls.begin(), schedule.calls.end(), call);
    }
    std::string Count(const std::string& category) const {
        return tree.Row(tree.Find(category))->items.at("cat.statistic").text;
    }
};

}  // namespace

TEST_F(TreeStateTest, UndatedVoyagesComeFirstAndTheTenthBeforeTheSecond) {
    AddCategory("1", "Full");
    AddVoyage("1", "00", "Dated").portCalls = TwoCalls(1);
    for (int i = 1; i <= 10; ++i) {
        const std::string number = std::to_string(i);
        AddVoyage("1", "1" + std::string(2 - number.size(), '0') + number, "V" + number);
    }
    ctrl.ReloadTree();
    ASSERT_EQ(ctrl.SetSortKey("1", SortByDate), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  V1", "  V10", "  V2", "  V3", "  V4", "  V5", "  V6",
                                          "  V7", "  V8", "  V9", "  Dated"));
}

TEST_F(TreeStateTest, ALoadSortsEqualNamesByTheBookAndASortByTheFirstDeparture) {
    AddCategory("1", "Full");
    VoyInfo& early = AddVoyage("1", "11", "Same");
    early.vsn = "EARLY";
    early.positionBook.points.resize(2);
    early.positionBook.eta = Util::_datetime_t(0, 0, 0, 1, 3, 2024);
    early.portCalls = TwoCalls(20);
    VoyInfo& late = AddVoyage("1", "10", "Same");
    late.vsn = "LATE";
    late.positionBook.points.resize(2);
    late.positionBook.eta = Util::_datetime_t(0, 0, 0, 2, 3, 2024);
    late.portCalls = TwoCalls(10);
    late.portCalls[1].etd = Util::_datetime_t(0, 0, 0, 30, 3, 2024);
    ctrl.ReloadTree();
    const auto first = [&] { return ctrl.Context().VoyageOf(tree.GetChildItem(tree.Find("Full")))->vsn; };
    EXPECT_EQ(first(), "EARLY");
    ASSERT_EQ(ctrl.RebuildCategory("1"), 0);
    EXPECT_EQ(first(), "LATE");
}

TEST_F(TreeStateTest, ALoadDoesNotSortByPortCalls) {
    AddCategory("1", "Full");
    for (const char* vi : {"10", "11"}) {
        AddVoyage("1", vi, "Same").vsn = vi;
    }
    catalog.onServer.voyages["10"].portCalls = TwoCalls(20);
    catalog.onServer.voyages["11"].portCalls = TwoCalls(10);
    ctrl.ReloadTree();
    EXPECT_EQ(ctrl.Context().VoyageOf(tree.GetChildItem(tree.Find("Full")))->vsn, "10");
}

TEST_F(TreeStateTest, OnePortCallShowsTheLinkAndTheLastArrivalIsTheEndDate) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "One");
    schedule.onServer["10"] = {TwoCalls(1)[0]};
    ctrl.ReloadTree();
    ctrl.OnRowPressed(tree.Find("One"));
    EXPECT_TRUE(schedule.Called("LoadSchedule 10 -1")) << "fewer than two port calls are fetched";
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("One"), "Voyage_setPortCall"));
    EXPECT_FALSE(tree.IsItemVisible(tree.Find("One"), "Voyage_Date"));
    VoyInfo& voyage = store.voyages["10"];
    voyage.portCalls = TwoCalls(1);
    voyage.portCalls[1].etd = Util::_datetime_t(0, 0, 8, 9, 3, 2024);
    EXPECT_EQ(ctrl.ShowDates(tree.Find("One"), voyage), 0);
    EXPECT_EQ(tree.Row(tree.Find("One"))->items.at("Voyage_Date").values.at("Enddate"), "2024-03-02");
}

TEST_F(TreeStateTest, CountsAreOfTheVoyagesInUse) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    AddVoyage("1", "11", "B", InRecycleBin);
    AddVoyage("1", "12", "C", Destroyed);
    ctrl.ReloadTree();
    EXPECT_EQ(Count("Full"), "  (1)");
    Click("Full", "Voyage.parent.svr3");
    EXPECT_EQ(Count("Full"), "  (2)");
}

TEST_F(TreeStateTest, OpeningMarksTheVoyagesAndFetchesThoseThatShowTheirTrack) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A").va = 1;
    AddVoyage("1", "11", "B");
    ctrl.ReloadTree();
    ctrl.Context().chartMarks = {{"10", {0, OnChart}}};
    ctrl.OnViewShown(true);
    EXPECT_EQ(ctrl.Context().chartMarks.size(), 2U) << "one mark alone is not taken for all";
    EXPECT_TRUE(schedule.Called("LoadSchedule 10 -1"));
    EXPECT_FALSE(schedule.Called("LoadSchedule 11 -1"));
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr10"));
    ctrl.OnViewShown(false);
    EXPECT_TRUE(ctrl.Context().chartMarks.empty());
}

TEST_F(TreeStateTest, ActivatingHidesTheTracksOfPinnedVoyagesAndTidiesTwiceWhenItFails) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    AddVoyage("1", "12", "Pinned").vr = 1;
    ctrl.ReloadTree();
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_EQ(Calls("HideAisTrack 12"), 1);
    EXPECT_EQ(Calls("RemoveVoyageObjects 12"), 0) << "the route stays";
    ctrl.Context().chartMarks["10"].drawState = OffChart;
    schedule.refused = {"ShowVoyage"};
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_EQ(Calls("HideAisTrack 12"), 3);
}

TEST_F(TreeStateTest, HidingATrackSetsTheFlagBeforeTheServerIsAsked) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    catalog.refused = {"CloseAis"};
    EXPECT_LT(Click("A", "Voyage.child.svr10"), 0);
    EXPECT_EQ(store.voyages["10"].va, 1);
}

TEST_F(TreeStateTest, NamesFollowDeletionRecoveryAndClearing) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A").vr = 1;
    AddVoyage("1", "11", "B", InRecycleBin);
    AddVoyage("1", "12", "C", InRecycleBin);
    ctrl.SetShowDeleted(true);
    EXPECT_EQ(Click("B", "Voyage.child.svr.recover"), 1);
    EXPECT_EQ(ctrl.Context().voyageNames["B"], InUse);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    EXPECT_EQ(Click("C", "Voyage.child.svr.clear"), 1);
    EXPECT_EQ(ctrl.Context().voyageNames["C"], Destroyed);
    EXPECT_EQ(Click("Full", "Voyage.parent.svr7"), 1);
    EXPECT_EQ(ctrl.Context().categoryNames["Full"], InRecycleBin);
    EXPECT_THAT(catalog.calls, Contains("CloseRoute 10")) << "a pinned voyage is unpinned";
}

TEST_F(TreeStateTest, ARenamedCategorysNewNameIsTaken) {
    AddCategory("1", "Full");
    ctrl.ReloadTree();
    Click("Full", "Voyage_parent_rename");
    EXPECT_EQ(Rename("Other"), 0);
    EXPECT_EQ(ctrl.Context().categoryNames.at("Other"), InUse);
    EXPECT_TRUE(ctrl.Context().categoryNames.contains("Full")) << "a name once used stays taken";
}

TEST_F(TreeStateTest, AnEmptyCategoryIsStillEmptyAfterTheBin) {
    AddCategory("1", "Empty").crk = 1;
    AddCategory("2", "Full");
    AddVoyage("2", "20", "North");
    ctrl.SetShowDeleted(true);
    EXPECT_EQ(Click("Empty", "Voyage.parent.svr7"), 1);
    EXPECT_FALSE(store.categoryVoyages.contains("1"));
    EXPECT_EQ(Click("Empty", "Voyage.parent.svr.recover"), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  North", "Empty"));
}

}  // namespace Tarvik::Seaplan
