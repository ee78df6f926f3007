// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

/// A tree whose last line is kept. Texts are their keys with the values behind them.
class TreeUndoTest : public TreeFixture {
  protected:
    TreeUndoTest() {
        for (const char16_t* key : {u"IDS_VIEW_UNDONEDELETE", u"IDS_VIEW_CANUNDELETE", u"IDS_VIEW_UNDOFAILED",
                                    u"IDS_VIEW_UNDONERECOVER"}) {
            texts.given[key] = std::u16string(key) + u" %1";
        }
        texts.given[u"IDS_VIEW_UNDONERENAME"] = u"%1 is %2";
        ctrl.Context().line = [this](const std::string& text) { line = text; };
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "A"});
        desk.AddVoyage("Full", {.name = "Pinned",
                                .vsi = "7",
                                .vsn = "ANNA",
                                .vsmsi = 55,
                                .pinned = true,
                                .traced = true,
                                .calls = PanelDesk::Calls(1)});
    }
    void Open() {
        ctrl.ReloadTree();
        tree.Expand(tree.Find("Full"), true);
        desk.ForgetRecords();
    }
    int StateOf(const std::string& name) {
        int state = Destroyed;
        desk.catalog.GetVoyageState(Id(name), state);
        return state;
    }

    std::string line;
};

}  // namespace

TEST_F(TreeUndoTest, WithoutAChangeSaysSo) {
    Open();
    EXPECT_EQ(ctrl.Keys().Undo(), -51);
    EXPECT_EQ(line, "IDS_VIEW_TREENOUNDO");
}

TEST_F(TreeUndoTest, ADeletedVoyageComesBackWithItsPlaceOnTheChartAndItsTrack) {
    Open();
    ASSERT_EQ(Click("Pinned", Item::kDeleteVoyage), 1);
    EXPECT_EQ(line, "IDS_VIEW_CANUNDELETE Pinned");
    ASSERT_EQ(Voyage("Pinned").vr, 0);
    desk.ForgetRecords();
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage, Id("Pinned")), 1);
    EXPECT_EQ(desk.Count(Ask::kOpenRoute, Id("Pinned")), 1);
    EXPECT_EQ(desk.Count(Ask::kOpenAis, Id("Pinned")), 1);
    EXPECT_EQ(StateOf("Pinned"), InUse);
    EXPECT_TRUE(Shows("Pinned", Item::kPinned));
    EXPECT_TRUE(Shows("Pinned", Item::kAisOn));
    EXPECT_EQ(tree.Selected(), tree.Find("Pinned"));
    EXPECT_EQ(ctrl.Context().chartMarks[Id("Pinned")].drawState, OnChart);
    EXPECT_EQ(ctrl.Context().voyageNames["Pinned"], InUse);
    EXPECT_EQ(line, "IDS_VIEW_UNDONEDELETE PinnedIDS_VIEW_UNDONEROUTEIDS_VIEW_UNDONETRACK");
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(TreeUndoTest, APlainVoyageComesBackWithoutRequestsForItsFlags) {
    Open();
    ASSERT_EQ(Click("A", Item::kDeleteVoyage), 1);
    desk.ForgetRecords();
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_EQ(desk.Count(Ask::kOpenRoute), 0);
    EXPECT_EQ(desk.Count(Ask::kOpenAis), 0);
    EXPECT_EQ(line, "IDS_VIEW_UNDONEDELETE A");
}

TEST_F(TreeUndoTest, ADeletedCategoryComesBackWithItsRoutesOnTheChart) {
    Open();
    ASSERT_EQ(Click("Full", Item::kDeleteCategory), 1);
    ASSERT_EQ(tree.Find("Full"), kNoRow);
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_NE(tree.Find("Full"), kNoRow);
    EXPECT_EQ(Voyage("Pinned").vr, 1);
    EXPECT_EQ(Voyage("A").vr, 0);
    EXPECT_EQ(ctrl.Context().chartMarks[Id("Pinned")].routePinned, 1);
    EXPECT_EQ(ctrl.Context().categoryNames["Full"], InUse);
    EXPECT_EQ(line, "IDS_VIEW_UNDONEDELETE FullIDS_VIEW_UNDONEROUTE");
}

TEST_F(TreeUndoTest, NamesComeBackLastFirst) {
    Open();
    Click("A", Item::kRenameVoyage);
    Rename("B");
    Click("Full", Item::kRenameCategory);
    Rename("Other");
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_NE(tree.Find("Full"), kNoRow);
    EXPECT_EQ(line, "Other is Full");
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_NE(tree.Find("A"), kNoRow);
    EXPECT_EQ(line, "B is A");
    EXPECT_EQ(desk.Voyage("A").vn, "A");
    EXPECT_EQ(ctrl.Keys().Undo(), -51);
}

TEST_F(TreeUndoTest, ARecoveryIsTakenBackAsADeletionThatIsNoStepOfItsOwn) {
    desk.AddVoyage("Full", {.name = "Bin", .state = InRecycleBin});
    ctrl.SetShowDeleted(true);
    ASSERT_EQ(Click("Bin", Item::kRecoverVoyage), 1);
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_EQ(StateOf("Bin"), InRecycleBin);
    EXPECT_EQ(line, "IDS_VIEW_UNDONERECOVER Bin");
    EXPECT_EQ(ctrl.Keys().Undo(), -51);
}

TEST_F(TreeUndoTest, ARecoveredCategoryGoesBackIntoTheBin) {
    desk.AddCategory("Bin");
    desk.MoveCategory("Bin", InRecycleBin);
    ctrl.SetShowDeleted(true);
    ASSERT_EQ(Click("Bin", Item::kRecoverCategory), 1);
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_EQ(tree.GetItemStyle(tree.Find("Bin")), kDeletedCategoryStyle);
    EXPECT_EQ(ctrl.Keys().Undo(), -51);
}

TEST_F(TreeUndoTest, WhatTheServerRefusesCanBeTriedAgain) {
    Open();
    ASSERT_EQ(Click("A", Item::kDeleteVoyage), 1);
    desk.Refuse(Ask::kRecoverVoyage);
    EXPECT_EQ(ctrl.Keys().Undo(), -52);
    EXPECT_EQ(line, "IDS_VIEW_UNDOFAILED A");
    EXPECT_EQ(StateOf("A"), InRecycleBin);
    desk.Heal();
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_EQ(StateOf("A"), InUse);
}

TEST_F(TreeUndoTest, WhatIsDestroyedOrOfAnotherUserIsForgotten) {
    desk.AddCategory("Gone");
    desk.AddVoyage("Gone", {.name = "In it"});
    ctrl.SetShowDeleted(true);
    ASSERT_EQ(Click("In it", Item::kDeleteVoyage), 1);
    ASSERT_EQ(Click("Gone", Item::kDeleteCategory), 1);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    ASSERT_EQ(Click("Gone", Item::kClearCategory), 1);
    EXPECT_EQ(ctrl.Keys().Undo(), -51) << "nor what lay in it";
    ASSERT_EQ(Click("A", Item::kDeleteVoyage), 1);
    ctrl.ForgetAfterLogout();
    EXPECT_EQ(ctrl.Keys().Undo(), -51);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage), 0);
}

TEST_F(TreeUndoTest, ANameBeingTypedIsTakenBeforeAndThenTakenBack) {
    Open();
    Click("A", Item::kRenameVoyage);
    Type("B");
    EXPECT_EQ(ctrl.Keys().Undo(), 0);
    EXPECT_NE(tree.Find("A"), kNoRow);
    EXPECT_FALSE(box.open);
}

TEST_F(TreeUndoTest, AtMostAHundredStepsAreKept) {
    TreeSteps steps;
    for (std::size_t i = 0; i <= TreeSteps::kMost; ++i) {
        steps.Note({TreeStep::Kind::Rename, true, std::to_string(i)});
    }
    std::size_t kept = 0;
    for (; !steps.IsEmpty(); ++kept) {
        EXPECT_NE(steps.Last().id, "0") << "the oldest goes";
        steps.DropLast();
    }
    EXPECT_EQ(kept, TreeSteps::kMost);
}

TEST_F(TreeUndoTest, ARowSaysWhatItLacksFirst) {
    desk.AddCategory("Empty");
    desk.AddVoyage("Full", {.name = "Vessel?", .calls = PanelDesk::Calls(1)});
    Open();
    Press("A");
    EXPECT_EQ(line, "IDS_VIEW_HINTPORTS");
    Press("Vessel?");
    EXPECT_EQ(line, "IDS_VIEW_HINTVESSEL");
    Press("Pinned");
    EXPECT_EQ(line, "");
    ctrl.OnRowPressed(tree.Find("Empty"), true);
    EXPECT_EQ(line, "IDS_VIEW_HINTVOYAGE");
}

}  // namespace Tarvik::Seaplan
