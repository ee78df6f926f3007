// SPDX-License-Identifier: MIT
/// Everything out of the recycle bin, step by step.
#include <gmock/gmock.h>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"
#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class RecoverAllTest : public TreeFixture {
  protected:
    RecordingPanelWindow<PanelWindow> window;
    RecordingChoices filterPopup;
    RecordingSearch searchView;
    SeaplanViewDlg panel{{store, desk.catalog, desk.voyages, window, filterPopup, searchView, ctrl, nullptr}};
    std::string vi;

    RecoverAllTest() {
        desk.AddCategory("Gone");
        vi = desk.AddVoyage("Gone", {.name = "A", .state = InRecycleBin});
        desk.MoveCategory("Gone", InRecycleBin);
        ctrl.ReloadTree();
        desk.ForgetRecords();
    }
};

}  // namespace

TEST_F(RecoverAllTest, CategoriesComeBeforeVoyagesAndTheRowsAreMadeAnew) {
    const std::string ci = CategoryId("Gone");
    EXPECT_EQ(panel.RecoverAll(), 0);
    const auto asked = desk.host.Texts();
    EXPECT_THAT(asked, ElementsAre("4 " + desk.Sent(Ask::kRecoverCategory).at(0),
                                   "5 " + desk.Sent(Ask::kRecoverVoyage).at(0)))
        << "the load behind them finds a filled store";
    EXPECT_NE(tree.Find("Gone"), kNoRow);
    EXPECT_EQ(store.categoryStates[ci], InUse);
    EXPECT_EQ(store.categoryVoyages[ci][vi], InUse);
}

TEST_F(RecoverAllTest, ARefusedVoyageEndsItAndTheNamesStayAsTheyWere) {
    desk.Refuse(Ask::kRecoverVoyage);
    const auto categories = ctrl.Context().categoryNames;
    const auto voyages = ctrl.Context().voyageNames;
    EXPECT_EQ(panel.RecoverAll(), -2);
    EXPECT_EQ(desk.Count(Ask::kLoad), 0);
    EXPECT_EQ(ctrl.Context().categoryNames, categories);
    EXPECT_EQ(ctrl.Context().voyageNames, voyages);
}

TEST_F(RecoverAllTest, AFailedLoadBehindItIsTold) {
    desk.host.connected = false;
    EXPECT_EQ(panel.RecoverAll(), -3);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage), 1);
}

}  // namespace Tarvik::Seaplan
