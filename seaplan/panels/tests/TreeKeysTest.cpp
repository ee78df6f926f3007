// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeKeys.h"

namespace Tarvik::Seaplan {

namespace {

class TreeKeysTest : public TreeFixture {
  protected:
    TreeKeysTest() {
        desk.AddCategory("First");
        desk.AddVoyage("First", {.name = "A"});
        desk.AddVoyage("First", {.name = "B"});
        desk.AddCategory("Second");
        desk.AddVoyage("Second", {.name = "C"});
        ctrl.ReloadTree();
    }
    /// A key on the row where the cursor is.
    bool Press(Key key, const std::string& focused = {}) { return Press(KeyPress{key}, focused); }
    bool Press(KeyPress press, const std::string& focused = {}) {
        return ctrl.Keys().OnKey(press, tree.cursor, focused);
    }
    std::string Cursor() const { return tree.GetItemText(tree.cursor); }
    std::string SelectedText() const { return tree.GetItemText(tree.Selected()); }
};

}  // namespace

TEST_F(TreeKeysTest, ArrowsWalkTheRowsThatAreNotFolded) {
    Press(Key::Down);
    EXPECT_EQ(Cursor(), "First") << "without a row the first one comes";
    EXPECT_EQ(SelectedText(), "") << "a folded category is not selected";
    Press(Key::Down);
    EXPECT_EQ(Cursor(), "Second");
    Press(Key::Down);
    EXPECT_EQ(Cursor(), "Second") << "there is no row below";
    Press(Key::Up);
    Press(Key::Right);
    EXPECT_TRUE(tree.IsItemExpanded(tree.Find("First")));
    EXPECT_EQ(SelectedText(), "First");
    Press(Key::Down);
    EXPECT_EQ(SelectedText(), "A");
    Press(Key::Down);
    Press(Key::Down);
    EXPECT_EQ(Cursor(), "Second");
}

TEST_F(TreeKeysTest, HomeAndEndLeadToTheFirstAndTheLastRow) {
    Press(Key::End);
    EXPECT_EQ(Cursor(), "Second") << "also without a row";
    tree.Expand(tree.Find("Second"), true);
    Press(Key::End);
    EXPECT_EQ(SelectedText(), "C");
    Press(Key::End);
    EXPECT_EQ(SelectedText(), "C");
    Press(Key::Home);
    EXPECT_EQ(Cursor(), "First");
}

TEST_F(TreeKeysTest, PageKeysLeapAndStopAtTheEnds) {
    for (int i = 0; i < 25; ++i) {
        desk.AddVoyage("First", {.name = "V" + std::to_string(100 + i)});
    }
    store.Clear();
    ctrl.ReloadTree();
    tree.Expand(tree.Find("First"), true);
    tree.cursor = tree.Find("First");
    Press(Key::PageDown);
    EXPECT_EQ(SelectedText(), "V107") << "A, B and eight more";
    Press(Key::PageDown);
    EXPECT_EQ(SelectedText(), "V117");
    Press(Key::PageDown);
    EXPECT_EQ(Cursor(), "Second") << "the last row, though less than a leap away";
    desk.ForgetRecords();
    Press(Key::PageDown);
    EXPECT_TRUE(desk.host.chartCalls.empty()) << "nothing is pressed again";
    Press(Key::PageUp);
    EXPECT_EQ(SelectedText(), "V115");
}

TEST_F(TreeKeysTest, KeysMeanNoVoyageThatCannotBeSeen) {
    tree.Expand(tree.Find("First"), true);
    TreeFixture::Press("A");
    tree.cursor = tree.Find("A");
    const auto nothing = [this](const char* why) {
        desk.ForgetRecords();
        Press(Key::Delete);
        Press(Key::F2);
        Press(Key::Enter, Item::kDeleteVoyage);
        Press(Key::Left);
        EXPECT_EQ(ctrl.Keys().OnMenuKey(tree.cursor), kNoRow) << why;
        EXPECT_EQ(ctrl.Keys().Duplicate(), 1) << why;
        EXPECT_TRUE(desk.host.requests.empty()) << why;
        EXPECT_FALSE(box.open) << why;
    };
    tree.SetRowFinding(tree.Find("A"), RowFinding::Aside);
    nothing("put aside by a search");
    tree.SetRowFinding(tree.Find("A"), RowFinding::None);
    tree.Expand(tree.Find("First"), false);
    nothing("folded away");
    tree.Expand(tree.Find("First"), true);
    Press(Key::Delete);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage, Id("A")), 1) << "in sight again";
}

TEST_F(TreeKeysTest, TheMenuKeyTakesTheSelectedRowOrPressesTheOneWithTheKeyboard) {
    EXPECT_EQ(ctrl.Keys().OnMenuKey(kNoRow), kNoRow);
    tree.Expand(tree.Find("First"), true);
    desk.SaveCalls(Id("A"), PanelDesk::Calls(5));
    store.voyages[Id("A")].portCalls.clear();
    EXPECT_EQ(ctrl.Keys().OnMenuKey(tree.Find("A")), tree.Find("A"));
    EXPECT_EQ(SelectedText(), "A");
    EXPECT_FALSE(Shows("A", Item::kSetPortCall)) << "its menu must not offer to set what it has";
    desk.ForgetRecords();
    EXPECT_EQ(ctrl.Keys().OnMenuKey(tree.Find("B")), tree.Find("A")) << "the selected row goes first";
    EXPECT_TRUE(desk.host.chartCalls.empty()) << "and is not pressed again";
}

TEST_F(TreeKeysTest, LeftLeadsToTheCategoryAndThenFoldsIt) {
    tree.Expand(tree.Find("First"), true);
    TreeFixture::Press("B");
    Press(Key::Left);
    EXPECT_EQ(SelectedText(), "First");
    EXPECT_TRUE(tree.IsItemExpanded(tree.Find("First")));
    Press(Key::Left);
    EXPECT_FALSE(tree.IsItemExpanded(tree.Find("First")));
    EXPECT_EQ(SelectedText(), "");
}

TEST_F(TreeKeysTest, AVoyageThatWasFoldedAwayStandsForItsCategory) {
    tree.Expand(tree.Find("First"), true);
    TreeFixture::Press("B");
    tree.cursor = tree.Find("B");
    ctrl.OnRowPressed(tree.Find("First"), true);
    ASSERT_FALSE(tree.IsItemExpanded(tree.Find("First")));
    Press(Key::Down);
    EXPECT_EQ(Cursor(), "Second");
}

TEST_F(TreeKeysTest, APressFoldsOnlyBesideTheItems) {
    ctrl.OnRowPressed(tree.Find("First"), true);
    EXPECT_TRUE(tree.IsItemExpanded(tree.Find("First")));
    ctrl.OnRowPressed(tree.Find("First"), false);
    EXPECT_TRUE(tree.IsItemExpanded(tree.Find("First")));
    ctrl.OnRowPressed(kNoRow, true);
    ctrl.OnRowPressed(tree.Find("A"), true);
    EXPECT_FALSE(tree.IsItemExpanded(tree.Find("A")));
}

TEST_F(TreeKeysTest, EnterPressesTheItemUnderTheKeyboard) {
    tree.Expand(tree.Find("First"), true);
    TreeFixture::Press("A");
    EXPECT_TRUE(Press(Key::Space, Item::kRenameVoyage));
    EXPECT_TRUE(box.open);
    EXPECT_EQ(box.text, "A");
}

TEST_F(TreeKeysTest, InsertAddsAVoyageToTheCategoryAndACategoryWithoutOne) {
    tree.Expand(tree.Find("First"), true);
    TreeFixture::Press("A");
    Press(Key::Insert);
    EXPECT_EQ(desk.Count(Ask::kAddVoyage, "IDS_TREE_NEWVOYAGE - 0"), 1);
    tree.SelectItem(kNoRow);
    tree.cursor = kNoRow;
    Press(Key::Insert);
    EXPECT_EQ(desk.Count(Ask::kAddCategory, "IDS_TREE_NEWVOYCATEGORY - 0"), 1);
}

TEST_F(TreeKeysTest, WhatChangesAVoyageIsDoneOnceWhileItsKeyIsHeld) {
    ctrl.OnRowPressed(tree.Find("First"), true);
    ctrl.OnRowPressed(tree.Find("A"));
    const KeyPress duplicate{.key = Key::D, .ctrlShift = true};
    EXPECT_TRUE(Press(duplicate));
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 1);
    for (KeyPress press : {duplicate, KeyPress{Key::Delete}, KeyPress{Key::Undo}}) {
        press.held = true;
        EXPECT_TRUE(Press(press)) << "nobody else's";
    }
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 1);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage), 0);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage), 0);
    Press(Key::Delete);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage), 1);
    EXPECT_TRUE(Press(Key::Undo));
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage), 1);
}

TEST_F(TreeKeysTest, KeysWithoutAMeaningAreLeftToTheWindow) {
    for (const Key key : {Key::Other, Key::Tab, Key::Escape, Key::F9, Key::S}) {
        EXPECT_FALSE(Press(key));
    }
    EXPECT_FALSE(Press({.key = Key::D, .ctrl = true}));
    EXPECT_FALSE(Press(Key::F2)) << "no row";
    EXPECT_FALSE(Press(Key::Delete));
}

}  // namespace Tarvik::Seaplan
