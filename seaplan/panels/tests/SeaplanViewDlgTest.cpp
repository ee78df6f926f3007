// SPDX-License-Identifier: MIT
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/tests/TreeFixture.h"

namespace Tarvik::Seaplan {

namespace {

class RecordingWindow final : public MainViewWindow {
  public:
    bool visible = false;
    bool filter = false;
    Rect place;
    std::string help;
    bool IsVisible() const override { return visible; }
    void Place(const Rect& screen) override { place = screen; }
    void Show() override { visible = true; }
    void Hide() override { visible = false; }
    void ApplyTexts() override { ++textsApplied; }
    bool FilterVisible() const override { return filter; }
    void ShowFilter(bool) override { filter = true; }
    void HideFilter() override { filter = false; }
    void RequestHelp(const std::string& topic, int width, int height) override {
        help = topic + " " + std::to_string(width) + "x" + std::to_string(height);
    }
    int textsApplied = 0;
};

class SeaplanViewDlgTest : public TreeFixture {
  protected:
    RecordingWindow window;
    SeaplanViewDlg panel{{store, catalog, schedule, window, ctrl, nullptr}};

    SeaplanViewDlgTest() { panel.RegisterHost(); }
    void Toggle(int code = 3) {
        const Interface::PanelShow show{code, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    }
    std::string AddVessel(const std::string& vi) {
        const char* answer = Interface::Call(Interface::Bus::AddVessel, &vi);
        return answer == nullptr ? "ok" : answer;
    }
    long Loads() const { return std::count(catalog.calls.begin(), catalog.calls.end(), "Load"); }
};

}  // namespace

TEST_F(SeaplanViewDlgTest, TheChartsButtonShowsAndHidesThePanelWithItsTimer) {
    AddCategory("1", "Full");
    Toggle();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.place, (Rect{150, 240, 460, 700}));
    EXPECT_EQ(schedule.timers, 1);
    Toggle();
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(schedule.timers, 0);
    EXPECT_TRUE(schedule.Called("ClearChart"));
}

TEST_F(SeaplanViewDlgTest, AnotherPanelCodeOrNoPayloadChangesNothing) {
    Toggle(21);
    Interface::Raise<const Interface::PanelShow>(Interface::Bus::ShowPanel, nullptr);
    EXPECT_FALSE(window.visible);
    EXPECT_TRUE(catalog.calls.empty());
}

TEST_F(SeaplanViewDlgTest, AnotherPanelCodeLeavesAVisiblePanel) {
    AddCategory("1", "Full");
    Toggle();
    EXPECT_TRUE(schedule.Called("RefreshVesselPositions"));
    Toggle(21);
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(schedule.timers, 1);
}

TEST_F(SeaplanViewDlgTest, WithoutACategoryInUseTheTimerStays) {
    catalog.refused = {"AddCategory"};
    Toggle();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(schedule.timers, 0);
}

TEST_F(SeaplanViewDlgTest, LogoutClearsTheChartBeforeTheStore) {
    AddCategory("1", "Full");
    Toggle();
    schedule.calls.clear();
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_EQ(schedule.calls, (std::vector<std::string>{"ClearChart", "ClearChart"}))
        << "first, and on hiding";
}

TEST_F(SeaplanViewDlgTest, ClosingKeepsTheTimerAndTheStore) {
    AddCategory("1", "Full");
    Toggle();
    panel.Hide();
    EXPECT_EQ(schedule.timers, 1);
    Toggle();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(Loads(), 1);
}

TEST_F(SeaplanViewDlgTest, AFailedLoadLeavesThePanelHidden) {
    catalog.refused = {"Connect"};
    Toggle();
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(schedule.timers, 0);
}

TEST_F(SeaplanViewDlgTest, AUserWithoutCategoriesGetsOneToName) {
    Toggle();
    EXPECT_NE(tree.Find("IDS_TREE_NEWVOYCATEGORY - 0"), kNoRow);
    EXPECT_TRUE(tree.editorOpen);
    EXPECT_EQ(schedule.timers, 1);
}

TEST_F(SeaplanViewDlgTest, LogoutEmptiesTheStoreAndTheNextToggleLoadsAgain) {
    AddCategory("1", "Full");
    Toggle();
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_TRUE(store.categories.empty());
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(tree.GetRootItem(), kNoRow);
    EXPECT_EQ(schedule.timers, 1);
    Toggle();
    EXPECT_EQ(Loads(), 2);
}

TEST_F(SeaplanViewDlgTest, TheVesselServiceAnswersByStep) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    EXPECT_EQ(AddVessel(""), "-1");
    EXPECT_FALSE(window.visible);
    EXPECT_TRUE(catalog.calls.empty());
    catalog.refused = {"Connect"};
    EXPECT_EQ(AddVessel("10"), "-2");
    catalog.refused.clear();
    EXPECT_EQ(AddVessel("99"), "-3");
    EXPECT_EQ(AddVessel("10"), "ok");
    EXPECT_EQ(window.place, (Rect{250, 240, 560, 700}));
    EXPECT_EQ(tree.Selected(), tree.Find("A"));
    EXPECT_EQ(schedule.timers, 0);
}

TEST_F(SeaplanViewDlgTest, RefreshingARowTellsWhatIsWrong) {
    AddCategory("1", "Full");
    AddVoyage("1", "10", "A");
    Toggle();
    EXPECT_EQ(panel.RefreshVoyageRow(""), -1);
    EXPECT_EQ(panel.RefreshVoyageRow("99"), -2);
    store.voyages["10"].portCalls = TwoCalls(3);
    EXPECT_EQ(panel.RefreshVoyageRow("10"), 0);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage_Date"));
}

TEST_F(SeaplanViewDlgTest, RecoverAllLeavesDestroyedCategoriesAlone) {
    AddCategory("1", "Gone", InRecycleBin);
    AddVoyage("1", "10", "A", InRecycleBin);
    AddCategory("2", "Back", InRecycleBin);
    AddVoyage("2", "20", "B", InRecycleBin);
    Toggle();
    store.categoryStates["1"] = Destroyed;
    EXPECT_EQ(panel.RecoverAll(), 0);
    EXPECT_EQ(store.categoryVoyages["2"]["20"], InUse);
    EXPECT_THAT(catalog.calls, testing::Not(testing::Contains("RecoverVoyage 10")));
    EXPECT_THAT(catalog.calls, testing::Contains("RecoverVoyage 20"));
}

TEST_F(SeaplanViewDlgTest, RecoverAllTakesEverythingOutOfTheBin) {
    AddCategory("1", "Gone", InRecycleBin);
    AddVoyage("1", "10", "A", InRecycleBin);
    Toggle();
    EXPECT_EQ(panel.RecoverAll(), 0);
    EXPECT_EQ(store.categoryStates["1"], InUse);
    EXPECT_EQ(store.categoryVoyages["1"]["10"], InUse);
    store.categoryStates["1"] = InRecycleBin;
    catalog.refused = {"RecoverCategory"};
    EXPECT_EQ(panel.RecoverAll(), -1);
}

TEST_F(SeaplanViewDlgTest, HelpNamesItsTopic) {
    panel.RequestHelp();
    EXPECT_EQ(window.help, "func033 370x440");
}

TEST_F(SeaplanViewDlgTest, ALanguageSwitchReachesAHiddenPanel) {
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(window.textsApplied, 1);
}

TEST_F(SeaplanViewDlgTest, UnregisteringLeavesTheBusFree) {
    panel.UnregisterHost();
    EXPECT_FALSE(Core::TrvKernel::Instance()->IsBound(Interface::Bus::AddVessel.name));
    Toggle();
    EXPECT_FALSE(window.visible);
    panel.RegisterHost();
}

}  // namespace Tarvik::Seaplan
