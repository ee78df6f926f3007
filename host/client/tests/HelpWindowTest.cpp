// SPDX-License-Identifier: MIT
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <gtest/gtest.h>

#include "host/client/shell/HelpWindow.h"
#include "host/client/shell/MainWindow.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

class HelpWindowTest : public testing::TestWithParam<const char*> {
  protected:
    HelpWindowTest() {
        options_.dataFolder = folder_.File("data");
        options_.language = GetParam();
        session_ = ClientSession::Open(options_, error_);
    }
    void SetUp() override { ASSERT_NE(session_, nullptr) << error_; }
    static QTreeWidget& Keys(const MainWindow& window) { return *window.findChild<QTreeWidget*>("helpKeys"); }
    /// The lines on show with what a key does, all with an empty `keys`.
    static QStringList Lines(const MainWindow& window, const QString& keys = {}) {
        QStringList lines;
        for (QTreeWidgetItemIterator at(&Keys(window), QTreeWidgetItemIterator::NoChildren); *at; ++at) {
            if (!(*at)->isHidden() && (keys.isEmpty() || (*at)->text(0) == keys)) {
                lines.append((*at)->text(1));
            }
        }
        return lines;
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string error_;
    std::unique_ptr<ClientSession> session_;
};

TEST_P(HelpWindowTest, F1TellsTheKeysOfToolsChartAndPanels) {
    MainWindow window(*session_);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    ASSERT_NE(window.findChild<HelpWindow*>(), nullptr);
    EXPECT_TRUE(window.findChild<HelpWindow*>()->isVisible());
    EXPECT_EQ(Lines(window, "Ctrl+L"), QStringList(window.findChild<QAction*>("action_voyages")->text()));
    EXPECT_EQ(Lines(window, "Ctrl+G").size(), 1);
    EXPECT_EQ(Lines(window, "F9").size(), 1);
    for (const QString& line : Lines(window)) {
        EXPECT_FALSE(line.isEmpty());
        EXPECT_FALSE(line.contains(QRegularExpression("^[A-Z_]+$"))) << line.toStdString() << " has no text";
    }
}

TEST_P(HelpWindowTest, TheSearchLeavesWhatFits) {
    MainWindow window(*session_);
    window.ShowHelp("GENERAL", 370);
    auto* search = window.findChild<QLineEdit*>("helpSearch");
    search->setText(Lines(window, "F9").front().left(2));
    EXPECT_FALSE(Lines(window, "F9").isEmpty());
    EXPECT_LT(Lines(window).size(), 8);
    search->setText("ctrl+b");
    EXPECT_EQ(Lines(window).size(), 1);
    search->setText("no such thing");
    EXPECT_TRUE(Lines(window).isEmpty());
    search->clear();
    EXPECT_GT(Lines(window).size(), 20);
}

TEST_P(HelpWindowTest, ATopicHasItsTextAndAnUnknownOneTheGeneral) {
    MainWindow window(*session_);
    window.ShowHelp("func033", 370);
    const auto* topic = window.findChild<QLabel*>("helpTopic");
    EXPECT_EQ(topic->text().toStdString(), session_->Texts().Text("Client", "HELP_func033"));
    window.ShowHelp("func999", 370);
    EXPECT_EQ(topic->text().toStdString(), session_->Texts().Text("Client", "HELP_GENERAL"));
    EXPECT_EQ(window.findChildren<HelpWindow*>().size(), 1) << "one window for all";
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpWindowTest, testing::Values("en-US", "zh-CN", "zh-TW"));

}  // namespace

}  // namespace Tarvik::Client
