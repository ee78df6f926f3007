// SPDX-License-Identifier: MIT
/// What a change of look leaves as it is.
#include <QAction>
#include <QApplication>
#include <QFontInfo>
#include <QMenu>
#include <QTest>
#include <map>

#include <gtest/gtest.h>

#include "host/client/shell/MainWindow.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

class LookTest : public testing::Test {
  protected:
    LookTest() {
        options_.dataFolder = folder_.File("data");
        session_ = ClientSession::Open(options_, error_);
    }
    void SetUp() override { ASSERT_NE(session_, nullptr) << error_; }
    /// The height of the text of each widget of a window in pixels, and of those that come later.
    static std::map<const QWidget*, int> Sizes(const QWidget& window) {
        std::map<const QWidget*, int> sizes;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            sizes[widget] = QFontInfo(widget->font()).pixelSize();
        }
        const QMenu later;
        sizes[nullptr] = QFontInfo(later.font()).pixelSize();
        return sizes;
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string error_;
    std::unique_ptr<ClientSession> session_;
};

TEST_F(LookTest, TextsKeepTheirSizeThroughAllLooks) {
    MainWindow window(*session_);
    window.ShowHelp("GENERAL");
    window.show();
    QApplication::processEvents();
    const auto before = Sizes(window);
    EXPECT_GT(before.size(), 10U);
    const std::string first = session_->Preferred().theme;
    do {
        window.findChild<QAction*>("action_theme")->trigger();
        QApplication::processEvents();
        for (const auto& [widget, size] : Sizes(window)) {
            const auto known = before.find(widget);
            EXPECT_TRUE(known != before.end() && known->second == size)
                << session_->Preferred().theme << ": "
                << (widget == nullptr ? "a new menu" : qPrintable(widget->objectName())) << " " << size;
        }
    } while (session_->Preferred().theme != first);
}

}  // namespace

}  // namespace Tarvik::Client
