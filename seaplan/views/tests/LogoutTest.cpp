// SPDX-License-Identifier: MIT
// A logout with every panel open: what goes in which order.
#include <algorithm>
#include <string>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/views/distances/KeepTableWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::Contains;
using ::testing::IsEmpty;

/// Notes which windows go, and what stood of chart and store then.
class HideJournal final : public QObject {
  public:
    explicit HideJournal(PanelDesk& desk) : desk_(desk) { qApp->installEventFilter(this); }
    ~HideJournal() override { qApp->removeEventFilter(this); }

    std::vector<std::string> gone;
    bool chartCleared = false;  ///< before the first window went
    bool storeEmpty = false;    ///< the same

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Hide && widget != nullptr && widget->isWindow()) {
            if (gone.empty()) {
                chartCleared = !desk_.host.chartCalls.empty();
                storeEmpty = desk_.store.categories.empty() && desk_.store.voyages.empty() &&
                             desk_.store.categoryStates.empty() && desk_.store.categoryVoyages.empty();
            }
            gone.push_back(widget->objectName().toStdString());
        }
        return false;
    }

  private:
    PanelDesk& desk_;
};

class LogoutTest : public ViewsFixture {
  protected:
    void Logout() {
        desk.ForgetRecords();
        Interface::Raise(Interface::Bus::Logout);
        QApplication::processEvents();
    }
};

}  // namespace

TEST_F(LogoutTest, ThePanelsGoInTheirOrderBehindChartAndStore) {
    OpenPortCalls("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr3.exist");
    ClickPart("Far East 12", "Voyage.child.svr5");
    views.KeepWindow()->Show();
    views.Tree().Context().chartMarks[desk.Voyage("Far East 12").vi] = {1, OnChart};
    HideJournal journal(desk);
    Logout();
    EXPECT_TRUE(journal.chartCleared);
    EXPECT_TRUE(journal.storeEmpty);
    const auto place = [&](const char* name) {
        return std::find(journal.gone.begin(), journal.gone.end(), name) - journal.gone.begin();
    };
    for (const char* name :
         {"voyagePanel", "portCallPanel", "remarkPanel", "keepTableDialog", "bunkerPanel"}) {
        EXPECT_THAT(journal.gone, Contains(name));
    }
    EXPECT_LT(place("voyagePanel"), place("portCallPanel"));
    EXPECT_LT(place("portCallPanel"), place("remarkPanel"));
    EXPECT_LT(place("remarkPanel"), place("keepTableDialog"));
    EXPECT_THAT(desk.host.requests, IsEmpty()) << "the user who goes asks for nothing more";
    EXPECT_TRUE(views.Tree().Context().categorySorts.empty());
    EXPECT_TRUE(views.Tree().Context().chartMarks.empty());
    EXPECT_EQ(Rows().GetRootItem(), kNoRow);
}

TEST_F(LogoutTest, PopupsAndEditorsGoToo) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_child_rename");
    ASSERT_TRUE(Find<QLineEdit>(Panel(), "renameEditor")->isVisible());
    Logout();
    EXPECT_FALSE(Find<QLineEdit>(Panel(), "renameEditor")->isVisible());
    EXPECT_FALSE(Find<QLineEdit>(Panel(), "vesselEditor")->isVisible());
    EXPECT_FALSE(Panel().FilterPopup().isVisible());
    EXPECT_FALSE(Tree().SortPopup().isVisible());
    EXPECT_THAT(desk.host.requests, IsEmpty()) << "the name being typed is dropped";
}

TEST_F(LogoutTest, ThePortCallsRemarksGoToo) {
    OpenPortCalls("Far East 12");
    views.PortCalls().Rows().OnItemImage(0, PortCallImage::kRemark);
    RemarkWindow* remarks = views.PortCallRemarksWindow();
    if (remarks == nullptr) {
        GTEST_FAIL() << "the port's remarks did not open";
    }
    ASSERT_TRUE(remarks->isVisible());
    Logout();
    EXPECT_FALSE(remarks->isVisible());
}

}  // namespace Tarvik::Seaplan
