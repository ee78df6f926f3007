// SPDX-License-Identifier: MIT
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/SysMsgSink.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "testsupport/ManualTimer.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

/// Notes at each message whether the window is still on show.
class WatchingSink final : public Interface::SysMsgSink {
  public:
    explicit WatchingSink(const RecordingPanelWindow<PanelWindow>& window) : window_(window) { Set(this); }
    Interface::SysMsgHandleRes SyncSendMsg(int, const std::u16string&, int, void*,
                                           const std::u16string&) override {
        visible.push_back(window_.visible);
        return Interface::SysMsgHandleRes::None;
    }
    std::vector<bool> visible;

  private:
    const RecordingPanelWindow<PanelWindow>& window_;
};

class SeaplanViewDlgTest : public TreeFixture {
  protected:
    RecordingPanelWindow<PanelWindow> window;
    RecordingChoices filterPopup;
    RecordingSearch searchView;
    SeaplanViewDlg panel{{store, desk.catalog, desk.voyages, window, filterPopup, searchView, ctrl, nullptr}};

    SeaplanViewDlgTest() { panel.RegisterHost(); }
    void Toggle(int code = 3) {
        const Interface::PanelShow show{code, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    }
    std::string AddVessel(const std::string& vi) {
        const char* answer = Interface::Call(Interface::Bus::AddVessel, &vi);
        return answer == nullptr ? "ok" : answer;
    }
    /// The panel with a category's name under the hand; `typed` stands in the box.
    void TypeIn(const std::string& category, const std::string& typed) {
        if (desk.store.categories.empty()) {
            desk.AddCategory(category);
        }
        if (!window.visible) {
            Toggle();
        }
        Click(category, Item::kRenameCategory);
        ASSERT_TRUE(box.open);
        Type(typed);
    }
    long Loads() const { return desk.Count(Ask::kLoad); }
    std::size_t Timers() const { return desk.timer.Running(); }
};

}  // namespace

TEST_F(SeaplanViewDlgTest, TheChartsButtonShowsAndHidesThePanelWithItsTimer) {
    desk.AddCategory("Full");
    Toggle();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.place, (Rect{150, 240, 460, 700}));
    EXPECT_EQ(Timers(), 1U);
    Toggle();
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(Timers(), 0U);
    EXPECT_EQ(Clearings(), 1);
}

TEST_F(SeaplanViewDlgTest, AnotherPanelCodeOrNoPayloadChangesNothing) {
    Toggle(21);
    Interface::Raise<const Interface::PanelShow>(Interface::Bus::ShowPanel, nullptr);
    EXPECT_FALSE(window.visible);
    EXPECT_TRUE(desk.host.requests.empty());
}

TEST_F(SeaplanViewDlgTest, AnotherPanelCodeLeavesAVisiblePanel) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A", .vsi = "7", .vsn = "ANNA"});
    Toggle();
    EXPECT_EQ(desk.host.positionQueries.size(), 1U);
    Toggle(21);
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(Timers(), 1U);
}

TEST_F(SeaplanViewDlgTest, WithoutACategoryInUseTheTimerStays) {
    desk.Refuse(Ask::kAddCategory);
    Toggle();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(Timers(), 0U);
}

TEST_F(SeaplanViewDlgTest, LogoutClearsTheChartBeforeTheStore) {
    desk.AddCategory("Full");
    Toggle();
    desk.ForgetRecords();
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_EQ(Clearings(), 2) << "first, and on hiding";
}

TEST_F(SeaplanViewDlgTest, ClosingKeepsTheTimerAndTheStore) {
    desk.AddCategory("Full");
    Toggle();
    panel.Hide();
    EXPECT_EQ(Timers(), 1U);
    Toggle();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(Loads(), 1);
}

TEST_F(SeaplanViewDlgTest, AFailedLoadLeavesThePanelHidden) {
    desk.host.connected = false;
    Toggle();
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(Timers(), 0U);
}

TEST_F(SeaplanViewDlgTest, AUserWithoutCategoriesGetsOneToName) {
    Toggle();
    EXPECT_NE(tree.Find("IDS_TREE_NEWVOYCATEGORY - 0"), kNoRow);
    EXPECT_TRUE(box.open);
    EXPECT_EQ(Timers(), 1U);
}

TEST_F(SeaplanViewDlgTest, LogoutEmptiesTheStoreAndTheNextToggleLoadsAgain) {
    desk.AddCategory("Full");
    Toggle();
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_TRUE(store.categories.empty());
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(tree.GetRootItem(), kNoRow);
    EXPECT_EQ(Timers(), 1U);
    Toggle();
    EXPECT_EQ(Loads(), 2);
}

TEST_F(SeaplanViewDlgTest, AfterAChangeOfZoneTimesAreReadAnew) {
    desk.AddCategory("Full");
    const std::string vi = desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(5, 2)});
    Toggle();
    const auto start = [&] {
        PortCallRows rows;
        EXPECT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
        return rows.empty() ? std::string() : rows.front().eta.fmt(Util::kTimeFormat);
    };
    const std::string before = start();
    const std::string rome = "Europe/Rome";
    desk.host.zone = rome;
    EXPECT_EQ(start(), before);
    Interface::Raise(Interface::Bus::SwitchTimeZone, &rome);
    EXPECT_NE(start(), before);
}

TEST_F(SeaplanViewDlgTest, TheVesselServiceAnswersByStep) {
    desk.AddCategory("Full");
    const std::string vi = desk.AddVoyage("Full", {.name = "A"});
    EXPECT_EQ(AddVessel(""), "-1");
    EXPECT_FALSE(window.visible);
    EXPECT_TRUE(desk.host.requests.empty());
    desk.host.connected = false;
    EXPECT_EQ(AddVessel(vi), "-2");
    desk.host.connected = true;
    EXPECT_EQ(AddVessel("99"), "-3");
    EXPECT_EQ(AddVessel(vi), "ok");
    EXPECT_EQ(window.place, (Rect{250, 240, 560, 700}));
    EXPECT_EQ(tree.Selected(), tree.Find("A"));
    EXPECT_EQ(Timers(), 0U);
}

TEST_F(SeaplanViewDlgTest, RefreshingARowTellsWhatIsWrong) {
    desk.AddCategory("Full");
    desk.AddVoyage("Full", {.name = "A"});
    Toggle();
    EXPECT_EQ(panel.RefreshVoyageRow(""), -1);
    EXPECT_EQ(panel.RefreshVoyageRow("99"), -2);
    Voyage("A").portCalls = TwoCalls(3);
    EXPECT_EQ(panel.RefreshVoyageRow(Id("A")), 0);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage_Date"));
}

TEST_F(SeaplanViewDlgTest, RecoverAllLeavesDestroyedCategoriesAlone) {
    const std::string gone = desk.AddCategory("Gone");
    const std::string a = desk.AddVoyage("Gone", {.name = "A", .state = InRecycleBin});
    desk.MoveCategory("Gone", InRecycleBin);
    const std::string back = desk.AddCategory("Back");
    const std::string b = desk.AddVoyage("Back", {.name = "B", .state = InRecycleBin});
    desk.MoveCategory("Back", InRecycleBin);
    Toggle();
    store.categoryStates[gone] = Destroyed;
    EXPECT_EQ(panel.RecoverAll(), 0);
    EXPECT_EQ(store.categoryVoyages[back][b], InUse);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage, a), 0);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage, b), 1);
}

TEST_F(SeaplanViewDlgTest, RecoverAllTakesEverythingOutOfTheBin) {
    const std::string ci = desk.AddCategory("Gone");
    const std::string vi = desk.AddVoyage("Gone", {.name = "A", .state = InRecycleBin});
    desk.MoveCategory("Gone", InRecycleBin);
    Toggle();
    EXPECT_EQ(panel.Filter().OnChosen(TextIds::IDS_TREEVIEW_RECOVERALL), 0);
    EXPECT_EQ(store.categoryStates[ci], InUse);
    EXPECT_EQ(store.categoryVoyages[ci][vi], InUse);
    store.categoryStates[ci] = InRecycleBin;
    desk.Refuse(Ask::kRecoverCategory);
    EXPECT_EQ(panel.RecoverAll(), -1);
}

TEST(ChoicePopup, ArrowsWalkItsLinesAndEnterPressesOne) {
    for (const Key key : {Key::Up, Key::Left}) {
        EXPECT_EQ(StepOfKey(key), ChoiceStep::Before);
    }
    for (const Key key : {Key::Down, Key::Right}) {
        EXPECT_EQ(StepOfKey(key), ChoiceStep::Behind);
    }
    EXPECT_EQ(StepOfKey(Key::Enter), ChoiceStep::Press);
    for (const Key key : {Key::Space, Key::Escape, Key::Tab, Key::Other}) {
        EXPECT_EQ(StepOfKey(key), ChoiceStep::None) << "the button's or the popup's own";
    }
}

TEST_F(SeaplanViewDlgTest, TheFilterKeepsItsTickAndShowsTheRecycleBin) {
    desk.AddCategory("Full");
    desk.AddCategory("Old");
    desk.MoveCategory("Old", InRecycleBin);
    Toggle();
    EXPECT_EQ(filterPopup.choices, (std::vector<Choice>{{TextIds::IDS_TREEVIEW_RECOVER, false}}))
        << "recovering everything has no line";
    panel.Filter().Toggle();
    EXPECT_TRUE(filterPopup.visible);
    EXPECT_EQ(filterPopup.width, 180);
    EXPECT_EQ(filterPopup.height, 35);
    EXPECT_EQ(panel.Filter().OnChosen(TextIds::IDS_TREEVIEW_RECOVER), 0);
    EXPECT_NE(tree.Find("Old"), kNoRow);
    panel.Filter().Toggle();
    EXPECT_FALSE(filterPopup.visible);
    panel.Filter().Toggle();
    EXPECT_EQ(filterPopup.Ticked(), TextIds::IDS_TREEVIEW_RECOVER);
    desk.host.connected = false;
    EXPECT_EQ(panel.Filter().OnChosen(TextIds::IDS_TREEVIEW_RECOVER), -2);
    EXPECT_EQ(filterPopup.Ticked(), std::nullopt) << "a failed load leaves the tick as it was pressed";
    panel.Hide();
    EXPECT_FALSE(filterPopup.visible);
}

TEST_F(SeaplanViewDlgTest, APressOnThePanelTakesTheNameBeingTyped) {
    TypeIn("Full", "Tankers");
    panel.OnSurfacePressed();
    EXPECT_FALSE(box.open);
    EXPECT_EQ(desk.Count(Ask::kRenameCategory, "Tankers"), 1);
    EXPECT_NE(tree.Find("Tankers"), kNoRow);
}

TEST_F(SeaplanViewDlgTest, ClosingThePanelTakesTheNameBeingTyped) {
    TypeIn("Full", "Tankers");
    panel.Hide();
    EXPECT_EQ(desk.Count(Ask::kRenameCategory, "Tankers"), 1);
    TypeIn("Tankers", "Bulkers");
    Toggle();
    EXPECT_EQ(desk.Count(Ask::kRenameCategory, "Bulkers"), 1) << "the chart's button closes too";
    EXPECT_FALSE(window.visible);
}

TEST_F(SeaplanViewDlgTest, ARefusedNameIsToldWhileThePanelIsStillThere) {
    desk.AddCategory("Taken");
    TypeIn("Full", "Taken");
    WatchingSink sink(window);
    panel.Hide();
    Interface::SysMsgSink::Set(&messages);
    EXPECT_EQ(sink.visible, (std::vector<bool>{true}));
    EXPECT_FALSE(window.visible);
}

TEST_F(SeaplanViewDlgTest, LogoutAndReloadDropTheNameBeingTyped) {
    TypeIn("Full", "Tankers");
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_FALSE(box.open);
    TypeIn("Full", "Tankers");
    ctrl.ReloadTree();
    EXPECT_FALSE(box.open);
    TypeIn("Full", " ");
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_EQ(desk.Count(Ask::kRenameCategory), 0);
    EXPECT_TRUE(desk.messages.messages.empty()) << "nor is anything said of a name that is dropped";
}

TEST_F(SeaplanViewDlgTest, AddingACategorySaysWhetherItWasMade) {
    desk.AddCategory("Full");
    Toggle();
    EXPECT_EQ(panel.AddCategory(), 0);
    EXPECT_NE(tree.Find("IDS_TREE_NEWVOYCATEGORY - 0"), kNoRow);
    desk.Refuse(Ask::kAddCategory);
    EXPECT_EQ(panel.AddCategory(), -1);
    EXPECT_EQ(tree.Find("IDS_TREE_NEWVOYCATEGORY - 1"), kNoRow);
}

TEST_F(SeaplanViewDlgTest, HelpNamesItsTopic) {
    panel.RequestHelp();
    EXPECT_EQ(window.help, "func033 370x440");
}

TEST_F(SeaplanViewDlgTest, ALanguageSwitchReachesAHiddenPanel) {
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(window.textsApplied, 1);
    EXPECT_EQ(window.caption, "IDS_TREE_VOYTITLE");
    EXPECT_FALSE(window.changed);
}

TEST_F(SeaplanViewDlgTest, UnregisteringLeavesTheBusFree) {
    panel.UnregisterHost();
    EXPECT_FALSE(Core::TrvKernel::Instance()->IsBound(Interface::Bus::AddVessel.name));
    Toggle();
    EXPECT_FALSE(window.visible);
    panel.RegisterHost();
}

}  // namespace Tarvik::Seaplan
