// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QRubberBand>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

#include <gtest/gtest.h>

#include <tarvik/skin/ToolWindow.h>
#include <tarvik/skin/WindowPlace.h>
#include <tarvik/util/FileUtl.h>

#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Skin {

namespace {

constexpr QRect kMain(100, 100, 1000, 700);
constexpr QRect kUsual(300, 300, 320, 240);

class Panel final : public ToolWindow {
  public:
    Panel(QWidget* main, const char* name, bool resizable) : ToolWindow(main, QString::fromLatin1(name)) {
        auto* content = new QLabel(this);
        content->setMinimumSize(200, 100);
        Body()->addWidget(content);
        if (resizable) {
            SetResizable();
        }
        resize(kUsual.size());
    }
    void OpenByRule() {
        PlaceByRule(kUsual);
        show();
    }

  protected:
    void CloseAsked() override { hide(); }
};

class ToolWindowTest : public testing::Test {
  protected:
    ToolWindowTest() {
        Util::FileUtl::SetCurrentAppDirectory(folder_.Path());
        MakeMain();
    }
    ~ToolWindowTest() override { Util::FileUtl::SetCurrentAppDirectory(before_); }

    void MakeMain() {
        main_ = std::make_unique<QMainWindow>();
        main_->setCentralWidget(new QWidget);
        main_->setGeometry(kMain);
        main_->show();
    }
    Panel& Open(const char* name = "panel", bool resizable = true) {
        auto* panel = new Panel(main_.get(), name, resizable);
        panel->OpenByRule();
        return *panel;
    }
    /// As after the next start of the client.
    Panel& OpenAnew() {
        MakeMain();
        return Open();
    }
    QRect Room() const {
        const QWidget& middle = *main_->centralWidget();
        return {middle.mapToGlobal(QPoint(0, 0)), middle.size()};
    }
    /// Opens the menu by its key and lets one of its lines be pressed, as far as they are there.
    static void Press(Panel& panel, const char* line) {
        panel.activateWindow();
        QApplication::processEvents();
        QTest::keyClick(&panel, Qt::Key_F10, Qt::ControlModifier);
        const std::unique_ptr<QMenu> menu(panel.findChild<QMenu*>("windowMenu"));
        auto* action = menu == nullptr ? nullptr : menu->findChild<QAction*>(line);
        ASSERT_NE(action, nullptr) << line;
        action->trigger();
        QApplication::processEvents();
    }
    static void Drag(Panel& panel, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers held = {}) {
        QTest::mousePress(&panel, Qt::LeftButton, held, panel.mapFromGlobal(from));
        for (const QPoint& at : {from + (to - from) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, panel.mapFromGlobal(at), at, Qt::NoButton, Qt::LeftButton,
                             held);
            QApplication::sendEvent(&panel, &move);
        }
        QTest::mouseRelease(&panel, Qt::LeftButton, held, panel.mapFromGlobal(to));
    }
    static QPoint Caption(const Panel& panel) { return panel.mapToGlobal(QPoint(40, 12)); }

    std::string before_ = Util::FileUtl::GetCurrentAppDirectory();
    TestSupport::TemporaryFolder folder_;
    std::unique_ptr<QMainWindow> main_;
};

}  // namespace

TEST_F(ToolWindowTest, TheProgramsPlaceCountsUntilAPersonChoosesAnother) {
    Panel& panel = Open();
    EXPECT_EQ(panel.geometry(), kUsual);
    Drag(panel, Caption(panel), Caption(panel) + QPoint(120, 60));
    const QRect chosen = kUsual.translated(120, 60);
    EXPECT_EQ(panel.geometry(), chosen);
    panel.PlaceByRule(kUsual);
    EXPECT_EQ(panel.geometry(), chosen);
    panel.hide();
    panel.OpenByRule();
    EXPECT_EQ(panel.geometry(), chosen);
    EXPECT_EQ(OpenAnew().geometry(), chosen) << "after the next start too";
}

TEST_F(ToolWindowTest, AClickByAHandThatIsNotStillMovesNothing) {
    Panel& panel = Open();
    Drag(panel, Caption(panel), Caption(panel) + QPoint(2, 1));
    EXPECT_EQ(panel.geometry(), kUsual);
    EXPECT_FALSE(KeptPlace("panel"));
}

TEST_F(ToolWindowTest, APlaceOffTheScreenOpensOnIt) {
    KeepPlace("panel", {{9900, 9900, 320, 240}, Dock::None, 0});
    const QRect screen = Open().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(main_->findChild<QWidget*>("panel")->geometry()));
    auto* far = new Panel(main_.get(), "far", true);
    far->PlaceByRule({screen.right() - 10, screen.bottom() - 10, 320, 240});
    far->show();
    EXPECT_TRUE(screen.contains(far->geometry()));
}

TEST_F(ToolWindowTest, EdgesSizeAPanelThatAllowsIt) {
    Panel& panel = Open();
    const QPoint corner = panel.geometry().bottomRight() - QPoint(2, 2);
    Drag(panel, corner, corner + QPoint(50, 30));
    EXPECT_EQ(panel.geometry(), kUsual.adjusted(0, 0, 50, 30));
    const QPoint left(panel.x() + 1, panel.y() + 100);
    Drag(panel, left, left + QPoint(5000, 0));
    EXPECT_EQ(panel.width(), panel.minimumSizeHint().width()) << "not smaller than its content";
    EXPECT_EQ(panel.geometry().right(), kUsual.right() + 50) << "the other edge stays";
    const QSize chosen = panel.size();
    EXPECT_EQ(OpenAnew().size(), chosen);
    Panel& fixed = Open("fixed", false);
    const QPoint edge = fixed.geometry().bottomRight() - QPoint(2, 2);
    Drag(fixed, edge, edge + QPoint(50, 30));
    EXPECT_EQ(fixed.size(), kUsual.size());
}

TEST_F(ToolWindowTest, AtAnEdgeOfTheMainWindowAPanelDocksAndFollowsIt) {
    Panel& panel = Open();
    Drag(panel, Caption(panel), QPoint(Room().left() + 3, Room().center().y()));
    EXPECT_EQ(panel.geometry(), QRect(Room().topLeft(), QSize(kUsual.width(), Room().height())));
    main_->setGeometry(kMain.adjusted(20, 10, 20, -90));
    EXPECT_EQ(panel.geometry(), QRect(Room().topLeft(), QSize(kUsual.width(), Room().height())));
    const QPoint edge(panel.geometry().right() - 1, Room().center().y());
    Drag(panel, edge, edge + QPoint(60, 0));
    EXPECT_EQ(panel.width(), kUsual.width() + 60) << "it is sized by the edge that looks to the chart";
    Panel& again = OpenAnew();
    EXPECT_EQ(again.geometry(), QRect(Room().topLeft(), QSize(kUsual.width() + 60, Room().height())));
    const QPoint grip = Caption(again);
    Drag(again, grip, grip + QPoint(200, 100));
    EXPECT_EQ(again.size(), kUsual.size()) << "torn off it has its own size";
    EXPECT_TRUE(again.geometry().contains(grip + QPoint(200, 100)));
    EXPECT_EQ(KeptPlace("panel")->dock, Dock::None);
}

TEST_F(ToolWindowTest, ControlKeepsAPanelFromDocking) {
    Panel& panel = Open();
    const QPoint edge(Room().left() + 3, Room().center().y());
    Drag(panel, Caption(panel), edge, Qt::ControlModifier);
    EXPECT_EQ(panel.size(), kUsual.size());
    EXPECT_EQ(KeptPlace("panel")->dock, Dock::None);
    EXPECT_EQ(main_->findChild<QRubberBand*>(), nullptr);
}

TEST_F(ToolWindowTest, DockedPanelsStandBesideEachOther) {
    Panel& first = Open("first");
    Panel& second = Open("second");
    Panel& third = Open("third");
    Drag(first, Caption(first), QPoint(Room().left() + 3, Room().center().y()));
    Drag(second, Caption(second), QPoint(Room().left() + 3, Room().center().y()));
    Drag(third, Caption(third), QPoint(Room().center().x(), Room().bottom() - 3));
    EXPECT_EQ(second.x(), first.geometry().right() + 1);
    EXPECT_EQ(third.geometry(),
              QRect(QPoint(second.geometry().right() + 1, Room().bottom() + 1 - kUsual.height()),
                    Room().bottomRight()));
    first.hide();
    EXPECT_EQ(second.x(), Room().left()) << "a closed one leaves its place";
    first.show();
    EXPECT_EQ(first.x(), second.geometry().right() + 1) << "and comes behind the others";
    delete &second;
    third.hide();
    EXPECT_EQ(first.x(), Room().left());
}

TEST_F(ToolWindowTest, APanelOfFixedSizeDocksWithItsOwn) {
    Panel& panel = Open("panel", false);
    Drag(panel, Caption(panel), QPoint(Room().right() - 3, Room().center().y()));
    EXPECT_EQ(panel.geometry(), QRect(Room().topRight() - QPoint(kUsual.width() - 1, 0), kUsual.size()));
}

TEST_F(ToolWindowTest, ADoubleClickOnTheCaptionFillsTheMainWindowAndBack) {
    Panel& panel = Open();
    QTest::mouseDClick(&panel, Qt::LeftButton, {}, QPoint(40, 12));
    EXPECT_EQ(panel.geometry(), Room());
    EXPECT_EQ(OpenAnew().geometry(), Room());
    auto& again = *main_->findChild<Panel*>("panel");
    QTest::mouseDClick(&again, Qt::LeftButton, {}, QPoint(40, 12));
    EXPECT_EQ(again.geometry(), kUsual);
}

TEST_F(ToolWindowTest, TheMenuDocksAndBringsBackToTheUsualPlace) {
    Panel& panel = Open();
    Press(panel, "DOCK_RIGHT");
    EXPECT_EQ(panel.geometry().right(), Room().right());
    EXPECT_EQ(panel.height(), Room().height());
    Press(panel, "FLOAT");
    EXPECT_EQ(panel.geometry(), kUsual);
    Press(panel, "DOCK_BOTTOM");
    Press(panel, "USUAL");
    EXPECT_EQ(panel.geometry(), kUsual);
    EXPECT_FALSE(KeptPlace("panel"));
    main_->resize(800, 600);
    EXPECT_EQ(panel.geometry(), kUsual) << "it is docked no more";
}

TEST_F(ToolWindowTest, ArrowKeysMoveAndSizeUntilEnterOrEscape) {
    Panel& panel = Open();
    Press(panel, "MOVE");
    QTest::keyClick(&panel, Qt::Key_Right);
    QTest::keyClick(&panel, Qt::Key_Down);
    QTest::keyClick(&panel, Qt::Key_Down, Qt::ShiftModifier);
    const QRect chosen = kUsual.translated(16, 16).adjusted(0, 0, 0, 16);
    EXPECT_EQ(panel.geometry(), chosen);
    QTest::keyClick(&panel, Qt::Key_Return);
    EXPECT_EQ(KeptPlace("panel")->floating, chosen);
    QTest::keyClick(&panel, Qt::Key_Right);
    EXPECT_EQ(panel.geometry(), chosen) << "the keys are the panel's again";
    Press(panel, "MOVE");
    QTest::keyClick(&panel, Qt::Key_Left);
    QTest::keyClick(&panel, Qt::Key_Escape);
    EXPECT_EQ(panel.geometry(), chosen);
    EXPECT_EQ(KeptPlace("panel")->floating, chosen);
}

}  // namespace Tarvik::Skin
