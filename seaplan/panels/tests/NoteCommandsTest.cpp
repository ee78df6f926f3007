// SPDX-License-Identifier: MIT
/// Remarks and consumption, opened from the rows of the tree.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class NoteCommandsTest : public TreeFixture {
  protected:
    NoteCommandsTest() {
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(5)});
        desk.AddVoyage("Full", {.name = "B"});
        ctrl.ReloadTree();
        ctrl.Notes().SetRemarks(
            [this](TreeRow row, int type, const std::string& id, const std::string& name) {
                opened.push_back(tree.GetItemText(row) + " " + std::to_string(type) + " " + id + " " + name);
                return answer;
            });
        ctrl.Notes().SetConsumption([this](const BunkerFigures& figures, bool editable) {
            shown.push_back(std::to_string(figures.front()) + (editable ? " editable" : " fixed"));
        });
    }

    int answer = 0;
    std::vector<std::string> opened;  ///< "row type id name" of each opening of the remarks
    std::vector<std::string> shown;   ///< the first figure of each opening of the consumption, and its form
};

}  // namespace

TEST_F(NoteCommandsTest, BothRemarkImagesOfARowOpenItsRemarks) {
    for (const char* item : {"Voyage.parent.svr2.non", "Voyage.parent.svr2.exist"}) {
        EXPECT_EQ(Click("Full", item), 1) << item;
    }
    for (const char* item : {"Voyage.child.svr3.non", "Voyage.child.svr3.exist"}) {
        EXPECT_EQ(Click("A", item), 1) << item;
    }
    const std::string category = "Full 2 " + CategoryId("Full") + " Full";
    const std::string voyage = "A 3 " + Id("A") + " A";
    EXPECT_THAT(opened, ElementsAre(category, category, voyage, voyage));
}

TEST_F(NoteCommandsTest, TheMarkGoesToTheRowWhoseRemarksOpenedLast) {
    Click("A", "Voyage.child.svr3.non");
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_EQ(Voyage("A").vrk, 1);
    Click("B", "Voyage.child.svr3.non");
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_TRUE(Shows("B", "Voyage.child.svr3.exist"));
    Click("Full", "Voyage.parent.svr2.non");
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_TRUE(Shows("Full", "Voyage.parent.svr2.exist"));
}

TEST_F(NoteCommandsTest, WhileRemarksCannotBeLeftTheMarkStaysTheirs) {
    Click("A", "Voyage.child.svr3.non");
    answer = -1;
    EXPECT_LT(Click("B", "Voyage.child.svr3.non"), 0);
    ctrl.SetRemarkMark(kNoRow, true);
    EXPECT_TRUE(Shows("A", "Voyage.child.svr3.exist"));
    EXPECT_FALSE(Shows("B", "Voyage.child.svr3.exist"));
}

TEST_F(NoteCommandsTest, AnItemOfTheOtherKindOfRowDoesNothing) {
    EXPECT_EQ(Click("A", "Voyage.parent.svr2.non"), 1);
    EXPECT_EQ(Click("Full", "Voyage.child.svr3.non"), 1);
    EXPECT_EQ(Click("Full", "Voyage.child.svr5"), 1);
    EXPECT_THAT(opened, IsEmpty());
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(NoteCommandsTest, AVoyageWithoutPortCallsGetsTheWarningAndNoDialog) {
    Press("B");
    EXPECT_EQ(Click("B", "Voyage.child.svr5"), 1);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages.front().text, "IDS_TREE_WARNCOUSUMNOVOY");
    EXPECT_THAT(tree.enabled, ElementsAre(false, true)) << "the tree is disabled while the box is up";
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(NoteCommandsTest, TheFiguresOfAFinishedVoyageCannotBeChanged) {
    Voyage("A").figures.front() = 12;
    Press("A");
    ASSERT_EQ(Voyage("A").portCalls.size(), 2U);
    Click("A", "Voyage.child.svr5");
    Voyage("A").portCalls.back().eta = Util::_datetime_t();
    Click("A", "Voyage.child.svr5");
    EXPECT_THAT(shown, ElementsAre("12 editable", "12 fixed"));
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(NoteCommandsTest, WithoutTheirPanelsTheImagesHaveNoCommand) {
    SeaplanTreeCtrl bare({desk.store, desk.catalog, desk.voyages, tree, box, vessels, sortPopup});
    for (const char* item : {"Voyage.parent.svr2.non", "Voyage.child.svr3.exist", "Voyage.child.svr5"}) {
        EXPECT_FALSE(bare.HasCommand(item)) << item;
        EXPECT_TRUE(ctrl.HasCommand(item)) << item;
    }
}

}  // namespace Tarvik::Seaplan
