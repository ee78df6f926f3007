// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DuplicateVoyageTest : public TreeFixture {
  protected:
    DuplicateVoyageTest() {
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "A",
                                .vsi = "7",
                                .vsn = "ANNA",
                                .vsmsi = 55,
                                .pinned = true,
                                .calls = PanelDesk::Calls(1, 3)});
        desk.AddVoyage("Full", {.name = "Empty"});
        ctrl.ReloadTree();
        tree.Expand(tree.Find("Full"), true);
        desk.voyages.SaveFigures(Id("A"), {1, 2, 3, 4, 5, 6, 7});
        desk.ForgetRecords();
    }
};

}  // namespace

TEST_F(DuplicateVoyageTest, TheCopyHasPortCallsRouteVesselAndFigures) {
    EXPECT_EQ(Click("A", Item::kDuplicate), 1);
    const VoyInfo& from = Voyage("A");
    const VoyInfo& copy = Voyage("A (2)");
    ASSERT_EQ(copy.portCalls.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(copy.portCalls[i].ppn, from.portCalls[i].ppn);
        EXPECT_EQ(copy.portCalls[i].eta.fmt(kTimeFormat), from.portCalls[i].eta.fmt(kTimeFormat));
        EXPECT_FLOAT_EQ(copy.portCalls[i].distance, from.portCalls[i].distance);
    }
    EXPECT_EQ(copy.positionBook.points.size(), from.positionBook.points.size());
    EXPECT_NE(copy.positionBook.pbi, from.positionBook.pbi);
    EXPECT_EQ(copy.vsn, "ANNA");
    EXPECT_EQ(copy.vsmsi, 55);
    EXPECT_EQ(copy.figures, from.figures);
    EXPECT_EQ(copy.vr, 0) << "its place on the chart stays with the first";
    EXPECT_EQ(desk.Count(Ask::kRoute), 0) << "the way is copied, not asked for";
    EXPECT_EQ(tree.Selected(), tree.Find("A (2)"));
    EXPECT_EQ(box.text, "A (2)") << "its name can be typed at once";
}

TEST_F(DuplicateVoyageTest, TheCopyOpensAgainAfterAReload) {
    ASSERT_EQ(Click("A", Item::kDuplicate), 1);
    ctrl.ReloadTree();
    PortCallRows rows;
    EXPECT_EQ(desk.voyages.LoadSchedule(Id("A (2)"), rows, -1), 0);
    EXPECT_EQ(rows.size(), 3U);
    BunkerFigures figures{};
    desk.voyages.GetFigures(Id("A (2)"), figures);
    EXPECT_THAT(figures, ElementsAre(1, 2, 3, 4, 5, 6, 7));
}

TEST_F(DuplicateVoyageTest, AVoyageWithoutPortCallsIsCopiedWithoutASave) {
    EXPECT_EQ(Click("Empty", Item::kDuplicate), 1);
    EXPECT_NE(tree.Find("Empty (2)"), kNoRow);
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls), 0);
    EXPECT_EQ(desk.Count(Ask::kChangeVessel), 0);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(DuplicateVoyageTest, WhereTheServerTakesNoRowsNothingNewIsLeft) {
    desk.Refuse(Ask::kSavePortCalls);
    EXPECT_EQ(Click("A", Item::kDuplicate), -43);
    EXPECT_EQ(tree.Find("A (2)"), kNoRow);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage), 1);
    EXPECT_EQ(desk.Count(Ask::kDestroyVoyage), 1);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_THAT(messages.messages.back().text, HasSubstr("IDS_VIEW_COPYNOTSAVED"));
    desk.Heal();
    EXPECT_EQ(Click("A", Item::kDuplicate), 1);
    EXPECT_NE(tree.Find("A (2)"), kNoRow) << "the name is free again";
}

TEST_F(DuplicateVoyageTest, APlanThatCannotBeReadIsNotCopied) {
    Voyage("A").portCalls.clear();
    Voyage("A").positionBook.points.clear();
    for (const DeskRequest& request : {Ask::kLoadPortCalls, Ask::kLoadBook}) {
        desk.Lose(request);
        EXPECT_EQ(Click("A", Item::kDuplicate), -43);
        desk.Heal();
    }
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 0);
    ASSERT_EQ(messages.messages.size(), 2U);
    EXPECT_THAT(messages.messages.back().text, HasSubstr("IDS_VIEW_COPYNOTREAD"));
}

TEST_F(DuplicateVoyageTest, NamesAreCountedOnAndFitTheirWidth) {
    EXPECT_EQ(NameOfCopy("A", {}), "A (2)");
    EXPECT_EQ(NameOfCopy("A (2)", {{"A (2)", InUse}}), "A (3)");
    EXPECT_EQ(NameOfCopy("A", {{"A (2)", InRecycleBin}, {"A (3)", Destroyed}}), "A (3)");
    EXPECT_EQ(NameOfCopy("12345678901234567890", {}), "1234567890123456 (2)");
    EXPECT_EQ(NameOfCopy("航次航次航次航次航次", {}), "航次航次航次航次 (2)");
    EXPECT_EQ(NameOfCopy("A (x)", {}), "A (x) (2)");
    EXPECT_EQ(NameOfCopy(" (2)", {}), " (2) (2)");
    EXPECT_EQ(NameOfCopy("A ()", {}), "A () (2)");
}

TEST_F(DuplicateVoyageTest, TheKeyWorksOnTheSelectedVoyageAndOnNothingElse) {
    EXPECT_EQ(ctrl.Keys().Duplicate(), 1);
    ctrl.OnRowPressed(tree.Find("Full"));
    EXPECT_EQ(ctrl.Keys().Duplicate(), 1);
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 0);
    Press("A");
    EXPECT_EQ(ctrl.Keys().Duplicate(), 1);
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 1);
}

}  // namespace Tarvik::Seaplan
