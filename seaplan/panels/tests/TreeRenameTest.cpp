// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/NameRules.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::Not;

TEST_F(TreeFixture, ANewVoyageGetsTheNextFreeNameAndTheRenameBox) {
    AddCategory("1", "Full");
    ctrl.ReloadTree();
    EXPECT_EQ(Click("Full", "Voyage.parent.svr3"), 1);
    EXPECT_NE(tree.Find("IDS_TREE_NEWVOYAGE - 0"), kNoRow);
    EXPECT_TRUE(tree.editorOpen);
    EXPECT_EQ(tree.editorPlace, (Rect{30, 42, 210, 64}));
    EXPECT_EQ(tree.editorLimit, 20);
    EXPECT_EQ(Rename("Atlantic"), 0);
    EXPECT_NE(tree.Find("Atlantic"), kNoRow);
    Click("Full", "Voyage.parent.svr3");
    EXPECT_EQ(tree.editorText, "IDS_TREE_NEWVOYAGE - 1");
}

TEST_F(TreeFixture, ARowTooFarDownKeepsItsGeneratedName) {
    ctrl.ReloadTree();
    tree.rowTop = 366;
    ASSERT_EQ(ctrl.AddCategory("Low"), 0);
    EXPECT_FALSE(tree.editorOpen);
    EXPECT_EQ(ctrl.Context().categoryNames["Low"], InUse);
    tree.rowTop = 365;
    ASSERT_EQ(ctrl.AddCategory("High"), 0);
    EXPECT_TRUE(tree.editorOpen);
    EXPECT_EQ(tree.editorPlace, (Rect{20, 366, 220, 388}));
    EXPECT_EQ(tree.editorLimit, 30);
}

TEST_F(TreeFixture, NamesThatAreTakenAreRefused) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    AddVoyage("1", "11", "Binned", InRecycleBin);
    AddVoyage("1", "12", "Destroyed", Destroyed);
    ctrl.ReloadTree();
    Click("A", "Voyage_child_rename");
    EXPECT_EQ(Rename("A"), -13);
    EXPECT_TRUE(messages.messages.empty());
    Click("A", "Voyage_child_rename");
    EXPECT_EQ(Rename("Binned"), -13);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_SAMENAMEWARN");
    EXPECT_THAT(catalog.calls, Not(Contains("RenameVoyage Binned")));
    Click("A", "Voyage_child_rename");
    EXPECT_EQ(Rename("Destroyed"), 0);
}

TEST_F(TreeFixture, WidthsCountTwoForWideCharacters) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    ctrl.ReloadTree();
    Click("A", "Voyage_child_rename");
    EXPECT_EQ(Rename("航次航次航次航次航次a"), -10);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_TOOMUCHNUM20");
    Click("A", "Voyage_child_rename");
    EXPECT_EQ(Rename("航次航次航次航次航次"), 0);
}

TEST_F(TreeFixture, ANameWithoutVisibleCharactersIsRefused) {
    AddCategory("1", "Full");
    ctrl.ReloadTree();
    Click("Full", "Voyage_parent_rename");
    EXPECT_EQ(Rename(" \t "), -2);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_SHOWVISIBLE");
    EXPECT_EQ(ctrl.CommitRename(), 0);
    Click("Full", "Voyage_parent_rename");
    EXPECT_EQ(Rename(""), -1);
    EXPECT_EQ(messages.messages.size(), 1U);
}

TEST_F(TreeFixture, ARefusedRenameKeepsTheRowsText) {
    AddCategory("1", "Full");
    ctrl.ReloadTree();
    catalog.refused = {"RenameCategory"};
    Click("Full", "Voyage_parent_rename");
    EXPECT_EQ(Rename("Other"), -8);
    EXPECT_NE(tree.Find("Full"), kNoRow);
}

TEST(NameRules, FourCharactersBecomeFullwidth) {
    EXPECT_EQ(NormalizeName("  a'b\"c\\d&e\u3000"), "a\uFF07b\uFF02c\uFF3Cd\uFF06e");
}

}  // namespace Tarvik::Seaplan
