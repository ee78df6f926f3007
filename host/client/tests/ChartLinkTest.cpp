// SPDX-License-Identifier: MIT
/// What the main window asks of the chart, over a chart that only listens.
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "host/client/shell/MainWindow.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Not;

namespace {

class ChartLinkTest : public testing::Test {
  protected:
    ChartLinkTest() {
        options_.dataFolder = folder_.File("data");
        session_ = ClientSession::Open(options_, error_);
        bindings_.Keep(Interface::Offer(Interface::Bus::ChartCommand, [this](const std::string& command) {
            commands_.push_back(command);
            return &command;
        }));
        bindings_.Keep(Interface::Offer(Interface::Bus::ChartWindow, [this] { return chart_; }));
    }
    void SetUp() override { ASSERT_NE(session_, nullptr) << error_; }
    static void Turn(const char* part, bool shown) {
        const Interface::ChartPart turned{part, shown};
        Interface::Raise(Interface::Bus::ChartPartTurned, &turned);
    }
    Preferences Kept() const {
        return Preferences::Read(folder_.File("data/preferences.json"), session_->Texts().Offered());
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string error_;
    std::unique_ptr<ClientSession> session_;
    QWidget* chart_ = new QWidget;  ///< the main window's once it is attached
    std::vector<std::string> commands_;
    Interface::BindingList bindings_;
};

TEST_F(ChartLinkTest, WhatAPersonHidesIsKeptAndHiddenAgainAtTheNextStart) {
    {
        MainWindow window(*session_);
        window.AttachPlugins();
        EXPECT_THAT(commands_, AllOf(Contains("theme light"), Not(Contains("hide names"))));
        Turn("names", false);
        Turn("daylight", true);
    }
    const std::map<std::string, bool> parts{{"names", false}, {"daylight", true}};
    EXPECT_EQ(Kept().chartParts, parts);
    session_.reset();
    session_ = ClientSession::Open(options_, error_);
    ASSERT_NE(session_, nullptr) << error_;
    chart_ = new QWidget;
    commands_.clear();
    MainWindow again(*session_);
    again.AttachPlugins();
    EXPECT_THAT(commands_, AllOf(Contains("hide names"), Contains("show daylight")));
}

TEST_F(ChartLinkTest, KeepingAPartKeepsNothingElseOfTheCommandLine) {
    session_.reset();
    options_.theme = "night";
    session_ = ClientSession::Open(options_, error_);
    ASSERT_NE(session_, nullptr) << error_;
    const MainWindow window(*session_);
    Turn("names", false);
    EXPECT_FALSE(Kept().chartParts.at("names"));
    EXPECT_EQ(Kept().theme, "light");
    delete chart_;
}

TEST_F(ChartLinkTest, CtrlGOpensTheFieldForAPlace) {
    MainWindow window(*session_);
    window.AttachPlugins();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_G, Qt::ControlModifier);
    EXPECT_THAT(commands_, Contains("goto"));
    EXPECT_EQ(session_->Preferred().language, "en-US") << "the language has a key of its own";
}

TEST_F(ChartLinkTest, TheWindowIsNeverLargerThanItsScreen) {
    MainWindow window(*session_);
    window.AttachPlugins();
    const QSize usual = window.size();
    window.TakePlace({0, 0, 1920, 1080});
    EXPECT_EQ(window.size(), usual);
    for (const QRect& room : {QRect(0, 0, 1366, 768), QRect(0, 24, 910, 488), QRect(1920, 0, 640, 480)}) {
        window.TakePlace(room);
        window.show();
        EXPECT_TRUE(room.contains(QRect(window.pos(), window.size()))) << room.width();
        window.hide();
    }
}

}  // namespace

}  // namespace Tarvik::Client
