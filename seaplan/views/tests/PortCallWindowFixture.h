// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

#include "seaplan/views/portcall/PortCallLines.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

/// The window of the port calls, its controls by their names.
class PortCallWindowTest : public ViewsFixture {
  protected:
    PanelTable& Table() { return *Find<PanelTable>(PortCalls(), "portCallTable"); }
    QLineEdit& PortEditor() { return *Find<QLineEdit>(PortCalls(), "portEditor"); }
    QLineEdit& SpeedEditor() { return *Find<QLineEdit>(PortCalls(), "speedEditor"); }
    QLineEdit& WeatherEditor() { return *Find<QLineEdit>(PortCalls(), "weatherEditor"); }
    QListWidget& Purposes() { return *Find<QListWidget>(PortCalls(), "purposeList"); }
    QListWidget& Matches() { return *Find<QListWidget>(PortCalls(), "portMatches"); }
    QWidget& Calendar() { return *Find<QWidget>(PortCalls(), "calendarPopup"); }
    QString Cell(int row, int column) { return Table().model()->index(row, column).data().toString(); }
    void ClickCell(int row, int column) {
        const QRect cell = Table().visualRect(Table().model()->index(row, column));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, cell.center());
        QApplication::processEvents();
    }
    /// Clicks one of the images at a row's end.
    void ClickImage(int row, int image) {
        const QRect cell = Table().visualRect(Table().model()->index(row, kPortCallImageColumn));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 12 + 20 * image, cell.center().y()));
    }
    /// Opens a voyage's port calls in the window in front, the keyboard on the table.
    void OpenInFront(const std::string& voyage) {
        OpenPortCalls(voyage);
        PortCalls().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&PortCalls()));
        Table().setFocus();
    }
    /// Opens a voyage without port calls and types two; the second is still in its editor.
    void TypeTwoPorts() {
        OpenInFront("North Sea");
        ClickCell(0, ColPort);
        QTest::keyClicks(&PortEditor(), "ROTTERDAM");
        QTest::keyClick(&PortEditor(), Qt::Key_Return);
        QTest::keyClicks(&PortEditor(), "HAMBURG");
    }
    static void ClickItem(QListWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        QApplication::processEvents();
    }
    void Button(const char* name) { Press(PortCalls(), name); }
};

}  // namespace Tarvik::Seaplan
