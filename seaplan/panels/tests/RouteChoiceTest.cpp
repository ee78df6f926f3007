// SPDX-License-Identifier: MIT
/// The ways past route points: measured, chosen or left, told, and taken back.
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/panels/tests/PortCallFixture.h"

namespace Tarvik::Seaplan {

namespace {

/// A new voyage Rotterdam, Hamburg, whose leg passes Mid Cape with 240 miles or South Cape with 480.
class RouteChoiceTest : public PortCallFixture {
  protected:
    void Calculated() {
        desk.routes->SetPassage("ROTTERDAM", "HAMBURG", 480);
        Open(fresh);
        EnterPorts({"ROTTERDAM", "HAMBURG"});
        panel.Commands().OnCalculate();
        desk.ForgetRecords();
    }
    void Compare(std::optional<int> row) {
        view.choosesRow = row;
        panel.Commands().OnCompareWays();
    }
    double Miles(int row) const { return std::stod(Cell(row, ColDistance)); }
};

TEST_F(RouteChoiceTest, EachWayIsMeasuredBeforeOneIsChosen) {
    Calculated();
    const PortCallTable before = view.table;
    const double knots = std::stod(Cell(1, ColSpeed));
    Compare(std::nullopt);
    ASSERT_EQ(view.pastes.size(), 1U);
    const RowsPreview& shown = view.pastes.front();
    EXPECT_EQ(shown.command, RowsPreview::Command::Ways);
    ASSERT_EQ(shown.rows.size(), 2U);
    EXPECT_EQ(shown.rows[0][1].text, "IDS_VIEW_WAYSNOW");
    EXPECT_EQ(shown.rows[0][2].text, "0.00");
    EXPECT_EQ(shown.rows[0][4].text, before.Cell(1, ColEta));
    EXPECT_EQ(shown.rows[1][0].text, "Mid Cape");
    EXPECT_EQ(shown.rows[1][1].text, "South Cape");
    EXPECT_EQ(shown.rows[1][2].text.front(), '+');
    EXPECT_NEAR(std::stod(shown.rows[1][2].text), 240, 0.1);
    EXPECT_NEAR(std::stod(shown.rows[1][3].text), 240 / knots, 0.1);
    EXPECT_GT(shown.rows[1][4].text, shown.rows[0][4].text) << "she arrives later";
    EXPECT_EQ(view.table, before) << "left, nothing changes";
    EXPECT_NEAR(static_cast<double>(desk.portCallModule.Pending().Stops()[1].distance), 240, 0.1);
    EXPECT_EQ(view.state.note, "");
}

TEST_F(RouteChoiceTest, TheWayThatIsChosenIsOneEditAndTold) {
    Calculated();
    texts.given[u"IDS_VIEW_WAYSCHOSEN"] = u"by %1";
    Compare(1);
    EXPECT_NEAR(Miles(1), 480, 0.1);
    EXPECT_EQ(view.state.note, "by South Cape");
    EXPECT_TRUE(view.state.changed);
    EXPECT_GT(Drawn(Interface::Bus::MapAddLine.name), 0U);
    panel.Commands().OnUndo();
    EXPECT_NEAR(Miles(1), 240, 0.1);
    EXPECT_EQ(view.state.note, "");
    EXPECT_NEAR(static_cast<double>(desk.portCallModule.Pending().Stops()[1].distance), 240, 0.1);
    panel.Commands().OnRedo();
    EXPECT_NEAR(Miles(1), 480, 0.1);
    EXPECT_EQ(view.state.note, "by South Cape");
}

TEST_F(RouteChoiceTest, AChoiceOnTheChartIsToldAsWell) {
    Calculated();
    texts.given[u"IDS_VIEW_WAYSCHOSEN"] = u"by %1";
    ChooseOtherPassage();
    panel.Commands().OnRouteChosen();
    EXPECT_EQ(view.state.note, "by South Cape");
    Compare(1);
    EXPECT_NEAR(Miles(1), 240, 0.1) << "and back again by the same list";
    EXPECT_EQ(view.state.note, "by Mid Cape");
}

TEST_F(RouteChoiceTest, TheRouteAsItIsCanBeChosenToo) {
    Calculated();
    const PortCallTable before = view.table;
    Compare(0);
    EXPECT_EQ(view.table, before);
    EXPECT_EQ(view.state.note, "");
}

TEST_F(RouteChoiceTest, WithoutOtherWaysItIsTold) {
    Compare(1);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOWAYS") << "an empty table";
    Open(kept);
    statusWord.clear();
    Compare(1);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOWAYS") << "legs that are kept";
    Open(fresh);
    EnterPorts({"ROTTERDAM", "HAMBURG"});
    panel.Commands().OnCalculate();
    statusWord.clear();
    Compare(1);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOWAYS") << "a leg without a passage";
    EXPECT_TRUE(view.pastes.empty());
}

TEST_F(RouteChoiceTest, WithoutTheServerTheRouteStaysAndItIsTold) {
    Calculated();
    const PortCallTable before = view.table;
    desk.Lose(Ask::kRoute);
    Compare(1);
    EXPECT_EQ(statusWord, "IDS_VIEW_FAULTCONNECTION");
    EXPECT_TRUE(view.pastes.empty());
    EXPECT_EQ(view.table, before);
    EXPECT_EQ(view.busy, 0);
    desk.Heal();
    desk.routes->Close(true);
    Compare(1);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOWAYS") << "a way that the server refuses is none";
}

}  // namespace

}  // namespace Tarvik::Seaplan
