// SPDX-License-Identifier: MIT
/// Remarks and consumption as they open from the tree's items and from the rows of the port call table.
#include "seaplan/panels/bunker/CBunkerDlg.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/tests/RemarkFixture.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/NoteCommands.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class FiguresView final : public RecordingPanelWindow<BunkerView> {
  public:
    BunkerFigures figures{};
    bool editable = false;
    void ShowFigures(const BunkerFigures& shown) override { figures = shown; }
    void ShowState(bool, bool canEdit) override { editable = canEdit; }
};

class TreePanelsTest : public TreeFixture {
  protected:
    RecordingRemarkView remarkView;
    CRemarkPanel remarks{{remarkView,
                          [] {
                              return Point{460, 240};
                          },
                          [this](RemarkOwnerRow, bool on) { ctrl.SetRemarkMark(kNoRow, on); }}};
    FiguresView figuresView;
    std::vector<BunkerFigures> savedFigures;
    CBunkerDlg figures{{figuresView,
                        [this](const BunkerFigures& set) {
                            savedFigures.push_back(set);
                            return 0;
                        },
                        [] { return std::string("North"); },
                        [] {
                            return Rect{0, 0, 100, 100};
                        }}};

    TreePanelsTest() {
        ctrl.Notes().SetRemarks(
            [this](TreeRow row, int type, const std::string& id, const std::string& name) {
                return remarks.Open(row, type, id, name);
            });
        ctrl.Notes().SetConsumption(
            [this](const BunkerFigures& set, bool editable) { figures.Open(set, editable); });
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "North", .calls = PanelDesk::Calls(1)});
        desk.AddVoyage("Full", {.name = "South"});
        ctrl.ReloadTree();
        desk.ForgetRecords();
    }
    void Note(const std::string& subject) {
        remarks.Editing().OnSubjectTyped(subject);
        remarks.Editing().SaveClick();
    }
    void DeleteFirst() {
        messages.Answer(Interface::SysMsgHandleRes::Yes);
        remarks.List().OnItemEvent(ClistCtrlViewEx::FirstEvent, 0, RemarkItem::kDelete);
    }
};

class RowRemarksTest : public PortCallFixture {
  protected:
    RecordingRemarkView remarkView;
    CRemarkPanel remarks{{remarkView, [] { return Point{}; }}};
    CPortCallPanelDlg withRemarks{
        {desk.catalog, desk.voyages, ports, view, [] { return kTree; }, {}, [this] { return &remarks; }}};

    RowRemarksTest() {
        withRemarks.SetVoyage(kept);
        withRemarks.FillForVoyage(-1);
        desk.ForgetRecords();
    }
};

}  // namespace

TEST_F(TreePanelsTest, TheMarkOfACategoryFollowsItsFirstAndItsLastRemark) {
    EXPECT_TRUE(ctrl.HasCommand("Voyage.parent.svr2.non"));
    EXPECT_TRUE(ctrl.HasCommand("Voyage.parent.svr2.exist"));
    EXPECT_EQ(Click("Full", "Voyage.parent.svr2.non"), 1);
    EXPECT_THAT(desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"2\",objectid:\"" + CategoryId("Full") + "\"}"));
    EXPECT_TRUE(remarkView.visible);
    Note("One");
    EXPECT_EQ(desk.Category("Full").crk, 1);
    EXPECT_TRUE(Shows("Full", "Voyage.parent.svr2.exist"));
    EXPECT_FALSE(Shows("Full", "Voyage.parent.svr2.non"));
    DeleteFirst();
    EXPECT_EQ(desk.Category("Full").crk, 0);
    EXPECT_TRUE(Shows("Full", "Voyage.parent.svr2.non"));
}

TEST_F(TreePanelsTest, TheMarkOfAVoyageIsFoundAgainAfterARebuild) {
    EXPECT_EQ(Click("North", "Voyage.child.svr3.non"), 1);
    EXPECT_THAT(desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"3\",objectid:\"" + Id("North") + "\"}"));
    ctrl.ReloadTree();
    Note("One");
    EXPECT_EQ(Voyage("North").vrk, 1);
    EXPECT_TRUE(Shows("North", "Voyage.child.svr3.exist"));
    EXPECT_FALSE(Shows("South", "Voyage.child.svr3.exist"));
    EXPECT_EQ(Click("North", "Voyage.child.svr3.exist"), 1);
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 1) << "the same object, from memory";
    EXPECT_EQ(remarkView.subject, "One");
    ctrl.RebuildCategory(CategoryId("Full"));
    DeleteFirst();
    EXPECT_EQ(Voyage("North").vrk, 0);
    EXPECT_TRUE(Shows("North", "Voyage.child.svr3.non"));
}

TEST_F(TreePanelsTest, ATextThatIsSavedOnTheWayToAnotherObjectMarksItsOwn) {
    Click("North", "Voyage.child.svr3.non");
    remarks.Editing().OnSubjectTyped("One");
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    EXPECT_EQ(Click("South", "Voyage.child.svr3.non"), 1);
    EXPECT_EQ(Voyage("North").vrk, 1);
    EXPECT_EQ(Voyage("South").vrk, 0);
    Note("Two");
    EXPECT_EQ(Voyage("South").vrk, 1);
}

TEST_F(TreePanelsTest, AnotherObjectWaitsForATextThatCannotBeSaved) {
    Click("North", "Voyage.child.svr3.non");
    remarks.Editing().OnSubjectTyped("One");
    desk.Refuse(Ask::kAddRemark);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    EXPECT_LT(Click("South", "Voyage.child.svr3.non"), 0);
    desk.Heal();
    remarks.Editing().SaveClick();
    EXPECT_EQ(Voyage("North").vrk, 1) << "the mark is still the old object's";
    EXPECT_EQ(Voyage("South").vrk, 0);
}

TEST_F(TreePanelsTest, ConsumptionOpensWithTheFiguresOfAVoyageWithPortCalls) {
    EXPECT_TRUE(ctrl.HasCommand("Voyage.child.svr5"));
    Press("North");
    Voyage("North").figures = {1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(Click("North", "Voyage.child.svr5"), 1);
    EXPECT_TRUE(figuresView.visible);
    EXPECT_EQ(figuresView.figures, (BunkerFigures{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_TRUE(figuresView.editable);
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(TreePanelsTest, TheFiguresOfAFinishedVoyageCannotBeChanged) {
    Press("North");
    desk.clock.SetUtc(2024, 6, 1);
    Click("North", "Voyage.child.svr5");
    EXPECT_TRUE(figuresView.visible);
    EXPECT_FALSE(figuresView.editable);
    const Util::_datetime_t arrival = Voyage("North").portCalls.back().eta;
    desk.clock.AdvanceSeconds(arrival.to_gmt_timer() + 1 - desk.clock.NowUtcCsecs() / 100);
    Click("North", "Voyage.child.svr5");
    EXPECT_FALSE(figuresView.editable) << "just arrived";
    desk.clock.AdvanceSeconds(-2);
    Click("North", "Voyage.child.svr5");
    EXPECT_TRUE(figuresView.editable) << "about to arrive";
}

TEST_F(TreePanelsTest, WithoutPortCallsTheWarningComesAndNoDialog) {
    Press("South");
    tree.enabled.clear();
    EXPECT_EQ(Click("South", "Voyage.child.svr5"), 1);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_TREE_WARNCOUSUMNOVOY");
    EXPECT_EQ(messages.messages[0].flags, 0);
    EXPECT_THAT(tree.enabled, ElementsAre(false, true));
    EXPECT_FALSE(figuresView.visible);
}

TEST_F(RowRemarksTest, APortsRemarksOpenForTheVoyageAndItsName) {
    EXPECT_EQ(withRemarks.Rows().OnItemImage(1, "itemRemark"), 0);
    EXPECT_THAT(desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"4\",objectid:\"" + kept + "HAMBURG\"}"));
    EXPECT_TRUE(remarkView.visible);
    remarks.Editing().OnSubjectTyped("Berth 7");
    remarks.Editing().SaveClick();
    EXPECT_THAT(desk.Sent(Ask::kAddRemark),
                ElementsAre("{optype:\"1\",type:\"4\",objectid:\"" + kept +
                            "HAMBURG\",seq:\"1\",subject:\"Berth 7\",body:\"\"}"));
    EXPECT_FALSE(view.state.changed) << "the table has not changed";
}

TEST_F(RowRemarksTest, APortOfADistanceTableHasAKeyOfTheTables) {
    EXPECT_EQ(withRemarks.OpenDistanceTable(), 0);
    EXPECT_EQ(withRemarks.AddPortByName("HAMBURG"), 0);
    desk.ForgetRecords();
    EXPECT_EQ(withRemarks.Rows().OnItemImage(0, "itemRemark"), 0);
    EXPECT_THAT(desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"4\",objectid:\"DISTANCE TABLE USEHAMBURG\"}"));
}

TEST_F(RowRemarksTest, ARowWithoutAPortHasNoRemarks) {
    EXPECT_EQ(withRemarks.Rows().OnItemImage(4, "itemRemark"), -1);
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 0);
    EXPECT_TRUE(ActionsOf(view.table, 1).remark);
    EXPECT_FALSE(ActionsOf(view.table, 4).remark);
}

}  // namespace Tarvik::Seaplan
