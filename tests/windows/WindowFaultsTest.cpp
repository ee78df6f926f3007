// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QTest>

#include <gmock/gmock.h>

#include "tests/windows/WindowFaults.h"
#include "testsupport/OffscreenScreen.h"

namespace Tarvik::WindowTesting {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Lines(const QStringList& faults) {
    std::vector<std::string> lines;
    for (const QString& fault : faults) {
        lines.push_back(fault.toStdString());
    }
    return lines;
}

class WindowFaultsTest : public testing::Test {
  protected:
    WindowFaultsTest() {
        window_.setObjectName("window");
        window_.setWindowFlag(Qt::FramelessWindowHint);
        window_.setGeometry(100, 100, 400, 300);
    }
    template <class Control>
    Control& Add(const char* name, const char* text, int width) {
        auto* control = new Control(QLatin1StringView(text), &window_);
        control->setObjectName(QLatin1StringView(name));
        control->setGeometry(20, 20, width, 26);
        return *control;
    }
    void Show() {
        window_.show();
        window_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    QWidget window_;
};

/// A button that hides where the keyboard is.
class BlindButton final : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {}
};

}  // namespace

TEST_F(WindowFaultsTest, AWindowThatLeavesItsScreenIsNamed) {
    Show();
    EXPECT_THAT(Lines(WindowFaults::OffScreen(window_)), IsEmpty());
    window_.move(window_.screen()->availableGeometry().right() - 100, 100);
    EXPECT_THAT(Lines(WindowFaults::OffScreen(window_)),
                ElementsAre("window at 1819,100 400x300 is not on the screen of 1920x1080"));
}

TEST_F(WindowFaultsTest, ATextThatIsCutIsNamedUnlessItsTipTellsIt) {
    Add<QLabel>("short", "Port", 200);
    QLabel& label = Add<QLabel>("label", "A text that is too long", 40);
    QPushButton& button = Add<QPushButton>("button", "Calculate all", 40);
    Show();
    EXPECT_THAT(Lines(WindowFaults::CutTexts(window_)),
                ElementsAre("window/label: \"A text that is too long\" is cut",
                            "window/button: \"Calculate all\" is cut"));
    label.setToolTip("A text that is too long");
    button.hide();
    EXPECT_THAT(Lines(WindowFaults::CutTexts(window_)), IsEmpty());
}

TEST_F(WindowFaultsTest, AWrappedTextMustFitInHeight) {
    QLabel& label = Add<QLabel>("label", "A text of several words that needs several lines", 120);
    label.setWordWrap(true);
    Show();
    EXPECT_THAT(Lines(WindowFaults::CutTexts(window_)),
                ElementsAre("window/label: \"A text of several words that needs several lines\" is cut"));
    label.resize(120, label.heightForWidth(120));
    EXPECT_THAT(Lines(WindowFaults::CutTexts(window_)), IsEmpty());
}

TEST_F(WindowFaultsTest, ATitleOfAColumnMustFitWordByWord) {
    auto* table = new QTableWidget(1, 2, &window_);
    table->setGeometry(0, 0, 300, 200);
    table->setHorizontalHeaderLabels({"In port days", "Distance"});
    table->setColumnWidth(0, 40);
    table->setColumnWidth(1, 20);
    table->horizontalHeader()->setObjectName("heads");
    Show();
    EXPECT_THAT(Lines(WindowFaults::CutTexts(window_)),
                ElementsAre("window/heads: title \"Distance\" is cut"));
}

TEST_F(WindowFaultsTest, AControlThatDoesNotShowTheKeyboardIsNamed) {
    Add<QPushButton>("plain", "Plain", 80);
    Add<BlindButton>("blind", "Blind", 80).move(20, 120);
    Show();
    EXPECT_THAT(Lines(WindowFaults::UnseenFocus(window_)),
                ElementsAre("window/blind: looks the same with the keyboard"));
}

}  // namespace Tarvik::WindowTesting

int main(int argc, char** argv) {
    const Tarvik::TestSupport::OffscreenScreen screen;
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
