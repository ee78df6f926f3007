// SPDX-License-Identifier: MIT
/// What of the tree is in sight while voyages are found, and what the keys mean then.
#include <gtest/gtest.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/panels/tree/search/TreeSearch.h"

namespace Tarvik::Seaplan {

namespace {

class SearchSightTest : public TreeFixture {
  protected:
    SearchSightTest() {
        desk.AddCategory("Bulk");
        desk.AddVoyage("Bulk", {.name = "Ore one"});
        desk.AddVoyage("Bulk", {.name = "Salt"});
        desk.AddCategory("Tankers");
        desk.AddVoyage("Tankers", {.name = "Crude", .calls = PanelDesk::Calls(5)});
        desk.AddVoyage("Tankers", {.name = "Ore two"});
        desk.AddCategory("Empty");
        ctrl.ReloadTree();
        ctrl.Context().line = [this](const std::string& text) { line = text; };
    }
    void Search(const std::string& text) {
        search.Open();
        search.OnTyped(text);
    }
    std::string Cursor() const { return tree.GetItemText(tree.cursor); }

    RecordingSearch view;
    TreeSearch search{ctrl.Context(), view};
    std::string line;
};

}  // namespace

TEST_F(SearchSightTest, TheFirstAnswerComesIntoView) {
    tree.SetCursor(tree.Find("Tankers"));
    Search("ore");
    EXPECT_EQ(Cursor(), "Ore one");
    EXPECT_EQ(tree.Selected(), kNoRow) << "it is not selected";
    search.OnTyped("ore t");
    EXPECT_EQ(Cursor(), "Ore two");
    search.OnTyped("tank");
    EXPECT_EQ(Cursor(), "Tankers") << "a category answers too";
}

TEST_F(SearchSightTest, AnAnswerThatIsReadLaterComesIntoViewAndNoSecondOne) {
    tree.SetCursor(tree.Find("Bulk"));
    Search("gdansk");
    EXPECT_EQ(Cursor(), "Bulk") << "nothing answers yet";
    desk.SaveCalls(Id("Crude"), PanelDesk::Calls(5, 3));
    search.OnIdle();
    ASSERT_EQ(view.state.found, 1);
    EXPECT_EQ(Cursor(), "Crude");
    tree.SetCursor(tree.Find("Tankers"));
    search.OnIdle();
    EXPECT_EQ(Cursor(), "Tankers") << "what the person looks at meanwhile stays";
}

TEST_F(SearchSightTest, RowsAreReadFromTheTop) {
    desk.ForgetRecords();
    Search("gdansk");
    while (view.state.unread > 0) {
        search.OnIdle();
    }
    const auto asked = desk.Sent(Ask::kLoadPortCalls);
    ASSERT_EQ(asked.size(), 4U);
    for (std::size_t i = 0; i < asked.size(); ++i) {
        const char* voyages[] = {"Ore one", "Salt", "Crude", "Ore two"};
        EXPECT_NE(asked[i].find(Id(voyages[i])), std::string::npos) << voyages[i] << " " << asked[i];
    }
}

TEST_F(SearchSightTest, ASelectedRowThatAnswersStaysInView) {
    tree.Expand(tree.Find("Tankers"), true);
    Press("Ore two");
    Search("ore");
    EXPECT_EQ(Cursor(), "Ore two");
    EXPECT_EQ(view.state.current, 2);
}

TEST_F(SearchSightTest, AVoyageThatWasFoundStaysUnfoldedAtTheEnd) {
    Search("two");
    search.OnStep(1);
    search.Close();
    EXPECT_TRUE(tree.IsItemExpanded(tree.Find("Tankers")));
    EXPECT_FALSE(tree.IsItemExpanded(tree.Find("Bulk")));
    EXPECT_EQ(tree.GetItemText(tree.Selected()), "Ore two");
    EXPECT_EQ(Cursor(), "Ore two");
    ctrl.Keys().OnKey({Key::F2}, tree.cursor, {});
    EXPECT_EQ(box.text, "Ore two");
}

TEST_F(SearchSightTest, ASelectedVoyageThatIsPutAsideIsNotDeletedByItsKey) {
    tree.Expand(tree.Find("Bulk"), true);
    Press("Salt");
    Search("crude");
    desk.ForgetRecords();
    ctrl.Keys().OnKey({Key::Delete}, tree.Selected(), {});
    EXPECT_TRUE(desk.host.requests.empty());
    EXPECT_NE(tree.Find("Salt"), kNoRow);
    ctrl.Keys().OnKey({Key::Delete}, tree.cursor, {});
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage, Id("Crude")), 1) << "the row with the keyboard is meant";
}

TEST_F(SearchSightTest, WhatWasSaidOfTheRowBeforeGoesWithTheNextAnswer) {
    tree.Expand(tree.Find("Bulk"), true);
    Press("Salt");
    ASSERT_EQ(line, "IDS_VIEW_HINTPORTS");
    Search("crude");
    search.OnStep(1);
    EXPECT_EQ(line, "");
}

TEST_F(SearchSightTest, ANewVoyageEndsTheHintOfItsEmptyCategory) {
    ctrl.OnRowPressed(tree.Find("Empty"), true);
    ASSERT_EQ(line, "IDS_VIEW_HINTVOYAGE");
    Click("Empty", Item::kAddVoyage);
    EXPECT_EQ(line, "");
}

TEST_F(SearchSightTest, AHintGoesOnToWhatIsLackingNextWhenItsVoyageIsSaved) {
    tree.Expand(tree.Find("Bulk"), true);
    Press("Salt");
    ASSERT_EQ(line, "IDS_VIEW_HINTPORTS");
    Voyage("Salt").portCalls = PanelDesk::Calls(3);
    ctrl.RefreshVoyageRow(Id("Crude"));
    EXPECT_EQ(line, "IDS_VIEW_HINTPORTS") << "another voyage was saved";
    ctrl.RefreshVoyageRow(Id("Salt"));
    EXPECT_EQ(line, "IDS_VIEW_HINTVESSEL");
    Press("Bulk");
    line = "of the category";
    ctrl.RefreshVoyageRow(Id("Salt"));
    EXPECT_EQ(line, "of the category");
}

}  // namespace Tarvik::Seaplan
