// SPDX-License-Identifier: MIT
#include <QAction>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

#include "host/client/shell/GuideView.h"
#include "host/client/shell/HelpWindow.h"
#include "host/client/shell/MainWindow.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

/// The help as the main window brings it up, with the guide that is shipped.
class HelpOverPanelsTest : public testing::TestWithParam<const char*> {
  protected:
    HelpOverPanelsTest() {
        options_.dataFolder = folder_.File("data");
        options_.language = GetParam();
        session_ = ClientSession::Open(options_, error_);
    }
    void SetUp() override { ASSERT_NE(session_, nullptr) << error_; }
    static QString Page(const MainWindow& window) {
        return window.findChild<GuideView*>("helpText")->toPlainText();
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string error_;
    std::unique_ptr<ClientSession> session_;
};

TEST_P(HelpOverPanelsTest, F1OpensTheGuideAtItsFirstPage) {
    MainWindow window(*session_);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    ASSERT_NE(window.findChild<HelpWindow*>(), nullptr);
    EXPECT_TRUE(window.findChild<HelpWindow*>()->isVisible());
    EXPECT_EQ(window.findChild<QListWidget*>("helpPages")->currentRow(), 0);
    EXPECT_FALSE(window.findChild<HelpWindow*>()->windowTitle().contains("HELP_"));
}

TEST_P(HelpOverPanelsTest, TheKeysOfAllToolsStandOnThePageOfKeys) {
    MainWindow window(*session_);
    window.ShowHelp("keys-help");
    const QString page = Page(window);
    int tools = 0;
    for (const QAction* tool : window.findChildren<QAction*>(QRegularExpression("^action_"))) {
        const QString key = tool->shortcut().toString(QKeySequence::PortableText);
        EXPECT_TRUE(page.contains(key)) << key.toStdString();
        ++tools;
    }
    EXPECT_GT(tools, 10);
    EXPECT_TRUE(page.contains("Ctrl+G"));
}

TEST_P(HelpOverPanelsTest, APanelsTopicOpensItsPageInTheOneWindow) {
    MainWindow window(*session_);
    window.ShowHelp("func035");
    EXPECT_EQ(window.findChild<QListWidget*>("helpPages")->currentRow(), 3);
    window.ShowHelp("func999");
    EXPECT_EQ(window.findChild<QListWidget*>("helpPages")->currentRow(), 0) << "an unknown topic";
    EXPECT_EQ(window.findChildren<HelpWindow*>().size(), 1) << "one window for all";
}

TEST_P(HelpOverPanelsTest, AnotherLanguageTurnsTheOpenPageIntoIt) {
    MainWindow window(*session_);
    window.ShowHelp("func035");
    const QString before = window.findChild<HelpWindow*>()->windowTitle();
    Preferences other = session_->Preferred();
    other.language = session_->Texts().Next()->code;
    window.Prefer(other);
    EXPECT_NE(window.findChild<HelpWindow*>()->windowTitle(), before);
    EXPECT_EQ(window.findChild<QListWidget*>("helpPages")->currentRow(), 3);
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpOverPanelsTest, testing::Values("en-US", "zh-CN", "zh-TW"));

}  // namespace

}  // namespace Tarvik::Client
