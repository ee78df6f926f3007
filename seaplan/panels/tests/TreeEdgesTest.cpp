// SPDX-License-Identifier: MIT
/// Steps of a person at the borders of the tree's rules: what is asked, said, marked and shown then.
#include <chrono>

#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/StatusQueue.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "testsupport/ManualTimer.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class TreeEdgesTest : public TreeFixture {
  protected:
    TreeEdgesTest() {
        desk.AddCategory("Full");
        desk.AddCategory("Other");
        desk.AddVoyage("Full", {.name = "A", .vsn = "ANNA", .calls = PanelDesk::Calls(1)});
        desk.AddVoyage("Full", {.name = "B", .vsi = "7", .vsn = "Nora", .calls = PanelDesk::Calls(5)});
        ctrl.SetShowDeleted(true);
        desk.ForgetRecords();
    }
    /// Renames through the box, as a person does.
    int Rename(const std::string& row, const char* item, const std::string& name) {
        Click(row, item);
        return TreeFixture::Rename(name);
    }
    std::vector<std::string> Said() const {
        std::vector<std::string> said;
        for (const auto& message : messages.messages) {
            said.push_back(message.text);
        }
        return said;
    }
};

/// A sign that may go before the work that it stands for.
class CountedSign final : public BusySign {
  public:
    explicit CountedSign(int& told) : told_(told) {}
    void SetBusy(bool) override { ++told_; }

  private:
    int& told_;
};

TEST(StatusQueueTest, WhoEndsAmidTheWorkAsksNothingOfTheWindowAnyMore) {
    TestSupport::ManualTimer timer;
    int told = 0;
    int done = 0;
    CountedSign sign(told);
    {
        StatusQueue queue(sign, [&done](const std::string&, TreeRow) {
            // A slow server: longer than the first piece.
            const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
            while (std::chrono::steady_clock::now() < end) {
            }
            ++done;
        });
        queue.Add("1", {});
        queue.Add("2", {});
        queue.Run();
        ASSERT_EQ(done, 1);
        ASSERT_EQ(told, 1) << "it works on";
        ASSERT_EQ(timer.Running(), 1U);
    }
    EXPECT_EQ(told, 1);
    EXPECT_EQ(timer.Running(), 0U);
    EXPECT_EQ(done, 1);
}

}  // namespace

TEST_F(TreeEdgesTest, WidthIsMeasuredBehindTheReplacedCharacters) {
    EXPECT_EQ(Rename("A", Item::kRenameVoyage, std::string(11, '\'')), -10);
    EXPECT_THAT(Said(), ElementsAre("IDS_TREE_TOOMUCHNUM20")) << "eleven letters, twenty-two wide";
    EXPECT_THAT(desk.host.requests, IsEmpty());
    EXPECT_EQ(Rename("A", Item::kRenameVoyage, std::string(10, '&')), 0);
    EXPECT_EQ(Rename("Full", Item::kRenameCategory, std::string(16, '"')), -4);
    EXPECT_EQ(Rename("Full", Item::kRenameCategory, std::string(15, '\\')), 0);
}

TEST_F(TreeEdgesTest, ANameIsTheOldOneAlsoWhenOnlyItsReplacedFormIs) {
    ASSERT_EQ(Rename("A", Item::kRenameVoyage, "it's"), 0);
    desk.ForgetRecords();
    EXPECT_EQ(Rename("it\uFF07s", Item::kRenameVoyage, " it's "), -13);
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_THAT(desk.host.requests, IsEmpty());
}

TEST_F(TreeEdgesTest, NamesOfVoyagesAndCategoriesAreTwoTables) {
    EXPECT_EQ(Rename("A", Item::kRenameVoyage, "Full"), 0) << "a category has it";
    EXPECT_EQ(Rename("Other", Item::kRenameCategory, "B"), 0) << "a voyage has it";
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(TreeEdgesTest, ACategorysNewNameUnfoldsAndSelectsItAndShowsStatuses) {
    EXPECT_EQ(Rename("Full", Item::kRenameCategory, "Fleet"), 0);
    EXPECT_TRUE(tree.IsItemExpanded(tree.Find("Fleet")));
    EXPECT_EQ(tree.Selected(), tree.Find("Fleet"));
    const auto asked = desk.host.Texts();
    ASSERT_GE(asked.size(), 3U);
    EXPECT_EQ(asked[0], "4 " + desk.Sent(Ask::kRenameCategory).at(0)) << "the name first";
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls), 2) << "then what the statuses need";
    EXPECT_EQ(ctrl.Context().voyageStatuses.size(), 2U);
}

TEST_F(TreeEdgesTest, ARefusedNameOfACategoryChangesNothing) {
    desk.Refuse(Ask::kRenameCategory);
    EXPECT_EQ(Rename("Full", Item::kRenameCategory, "Fleet"), -8);
    EXPECT_NE(tree.Find("Full"), kNoRow);
    EXPECT_FALSE(tree.IsItemExpanded(tree.Find("Full")));
    EXPECT_EQ(ctrl.Context().categoryNames.count("Fleet"), 0U);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(TreeEdgesTest, GeneratedNamesPassOverDestroyedAndRenamedOnes) {
    Click("Full", Item::kAddVoyage);
    ASSERT_EQ(TreeFixture::Rename("Kept"), 0);
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(box.text, "IDS_TREE_NEWVOYAGE - 1") << "the first one was renamed away";
    ctrl.Renaming().Commit();
    Click("IDS_TREE_NEWVOYAGE - 1", Item::kDeleteVoyage);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Click("IDS_TREE_NEWVOYAGE - 1", Item::kClearVoyage);
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(box.text, "IDS_TREE_NEWVOYAGE - 2") << "a destroyed name stays taken here";
    ASSERT_TRUE(ctrl.Categories().Add(ctrl.Categories().NewName()));
    EXPECT_EQ(ctrl.Categories().NewName(), "IDS_TREE_NEWVOYCATEGORY - 1");
}

TEST_F(TreeEdgesTest, ARefusedNewVoyageLeavesNoRowAndItsNameFree) {
    desk.Refuse(Ask::kAddVoyage);
    EXPECT_LT(Click("Full", Item::kAddVoyage), 0);
    EXPECT_FALSE(box.open);
    EXPECT_EQ(tree.Find("IDS_TREE_NEWVOYAGE - 0"), kNoRow);
    EXPECT_THAT(Said(), IsEmpty());
    desk.Heal();
    Click("Full", Item::kAddVoyage);
    EXPECT_EQ(box.text, "IDS_TREE_NEWVOYAGE - 0");
}

TEST_F(TreeEdgesTest, ANewVoyageStandsLastWhateverTheOrderUntilTheNextSort) {
    Click("Full", Item::kAscending);
    Click("Full", Item::kAddVoyage);
    ASSERT_EQ(TreeFixture::Rename("Z"), 0);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  B", "  A", "  Z", "Other"));
    Click("Full", Item::kDescending);
    Click("Full", Item::kAscending);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  Z", "  B", "  A", "Other"));
}

TEST_F(TreeEdgesTest, WithoutTheFleetPlugInNothingOpensAndTheBoxHasNoList) {
    EXPECT_EQ(Click("A", "Voyage_Alert"), 1);
    EXPECT_THAT(tree.windowsAtPointer, IsEmpty());
    EXPECT_EQ(Click("B", "Voyage_ShipInfo"), 1);
    EXPECT_EQ(Click("B", "Voyage_ReplaceShip"), 1);
    EXPECT_TRUE(vessels.box);
    EXPECT_EQ(vessels.text, "Nora");
    EXPECT_FALSE(vessels.list);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(TreeEdgesTest, ARefusedStepOutOfTheBinLeavesRowAndName) {
    Click("A", Item::kDeleteVoyage);
    Click("Other", Item::kDeleteCategory);
    messages.messages.clear();
    desk.Refuse(Ask::kRecoverVoyage);
    desk.Refuse(Ask::kRecoverCategory);
    EXPECT_LT(Click("A", Item::kRecoverVoyage), 0);
    EXPECT_LT(Click("Other", Item::kRecoverCategory), 0);
    EXPECT_EQ(tree.GetItemStyle(tree.Find("A")), kDeletedVoyageStyle);
    EXPECT_EQ(tree.GetItemStyle(tree.Find("Other")), kDeletedCategoryStyle);
    EXPECT_EQ(ctrl.Context().voyageNames["A"], InRecycleBin);
    EXPECT_EQ(ctrl.Context().categoryNames["Other"], InRecycleBin);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(TreeEdgesTest, TheKeyboardGoesToTheRowThatComesIntoThePlaceOfOneThatGoes) {
    ctrl.SetShowDeleted(false);
    for (const char* name : {"Full", "Other"}) {
        tree.Expand(tree.Find(name), true);
    }
    Click("A", Item::kDeleteVoyage);
    EXPECT_EQ(tree.GetItemText(tree.cursor), "B");
    EXPECT_EQ(tree.Selected(), kNoRow) << "nothing is pressed by that";
    Click("B", Item::kDeleteVoyage);
    EXPECT_EQ(tree.GetItemText(tree.cursor), "Full") << "an empty category has the keyboard itself";
}

TEST_F(TreeEdgesTest, TheKeyboardFollowsARecoveredVoyage) {
    Click("A", Item::kDeleteVoyage);
    ASSERT_THAT(tree.Shown(), ElementsAre("Full", "  B", "  A", "Other"));
    EXPECT_EQ(tree.GetItemText(tree.cursor), "B");
    Click("A", Item::kRecoverVoyage);
    EXPECT_THAT(tree.Shown(), ElementsAre("Full", "  A", "  B", "Other"));
    EXPECT_EQ(tree.GetItemText(tree.cursor), "A");
    Click("B", Item::kDeleteVoyage);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    Click("B", Item::kClearVoyage);
    EXPECT_EQ(tree.GetItemText(tree.cursor), "A") << "the last row that is left";
}

TEST_F(TreeEdgesTest, AVoyageInTheBinIsNotToldToGetPortCalls) {
    desk.AddVoyage("Full", {.name = "Bare", .state = InRecycleBin});
    store.Clear();
    ctrl.ReloadTree();
    std::string line = "before";
    ctrl.Context().line = [&line](const std::string& text) { line = text; };
    Press("Bare");
    EXPECT_EQ(line, "") << "it cannot be opened there";
}

TEST_F(TreeEdgesTest, AQuestionThatIsClosedWithoutAnAnswerDestroysNothing) {
    Click("A", Item::kDeleteVoyage);
    Click("Other", Item::kDeleteCategory);
    desk.ForgetRecords();
    messages.Answer(Interface::SysMsgHandleRes::None);
    EXPECT_EQ(Click("A", Item::kClearVoyage), 1);
    messages.Answer(Interface::SysMsgHandleRes::None);
    EXPECT_EQ(Click("Other", Item::kClearCategory), 1);
    EXPECT_EQ(Said().size(), 2U);
    EXPECT_THAT(desk.host.requests, IsEmpty());
    EXPECT_NE(tree.Find("A"), kNoRow);
    EXPECT_NE(tree.Find("Other"), kNoRow);
}

}  // namespace Tarvik::Seaplan
