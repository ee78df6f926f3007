// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/RemarkMark.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/panels/tree/VoyageTreeSortDlg.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::SizeIs;

TEST_F(TreeFixture, CategoriesWithVoyagesComeBeforeEmptyOnesAndTheRecycleBinIsHidden) {
    desk.AddCategory("Empty");
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "North"});
    desk.AddCategory("Gone");
    desk.AddVoyage("Gone", {.name = "Lost"});
    desk.MoveCategory("Gone", InRecycleBin);
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  North", "Empty"));
}

TEST_F(TreeFixture, RecycleBinRowsFollowAndEmptyDeletedCategoriesComeFirst) {
    desk.AddCategory("Old");
    desk.AddVoyage("Old", {.name = "South"});
    desk.MoveCategory("Old", InRecycleBin);
    desk.AddCategory("OldEmpty");
    desk.MoveCategory("OldEmpty", InRecycleBin);
    desk.AddCategory("Kept");
    desk.AddVoyage("Kept", {.name = "West", .state = InRecycleBin});
    desk.AddVoyage("Kept", {.name = "Never"});
    ctrl.ReloadTree();
    store.categoryVoyages[CategoryId("Kept")][Id("Never")] = Destroyed;
    ctrl.SetShowDeleted(true);
    EXPECT_THAT(tree.Shown(), ElementsAre("Kept", "  West", "OldEmpty", "Old"));
    EXPECT_EQ(tree.GetItemStyle(tree.Find("West")), kDeletedVoyageStyle);
}

TEST_F(TreeFixture, ACategoryWithoutStateEndsTheRebuild) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "North"});
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    store.categoryVoyages["9"][Id("North")] = InUse;
    EXPECT_EQ(ctrl.ReloadTree(), -3);
}

TEST(VoyageOrder, UndatedNumbersSortAsTextAndBeforeDates) {
    std::vector<VoyageKeys> voyages = {
        {"a", "n", "2024-01-01 00:00:00"}, {"b", "n", "02"}, {"c", "n", "010"}};
    std::vector<std::string> out;
    ASSERT_TRUE(OrderVoyages(voyages, {SortByDate, Ascending}, out));
    EXPECT_THAT(out, ElementsAre("c", "b", "a"));
    ASSERT_TRUE(OrderVoyages(voyages, {SortByDate, Descending}, out));
    EXPECT_THAT(out, ElementsAre("a", "b", "c"));
    EXPECT_FALSE(OrderVoyages(voyages, {7, Ascending}, out));
}

TEST(VoyageOrder, OfEqualKeysTheLastStays) {
    std::vector<std::string> out;
    ASSERT_TRUE(OrderVoyages({{"a", "n", "d"}, {"b", "n", "d"}}, {}, out));
    EXPECT_THAT(out, ElementsAre("b"));
}

TEST_F(TreeFixture, AReloadForgetsTheSortChoice) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(5)});
    desk.AddVoyage("Full", {.name = "B", .calls = PanelDesk::Calls(1)});
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    for (const char* name : {"A", "B"}) {
        ASSERT_EQ(ctrl.ComputeStatus(Id(name)), 0);
    }
    ASSERT_EQ(ctrl.SetSortKey(CategoryId("Full"), SortByDate), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B", "  A"));
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B"));
}

TEST_F(TreeFixture, DirectionItemsSwitchAndReverseTheOrder) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "B"});
    ctrl.ReloadTree();
    EXPECT_EQ(Click("Full", Item::kAscending), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B", "  A"));
    EXPECT_FALSE(Shows("Full", "Voyage.parent.svr6"));
    EXPECT_TRUE(Shows("Full", "Voyage.parent.svr6.desc"));
    EXPECT_EQ(Click("Full", Item::kDescending), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B"));
}

TEST_F(TreeFixture, SortingAnEmptyCategoryFailsSilently) {
    desk.AddCategory("Empty");
    ctrl.ReloadTree();
    EXPECT_LT(Click("Empty", Item::kAscending), 0);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(ctrl.RebuildCategory(CategoryId("Empty")), -2);
    EXPECT_EQ(ctrl.RebuildCategory(""), -1);
}

TEST_F(TreeFixture, VesselItemsFollowIdAndName) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "None"});
    desk.AddVoyage("Full", {.name = "Typed", .vsn = "ANNA"});
    desk.AddVoyage("Full", {.name = "Fleet", .vsi = "7", .vsn = "BERTA"});
    desk.AddVoyage("Full", {.name = "Odd", .vsi = "8"});
    ctrl.ReloadTree();
    EXPECT_TRUE(Shows("None", "Voyage_AssignShip"));
    EXPECT_FALSE(Shows("None", "Voyage_ShipInfo"));
    EXPECT_TRUE(Shows("Typed", "Voyage_Alert"));
    EXPECT_TRUE(Shows("Typed", "Voyage_ReplaceShip"));
    EXPECT_TRUE(Shows("Fleet", "Voyage_ShipInfo"));
    EXPECT_FALSE(Shows("Fleet", "Voyage_Alert"));
    EXPECT_TRUE(Shows("Odd", "Voyage_AssignShip"));
    EXPECT_FALSE(Shows("Odd", "Voyage_ReplaceShip"));
}

TEST_F(TreeFixture, AnEmptyCategoryWithRemarksShowsTheEmptyIconAfterALoad) {
    desk.AddCategory("Empty", true);
    desk.AddCategory("Full", true);
    desk.AddVoyage("Full", {.name = "North"});
    ctrl.ReloadTree();
    EXPECT_FALSE(Shows("Empty", "Voyage.parent.svr2.exist"));
    EXPECT_TRUE(Shows("Full", "Voyage.parent.svr2.exist"));
}

TEST_F(TreeFixture, ARemarkMarkFollowsOnlyWhileRemarksAreOpen) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    ctrl.SetRemarkMark(tree.Find("A"), true);
    EXPECT_EQ(Voyage("A").vrk, 0);
    ctrl.Notes().Mark().Open(tree.Find("Full"));
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(desk.Category("Full").crk, 1);
    EXPECT_TRUE(Shows("Full", "Voyage.parent.svr2.exist"));
    ctrl.SetRemarkMark(tree.Find("A"), true);
    EXPECT_EQ(Voyage("A").vrk, 1);
    ctrl.SetRemarkMark(tree.Find("A"), false);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr3.non"));
    EXPECT_FALSE(Shows("A", "Voyage.child.svr3.exist"));
}

TEST_F(TreeFixture, DatesNeedTwoPortCallsAndStay) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "One"});
    ctrl.ReloadTree();
    Voyage("One").portCalls = {TwoCalls(1)[0]};
    Press("One");
    EXPECT_TRUE(Shows("One", "Voyage_setPortCall"));
    Voyage("One").portCalls = TwoCalls(1);
    Press("One");
    const TreeItem& dates = tree.Row(tree.Find("One"))->items.At("Voyage_Date");
    EXPECT_TRUE(dates.visible);
    EXPECT_EQ(dates.values.at("Saildate"), "2024-03-01");
    EXPECT_EQ(dates.values.at("Enddate"), "2024-03-02");
    EXPECT_FALSE(Shows("One", "Voyage_setPortCall"));
}

TEST_F(TreeFixture, AStatusIsKeptUntilItIsComputedAnew) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "Trip", .calls = PanelDesk::Calls(5)});
    ctrl.ReloadTree();
    const std::string vi = Id("Trip");
    const auto image = [&] {
        return tree.Row(tree.Find("Trip"))->items.At("Voyage.child.svr2").values.at("Voyage_Status");
    };
    ASSERT_EQ(ctrl.ShowStatus(vi), 0);
    EXPECT_EQ(image(), "#Voyage_status_plan");
    desk.clock.SetUtc(2024, 3, 5, 12);
    ASSERT_EQ(ctrl.ShowStatus(vi), 0);
    EXPECT_EQ(image(), "#Voyage_status_plan");
    ASSERT_EQ(ctrl.ComputeStatus(vi), 0);
    ASSERT_EQ(ctrl.ShowStatus(vi), 0);
    EXPECT_EQ(image(), "#Voyage_status_underway");
    desk.clock.SetUtc(2024, 3, 5, 8);
    ctrl.ComputeStatus(vi);
    ctrl.ShowStatus(vi);
    EXPECT_EQ(image(), "#Voyage_status_finish");
    EXPECT_EQ(ctrl.ShowStatus("99"), -2);
}

TEST_F(TreeFixture, CountsSkipAPinnedVoyageThatCouldNotBeDrawnUntilTheyAreRefreshed) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "Pinned", .pinned = true});
    desk.AddVoyage("Full", {.name = "Plain"});
    ctrl.ReloadTree();
    const auto count = [&] { return tree.Row(tree.Find("Full"))->items.At("cat.statistic").text; };
    EXPECT_EQ(count(), "  (1)");
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(count(), "  (3)");
}

TEST_F(TreeFixture, ActivatingAVoyageTakesTheLastOneOffTheChartUnlessItIsPinned) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(1)});
    desk.AddVoyage("Full", {.name = "B", .calls = PanelDesk::Calls(2)});
    desk.AddVoyage("Full", {.name = "Pinned", .pinned = true, .calls = PanelDesk::Calls(3)});
    ctrl.ReloadTree();
    Press("A");
    auto& marks = ctrl.Context().chartMarks;
    EXPECT_EQ(marks[Id("A")].drawState, OnChart);
    Press("B");
    EXPECT_EQ(marks[Id("A")].drawState, OffChart);
    EXPECT_EQ(marks[Id("B")].drawState, OnChart);
    EXPECT_EQ(marks[Id("Pinned")].drawState, OnChart);
}

TEST_F(TreeFixture, PressingAFoldedCategoryDeselects) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    Press("Full");
    EXPECT_EQ(tree.Selected(), kNoRow);
    tree.Expand(tree.Find("Full"), true);
    Press("Full");
    EXPECT_EQ(tree.Selected(), tree.Find("Full"));
    EXPECT_TRUE(ctrl.Context().voyageStatuses.contains(Id("A")));
}

TEST_F(TreeFixture, PinningNeedsAPositionBook) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    EXPECT_LT(Click("A", Item::kUnpinned), 0);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_AUTOTRACKWARN");
    EXPECT_EQ(Voyage("A").vr, 0);
    // A book without port calls cannot be drawn.
    Voyage("A").positionBook.points.resize(2);
    EXPECT_LT(Click("A", Item::kUnpinned), 0);
    EXPECT_EQ(messages.messages.size(), 2U);
    EXPECT_EQ(Voyage("A").vr, 1);
}

TEST_F(TreeFixture, TheTrackNeedsAVesselOfTheFleet) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .vsn = "TYPED", .vsmsi = 55, .calls = PanelDesk::Calls(1)});
    ctrl.ReloadTree();
    ctrl.ComputeStatus(Id("A"));
    EXPECT_LT(Click("A", Item::kAisOff), 0);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_WARNSHOWAIS");
    Voyage("A").vsi = "7";
    EXPECT_LT(Click("A", Item::kAisOff), 0);
    EXPECT_EQ(messages.messages[1].text, "IDS_TREE_FAILDSHOWAIS");
    EXPECT_EQ(desk.Count(Ask::kOpenAis), 0);
    desk.host.track = "1709290000|1.0|2.0|55";
    EXPECT_EQ(Click("A", Item::kAisOff), 1);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr10"));
    EXPECT_FALSE(Shows("A", "Voyage.child.svr8"));
    EXPECT_EQ(Voyage("A").va, 1);
    EXPECT_EQ(messages.messages.size(), 2U);
}

TEST_F(TreeFixture, ARefusedHidingOfTheTrackLeavesTheFlag) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .vsi = "7", .vsn = "ANNA", .vsmsi = 55, .traced = true});
    ctrl.ReloadTree();
    desk.Refuse(Ask::kCloseAis);
    EXPECT_LT(Click("A", Item::kAisOn), 0);
    EXPECT_THAT(desk.host.hiddenTracks, ElementsAre("7|55"));
    EXPECT_TRUE(Shows("A", "Voyage.child.svr10"));
    EXPECT_EQ(Voyage("A").va, 1);
    desk.Heal();
    EXPECT_EQ(Click("A", Item::kAisOn), 1);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr8"));
    EXPECT_EQ(Voyage("A").va, 0);
}

TEST_F(TreeFixture, APressFetchesTheTrackOfAVoyageThatShowsIt) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full",
                   {.name = "A", .vsi = "7", .vsn = "ANNA", .traced = true, .calls = PanelDesk::Calls(1)});
    ctrl.ReloadTree();
    Press("A");
    ASSERT_THAT(desk.host.trackQueries, SizeIs(1));
    EXPECT_EQ(desk.host.trackQueries[0].vsi, "7");
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(TreeFixture, DeletingAVoyageUnpinsItAndKeepsItsName) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "B"});
    ctrl.ReloadTree();
    EXPECT_EQ(Click("A", Item::kDeleteVoyage), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B"));
    EXPECT_EQ(desk.Count(Ask::kCloseRoute, Id("A")), 1);
    EXPECT_EQ(desk.Count(Ask::kCloseAis, Id("A")), 1);
    EXPECT_EQ(ctrl.Context().voyageNames["A"], InRecycleBin);
}

TEST_F(TreeFixture, ARefusedDeleteLeavesTheVoyage) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    desk.Refuse(Ask::kDeleteVoyage);
    EXPECT_LT(Click("A", Item::kDeleteVoyage), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A"));
    EXPECT_EQ(desk.Count(Ask::kCloseRoute), 0);
}

TEST_F(TreeFixture, ADeletedCategoryKeepsTheStatesOfItsVoyages) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .traced = true});
    desk.AddVoyage("Full", {.name = "B", .state = InRecycleBin});
    ctrl.SetShowDeleted(true);
    EXPECT_EQ(Click("Full", Item::kDeleteCategory), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full"));
    EXPECT_EQ(tree.GetItemStyle(tree.Find("Full")), kDeletedCategoryStyle);
    EXPECT_EQ(Voyage("A").va, 1);
    EXPECT_EQ(Click("Full", Item::kRecoverCategory), 1);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B"));
}

TEST_F(TreeFixture, AnUnknownVoyageInTheBinEndsTheRebuild) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    EXPECT_EQ(ctrl.ReloadTree(), 0);
    store.categoryVoyages[CategoryId("Full")]["99"] = InRecycleBin;
    EXPECT_EQ(ctrl.RebuildCategory(CategoryId("Full")), 0);
    ctrl.SetShowDeleted(true);
    EXPECT_LT(ctrl.ReloadTree(), 0);
}

TEST_F(TreeFixture, ClearingAsksFirst) {
    desk.AddCategory("Gone");
    desk.MoveCategory("Gone", InRecycleBin);
    ctrl.SetShowDeleted(true);
    messages.Answer(Interface::SysMsgHandleRes::No);
    Click("Gone", Item::kClearCategory);
    EXPECT_THAT(tree.Shown(), ElementsAre("Gone"));
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Click("Gone", Item::kClearCategory);
    EXPECT_TRUE(tree.Shown().empty());
    EXPECT_EQ(ctrl.Context().categoryNames["Gone"], Destroyed);
}

TEST_F(TreeFixture, AnItemOfTheOtherKindOfRowDoesNothing) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    const auto before = desk.host.Texts();
    EXPECT_EQ(Click("A", Item::kDeleteCategory), 1);
    EXPECT_EQ(Click("Full", Item::kDeleteVoyage), 1);
    EXPECT_EQ(desk.host.Texts(), before);
}

TEST_F(TreeFixture, ALanguageSwitchRenewsTipsAndStatuses) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    ctrl.ShowStatus(Id("A"));
    texts.prefix = u"zh ";
    ctrl.ApplyLanguage();
    EXPECT_EQ(tree.Row(tree.Find("A"))->items.At("Voyage.child.svr2").toolTip, "zh IDS_TREESTATUS_BFVOY");
    EXPECT_EQ(tree.Row(tree.Find("Full"))->items.At("Voyage.parent.svr3").toolTip, "zh IDS_ADDVOYAGE");
}

TEST_F(TreeFixture, TheSortPanelShowsTheKeyAndHidesWhenItHasSorted) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    EXPECT_EQ(sortPopup.Ticked(), TextIds::IDS_VOY_SORTBYNAME) << "ticked from the start";
    EXPECT_EQ(Click("Full", Item::kSort), 1);
    EXPECT_TRUE(sortPopup.visible);
    EXPECT_EQ(sortPopup.width, 180);
    EXPECT_EQ(sortPopup.height, 60);
    EXPECT_EQ(ctrl.Categories().SortPanel().OnChosen(TextIds::IDS_VOY_SORTBYDATE), 0);
    EXPECT_FALSE(sortPopup.visible);
    EXPECT_EQ(ctrl.Context().categorySorts[CategoryId("Full")].sortKey, SortByDate);
    Click("Full", Item::kSort);
    EXPECT_EQ(sortPopup.Ticked(), TextIds::IDS_VOY_SORTBYDATE);
}

TEST_F(TreeFixture, ASortPanelThatFailsToRebuildStaysOpen) {
    desk.AddCategory("Empty");
    ctrl.ReloadTree();
    Click("Empty", Item::kSort);
    EXPECT_EQ(ctrl.Categories().SortPanel().OnChosen(TextIds::IDS_VOY_SORTBYDATE), -3);
    EXPECT_TRUE(sortPopup.visible);
    ctrl.Categories().SortPanel().SetSortKey(7);
    EXPECT_EQ(sortPopup.Ticked(), std::nullopt);
}

}  // namespace Tarvik::Seaplan
