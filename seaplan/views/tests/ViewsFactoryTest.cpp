// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QTest>
#include <QWidget>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "seaplan/views/ViewsFactory.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

/// Notes what the main window is asked for.
class HelpWatcher : public QObject {
  public:
    std::string asked;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != static_cast<QEvent::Type>(1030)) {
            return false;
        }
        const auto& block = static_cast<Skin::HelpRequestEvent*>(event)->block;
        asked = block.topic + (" " + std::to_string(block.width)) + " " + std::to_string(block.height);
        return true;
    }
};

class ViewsFactoryTest : public ::testing::Test {
  protected:
    TestSupport::ManualClock clock;
    TestSupport::RecordingHost host;
    VoyageStore store;
    VoyCatalogModule catalogModule{&store};
    VoyCatalogController catalog{&catalogModule, &store};
    PortDirectory ports{{}, {}, {}};
    VoyPortCallModule module{&store, &ports};
    VoyController voyages{&module, &catalog, &store};
    QWidget mainView;

    ViewsFactoryTest() { Core::TrvKernel::SetMainView(&mainView, nullptr); }
    ~ViewsFactoryTest() override {
        DestroyViews();
        Core::TrvKernel::SetMainView(nullptr, nullptr);
    }
    bool Create() { return CreateViews({&catalog, &voyages, &store, &ports}); }
    QWidget* Panel() { return mainView.findChild<QWidget*>("voyagePanel"); }
    static void Toggle() {
        const Interface::PanelShow show{3, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    }
};

}  // namespace

TEST_F(ViewsFactoryTest, WithoutAllControllersNothingIsMade) {
    EXPECT_FALSE(CreateViews({&catalog, nullptr, &store, &ports}));
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
}

TEST_F(ViewsFactoryTest, ThePortCallWindowIsMadeWhenItIsFirstAskedFor) {
    ASSERT_TRUE(Create());
    for (int load = 0; load < 2; ++load) {
        host.Reply(3, R"([{ci:"1",cn:"Tankers",cd:0,voys:[{vi:"7",vn:"Winter",vd:0}]}])");
    }
    Toggle();
    EXPECT_EQ(mainView.findChild<QWidget*>("portCallPanel"), nullptr);
    Interface::Raise(Interface::Bus::SwitchLanguage);
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_EQ(mainView.findChild<QWidget*>("portCallPanel"), nullptr) << "nobody has asked for it yet";
    Toggle();
    VoyageTreeView& tree = static_cast<VoyagePanelWindow*>(Panel())->Tree();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return}) {
        QTest::keyClick(&tree, key);
    }
    auto* portCalls = mainView.findChild<QWidget*>("portCallPanel");
    ASSERT_NE(portCalls, nullptr);
    EXPECT_TRUE(portCalls->isWindow());
    EXPECT_EQ(portCalls->parentWidget(), &mainView);
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_FALSE(portCalls->isVisible());
}

TEST_F(ViewsFactoryTest, AVoyageCanBeCorrectedByItsShipsPosition) {
    ASSERT_TRUE(Create());
    host.Reply(3, R"([{ci:"1",cn:"Tankers",cd:0,voys:[{vi:"7",vn:"Winter",vd:0}]}])");
    Toggle();
    VoyageTreeView& tree = static_cast<VoyagePanelWindow*>(Panel())->Tree();
    const TreeRow voyage = tree.Rows().GetChildItem(tree.Rows().GetRootItem());
    ASSERT_EQ(tree.Rows().GetItemText(voyage), "Winter");
    tree.Widget().Expand(tree.Rows().GetRootItem(), true);
    tree.Widget().SelectItem(voyage);
    bool offered = false;
    for (const SubItem& part : tree.PartsOf(voyage)) {
        if (part.name == "Voyage_modify") {
            offered = part.enabled;
        }
    }
    EXPECT_TRUE(offered);
}

TEST_F(ViewsFactoryTest, WithoutAConnectionTheChartsButtonOpensTheLogin) {
    ASSERT_TRUE(Create());
    host.connected = false;
    Toggle();
    EXPECT_FALSE(Panel()->isVisible());
    EXPECT_EQ(host.logins, 1);
}

TEST_F(ViewsFactoryTest, WithoutAConnectionTheVesselServiceFailsAndOpensTheLogin) {
    ASSERT_TRUE(Create());
    host.connected = false;
    std::string vi = "7";
    void* result = nullptr;
    Core::TrvKernel::Instance()->CallTrvService(Interface::Bus::AddVessel.name, &vi, result);
    ASSERT_NE(result, nullptr);
    EXPECT_STREQ(static_cast<const char*>(result), "-2");
    EXPECT_EQ(host.logins, 1);
}

TEST_F(ViewsFactoryTest, HelpReachesTheMainWindowAsABlockWithItsTopicAndSize) {
    HelpWatcher watcher;
    mainView.installEventFilter(&watcher);
    ASSERT_TRUE(Create());
    Panel()->findChild<QAbstractButton*>("helpButton")->click();
    EXPECT_EQ(watcher.asked, "func033 370 440");
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
}

}  // namespace Tarvik::Seaplan
