// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

TEST_F(TreeFixture, ANewVoyageGetsTheNextFreeNameAndTheRenameBox) {
    desk.AddCategory("Full");
    ctrl.ReloadTree();
    EXPECT_EQ(Click("Full", Item::kAddVoyage), 1);
    EXPECT_NE(tree.Find("IDS_TREE_NEWVOYAGE - 0"), kNoRow);
    EXPECT_TRUE(box.open);
    EXPECT_EQ(box.place, (Rect{30, 42, 210, 64}));
    EXPECT_EQ(box.limit, 20);
    EXPECT_EQ(Rename("Atlantic"), 0);
    EXPECT_NE(tree.Find("Atlantic"), kNoRow);
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(box.text, "IDS_TREE_NEWVOYAGE - 1");
}

TEST_F(TreeFixture, EnterBehindTheNameOfANewVoyageSelectsIt) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    Click("Full", Item::kAddVoyage);
    ASSERT_EQ(tree.Selected(), tree.Find("Full"));
    ctrl.Renaming().OnTyped("Atlantic");
    ASSERT_TRUE(ctrl.Renaming().OnKey(Key::Enter));
    EXPECT_EQ(tree.Selected(), tree.Find("Atlantic"));
    EXPECT_FALSE(box.open);
    ASSERT_TRUE(ctrl.Renaming().OnKey(Key::Enter));
    EXPECT_EQ(tree.Selected(), tree.Find("Atlantic")) << "no box is open";
}

TEST_F(TreeFixture, ANewVoyageWhoseNameIsLeftIsNotSelected) {
    desk.AddCategory("Full");
    ctrl.ReloadTree();
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(Rename("Atlantic"), 0);
    EXPECT_EQ(tree.Selected(), tree.Find("Full"));
}

TEST_F(TreeFixture, ARowTooFarDownKeepsItsGeneratedName) {
    ctrl.ReloadTree();
    tree.rowTop = 366;
    ASSERT_TRUE(ctrl.Categories().Add("Low"));
    EXPECT_FALSE(box.open);
    EXPECT_EQ(ctrl.Context().categoryNames["Low"], InUse);
    tree.rowTop = 365;
    ASSERT_TRUE(ctrl.Categories().Add("High"));
    EXPECT_TRUE(box.open);
    EXPECT_EQ(box.place, (Rect{20, 366, 220, 388}));
    EXPECT_EQ(box.limit, 30);
}

TEST_F(TreeFixture, NamesThatAreTakenAreRefused) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    desk.AddVoyage("Full", {.name = "Binned", .state = InRecycleBin});
    desk.AddVoyage("Full", {.name = "Destroyed", .state = InRecycleBin});
    ctrl.SetShowDeleted(true);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    ASSERT_EQ(Click("Destroyed", Item::kClearVoyage), 1);
    messages.messages.clear();
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("A"), -13);
    EXPECT_TRUE(messages.messages.empty());
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("Binned"), -13);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_SAMENAMEWARN");
    EXPECT_EQ(desk.Count(Ask::kRenameVoyage), 0);
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("Destroyed"), 0);
}

TEST_F(TreeFixture, WidthsCountTwoForWideCharacters) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("航次航次航次航次航次a"), -10);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_TOOMUCHNUM20");
    Click("A", Item::kRenameVoyage);
    EXPECT_EQ(Rename("航次航次航次航次航次"), 0);
}

TEST_F(TreeFixture, ANameWithoutVisibleCharactersIsRefused) {
    desk.AddCategory("Full");
    ctrl.ReloadTree();
    Click("Full", Item::kRenameCategory);
    EXPECT_EQ(Rename(" \t "), -2);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_SHOWVISIBLE");
    EXPECT_EQ(tree.enabled, (std::vector<bool>{false, true})) << "the tree waits for the box";
    EXPECT_EQ(ctrl.Renaming().Commit(), 0);
    Click("Full", Item::kRenameCategory);
    EXPECT_EQ(Rename(""), -1);
    EXPECT_EQ(messages.messages.size(), 1U);
}

TEST_F(TreeFixture, ARefusedRenameKeepsTheRowsText) {
    desk.AddCategory("Full");
    ctrl.ReloadTree();
    desk.Refuse(Ask::kRenameCategory);
    Click("Full", Item::kRenameCategory);
    EXPECT_EQ(Rename("Other"), -8);
    EXPECT_NE(tree.Find("Full"), kNoRow);
}

TEST_F(TreeFixture, ALongNameThatWasOnlyLookedAtStaysWithoutAWord) {
    const std::string wide = "A name of more than twenty";
    const std::string quoted = "It's";
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = wide});
    desk.AddVoyage("Full", {.name = quoted});
    ctrl.ReloadTree();
    Click(wide, Item::kRenameVoyage);
    EXPECT_EQ(box.text, wide);
    EXPECT_EQ(ctrl.Renaming().Commit(), -13);
    Click(quoted, Item::kRenameVoyage);
    EXPECT_EQ(ctrl.Renaming().Commit(), -13);
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(desk.Count(Ask::kRenameVoyage), 0);
}

TEST_F(TreeFixture, ANameStillOpenIsTakenBeforeTheNextBoxOpens) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    Click("A", Item::kRenameVoyage);
    Type("Atlantic");
    Click("Full", Item::kRenameCategory);
    EXPECT_NE(tree.Find("Atlantic"), kNoRow);
    EXPECT_TRUE(box.open);
    EXPECT_EQ(box.text, "Full");
}

TEST_F(TreeFixture, AnApostropheComesBackFromTheServerAsItsFullwidthForm) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    ctrl.ReloadTree();
    Click("A", Item::kRenameVoyage);
    ASSERT_EQ(Rename("Anna's \"B&C\\"), 0);
    Click("Full", Item::kRenameCategory);
    ASSERT_EQ(Rename("It's"), 0);
    store.Clear();
    ASSERT_EQ(ctrl.ReloadTree(), 0);
    EXPECT_EQ(tree.Shown(), (std::vector<std::string>{"It\uFF07s", "  Anna\uFF07s \uFF02B\uFF06C\uFF3C"}));
    EXPECT_TRUE(messages.messages.empty());
}

TEST(NameRules, FourCharactersBecomeFullwidth) {
    EXPECT_EQ(NormalizeName("  a'b\"c\\d&e\u3000"), "a\uFF07b\uFF02c\uFF3Cd\uFF06e");
}

}  // namespace Tarvik::Seaplan
