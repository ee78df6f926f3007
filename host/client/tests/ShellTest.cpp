// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/skin/WindowPlace.h>

#include "host/client/shell/MainWindow.h"
#include "host/client/shell/Runs.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

/// A panel of a plug-in that closes when it may, as after a question.
class Panel : public QWidget {
  public:
    explicit Panel(QWidget* mainView) : QWidget(mainView, Qt::Tool) { show(); }
    bool mayClose = false;

  protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(mayClose); }
};

class ShellTest : public testing::Test {
  protected:
    ShellTest() {
        options_.dataFolder = folder_.File("data");
        session_ = ClientSession::Open(options_, error_);
    }
    void SetUp() override { ASSERT_NE(session_, nullptr) << error_; }
    static QString Shown(const MainWindow& window, const char* label) {
        return window.findChild<QLabel*>(label)->text();
    }

    TestSupport::TemporaryFolder folder_;
    SessionOptions options_;
    std::string error_;
    std::unique_ptr<ClientSession> session_;
};

TEST_F(ShellTest, TheStatusLineTellsAnOutageAndItsEnd) {
    const MainWindow window(*session_);
    EXPECT_EQ(Shown(window, "connection"), "Connected");
    session_->Services().Watch().NoteSilence("The voyage server does not answer.");
    EXPECT_TRUE(Shown(window, "connection").startsWith("No answer since "))
        << Shown(window, "connection").toStdString();
    EXPECT_EQ(window.findChild<QLabel*>("connection")->toolTip(), "The voyage server does not answer.");
    session_->Services().Watch().NoteAnswer(true);
    EXPECT_TRUE(Shown(window, "connection").startsWith("Connected again since "));
}

TEST_F(ShellTest, TheStatusLineHasAWordOfEachPlugin) {
    const MainWindow window(*session_);
    const auto tell = [](const Interface::StatusWord& word) {
        Interface::Raise(Interface::Bus::TellStatus, &word);
    };
    tell({"ais", "AIS 5/min", "more"});
    tell({"fleet", "6 ships", ""});
    tell({"ais", "AIS <b>6/min", "still more"});
    EXPECT_EQ(Shown(window, "word_ais"), "AIS <b>6/min");
    EXPECT_EQ(window.findChild<QLabel*>("word_ais")->toolTip(), "still more");
    EXPECT_EQ(Shown(window, "word_fleet"), "6 ships");
    tell({"ais", "", ""});
    EXPECT_TRUE(window.findChild<QLabel*>("word_ais")->isHidden());
}

TEST_F(ShellTest, TheShipsToolIsThereForAPluginThatHasShipsAndTurnsThem) {
    MainWindow window(*session_);
    const auto* tool = window.findChild<QAction*>("action_ships");
    window.AttachPlugins();
    EXPECT_FALSE(tool->isVisible());
    bool shown = true;
    const auto ships = Interface::Offer(Interface::Bus::ShowShips, [&shown](const bool* wanted) {
        shown = wanted ? *wanted : shown;
        return &shown;
    });
    window.AttachPlugins();
    EXPECT_TRUE(tool->isVisible());
    window.findChild<QAction*>("action_ships")->trigger();
    EXPECT_FALSE(shown);
    window.findChild<QAction*>("action_ships")->trigger();
    EXPECT_TRUE(shown);
}

TEST_F(ShellTest, TheFleetToolIsThereForAPluginThatHasVesselsAndAsksForItsPanel) {
    MainWindow window(*session_);
    const auto* tool = window.findChild<QAction*>("action_fleet");
    window.AttachPlugins();
    EXPECT_FALSE(tool->isVisible());
    const std::vector<Interface::FleetEntry> vessels;
    const auto fleet = Interface::Offer(Interface::Bus::AllVessels, [&vessels] { return &vessels; });
    int asked = 0;
    const auto panels = Interface::Subscribe(
        Interface::Bus::ShowPanel, [&asked](const Interface::PanelShow& show) { asked = show.panel; });
    window.AttachPlugins();
    EXPECT_TRUE(tool->isVisible());
    window.findChild<QAction*>("action_fleet")->trigger();
    EXPECT_EQ(asked, Interface::PanelCode::kFleet);
}

TEST_F(ShellTest, TheZoneLabelIsTheZoneOfTheTimesOnShow) {
    const MainWindow window(*session_);
    EXPECT_EQ(Shown(window, "timeZone"), "China Standard Time");
    session_->Services().SetTimeZone("Europe/Rome");
    EXPECT_EQ(Shown(window, "timeZone"), "Europe/Rome");
    Interface::Raise(Interface::Bus::SwitchTimeZone, static_cast<const std::string*>(nullptr));
    EXPECT_EQ(Shown(window, "timeZone"), "Europe/Rome") << "without a text it is asked for";
}

TEST_F(ShellTest, TheWindowComesBackWhereAndAsItWasClosed) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect chosen(room.left() + 30, room.top() + 60, 700, 560);
    for (const bool whole : {false, true}) {
        {
            MainWindow window(*session_);
            window.TakePlace(room);
            window.show();
            window.setGeometry(chosen);
            window.setWindowState(whole ? Qt::WindowMaximized : Qt::WindowNoState);
            QApplication::processEvents();
            window.close();
        }
        MainWindow again(*session_);
        again.TakePlace(room);
        again.show();
        EXPECT_EQ(again.isMaximized(), whole);
        EXPECT_EQ(again.normalGeometry(), chosen);
    }
}

TEST_F(ShellTest, AWindowOfALargerScreenComesBackOnASmallOne) {
    Skin::KeepPlace("mainWindow", {{2500, 1300, 2000, 1500}, Skin::Dock::None, 0});
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    MainWindow window(*session_);
    window.TakePlace(room);
    window.show();
    EXPECT_TRUE(room.contains(window.geometry())) << window.width() << 'x' << window.height();
}

TEST_F(ShellTest, AnotherServerComesOnlyWhenThePanelsHaveClosed) {
    MainWindow window(*session_);
    window.show();
    auto* panel = new Panel(&window);
    bool openAtLogout = true;
    int logouts = 0;
    const auto listener = Interface::Subscribe(Interface::Bus::Logout, [&] {
        ++logouts;
        openAtLogout = panel->isVisible();
    });
    Preferences elsewhere = session_->Preferred();
    elsewhere.server = "http://127.0.0.1:1";
    window.Prefer(elsewhere);
    EXPECT_FALSE(session_->IsRemote()) << "the person keeps what is not saved";
    EXPECT_EQ(logouts, 0);
    panel->mayClose = true;
    window.Prefer(elsewhere);
    EXPECT_TRUE(session_->IsRemote());
    EXPECT_EQ(logouts, 1);
    EXPECT_FALSE(openAtLogout);
}

TEST_F(ShellTest, AnotherZoneComesOnlyWhenThePanelsHaveClosed) {
    MainWindow window(*session_);
    window.show();
    auto* panel = new Panel(&window);
    Preferences away = session_->Preferred();
    away.timeZone = "Europe/Rome";
    window.Prefer(away);
    EXPECT_EQ(session_->Services().TimeZone(), "China Standard Time") << "its times are read in this zone";
    panel->mayClose = true;
    window.Prefer(away);
    EXPECT_EQ(session_->Services().TimeZone(), "Europe/Rome");
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(ShellTest, NoPanelClosesForAnotherLook) {
    MainWindow window(*session_);
    window.show();
    auto* panel = new Panel(&window);
    panel->mayClose = true;
    Preferences dark = session_->Preferred();
    dark.theme = "dark";
    window.Prefer(dark);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(session_->Preferred().theme, "dark");
}

TEST_F(ShellTest, TheLanguageButtonGoesThroughAllLanguagesByTheirOwnNames) {
    const MainWindow window(*session_);
    auto* language = window.findChild<QAction*>("action_language");
    ASSERT_NE(language, nullptr);
    EXPECT_EQ(language->text(), "简体中文");
    EXPECT_EQ(language->toolTip(), "Show the client in 简体中文 (Ctrl+Shift+G)");
    language->trigger();
    EXPECT_EQ(language->text(), "繁體中文");
    language->trigger();
    EXPECT_EQ(session_->Preferred().language, "zh-TW");
    EXPECT_EQ(window.findChild<QAction*>("action_voyages")->toolTip(),
              "顯示或隱藏航次及其固定的航線 (Ctrl+L)");
    language->trigger();
    EXPECT_EQ(session_->Preferred().language, "en-US");
}

/// Presses Tab until a widget has the keyboard; false when it does not come round to it.
bool TabTo(QWidget& window, const QWidget& wanted) {
    constexpr int kMostStops = 60;
    for (int stop = 0; stop < kMostStops && !wanted.hasFocus(); ++stop) {
        QWidget* now = QApplication::focusWidget();
        QTest::keyClick(now == nullptr ? &window : now, Qt::Key_Tab);
    }
    return wanted.hasFocus();
}

TEST_F(ShellTest, ANarrowWindowHasAllToolsByMouseAndKeyboard) {
    for (const bool byKeys : {false, true}) {
        MainWindow window(*session_);
        window.resize(640, 600);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        auto* more = window.findChild<QToolButton*>("qt_toolbar_ext_button");
        const auto* last = window.findChild<QWidget*>("button_preferences");
        ASSERT_NE(more, nullptr);
        ASSERT_TRUE(more->isVisible());
        EXPECT_LE(more->mapTo(&window, more->rect().bottomRight()).x(), window.width());
        EXPECT_EQ(more->accessibleName(), "More tools");
        EXPECT_FALSE(last->isVisible());
        if (byKeys) {
            ASSERT_TRUE(TabTo(window, *more));
            QTest::keyClick(more, Qt::Key_Space);
        } else {
            QTest::mouseClick(more, Qt::LeftButton);
        }
        EXPECT_TRUE(QTest::qWaitFor([last] { return last->isVisible(); })) << byKeys;
        EXPECT_TRUE(!byKeys || TabTo(window, *last));
    }
}

TEST_F(ShellTest, APictureIsPointedAtByNobody) {
    MainWindow window(*session_);
    window.show();
    auto* tool = window.findChild<QWidget*>("button_voyages");
    const QImage plain = tool->grab().toImage();
    tool->setAttribute(Qt::WA_UnderMouse, true);
    ASSERT_NE(tool->grab().toImage(), plain);
    EXPECT_FALSE(PictureOf(window).isNull());
    EXPECT_EQ(tool->grab().toImage(), plain);
    EXPECT_FALSE(window.findChild<QLabel*>("cursorPosition")->isVisible());
}

TEST_F(ShellTest, APictureIsPngOrJpg) {
    std::string error;
    EXPECT_TRUE(CanWritePicture(QString::fromStdString(folder_.File("a.png")), error));
    EXPECT_TRUE(CanWritePicture(QString::fromStdString(folder_.File("a.JPG")), error));
    EXPECT_FALSE(CanWritePicture(QString::fromStdString(folder_.File("a.doc")), error));
    EXPECT_NE(error.find("end with .png or .jpg"), std::string::npos) << error;
}

TEST_F(ShellTest, TheSecondWindowOnOneFolderSaysThatItIsOpen) {
    EXPECT_TRUE(session_->IsAlone());
    options_.alone = true;
    EXPECT_EQ(ClientSession::Open(options_, error_), nullptr);
    EXPECT_EQ(error_, "Seaplan is open already with the data folder " + folder_.File("data") +
                          ". Use its window, or name another folder with --data DIR.");
    session_.reset();
    EXPECT_NE(ClientSession::Open(options_, error_), nullptr)
        << "and it is free again with the first one's end";
}

TEST_F(ShellTest, TheKeyboardGoesRoundTheWindows) {
    MainWindow window(*session_);
    window.show();
    const Panel first(&window);
    const Panel second(&window);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto turn = [](Qt::KeyboardModifier modifier) {
        QTest::keyClick(QApplication::activeWindow(), Qt::Key_F6, modifier);
        QApplication::processEvents();
        return QApplication::activeWindow();
    };
    EXPECT_EQ(turn(Qt::NoModifier), &first);
    EXPECT_EQ(turn(Qt::NoModifier), &second);
    EXPECT_EQ(turn(Qt::NoModifier), &window);
    EXPECT_EQ(turn(Qt::ShiftModifier), &second);
}

}  // namespace
}  // namespace Tarvik::Client
