// SPDX-License-Identifier: MIT
/// The door of the port distance table, and the dialog in which it is kept as a voyage.
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/panels/distances/CPortDistTabDlg.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/tests/RecordingKeepView.h"
#include "seaplan/panels/tests/TreeViews.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

class KeepTableTest : public PortCallFixture {
  protected:
    RecordingTree rows;
    RecordingTextBox renameBox;
    RecordingVesselView vessels;
    RecordingChoices sortPopup;
    SeaplanTreeCtrl tree{{store, desk.catalog, desk.voyages, rows, renameBox, vessels, sortPopup}};
    RecordingKeepView keep;
    static constexpr Rect kPanel{0, 0, 700, 500};
    std::unique_ptr<CPortDistTabDlg> door = std::make_unique<CPortDistTabDlg>(
        CPortDistTabDlg::Parts{keep, tree, [this](bool) { return &panel; }, [] { return kPanel; }});
    CPortDistTabDlg& dialog = *door;

    KeepTableTest() {
        keepTable = [this] { dialog.Open(); };
        for (const char* name : {"Plan", "plans", "Tankers"}) {
            desk.AddCategory(name);
        }
        store.Clear();
        if (tree.ReloadTree() != 0) {
            throw std::runtime_error("the tree cannot be loaded");
        }
        desk.ForgetRecords();
    }
    static void ShowPanel(int code) {
        const Interface::PanelShow show{code, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    }
    static void SendPort(const std::string& name) { Interface::Call(Interface::Bus::AddPortName, &name); }
    static bool TakesPorts() {
        const bool* takes = Interface::Call(Interface::Bus::TakesPortNames);
        return takes != nullptr && *takes;
    }
    /// A table of these ports, for which Save was pressed.
    void AskToKeep(std::initializer_list<const char*> names = {"ROTTERDAM", "HAMBURG", "GDANSK"}) {
        for (const char* name : names) {
            SendPort(name);
        }
        panel.Commands().OnSave();
    }
    void TypeNames(const std::string& category, const std::string& voyage) {
        keep.category = category;
        dialog.OnCategoryTyped(category);
        keep.voyage = voyage;
        dialog.OnVoyageTyped(voyage);
    }
    void KeepAs(const std::string& category, const std::string& voyage) {
        TypeNames(category, voyage);
        dialog.OnOk();
    }
    /// Numbers of the requests, in order.
    std::vector<int> Commands() const {
        std::vector<int> out;
        for (const auto& request : desk.host.requests) {
            out.push_back(request.Command());
        }
        return out;
    }
};

}  // namespace

TEST_F(KeepTableTest, TheEventOpensTheTableAndLeavesOneThatIsOpen) {
    ShowPanel(3);
    EXPECT_FALSE(view.visible) << "another panel's";
    EXPECT_FALSE(TakesPorts());
    ShowPanel(21);
    EXPECT_TRUE(view.visible);
    EXPECT_TRUE(view.state.distanceTable);
    EXPECT_TRUE(TakesPorts());
    SendPort("ROTTERDAM");
    ShowPanel(21);
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM") << "its rows stay";
    Open(kept);
    EXPECT_FALSE(TakesPorts());
    ShowPanel(21);
    EXPECT_EQ(Cell(0, ColPort), " ");
    EXPECT_TRUE(view.state.distanceTable);
}

TEST_F(KeepTableTest, PortsArriveThroughTheService) {
    SendPort("");
    EXPECT_FALSE(view.visible) << "an empty name is ignored";
    Interface::Call(Interface::Bus::AddPortName, nullptr);
    EXPECT_FALSE(view.visible);
    Open(kept);
    Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::No);
    SendPort("HAMBURG");
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    SendPort("GDANSK");
    EXPECT_THAT(Column(ColPort), ElementsAre("HAMBURG", "GDANSK", " ", " ", " ", " "));
}

TEST_F(KeepTableTest, ServiceAndEventEndWithTheDialog) {
    door.reset();
    EXPECT_FALSE(Interface::IsOffered(Interface::Bus::AddPortName));
    ShowPanel(21);
    EXPECT_FALSE(view.visible);
}

TEST_F(KeepTableTest, ItOpensAboveThePanelWithEmptyFields) {
    AskToKeep();
    EXPECT_TRUE(keep.visible);
    EXPECT_EQ(keep.category, "");
    EXPECT_EQ(keep.voyage, "");
    EXPECT_EQ(keep.caption, "IDS_PORTDISTAB_TITLE");
    EXPECT_EQ(keep.textsApplied, 1);
    EXPECT_FALSE(keep.listShown);
    EXPECT_EQ(keep.place, (Rect{200, 150, 500, 350}));
    EXPECT_TRUE(view.visible);
    EXPECT_TRUE(view.Enabled()) << "the panel goes on below it";
}

TEST_F(KeepTableTest, TypingOffersTheNamesThatBeginWithIt) {
    AskToKeep();
    dialog.OnCategoryTyped("Pl");
    EXPECT_TRUE(keep.listShown);
    EXPECT_THAT(keep.names, UnorderedElementsAre("Plans", "Plan")) << "the case counts";
    EXPECT_EQ(keep.listPlace, (Rect{100, 76, 260, 122})) << "two names below the field";
    dialog.OnCategoryTyped("Plans");
    EXPECT_THAT(keep.names, ElementsAre("Plans")) << "a name shorter than the text is dropped";
    dialog.OnCategoryTyped("Plans 2");
    EXPECT_FALSE(keep.listShown) << "no name is left";
    dialog.OnCategoryTyped("");
    EXPECT_THAT(keep.names, UnorderedElementsAre("Plans", "Plan", "plans", "Tankers"));
    EXPECT_EQ(keep.focusedRow, -1) << "the keyboard stays in the field";
}

TEST_F(KeepTableTest, ATextThatTheProgramSetsOnlyHidesTheList) {
    AskToKeep();
    dialog.OnCategoryTyped("Pl");
    // A field that reports what the program writes as if it were typed.
    struct Echo final : RecordingPanelWindow<KeepTableView>, DropList {
        CPortDistTabDlg* to = nullptr;
        int shown = 0;
        void SetCategory(const std::string& text, bool) override {
            if (to != nullptr) {
                to->OnCategoryTyped(text);
            }
        }
        void SetVoyageName(const std::string&) override {}
        Rect CategoryPlace() const override { return {}; }
        DropList& Names() override { return *this; }
        void ShowNote(const std::string&) override {}
        void ShowList(const Rect&, const std::vector<std::string>&, int) override { ++shown; }
        void HideList() override {}
        void FocusList(int) override {}
    } echo;
    CPortDistTabDlg other({echo, tree, [this](bool) { return &panel; }, [] { return kPanel; }});
    echo.to = &other;
    other.Open();
    EXPECT_EQ(echo.shown, 0);
    other.OnCategoryTyped("Pl");
    EXPECT_EQ(echo.shown, 1);
    other.OnNameChosen(0);
    EXPECT_EQ(echo.shown, 1);
}

TEST_F(KeepTableTest, EnterTakesTheTextAndDownGoesToTheList) {
    AskToKeep();
    EXPECT_FALSE(dialog.OnCategoryKey({Key::Down})) << "no list is shown";
    dialog.OnCategoryTyped("Pl");
    EXPECT_TRUE(dialog.OnCategoryKey({Key::Down}));
    EXPECT_EQ(keep.focusedRow, 0);
    EXPECT_TRUE(dialog.OnCategoryKey({Key::Enter}));
    EXPECT_FALSE(keep.listShown);
    EXPECT_EQ(keep.category, "Pl");
    EXPECT_TRUE(keep.selected);
    dialog.OnCategoryTyped("");
    keep.selected = false;
    dialog.OnCategoryKey({Key::Enter});
    EXPECT_TRUE(keep.listShown) << "nothing to select";
    EXPECT_FALSE(keep.selected);
    EXPECT_TRUE(dialog.OnCategoryKey({Key::Escape}));
    EXPECT_FALSE(keep.listShown);
    EXPECT_FALSE(dialog.OnCategoryKey({Key::Escape})) << "now it is the dialog's";
}

TEST_F(KeepTableTest, ANameFromTheListGoesIntoTheFieldSelected) {
    AskToKeep();
    dialog.OnCategoryTyped("Ta");
    dialog.OnNameChosen(0);
    EXPECT_EQ(keep.category, "Tankers");
    EXPECT_TRUE(keep.selected);
    EXPECT_FALSE(keep.listShown);
    dialog.OnVoyageTyped("V1");
    dialog.OnOk();
    EXPECT_EQ(desk.Voyage("V1").vn, "V1") << "the chosen name counts";
    EXPECT_EQ(desk.Count(Ask::kAddCategory), 0);
}

TEST_F(KeepTableTest, TheArrowTogglesTheListOfAllNamesAndLoadsTheTreeForIt) {
    AskToKeep();
    store.Clear();
    rows.DeleteAllItems();
    dialog.OnCategoryTyped("");
    EXPECT_FALSE(keep.listShown) << "nothing is loaded";
    dialog.OnArrow();
    EXPECT_THAT(keep.names, UnorderedElementsAre("Plans", "Plan", "plans", "Tankers"));
    EXPECT_TRUE(keep.listShown);
    EXPECT_EQ(desk.Count(Ask::kLoad), 1);
    dialog.OnArrow();
    EXPECT_FALSE(keep.listShown);
    dialog.OnArrow();
    EXPECT_EQ(desk.Count(Ask::kLoad), 1) << "once";
}

TEST_F(KeepTableTest, LeavingTheCategoryProposesAVoyageName) {
    texts.given[u"IDS_TREE_NEWVOYAGE"] = u"New";
    AskToKeep();
    dialog.OnCategoryLeft();
    EXPECT_EQ(keep.voyage, "New - 0");
    KeepAs("Plans", keep.voyage);
    dialog.Open();
    dialog.OnCategoryLeft();
    EXPECT_EQ(keep.voyage, "New - 1") << "the first is taken now";
}

TEST_F(KeepTableTest, CancelLeavesTheTable) {
    AskToKeep();
    dialog.OnCategoryTyped("Pl");
    dialog.OnClose();
    EXPECT_FALSE(keep.visible);
    EXPECT_FALSE(keep.listShown);
    EXPECT_EQ(Cell(2, ColPort), "GDANSK");
    EXPECT_TRUE(view.state.changed);
    EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(KeepTableTest, FewerThanTwoPlacesAreRefused) {
    SendPort("ROTTERDAM");
    SendPort("ROTTERDAM");
    dialog.Open();
    KeepAs("Plans", "V1");
    EXPECT_EQ(LastMessage(), "IDS_PORTDISTAB_SAVEPORTWARN");
    EXPECT_TRUE(keep.visible);
    EXPECT_THAT(Commands(), IsEmpty());
    EXPECT_EQ(Cell(1, ColPort), "ROTTERDAM");
}

TEST_F(KeepTableTest, EmptyAndTakenNamesAreToldAndTheDialogStays) {
    AskToKeep();
    KeepAs("", "V1");
    EXPECT_EQ(LastMessage(), "IDS_PORTDISTAB_NOINFWARN");
    KeepAs("Plans", "");
    EXPECT_EQ(LastMessage(), "IDS_PORTDISTAB_NOINFWARN");
    KeepAs("Plans", "Saved");
    EXPECT_EQ(LastMessage(), "IDS_VOYTREE_SAMENAME_WARN_FORDISTAB");
    EXPECT_TRUE(keep.visible);
    EXPECT_EQ(keep.note, "") << "a box has told it";
    EXPECT_THAT(Commands(), IsEmpty());
    EXPECT_EQ(Cell(2, ColPort), "GDANSK");
}

TEST_F(KeepTableTest, OkMakesCategoryAndVoyageCalculatesAndSaves) {
    AskToKeep();
    KeepAs("Distances", "RTM-GDN");
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_THAT(Commands(), ElementsAre(4, 5, 1, 11, 7, 8, 9));
    const VoyInfo& voyage = desk.Voyage("RTM-GDN");
    EXPECT_EQ(desk.Category("Distances").cn, "Distances");
    EXPECT_EQ(voyage.portCalls.size(), 3U);
    EXPECT_NEAR(voyage.portCalls[2].distance, 240, 0.01);
    EXPECT_THAT(desk.Sent(Ask::kAddCategory), ElementsAre(R"({ci:"",cn:"Distances",type:0})"));
    EXPECT_THAT(desk.Sent(Ask::kAddVoyage),
                ElementsAre(R"({ci:")" + desk.Category("Distances").ci +
                            R"(",vi:"",vn:"RTM-GDN",type:"0",vsi:"",vr:"0",va:"0"})"));
    EXPECT_THAT(desk.Sent(Ask::kSavePortCalls),
                ElementsAre(R"([")" + voyage.vi +
                            R"(","0|40001|ROTTERDAM|L|0.000|0.000|0.0",)"
                            R"("1|40003|HAMBURG|D|18.520|0.000|0.0","2|40004|GDANSK|D|18.520|0.000|0.0"])"));
    EXPECT_FALSE(keep.visible);
    EXPECT_THAT(saved, ElementsAre(voyage.vi));
    EXPECT_EQ(panel.NextVoyage(), voyage.vi);
    EXPECT_FALSE(view.state.changed);
    EXPECT_TRUE(view.state.canOpenBook);
    EXPECT_EQ(Cell(2, ColDistance), "240.00");
}

TEST_F(KeepTableTest, ACalculatedTableIsSavedWithItsRoute) {
    AskToKeep();
    panel.Commands().OnCalculate();
    KeepAs("Plans", "V1");
    EXPECT_THAT(Commands(), ElementsAre(1, 5, 11, 7, 8, 9));
}

TEST_F(KeepTableTest, TheKeptTableGoesOnAsATable) {
    AskToKeep();
    KeepAs("Plans", "V1");
    const std::string vi = desk.Voyage("V1").vi;
    EXPECT_TRUE(view.state.distanceTable);
    EXPECT_EQ(view.caption, "IDS_PORTCALL_DISTTABTITLE");
    EXPECT_TRUE(TakesPorts());
    SendPort("ROUEN");
    EXPECT_EQ(Cell(3, ColPort), "ROUEN");
    EXPECT_EQ(store.voyages[vi].portCalls.size(), 3U) << "the saved voyage is not affected";
    desk.ForgetRecords();
    panel.Commands().OnSave();
    EXPECT_FALSE(keep.visible) << "the voyage is there";
    EXPECT_EQ(store.voyages[vi].portCalls.size(), 4U);
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 0);
}

TEST_F(KeepTableTest, LeavingAKeptTableThatWasChangedSavesItsVoyageOnYes) {
    AskToKeep();
    KeepAs("Plans", "V1");
    const std::string vi = desk.Voyage("V1").vi;
    SendPort("ROUEN");
    messages.Answer(SysMsgHandleRes::Yes);
    Open(kept);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(store.voyages[vi].portCalls.size(), 4U);
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    EXPECT_EQ(view.caption, "IDS_PORTCALL_TITLE");
}

TEST_F(KeepTableTest, YesToLeavingATableOpensTheDialogAndNothingOfItIsLost) {
    for (const char* name : {"ROTTERDAM", "HAMBURG", "GDANSK"}) {
        SendPort(name);
    }
    messages.Answer(SysMsgHandleRes::Yes);
    panel.SetVoyage(kept);
    EXPECT_EQ(panel.FillForVoyage(-1), -4);
    EXPECT_TRUE(keep.visible);
    EXPECT_TRUE(view.state.distanceTable);
    KeepAs("Plans", "V1");
    EXPECT_EQ(desk.Voyage("V1").portCalls.size(), 3U);
    Open(kept);
    EXPECT_EQ(messages.messages.size(), 1U) << "it was saved, and is left without a question";
    EXPECT_EQ(view.caption, "IDS_PORTCALL_TITLE");
}

TEST_F(KeepTableTest, ADialogWhoseTableWasLeftMeanwhileKeepsNothing) {
    AskToKeep();
    messages.Answer(SysMsgHandleRes::No);
    Open(kept);
    Type(1, ColSpeed, "12");
    desk.ForgetRecords();
    KeepAs("Plans", "V1");
    EXPECT_EQ(keep.note, "IDS_VIEW_TABLEGONE");
    EXPECT_EQ(desk.Count(Ask::kAddVoyage) + desk.Count(Ask::kSavePortCalls), 0)
        << "the rows on show are another voyage's";
    EXPECT_EQ(panel.Sheet().voyageId, kept);
    EXPECT_TRUE(view.state.changed);
}

TEST_F(KeepTableTest, AFailedSaveIsToldAndLeavesTheVoyageWithoutPortCalls) {
    AskToKeep();
    desk.Refuse(Ask::kSavePortCalls);
    KeepAs("Plans", "V1");
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_THAT(desk.Voyage("V1").portCalls, IsEmpty());
    EXPECT_FALSE(keep.visible);
    EXPECT_TRUE(view.state.changed) << "the rows are still to be saved";
    desk.Heal();
    panel.Commands().OnSave();
    EXPECT_EQ(desk.Voyage("V1").portCalls.size(), 3U);
}

TEST_F(KeepTableTest, AServerThatTakesNoVoyageIsToldInTheDialog) {
    AskToKeep();
    desk.Refuse(Ask::kAddVoyage);
    KeepAs("Plans", "V1");
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(keep.note, "IDS_VIEW_TABLENOTKEPT");
    EXPECT_TRUE(keep.visible);
    EXPECT_EQ(panel.Sheet().voyageId, "DISTANCE TABLE USE");
    desk.Heal();
    dialog.OnOk();
    EXPECT_EQ(keep.note, "");
    EXPECT_FALSE(keep.visible);
}

TEST_F(KeepTableTest, OkLoadsATreeThatIsNotLoaded) {
    AskToKeep();
    store.Clear();
    rows.DeleteAllItems();
    KeepAs("Plans", "V1");
    EXPECT_EQ(desk.Count(Ask::kLoad), 1);
    EXPECT_EQ(desk.Count(Ask::kAddCategory), 0) << "the category is known now";
    EXPECT_EQ(desk.Voyage("V1").portCalls.size(), 3U);
}

TEST_F(KeepTableTest, LogoutHidesIt) {
    AskToKeep();
    dialog.OnLogout();
    EXPECT_FALSE(keep.visible);
}

TEST_F(KeepTableTest, ATableWithoutAFirstRowIsRefusedBeforeAnythingIsMade) {
    panel.OpenDistanceTable();
    Type(1, ColPort, "ROTTERDAM");
    Type(2, ColPort, "HAMBURG");
    panel.Commands().OnSave();
    desk.ForgetRecords();
    KeepAs("Plan", "Kept");
    EXPECT_EQ(LastMessage(), "IDS_PORTDISTAB_SAVEPORTWARN");
    EXPECT_TRUE(keep.visible);
    EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(KeepTableTest, SavePressedAgainLeavesTheNamesThatAreTyped) {
    AskToKeep();
    TypeNames("Plan", "Kept");
    panel.Commands().OnSave();
    EXPECT_EQ(keep.category, "Plan");
    EXPECT_EQ(keep.voyage, "Kept");
    dialog.OnOk();
    EXPECT_FALSE(keep.visible);
    EXPECT_EQ(desk.Voyage("Kept").vn, "Kept");
}

TEST_F(KeepTableTest, TheReasonWhyItStaysIsToldInTheLanguageInForce) {
    AskToKeep();
    desk.Refuse(Ask::kAddVoyage);
    KeepAs("Plan", "Kept");
    ASSERT_EQ(keep.note, "IDS_VIEW_TABLENOTKEPT");
    texts.given[u"IDS_VIEW_TABLENOTKEPT"] = u"noch nicht";
    dialog.ApplyLanguage();
    EXPECT_EQ(keep.note, "noch nicht");
}

}  // namespace Tarvik::Seaplan
