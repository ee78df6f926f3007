// SPDX-License-Identifier: MIT
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/PositionBookFixture.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using PositionBookWindowTest = PositionBookFixture;

TEST_F(PositionBookWindowTest, ItOpensFromThePortCallsAndThesePause) {
    OpenBook();
    EXPECT_EQ(Book().objectName(), "positionBook");
    EXPECT_FALSE(PortCalls().isEnabled());
    EXPECT_TRUE(Book().isEnabled());
    const int widths[] = {36, 110, 85, 85, 40, 64, 41, 41, 117};
    for (int column = 0; column < BookEtd; ++column) {
        EXPECT_EQ(Table().columnWidth(column), widths[column]) << column;
    }
    EXPECT_EQ(Table().rowHeight(0), 20);
    EXPECT_EQ(Table().model()->rowCount(), 13);
    EXPECT_EQ(Cell(0, BookName), "ROTTERDAM");
    EXPECT_EQ(Cell(4, BookName), "SHANGHAI");
    EXPECT_EQ(Cell(5, BookOrder), "");
    EXPECT_EQ(TextOf("bookZone"), "Time zone: China Standard Time");
    EXPECT_FALSE(TextOf("bookDistance").isEmpty());
}

TEST_F(PositionBookWindowTest, EveryControlHasAnObjectNameAnAccessibleNameAndATip) {
    OpenBook();
    for (QAbstractButton* button : Book().findChildren<QAbstractButton*>()) {
        if (button->objectName().startsWith("qt_") || button->parentWidget() == &Table()) {
            continue;
        }
        EXPECT_FALSE(button->objectName().isEmpty());
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
    for (const char* name : {"positionBookTable", "bookEditor", "bookChoices", "bookSpeed", "bookDistance",
                             "bookTime", "bookZone"}) {
        EXPECT_FALSE(Find<QWidget>(Book(), name)->accessibleName().isEmpty()) << name;
    }
    EXPECT_EQ(Table().model()->index(0, BookName).data(Qt::AccessibleTextRole).toString(), "Name ROTTERDAM");
}

TEST_F(PositionBookWindowTest, ADisabledButtonTellsWhy) {
    OpenBook();
    for (const char* name : {"saveButton", "cancelButton", "undoButton", "redoButton", "deleteButton"}) {
        auto* button = Find<QAbstractButton>(Book(), name);
        EXPECT_FALSE(button->isEnabled()) << name;
        EXPECT_TRUE(button->toolTip().contains(": ")) << name;
    }
}

TEST_F(PositionBookWindowTest, TheExpandImageShowsTheWaypointsBehindARow) {
    OpenBook();
    ClickExpander(0);
    EXPECT_EQ(Cell(2, BookName), "SUEZ CANAL");
    EXPECT_EQ(Cell(1, BookOrder), "2");
    ClickExpander(0);
    EXPECT_EQ(Cell(1, BookName), "SUEZ CANAL");
    ClickExpander(4);
    EXPECT_EQ(Cell(4, BookName), "SHANGHAI") << "the last port has none behind it";
    EXPECT_FALSE(Changed());
}

TEST_F(PositionBookWindowTest, APressBelowAllRowsLeavesTheRowInFrontAndItsCommands) {
    OpenBook();
    ClickExpander(0);
    ClickCell(1, BookName);
    ASSERT_TRUE(IsOn("insertButton"));
    Book().resize(Book().width(), Book().height() + 200);
    QApplication::processEvents();
    const QPoint below(100, Table().viewport()->height() - 4);
    ASSERT_FALSE(Table().indexAt(below).isValid());
    PressAndShake(*Table().viewport(), below);
    EXPECT_EQ(Table().ChosenRows(), std::vector{1});
    EXPECT_TRUE(IsOn("insertButton"));
    for (const int column : {BookName, BookOrder, BookEta, BookCourse}) {
        ClickCell(2, BookName);
        ASSERT_TRUE(IsOn("insertButton"));
        ClickCell(3, column);
        EXPECT_EQ(Table().ChosenRows(), std::vector{3}) << column;
        ClickCell(12, column);
        EXPECT_TRUE(Table().ChosenRows().empty()) << "a line without a waypoint, " << column;
        EXPECT_FALSE(IsOn("insertButton")) << column;
        EXPECT_FALSE(IsOn("deleteButton")) << column;
    }
}

TEST_F(PositionBookWindowTest, APositionIsTypedAndEchoed) {
    OpenBook();
    ClickExpander(0);
    ClickCell(1, BookLatitude);
    ASSERT_TRUE(Editor().isVisible());
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_FALSE(Echo().isVisible());
    QTest::keyClicks(&Editor(), "51 54.5N");
    ASSERT_TRUE(Echo().isVisible());
    EXPECT_EQ(Echo().text(), "Read as 51° 54.50' N");
    QTest::keyClick(&Editor(), Qt::Key_Return);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_FALSE(Echo().isVisible());
    EXPECT_EQ(Cell(1, BookLatitude), "51.9083");
    EXPECT_EQ(Table().model()->index(1, BookLatitude).data(Qt::ToolTipRole).toString(), "51° 54.50' N");
    EXPECT_TRUE(Changed());
    EXPECT_TRUE(IsOn("saveButton"));
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(PositionBookWindowTest, ARefusedTextIsToldOnce) {
    OpenBook();
    ClickCell(1, BookSpeed);
    Type("99");
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].flags, 0);
    EXPECT_FALSE(Changed());
    ClickCell(1, BookSpeed);
    QTest::keyClicks(&Editor(), "x");
    Table().setFocus();
    QApplication::processEvents();
    EXPECT_EQ(messages.messages.size(), 2U);
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(PositionBookWindowTest, APressOnTheTitleTakesWhatIsTyped) {
    OpenBook();
    ClickCell(1, BookSpeed);
    QTest::keyClicks(&Editor(), "13");
    ASSERT_TRUE(Editor().isVisible());
    QTest::mouseClick(Find<QWidget>(Book(), "captionBar"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(1, BookSpeed), "13.00");
}

TEST_F(PositionBookWindowTest, TrackAndIntervalAreChosenByMouseAndKeyboard) {
    OpenBook();
    ClickCell(1, BookTrack);
    ASSERT_TRUE(Choices().isVisible());
    EXPECT_EQ(Choices().count(), 2);
    EXPECT_GE(Choices().width(), 43);
    QTest::keyClick(&Choices(), Qt::Key_Down);
    QTest::keyClick(&Choices(), Qt::Key_Return);
    EXPECT_EQ(Cell(1, BookTrack), "RL");
    EXPECT_TRUE(Table().hasFocus());
    ClickCell(1, BookInterval);
    QTest::mouseClick(Choices().viewport(), Qt::LeftButton, {},
                      Choices().visualItemRect(Choices().item(2)).center());
    EXPECT_EQ(Cell(1, BookInterval), "3");
    ClickCell(1, BookTrack);
    ClickCell(1, BookTrack);
    EXPECT_FALSE(Choices().isVisible());
}

TEST_F(PositionBookWindowTest, ADepartureIsPicked) {
    OpenBook();
    ClickCell(1, BookEtd);
    ASSERT_TRUE(Calendar().isVisible());
    const QString before = Cell(1, BookEtd);
    Press(Book(), "nextMonth");
    Press(Book(), "calendarOk");
    EXPECT_FALSE(Calendar().isVisible());
    EXPECT_NE(Cell(1, BookEtd), before);
    EXPECT_TRUE(Changed());
}

TEST_F(PositionBookWindowTest, AWaypointIsInsertedAndDeletedFromTheKeyboardAndUndone) {
    OpenBook();
    // A rhumb line has no waypoints of its own.
    ClickCell(1, BookTrack);
    QTest::keyClick(&Choices(), Qt::Key_Down);
    QTest::keyClick(&Choices(), Qt::Key_Return);
    QTest::keyClick(&Table(), Qt::Key_Up);
    EXPECT_FALSE(IsOn("insertButton")) << "before the first port";
    QTest::keyClick(&Table(), Qt::Key_Down);
    EXPECT_TRUE(IsOn("insertButton"));
    EXPECT_FALSE(IsOn("deleteButton")) << "a port";
    QTest::keyClick(&Table(), Qt::Key_Insert);
    EXPECT_EQ(Cell(2, BookName), "A new wp");
    EXPECT_EQ(Table().currentIndex().row(), 3);
    QTest::keyClick(&Table(), Qt::Key_Up);
    EXPECT_TRUE(IsOn("deleteButton"));
    QTest::keyClick(&Table(), Qt::Key_Delete);
    EXPECT_NE(Cell(2, BookName), "A new wp");
    QTest::keyClick(&Book(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(2, BookName), "A new wp");
    QTest::keyClick(&Book(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Changed()) << "the track";
    QTest::keyClick(&Book(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(Changed());
    QTest::keyClick(&Book(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(Changed());
    for (int again = 0; again < 2; ++again) {
        EXPECT_TRUE(IsOn("redoButton"));
        QTest::keyClick(&Book(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_FALSE(IsOn("redoButton"));
    Press(Book(), "cancelButton");
    EXPECT_FALSE(Changed());
}

TEST_F(PositionBookWindowTest, AKeyThatTheEditorHasNoUseForGoesNoFurther) {
    OpenBook();
    ClickCell(1, BookSpeed);
    ASSERT_TRUE(Editor().isVisible());
    const QString below = Cell(1, BookName);
    QTest::keyClick(&Editor(), Qt::Key_Insert);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Cell(1, BookName), below) << "in the table it means a new waypoint";
    EXPECT_FALSE(Changed());
}

TEST_F(PositionBookWindowTest, AnEditorOpensByF2AndTabGoesOnInTheRow) {
    OpenBook();
    ClickExpander(0);
    ClickCell(1, BookCourse);
    Table().setCurrentIndex(Table().model()->index(1, BookName));
    QTest::keyClick(&Table(), Qt::Key_F2);
    ASSERT_TRUE(Editor().isVisible());
    Type("Corner", Qt::Key_Tab);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Cell(1, BookName), "Corner");
    Type("2 30N", Qt::Key_Tab);
    Type("3 15W", Qt::Key_Tab);
    Type("12.5");
    EXPECT_EQ(Cell(1, BookLatitude), "2.5000");
    EXPECT_EQ(Cell(1, BookLongitude), "-3.2500");
    EXPECT_EQ(Cell(1, BookSpeed), "12.50");
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(PositionBookWindowTest, CtrlSSavesAndTheBookStaysInFront) {
    OpenBook();
    ClickCell(1, BookSpeed);
    QTest::keyClicks(&Editor(), "15");
    // A window that goes and comes back stands above all others.
    const QSignalSpy seen(PortCalls().windowHandle(), &QWindow::visibleChanged);
    QTest::keyClick(&Book(), Qt::Key_S, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(seen.count(), 0);
    EXPECT_TRUE(Book().isActiveWindow());
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls, "SUEZ CANAL"), 1);
    EXPECT_FALSE(Changed());
    EXPECT_TRUE(Book().isVisible());
    EXPECT_FALSE(PortCalls().isEnabled());
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(PositionBookWindowTest, UnitsAreChosenFromTheirMenus) {
    OpenBook();
    Press(Book(), "bookSpeedUnit");
    auto* menu = Book().findChild<QMenu*>("unitMenu");
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    menu->actions().at(1)->trigger();
    menu->close();
    EXPECT_EQ(Find<QAbstractButton>(Book(), "bookSpeedUnit")->text(), "KPH");
    EXPECT_EQ(Table().model()->headerData(BookSpeed, Qt::Horizontal, Qt::ToolTipRole).toString(),
              "Speed KPH");
    EXPECT_FALSE(Changed());
}

TEST_F(PositionBookWindowTest, ClosingGivesThePortCallsBack) {
    OpenBook();
    ClickCell(1, BookSpeed);
    Type("15");
    messages.Answer(Interface::SysMsgHandleRes::No);
    Press(Book(), "closeButton");
    EXPECT_FALSE(Book().isVisible());
    EXPECT_TRUE(PortCalls().isEnabled());
    EXPECT_EQ(messages.messages.size(), 1U);
    Press(PortCalls(), "positionBookButton");
    EXPECT_TRUE(Book().isVisible());
    EXPECT_FALSE(Changed());
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_FALSE(Book().isVisible());
    EXPECT_TRUE(PortCalls().isEnabled());
}

TEST_F(PositionBookWindowTest, AScrollTakesWhatIsTyped) {
    OpenBook();
    PosBookData many = views.Book().Sheet().data;
    for (int i = 0; i < 60; ++i) {
        PosBookRow row = many.ports[1].rows.front();
        row.expanded = true;
        row.y = i;
        many.ports[1].rows.push_back(row);
    }
    views.Book().ShowBook(many);
    QApplication::processEvents();
    ClickCell(2, BookName);
    ASSERT_TRUE(Editor().isVisible());
    QTest::keyClicks(&Editor(), "Far");
    Table().verticalScrollBar()->setValue(200);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(2, BookName), "Far");
}

}  // namespace Tarvik::Seaplan
