// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/VoyageOrder.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

TEST_F(TreeFixture, CategoriesWithVoyagesComeBeforeEmptyOnesAndTheRecycleBinIsHidden) {
    AddCategory("1", "Empty");
    AddCategory("2", "Full");
    AddVoyage("2", "20", "North");
    AddCategory("3", "Gone", InRecycleBin);
    AddVoyage("3", "30", "Lost");
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  North", "Empty"));
}

TEST_F(TreeFixture, RecycleBinRowsFollowAndEmptyDeletedCategoriesComeFirst) {
    AddCategory("1", "Old", InRecycleBin);
    AddVoyage("1", "10", "South");
    AddCategory("2", "OldEmpty", InRecycleBin);
    AddCategory("3", "Kept");
    AddVoyage("3", "30", "West", InRecycleBin);
    AddVoyage("3", "31", "Never", Destroyed);
    ctrl.SetShowDeleted(true);
    EXPECT_THAT(tree.Shown(), ElementsAre("Kept", "  West", "OldEmpty", "Old"));
    EXPECT_EQ(tree.GetItemStyle(tree.Find("West")), kDeletedVoyageStyle);
}

TEST_F(TreeFixture, ACategoryWithoutStateEndsTheRebuild) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "North");
    catalog.onServer.categoryVoyages["9"]["10"] = InUse;
    EXPECT_EQ(ctrl.ReloadTree(), -3);
}

TEST(VoyageOrder, UndatedNumbersSortAsTextAndBeforeDates) {
    std::vector<VoyageKeys> voyages = {
        {"a", "n", "2024-01-01 00:00:00"}, {"b", "n", "02"}, {"c", "n", "010"}};
    std::vector<std::string> out;
    ASSERT_EQ(OrderVoyages(voyages, {SortByDate, Ascending}, out), 0);
    EXPECT_THAT(out, ElementsAre("c", "b", "a"));
    ASSERT_EQ(OrderVoyages(voyages, {SortByDate, Descending}, out), 0);
    EXPECT_THAT(out, ElementsAre("a", "b", "c"));
    EXPECT_EQ(OrderVoyages(voyages, {7, Ascending}, out), -5);
}

TEST(VoyageOrder, OfEqualKeysTheLastStays) {
    std::vector<std::string> out;
    ASSERT_EQ(OrderVoyages({{"a", "n", "d"}, {"b", "n", "d"}}, {}, out), 0);
    EXPECT_THAT(out, ElementsAre("b"));
}

TEST_F(TreeFixture, AReloadForgetsTheSortChoice) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "B").portCalls = TwoCalls(1);
    AddVoyage("1", "11", "A").portCalls = TwoCalls(5);
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    ASSERT_EQ(ctrl.SetSortKey("1", SortByDate), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B", "  A"));
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B"));
}

TEST_F(TreeFixture, DirectionItemsSwitchAndReverseTheOrder) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    AddVoyage("1", "11", "B");
    ctrl.ReloadTree();
    EXPECT_EQ(Click("Full", "Voyage.parent.svr6"), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B", "  A"));
    EXPECT_FALSE(tree.IsItemVisible(tree.Find("Full"), "Voyage.parent.svr6"));
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("Full"), "Voyage.parent.svr6.desc"));
    EXPECT_EQ(Click("Full", "Voyage.parent.svr6.desc"), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B"));
}

TEST_F(TreeFixture, SortingAnEmptyCategoryFailsSilently) {
    AddCategory("1", "Empty");
    ctrl.ReloadTree();
    EXPECT_LT(Click("Empty", "Voyage.parent.svr6"), 0);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(ctrl.RebuildCategory("1"), -2);
    EXPECT_EQ(ctrl.RebuildCategory(""), -1);
}

TEST_F(TreeFixture, VesselItemsFollowIdAndName) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "None");
    AddVoyage("1", "11", "Typed").vsn = "ANNA";
    VoyInfo& fleet = AddVoyage("1", "12", "Fleet");
    fleet.vsi = "7";
    fleet.vsn = "BERTA";
    AddVoyage("1", "13", "Odd").vsi = "8";
    ctrl.ReloadTree();
    const auto shown = [&](const char* row, const char* item) {
        return tree.IsItemVisible(tree.Find(row), item);
    };
    EXPECT_TRUE(shown("None", "Voyage_AssignShip"));
    EXPECT_FALSE(shown("None", "Voyage_ShipInfo"));
    EXPECT_TRUE(shown("Typed", "Voyage_Alert"));
    EXPECT_TRUE(shown("Typed", "Voyage_ReplaceShip"));
    EXPECT_TRUE(shown("Fleet", "Voyage_ShipInfo"));
    EXPECT_FALSE(shown("Fleet", "Voyage_Alert"));
    EXPECT_TRUE(shown("Odd", "Voyage_AssignShip"));
    EXPECT_FALSE(shown("Odd", "Voyage_ReplaceShip"));
}

TEST_F(TreeFixture, AnEmptyCategoryWithRemarksShowsTheEmptyIconAfterALoad) {
    AddCategory("1", "Empty").crk = 1;
    AddCategory("2", "Full").crk = 1;
    AddVoyage("2", "20", "North");
    ctrl.ReloadTree();
    EXPECT_FALSE(tree.IsItemVisible(tree.Find("Empty"), "Voyage.parent.svr2.exist"));
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("Full"), "Voyage.parent.svr2.exist"));
}

TEST_F(TreeFixture, ARemarkMarkFollowsOnlyWhileRemarksAreOpen) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    ctrl.SetRemarkMark(tree.Find("A"), true);
    EXPECT_EQ(store.voyages["10"].vrk, 0);
    ctrl.SetRemarkRow(tree.Find("Full"));
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(store.categories["1"].crk, 1);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("Full"), "Voyage.parent.svr2.exist"));
    ctrl.SetRemarkMark(tree.Find("A"), true);
    EXPECT_EQ(store.voyages["10"].vrk, 1);
    ctrl.SetRemarkMark(tree.Find("A"), false);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr3.non"));
    EXPECT_FALSE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr3.exist"));
}

TEST_F(TreeFixture, DatesNeedTwoPortCallsAndStay) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "One");
    schedule.onServer["10"] = {TwoCalls(1)[0]};
    ctrl.ReloadTree();
    ctrl.OnRowPressed(tree.Find("One"));
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("One"), "Voyage_setPortCall"));
    store.voyages["10"].portCalls = TwoCalls(1);
    ctrl.OnRowPressed(tree.Find("One"));
    const TreeItem& dates = tree.Row(tree.Find("One"))->items.at("Voyage_Date");
    EXPECT_TRUE(dates.visible);
    EXPECT_EQ(dates.values.at("Saildate"), "2024-03-01");
    EXPECT_EQ(dates.values.at("Enddate"), "2024-03-02");
    EXPECT_FALSE(tree.IsItemVisible(tree.Find("One"), "Voyage_setPortCall"));
}

TEST_F(TreeFixture, AStatusIsKeptUntilItIsComputedAnew) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "Trip").portCalls = TwoCalls(5);
    ctrl.ReloadTree();
    const auto image = [&] {
        return tree.Row(tree.Find("Trip"))->items.at("Voyage.child.svr2").values.at("Voyage_Status");
    };
    ASSERT_EQ(ctrl.ShowStatus("10"), 0);
    EXPECT_EQ(image(), "#Voyage_status_plan");
    clock.SetUtc(2024, 3, 5, 12);
    ASSERT_EQ(ctrl.ShowStatus("10"), 0);
    EXPECT_EQ(image(), "#Voyage_status_plan");
    ASSERT_EQ(ctrl.ComputeStatus("10"), 0);
    ASSERT_EQ(ctrl.ShowStatus("10"), 0);
    EXPECT_EQ(image(), "#Voyage_status_underway");
    clock.SetUtc(2024, 3, 5, 8);
    ctrl.ComputeStatus("10");
    ctrl.ShowStatus("10");
    EXPECT_EQ(image(), "#Voyage_status_finish");
    EXPECT_EQ(ctrl.ShowStatus("99"), -2);
}

TEST_F(TreeFixture, CountsSkipAPinnedVoyageThatCouldNotBeDrawnUntilTheyAreRefreshed) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "Pinned").vr = 1;
    AddVoyage("1", "11", "Plain");
    schedule.refused = {"ShowVoyage"};
    ctrl.ReloadTree();
    const auto count = [&] { return tree.Row(tree.Find("Full"))->items.at("cat.statistic").text; };
    EXPECT_EQ(count(), "  (1)");
    Click("Full", "Voyage.parent.svr3");
    EXPECT_EQ(count(), "  (3)");
}

TEST_F(TreeFixture, ActivatingAVoyageTakesTheLastOneOffTheChartUnlessItIsPinned) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    AddVoyage("1", "11", "B");
    AddVoyage("1", "12", "Pinned").vr = 1;
    ctrl.ReloadTree();
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_EQ(ctrl.Context().chartMarks["10"].drawState, OnChart);
    ctrl.OnRowPressed(tree.Find("B"));
    EXPECT_EQ(ctrl.Context().chartMarks["10"].drawState, OffChart);
    EXPECT_EQ(ctrl.Context().chartMarks["11"].drawState, OnChart);
    EXPECT_EQ(ctrl.Context().chartMarks["12"].drawState, OnChart);
}

TEST_F(TreeFixture, PressingAFoldedCategoryDeselects) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    ctrl.OnRowPressed(tree.Find("Full"));
    EXPECT_EQ(tree.Selected(), kNoRow);
    tree.Expand(tree.Find("Full"));
    ctrl.OnRowPressed(tree.Find("Full"));
    EXPECT_EQ(tree.Selected(), tree.Find("Full"));
    EXPECT_TRUE(ctrl.Context().voyageStatuses.contains("10"));
}

TEST_F(TreeFixture, PinningNeedsAPositionBook) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    EXPECT_LT(Click("A", "Voyage.child.svr1.default"), 0);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_AUTOTRACKWARN");
    EXPECT_EQ(store.voyages["10"].vr, 0);
    store.voyages["10"].positionBook.points.resize(2);
    schedule.refused = {"ShowVoyage"};
    EXPECT_LT(Click("A", "Voyage.child.svr1.default"), 0);
    EXPECT_EQ(messages.messages.size(), 2U);
    EXPECT_EQ(store.voyages["10"].vr, 1);
}

TEST_F(TreeFixture, TheTrackNeedsAVesselOfTheFleet) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A").vsn = "TYPED";
    ctrl.ReloadTree();
    EXPECT_LT(Click("A", "Voyage.child.svr8"), 0);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_WARNSHOWAIS");
    store.voyages["10"].vsi = "7";
    schedule.refused = {"RefreshTrace"};
    EXPECT_LT(Click("A", "Voyage.child.svr8"), 0);
    EXPECT_EQ(messages.messages[1].text, "IDS_TREE_FAILDSHOWAIS");
    EXPECT_THAT(catalog.calls, Not(Contains("OpenAis 10")));
    schedule.refused.clear();
    EXPECT_EQ(Click("A", "Voyage.child.svr8"), 1);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr10"));
    EXPECT_FALSE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr8"));
    EXPECT_EQ(store.voyages["10"].va, 1);
    EXPECT_EQ(messages.messages.size(), 2U);
}

TEST_F(TreeFixture, ARefusedHidingOfTheTrackLeavesTheFlag) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A").va = 1;
    ctrl.ReloadTree();
    catalog.refused = {"CloseAis"};
    EXPECT_LT(Click("A", "Voyage.child.svr10"), 0);
    EXPECT_TRUE(schedule.Called("HideAisTrack 10"));
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr10"));
    EXPECT_EQ(store.voyages["10"].va, 1);
    catalog.refused.clear();
    EXPECT_EQ(Click("A", "Voyage.child.svr10"), 1);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr8"));
    EXPECT_EQ(store.voyages["10"].va, 0);
}

TEST_F(TreeFixture, APressFetchesTheTrackOfAVoyageThatShowsIt) {
    AddCategory("1", "Full");
    VoyInfo& voyage = AddVoyage("1", "10", "A");
    voyage.va = 1;
    voyage.vsi = "7";
    voyage.vsn = "ANNA";
    ctrl.ReloadTree();
    ctrl.OnRowPressed(tree.Find("A"));
    EXPECT_TRUE(schedule.Called("RefreshTrace 10"));
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(TreeFixture, DeletingAVoyageUnpinsItAndKeepsItsName) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    AddVoyage("1", "11", "B");
    ctrl.ReloadTree();
    EXPECT_EQ(Click("A", "Voyage.child.svr9"), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B"));
    EXPECT_THAT(catalog.calls, Contains("CloseRoute 10"));
    EXPECT_THAT(catalog.calls, Contains("CloseAis 10"));
    EXPECT_EQ(ctrl.Context().voyageNames["A"], InRecycleBin);
}

TEST_F(TreeFixture, ARefusedDeleteLeavesTheVoyage) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    catalog.refused = {"DeleteVoyage"};
    EXPECT_LT(Click("A", "Voyage.child.svr9"), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A"));
    EXPECT_THAT(catalog.calls, Not(Contains("CloseRoute 10")));
}

TEST_F(TreeFixture, ADeletedCategoryKeepsTheStatesOfItsVoyages) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A").va = 1;
    AddVoyage("1", "11", "B", InRecycleBin);
    ctrl.SetShowDeleted(true);
    EXPECT_EQ(Click("Full", "Voyage.parent.svr7"), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full"));
    EXPECT_EQ(tree.GetItemStyle(tree.Find("Full")), kDeletedCategoryStyle);
    EXPECT_EQ(store.voyages["10"].va, 1);
    EXPECT_EQ(Click("Full", "Voyage.parent.svr.recover"), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B"));
}

TEST_F(TreeFixture, AnUnknownVoyageInTheBinEndsTheRebuild) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    EXPECT_EQ(ctrl.ReloadTree(), 0);
    store.categoryVoyages["1"]["99"] = InRecycleBin;
    EXPECT_EQ(ctrl.RebuildCategory("1"), 0);
    ctrl.SetShowDeleted(true);
    EXPECT_LT(ctrl.ReloadTree(), 0);
}

TEST_F(TreeFixture, ClearingAsksFirst) {
    AddCategory("1", "Gone", InRecycleBin);
    ctrl.SetShowDeleted(true);
    messages.Answer(Interface::SysMsgHandleRes::No);
    Click("Gone", "Voyage.parent.svr.clear");
    EXPECT_THAT(tree.Shown(), ElementsAre("Gone"));
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Click("Gone", "Voyage.parent.svr.clear");
    EXPECT_TRUE(tree.Shown().empty());
    EXPECT_EQ(ctrl.Context().categoryNames["Gone"], Destroyed);
}

TEST_F(TreeFixture, AnItemOfTheOtherKindOfRowDoesNothing) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    const auto before = catalog.calls;
    EXPECT_EQ(Click("A", "Voyage.parent.svr7"), 1);
    EXPECT_EQ(Click("Full", "Voyage.child.svr9"), 1);
    EXPECT_EQ(catalog.calls, before);
}

TEST_F(TreeFixture, ALanguageSwitchRenewsTipsAndStatuses) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    ctrl.ShowStatus("10");
    texts.prefix = u"zh ";
    ctrl.ApplyLanguage();
    EXPECT_EQ(tree.Row(tree.Find("A"))->items.at("Voyage.child.svr2").toolTip, "zh IDS_TREESTATUS_BFVOY");
    EXPECT_EQ(tree.Row(tree.Find("Full"))->items.at("Voyage.parent.svr3").toolTip, "zh IDS_ADDVOYAGE");
}

}  // namespace Tarvik::Seaplan
