// SPDX-License-Identifier: MIT
/// The whole route asked for anew: compared, taken or left, undone and saved.
#include <tarvik/bus/ChartContract.h>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

using Mark = RowsPreview::Mark;

/// The saved voyage Rotterdam, Hamburg, Gdansk, whose first leg the server has at 300 miles by now, past
/// route point 118.
class RouteAnewTest : public PortCallFixture {
  protected:
    void OpenKept() {
        Open(kept);
        desk.routes->SetLeg("ROTTERDAM", "HAMBURG", 300);
        desk.routes->SetPassage("ROTTERDAM", "HAMBURG", 480);
        desk.ForgetRecords();
    }
    void AskAnew(bool takes) {
        view.takesPaste = takes;
        panel.Commands().OnRouteAnew();
    }
    double Miles(int row) const { return std::stod(Cell(row, ColDistance)); }
    bool HasAlternatives() const {
        for (const RouteStop& stop : desk.portCallModule.Pending().Stops()) {
            if (!stop.rp_groups.empty()) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(RouteAnewTest, OldAndNewMilesStandSideBySideBeforeAnythingChanges) {
    OpenKept();
    const PortCallTable before = view.table;
    AskAnew(false);
    ASSERT_EQ(view.pastes.size(), 1U);
    const RowsPreview& shown = view.pastes.front();
    EXPECT_EQ(shown.command, RowsPreview::Command::RouteAnew);
    ASSERT_EQ(shown.rows.size(), 3U) << "two legs and their sum";
    EXPECT_EQ(shown.rows[0][1].text, "HAMBURG");
    EXPECT_EQ(shown.rows[0][2].text, before.Cell(1, ColDistance));
    EXPECT_NEAR(std::stod(shown.rows[0][3].text), 300, 0.1);
    EXPECT_NEAR(std::stod(shown.rows[0][4].text), 60, 0.1);
    EXPECT_EQ(shown.rows[0][4].text.front(), '+');
    EXPECT_EQ(shown.rows[0][3].mark, Mark::Replaces);
    EXPECT_EQ(shown.rows[1][3].mark, Mark::Plain) << "that leg is as it was";
    EXPECT_NEAR(std::stod(shown.rows[2][3].text), 540, 0.1);
    EXPECT_EQ(view.table, before);
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(desk.portCallModule.Pending().IsThere()) << "left, the route is gone";
    EXPECT_EQ(view.edits.undo, "");
}

TEST_F(RouteAnewTest, TakenItBringsTheAlternativesBackAndIsOneEdit) {
    OpenKept();
    const PortCallTable before = view.table;
    AskAnew(true);
    EXPECT_NEAR(Miles(1), 300, 0.1);
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Saves(), 0) << "the person saves";
    EXPECT_TRUE(HasAlternatives());
    ChooseOtherPassage();
    panel.Commands().OnRouteChosen();
    EXPECT_NEAR(Miles(1), 480, 0.1) << "and one can be chosen";
    panel.Commands().OnUndo();
    EXPECT_NEAR(Miles(1), 300, 0.1);
    panel.Commands().OnUndo();
    EXPECT_EQ(view.table, before);
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(desk.portCallModule.Pending().IsThere());
    panel.Commands().OnRedo();
    EXPECT_NEAR(Miles(1), 300, 0.1);
    EXPECT_TRUE(HasAlternatives());
}

TEST_F(RouteAnewTest, ASaveReplacesTheLegsThatWereKept) {
    OpenKept();
    AskAnew(true);
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 1);
    EXPECT_FALSE(view.state.changed);
    store.voyages[kept].portCalls.clear();
    store.voyages[kept].positionBook.points.clear();
    Open(kept);
    EXPECT_NEAR(Miles(1), 300, 0.1) << "as the server has it";
}

TEST_F(RouteAnewTest, ACalculationGoesOverTheRouteThatWasTaken) {
    OpenKept();
    AskAnew(true);
    Type(1, ColSpeed, "12");
    panel.Commands().OnCalculate();
    EXPECT_NEAR(Miles(1), 300, 0.1) << "the former leg does not come back by itself";
    EXPECT_TRUE(view.state.changed);
    EXPECT_EQ(Saves(), 0);
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 1);
    EXPECT_NEAR(Miles(1), 300, 0.1);
    panel.Commands().OnCalculate();
    EXPECT_EQ(Saves(), 2) << "as of any voyage that has been saved";
}

TEST_F(RouteAnewTest, AnotherPortBehindItAsksForTheWholeRoute) {
    OpenKept();
    AskAnew(true);
    Type(2, ColPort, "ROUEN");
    panel.Commands().OnCalculate();
    EXPECT_EQ(Cell(2, ColPort), "ROUEN");
    EXPECT_NEAR(Miles(1), 300, 0.1);
    EXPECT_EQ(Saves(), 0);
}

TEST_F(RouteAnewTest, TheChartShowsTheVoyageAgainWhenTheRouteIsTakenBack) {
    OpenKept();
    AskAnew(true);
    desk.ForgetRecords();
    panel.Commands().OnUndo();
    EXPECT_GT(Drawn(Interface::Bus::MapAddLine.name), 0U);
}

TEST_F(RouteAnewTest, ARouteThatIsPendingStaysWhenTheNewOneIsLeft) {
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    const double miles = Miles(1);
    desk.routes->SetLeg("ROTTERDAM", "HAMBURG", 300);
    AskAnew(false);
    ASSERT_TRUE(desk.portCallModule.Pending().IsFor(fresh));
    EXPECT_NEAR(static_cast<double>(desk.portCallModule.Pending().Stops()[1].distance), miles, 0.1);
    AskAnew(true);
    EXPECT_NEAR(Miles(1), 300, 0.1);
}

TEST_F(RouteAnewTest, WithoutTheServerNothingIsAskedAndItIsTold) {
    OpenKept();
    const PortCallTable before = view.table;
    texts.given[u"IDS_VIEW_NOTANEW"] = u"%1";
    desk.Lose(Ask::kRoute);
    AskAnew(true);
    EXPECT_TRUE(view.pastes.empty()) << "known legs are no new route";
    EXPECT_EQ(statusWord, "IDS_VIEW_FAULTCONNECTION");
    EXPECT_EQ(view.table, before);
    desk.Heal();
    desk.routes->Close(true);
    AskAnew(true);
    EXPECT_EQ(statusWord, "IDS_VIEW_FAULTROUTE");
    EXPECT_EQ(view.busy, 0);
}

TEST_F(RouteAnewTest, OnePortHasNoRoute) {
    Open(fresh);
    EnterPorts({"ROTTERDAM"});
    texts.given[u"IDS_VIEW_NOTANEW"] = u"%1";
    AskAnew(true);
    EXPECT_EQ(statusWord, "IDS_VIEW_NEEDTWOPORTS");
    EXPECT_EQ(Calculations(), 0);
}

TEST_F(RouteAnewTest, TheChartShowsTheVoyageAgainWhenTheRouteIsLeft) {
    OpenKept();
    AskAnew(false);
    EXPECT_GT(Drawn(Interface::Bus::MapAddLine.name), 1U) << "the new route, then the voyage";
}

}  // namespace

}  // namespace Tarvik::Seaplan
