// SPDX-License-Identifier: MIT
// The date over a cell of the port calls and of the position book, as their windows show it.
#include <QAccessible>
#include <QToolButton>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>

#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class DateCellTest : public ViewsFixture {
  protected:
    template <class Table>
    void ClickCell(QWidget& window, const char* table, int row, int column) {
        auto* found = Find<Table>(window, table);
        ASSERT_NE(found, nullptr);
        const QRect cell = found->visualRect(found->model()->index(row, column));
        QTest::mouseClick(found->viewport(), Qt::LeftButton, {}, cell.center());
        QApplication::processEvents();
    }
    void ClickEtd(int row) { ClickCell<PanelTable>(PortCalls(), "portCallTable", row, ColEtd); }
    QToolButton& Button(QWidget& window) { return *Find<QToolButton>(window, "dateButton"); }
    QWidget& Calendar(QWidget& window) { return *Find<QWidget>(window, "calendarPopup"); }
    QString Cell(int row, int column) {
        return Find<PanelTable>(PortCalls(), "portCallTable")->model()->index(row, column).data().toString();
    }
    void OpenBook() {
        OpenPortCalls("Far East 12");
        Press(PortCalls(), "positionBookButton");
        ASSERT_NE(views.BookWindowMade(), nullptr);
    }
};

}  // namespace

TEST_F(DateCellTest, TheButtonCoversTheCellWithItsDateWhileTheCalendarIsOpen) {
    OpenPortCalls("Far East 12");
    ClickEtd(1);
    ASSERT_TRUE(Button(PortCalls()).isVisible());
    auto& table = *Find<PanelTable>(PortCalls(), "portCallTable");
    EXPECT_EQ(Button(PortCalls()).geometry(), table.EditorRect(1, ColEtd));
    EXPECT_EQ(Button(PortCalls()).text(), Cell(1, ColEtd));
    EXPECT_EQ(Button(PortCalls()).accessibleName(), Cell(1, ColEtd));
    QImage seen(Button(PortCalls()).size(), QImage::Format_ARGB32);
    seen.fill(Qt::magenta);
    Button(PortCalls()).render(&seen, QPoint(), QRegion(), QWidget::RenderFlags());
    EXPECT_EQ(seen.pixelColor(3, 3), Skin::Colour(Skin::Role::Panel))
        << "the date below does not shine through";
    Press(Calendar(PortCalls()), "calendarCancel");
    EXPECT_FALSE(Button(PortCalls()).isVisible());
}

TEST_F(DateCellTest, APressOnTheButtonClosesItsCalendar) {
    OpenPortCalls("Far East 12");
    ClickEtd(1);
    Press(PortCalls(), "dateButton");
    EXPECT_FALSE(Calendar(PortCalls()).isVisible());
    EXPECT_FALSE(Button(PortCalls()).isVisible());
    ClickEtd(1);
    EXPECT_TRUE(Calendar(PortCalls()).isVisible());
}

TEST_F(DateCellTest, AScreenReaderPressesIt) {
    OpenPortCalls("Far East 12");
    ClickEtd(1);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&Button(PortCalls()));
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told->role(), QAccessible::PushButton);
    EXPECT_EQ(told->text(QAccessible::Name), Cell(1, ColEtd));
    ASSERT_NE(told->actionInterface(), nullptr);
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(Calendar(PortCalls()).isVisible());
}

TEST_F(DateCellTest, AWindowCanOfferDaysWithoutATime) {
    OpenPortCalls("Far East 12");
    CTrvDateTimeCtrl& date = views.PortCalls().Cells().Picker();
    date.SetDateOnly(true);
    date.SetFormat("%Y-%m-%d");
    ClickEtd(1);
    EXPECT_EQ(Button(PortCalls()).text(), Cell(1, ColEtd).left(10));
    EXPECT_FALSE(Find<QWidget>(Calendar(PortCalls()), "calendarOk")->isVisible());
    EXPECT_FALSE(Find<QWidget>(Calendar(PortCalls()), "hourShown")->isVisible());
    EXPECT_TRUE(Find<QWidget>(Calendar(PortCalls()), "day20")->isVisible());
}

TEST_F(DateCellTest, TheStyleIsChosenWhenTheButtonIsMade) {
    OpenPortCalls("Far East 12");
    CTrvDateTimeCtrl& date = views.PortCalls().Cells().Picker();
    date.SetTimeStyle(1);
    ClickEtd(1);
    EXPECT_EQ(Skin::SkinOf(Button(PortCalls())), "TimeSelTrace");
    date.SetTimeStyle(0);
    Press(Calendar(PortCalls()), "calendarCancel");
    ClickEtd(2);
    EXPECT_EQ(Skin::SkinOf(Button(PortCalls())), "TimeSelTrace");
}

TEST_F(DateCellTest, ThePositionBookHasTheSameButton) {
    OpenBook();
    BookWindow& book = *views.BookWindowMade();
    ClickCell<PanelTable>(book, "positionBookTable", 1, BookEtd);
    ASSERT_TRUE(Button(book).isVisible());
    EXPECT_EQ(Skin::SkinOf(Button(book)), "Date_Select_full");
    EXPECT_EQ(Button(book).text(),
              Find<PanelTable>(book, "positionBookTable")->model()->index(1, BookEtd).data().toString());
    Press(book, "dateButton");
    EXPECT_FALSE(Calendar(book).isVisible());
}

}  // namespace Tarvik::Seaplan
