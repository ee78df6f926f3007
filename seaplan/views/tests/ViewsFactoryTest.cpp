// SPDX-License-Identifier: MIT
#include "seaplan/views/ViewsFactory.h"

#include "seaplan/data/controllers/VoyCatalogController.h"
#include "seaplan/data/controllers/VoyController.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/views/skin/Palette.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>

#include <gtest/gtest.h>

#include <QWidget>

namespace Tarvik::Seaplan {

namespace {

class ViewsFactoryTest : public ::testing::Test {
  protected:
    TestSupport::ManualClock clock;
    TestSupport::RecordingHost host;
    VoyageStore store;
    VoyCatalogModule catalogModule{&store};
    VoyCatalogController catalog{&catalogModule, &store};
    VoyPortCallModule module{&store};
    VoyController voyages{&module, &catalog, &store};
    QWidget mainView;

    ViewsFactoryTest() { Core::TrvKernel::SetMainView(&mainView, nullptr); }
    ~ViewsFactoryTest() override {
        DestroyViews();
        Core::TrvKernel::SetMainView(nullptr, nullptr);
    }
    bool Create() { return CreateViews({&catalog, &voyages, &store, PortDictionary({}, {}, {})}); }
    QWidget* Panel() { return mainView.findChild<QWidget*>("voyagePanel"); }
    static void Toggle() {
        const Interface::PanelShow show{3, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    }
};

}  // namespace

TEST_F(ViewsFactoryTest, WithoutAllControllersNothingIsMade) {
    EXPECT_FALSE(CreateViews({&catalog, nullptr, &store, PortDictionary({}, {}, {})}));
    EXPECT_EQ(VoyagePanel(), nullptr);
    EXPECT_EQ(Panel(), nullptr);
}

TEST_F(ViewsFactoryTest, TheWindowsBelongToTheMainWindowAndStayHidden) {
    ASSERT_TRUE(Create());
    EXPECT_TRUE(Create());
    EXPECT_NE(VoyagePanel(), nullptr);
    ASSERT_NE(Panel(), nullptr);
    EXPECT_TRUE(Panel()->isWindow());
    EXPECT_FALSE(Panel()->isVisible());
    EXPECT_NE(mainView.findChild<QWidget*>("portCallPanel"), nullptr);
}

TEST_F(ViewsFactoryTest, WithoutAConnectionTheChartsButtonOpensTheLogin) {
    ASSERT_TRUE(Create());
    host.connected = false;
    Toggle();
    EXPECT_FALSE(Panel()->isVisible());
    EXPECT_EQ(host.logins, 1);
}

TEST_F(ViewsFactoryTest, DestroyedViewsLeaveTheBus) {
    ASSERT_TRUE(Create());
    EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound(Interface::Bus::AddVessel.name));
    DestroyViews();
    EXPECT_FALSE(Core::TrvKernel::Instance()->IsBound(Interface::Bus::AddVessel.name));
    EXPECT_EQ(VoyagePanel(), nullptr);
    EXPECT_EQ(Panel(), nullptr);
    Toggle();
}

TEST_F(ViewsFactoryTest, AMainWindowThatGoesFirstTakesItsWindowsAlong) {
    auto* window = new QWidget;
    Core::TrvKernel::SetMainView(window, nullptr);
    ASSERT_TRUE(Create());
    delete window;
    EXPECT_EQ(VoyagePanel(), nullptr);
    Toggle();
    RestyleViews();
}

}  // namespace Tarvik::Seaplan
