// SPDX-License-Identifier: MIT
/// A voyage's vessel from the moment that it is chosen.
#include <gmock/gmock.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::IsEmpty;

namespace {

class VesselCommitTest : public TreeFixture {
  protected:
    VesselCommitTest() {
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "Traced", .traced = true, .calls = PanelDesk::Calls(1)});
        desk.AddVoyage("Full", {.name = "Plain", .vsi = "7", .vsn = "NORA", .vsmsi = 55});
        ctrl.ReloadTree();
        ctrl.ComputeStatus(Id("Traced"));
        desk.ForgetRecords();
    }
    int Commit(const Interface::FleetEntry& vessel) { return ctrl.Vessels().Commit(vessel, false); }
    /// Makes a voyage the one of the last click, and forgets what that asked for.
    void Take(const std::string& name) {
        Click(name, "no.such.item");
        desk.ForgetRecords();
    }
};

}  // namespace

TEST_F(VesselCommitTest, WithoutAClickedVoyageNothingIsSent) {
    EXPECT_EQ(Commit({"8", "STELLA", 66}), -1);
    EXPECT_THAT(desk.host.requests, IsEmpty());
}

TEST_F(VesselCommitTest, TheSameVesselSendsNothing) {
    Take("Plain");
    EXPECT_EQ(Commit({"7", "NORA", 99}), 0);
    EXPECT_THAT(desk.host.requests, IsEmpty());
    EXPECT_EQ(Voyage("Plain").vsmsi, 55);
}

TEST_F(VesselCommitTest, AVoyageThatShowsItsTrackAlreadyAsksForTheNewOneOnly) {
    desk.host.track = "1709290000|1.0|2.0|66";
    Take("Traced");
    EXPECT_EQ(Commit({"8", "STELLA", 66}), 0);
    EXPECT_EQ(desk.Count(Ask::kChangeVessel, "STELLA"), 1);
    EXPECT_EQ(desk.Count(Ask::kOpenAis), 0);
    EXPECT_EQ(desk.host.trackQueries.size(), 1U);
    EXPECT_TRUE(Shows("Traced", "Voyage.child.svr10"));
}

TEST_F(VesselCommitTest, ATrackThatCannotBeShownIsNoWord) {
    Take("Plain");
    EXPECT_EQ(Commit({"8", "STELLA", 66}), 0);
    EXPECT_EQ(desk.Count(Ask::kOpenAis), 1);
    EXPECT_TRUE(Shows("Plain", "Voyage.child.svr10"));
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(Voyage("Plain").vsi, "8");
    EXPECT_EQ(Voyage("Plain").vsmsi, 66);
}

TEST_F(VesselCommitTest, ATypedNameIsNotTracked) {
    Take("Plain");
    EXPECT_EQ(ctrl.Vessels().Commit({"", "TYPED", 0}, true), 0);
    EXPECT_EQ(desk.Count(Ask::kOpenAis), 0);
    EXPECT_TRUE(Shows("Plain", "Voyage_Alert"));
    EXPECT_EQ(Voyage("Plain").vsi, "");
}

// A view only tells what happens: what is open and typed is known here.
TEST(VoyShipEditDlgTest, APressInTheBoxClosesItsListAndEnterThenTakesTheName) {
    RecordingVesselView view;
    VoyShipEditDlg editor(view);
    std::vector<std::string> taken;
    editor.Open({0, 0, 120, 25}, "", {{"1", "NORA", 212}, {"2", "NORD", 213}},
                [&taken](const Interface::FleetEntry& vessel, bool typedOnly) {
                    taken.push_back(vessel.name + (typedOnly ? " typed" : " chosen"));
                });
    EXPECT_TRUE(editor.OnKey({Key::Down}));
    EXPECT_EQ(view.selected, 1);
    editor.OnTyped("nor");
    editor.OnBoxPressed();
    EXPECT_FALSE(view.list);
    EXPECT_TRUE(editor.IsVisible());
    EXPECT_FALSE(editor.OnKey({Key::Down})) << "no list to walk";
    EXPECT_TRUE(editor.OnKey({Key::Enter}));
    EXPECT_EQ(taken, std::vector<std::string>{"nor typed"});
    EXPECT_FALSE(editor.IsVisible());
}

}  // namespace Tarvik::Seaplan
