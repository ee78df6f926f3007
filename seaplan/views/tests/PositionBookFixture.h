// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QListWidget>

#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

/// The window of the position book over the port calls of a sample voyage.
class PositionBookFixture : public ViewsFixture {
  protected:
    void OpenBook() {
        OpenPortCalls("Far East 12");
        Press(PortCalls(), "positionBookButton");
        ASSERT_NE(views.BookWindowMade(), nullptr);
        ASSERT_TRUE(Book().isVisible());
    }
    BookWindow& Book() { return *views.BookWindowMade(); }
    PanelTable& Table() { return *Find<PanelTable>(Book(), "positionBookTable"); }
    QLineEdit& Editor() { return *Find<QLineEdit>(Book(), "bookEditor"); }
    QListWidget& Choices() { return *Find<QListWidget>(Book(), "bookChoices"); }
    QLabel& Echo() { return *Find<QLabel>(Book(), "bookEcho"); }
    QWidget& Calendar() { return *Find<QWidget>(Book(), "calendarPopup"); }
    bool IsOn(const char* button) { return Find<QAbstractButton>(Book(), button)->isEnabled(); }
    QString TextOf(const char* label) { return Find<QLabel>(Book(), label)->text(); }
    bool Changed() { return Find<QLabel>(Book(), "changedMark")->isVisible(); }
    QString Cell(int row, int column) { return Table().model()->index(row, column).data().toString(); }
    QRect CellRect(int row, int column) { return Table().visualRect(Table().model()->index(row, column)); }
    void ClickCell(int row, int column) {
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, CellRect(row, column).center());
        QApplication::processEvents();
    }
    void ClickExpander(int row) {
        const QRect cell = CellRect(row, BookName);
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, QPoint(cell.left() + 8, cell.center().y()));
        QApplication::processEvents();
    }
    void Type(const QString& text, Qt::Key end = Qt::Key_Return) {
        QTest::keyClicks(&Editor(), text);
        QTest::keyClick(&Editor(), end);
        QApplication::processEvents();
    }
};

}  // namespace Tarvik::Seaplan
