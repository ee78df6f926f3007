// SPDX-License-Identifier: MIT
#include <memory>

#include <gmock/gmock.h>

#include "seaplan/panels/tests/FleetPlugin.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class VesselEditorTest : public TreeFixture {
  protected:
    FleetPlugin plugin;

    VesselEditorTest() {
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "A", .calls = PanelDesk::Calls(1)});
        desk.AddVoyage("Full", {.name = "B", .vsn = "ANNA"});
        desk.AddVoyage("Full", {.name = "C", .vsi = "7001", .vsn = "Nora", .vsmsi = 211000001});
        ctrl.ReloadTree();
        ctrl.ComputeStatus(Id("A"));
    }
    VoyShipEditDlg& Editor() { return ctrl.Vessels().Editor(); }
    void TypeAndEnter(const std::string& text) {
        Editor().OnTyped(text);
        Editor().OnEnter(0);
    }
};

}  // namespace

TEST_F(VesselEditorTest, AssigningOpensAnEmptyBoxWithTheWholeFleet) {
    EXPECT_EQ(Click("A", "Voyage_AssignShip"), 1);
    EXPECT_TRUE(vessels.box);
    EXPECT_EQ(vessels.place, (Rect{50, 95, 170, 120}));
    EXPECT_EQ(vessels.text, "");
    EXPECT_THAT(vessels.names, ElementsAre("NORTHERN LIGHT", "Nora", "ANNA NORD"));
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage_ReplaceShip"));
    Click("A", "Voyage_AssignShip");
    EXPECT_FALSE(vessels.box);
    EXPECT_EQ(desk.Count(Ask::kChangeVessel), 0);
}

TEST_F(VesselEditorTest, TypingKeepsTheVesselsThatBeginSoInAnyCase) {
    Click("A", "Voyage_AssignShip");
    Editor().OnTyped("no");
    EXPECT_THAT(vessels.names, ElementsAre("NORTHERN LIGHT", "Nora"));
    Editor().OnTyped("nord");
    EXPECT_FALSE(vessels.list);
    Editor().OnTyped("");
    EXPECT_EQ(vessels.names.size(), 3U);
}

TEST_F(VesselEditorTest, AChosenVesselIsOfTheFleetAndShowsNoAlert) {
    Click("A", "Voyage_AssignShip");
    Editor().OnTyped("no");
    Editor().OnChosen(1);
    EXPECT_EQ(desk.Count(Ask::kChangeVessel, "Nora"), 1);
    EXPECT_EQ(Voyage("A").vsi, "2");
    EXPECT_EQ(Voyage("A").vsmsi, 212);
    EXPECT_EQ(desk.Count(Ask::kOpenAis, Id("A")), 1);
    EXPECT_EQ(desk.host.trackQueries.size(), 1U);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage.child.svr10"));
    EXPECT_FALSE(vessels.box);
    const TreeRow row = tree.Find("A");
    EXPECT_FALSE(tree.IsItemVisible(row, "Voyage_Alert"));
    EXPECT_FALSE(tree.IsItemVisible(row, "Voyage_AssignShip"));
    EXPECT_EQ(tree.Row(row)->items.At("Voyage_ShipInfo").values.at("ShipName"), "Nora");
}

TEST_F(VesselEditorTest, EnterTakesTheListsRowOrTheTypedNameWithTheAlert) {
    Click("A", "Voyage_AssignShip");
    TypeAndEnter("anna");
    EXPECT_EQ(Voyage("A").vsn, "ANNA NORD");
    Click("A", "Voyage_ReplaceShip");
    TypeAndEnter("  SEA STAR ");
    EXPECT_EQ(Voyage("A").vsn, "SEA STAR ");
    EXPECT_EQ(Voyage("A").vsi, "");
    EXPECT_EQ(desk.Count(Ask::kOpenAis, Id("A")), 1);
    EXPECT_TRUE(tree.IsItemVisible(tree.Find("A"), "Voyage_Alert"));
    EXPECT_FALSE(vessels.box);
}

TEST_F(VesselEditorTest, LeavingTheBoxTakesTheTypedNameAndAnEmptyOneNothing) {
    Click("A", "Voyage_AssignShip");
    Editor().OnTyped(" ");
    Editor().OnLeft();
    EXPECT_EQ(Voyage("A").vsn, "");
    Click("A", "Voyage_AssignShip");
    EXPECT_FALSE(vessels.box) << "the press that closed it is still under way";
    Editor().OnReleased();
    Click("A", "Voyage_AssignShip");
    Editor().OnTyped("SEA STAR");
    Editor().OnLeft();
    EXPECT_EQ(Voyage("A").vsn, "SEA STAR");
    const auto calls = desk.host.Texts();
    Editor().OnLeft();
    EXPECT_EQ(desk.host.Texts(), calls);
}

TEST_F(VesselEditorTest, TheHintThatAVesselIsLackingGoesWithTheVessel) {
    std::string line;
    ctrl.Context().line = [&line](const std::string& text) { line = text; };
    Press("A");
    ASSERT_EQ(line, "IDS_VIEW_HINTVESSEL");
    Click("A", "Voyage_AssignShip");
    Editor().OnChosen(0);
    EXPECT_EQ(line, "");
    Press("A");
    EXPECT_EQ(line, "");
    ctrl.Context().line = {};
}

TEST_F(VesselEditorTest, TheSameVesselSendsNothing) {
    Click("B", "Voyage_ReplaceShip");
    EXPECT_EQ(vessels.text, "ANNA");
    EXPECT_THAT(vessels.names, ElementsAre("ANNA NORD"));
    Editor().OnKey({Key::Escape});
    EXPECT_FALSE(vessels.list);
    Editor().OnEnter(-1);
    EXPECT_EQ(desk.Count(Ask::kChangeVessel), 0);
}

// The typed name would go without the fleet's id and number, and tracking and correction with them.
TEST_F(VesselEditorTest, AVesselThatWasOnlyLookedAtKeepsItsIdAndNumber) {
    ctrl.ComputeStatus(Id("C"));
    Click("C", "Voyage_ReplaceShip");
    ASSERT_EQ(vessels.text, "Nora");
    Editor().OnLeft();
    EXPECT_FALSE(vessels.box);
    Click("C", "Voyage_ReplaceShip");
    Editor().OnKey({Key::Escape});
    EXPECT_FALSE(vessels.list);
    Editor().OnEnter(-1);
    EXPECT_FALSE(vessels.box);
    EXPECT_EQ(desk.Count(Ask::kChangeVessel), 0);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(VesselEditorTest, ARefusedVesselIsToldInFixedWords) {
    desk.Refuse(Ask::kChangeVessel);
    Click("A", "Voyage_AssignShip");
    TypeAndEnter("SEA STAR");
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "Add a vessel failed!");
    EXPECT_EQ(messages.messages[0].title, "Error");
    EXPECT_EQ(Voyage("A").vsn, "");
}

TEST_F(VesselEditorTest, AVesselOfACorrectedVoyageCanBeAssignedButNotReplaced) {
    Voyage("B").modais = 1;
    Click("B", "Voyage_ReplaceShip");
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, "IDS_PORTCALL_WARNAISMOD");
    EXPECT_FALSE(vessels.box);
    Voyage("A").modais = 1;
    Click("A", "Voyage_AssignShip");
    EXPECT_TRUE(vessels.box);
}

TEST_F(VesselEditorTest, TheAlertOffersTheNameToTheFleetAndTheInformationNeedsAnId) {
    Click("B", "Voyage_Alert");
    EXPECT_THAT(plugin.offered, ElementsAre("ANNA"));
    EXPECT_EQ(tree.windowsAtPointer, std::vector<void*>{&plugin.window});
    plugin.hasWindow = false;
    Click("B", "Voyage_Alert");
    EXPECT_EQ(tree.windowsAtPointer.size(), 1U) << "the fleet has no window to show";
    Click("B", "Voyage_ShipInfo");
    EXPECT_TRUE(plugin.shownIds.empty());
    Voyage("B").vsi = "7";
    Click("B", "Voyage_ShipInfo");
    EXPECT_THAT(plugin.shownIds, ElementsAre("7"));
}

TEST_F(VesselEditorTest, ClosingTheViewHidesTheBox) {
    Click("A", "Voyage_AssignShip");
    ctrl.OnViewShown(false);
    EXPECT_FALSE(vessels.box);
    EXPECT_FALSE(vessels.list);
}

TEST(VesselList, ItsSizeFollowsTheNumberOfVessels) {
    EXPECT_EQ(VoyShipEditDlg::SizeOf(1), (VesselListSize{157, 26, 152}));
    EXPECT_EQ(VoyShipEditDlg::SizeOf(2), (VesselListSize{157, 41, 152}));
    EXPECT_EQ(VoyShipEditDlg::SizeOf(11), (VesselListSize{157, 203, 152}));
    EXPECT_EQ(VoyShipEditDlg::SizeOf(12), (VesselListSize{157, 203, 136}));
}

TEST_F(VesselEditorTest, TheFleetIsAskedForFirstAndTheRowPressedLast) {
    desk.ForgetRecords();
    bool asked = false;
    plugin.asked = [&] {
        asked = true;
        EXPECT_EQ(tree.Selected(), tree.Find("C")) << "its row is as high as it will be";
        EXPECT_FALSE(vessels.box);
        EXPECT_TRUE(desk.host.chartCalls.empty());
    };
    ASSERT_EQ(ctrl.OpenVesselEditor(Id("C")), 0);
    EXPECT_TRUE(asked);
    EXPECT_TRUE(vessels.box);
    EXPECT_EQ(vessels.text, "Nora");
    EXPECT_FALSE(desk.host.chartCalls.empty()) << "the press took other voyages off the chart";
}

TEST_F(VesselEditorTest, TheTreeWaitsForTheBoxOfAVesselThatIsRefused) {
    ASSERT_EQ(ctrl.OpenVesselEditor(Id("C")), 0);
    desk.Refuse(Ask::kChangeVessel);
    EXPECT_EQ(ctrl.Vessels().Commit({"1", "NORTHERN LIGHT", 211}, false), -2);
    EXPECT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(tree.enabled, (std::vector<bool>{false, true}));
}

}  // namespace Tarvik::Seaplan
