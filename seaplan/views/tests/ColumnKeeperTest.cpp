// SPDX-License-Identifier: MIT
/// Columns made wider and hidden by the heads of a table.
#include <QContextMenuEvent>
#include <QHeaderView>

#include "seaplan/views/table/ColumnKeeper.h"
#include "seaplan/views/tests/PortCallWindowFixture.h"

namespace Tarvik::Seaplan {

namespace {

class ColumnKeeperTest : public PortCallWindowTest {
  protected:
    void SetUp() override { OpenPortCalls("Far East 12"); }
    QHeaderView& Heads() { return *Table().horizontalHeader(); }
    /// Drags the right border of a column's head.
    void Drag(int column, int by) {
        const QPoint border(Heads().sectionViewportPosition(column) + Heads().sectionSize(column) - 1,
                            Heads().height() / 2);
        QTest::mousePress(Heads().viewport(), Qt::LeftButton, {}, border);
        QMouseEvent move(QEvent::MouseMove, border + QPoint(by, 0),
                         Heads().viewport()->mapToGlobal(border + QPoint(by, 0)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Heads().viewport(), &move);
        QTest::mouseRelease(Heads().viewport(), Qt::LeftButton, {}, border + QPoint(by, 0));
    }
    QMenu* Menu() {
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, {5, 5},
                                Heads().viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(Heads().viewport(), &asked);
        return Table().findChild<QMenu*>("columnsMenu");
    }
};

}  // namespace

TEST_F(ColumnKeeperTest, ADraggedWidthStaysThroughWhatTheTableShowsNext) {
    const int before = Table().columnWidth(ColPort);
    const int room = Table().minimumWidth();
    Drag(ColPort, 40);
    ASSERT_EQ(Table().columnWidth(ColPort), before + 40);
    QApplication::processEvents();
    EXPECT_EQ(Table().minimumWidth(), room + 40) << "the window makes room";
    QTest::keyClick(&Table(), Qt::Key_F9);
    QApplication::processEvents();
    PortCalls().ApplyTexts();
    EXPECT_EQ(Table().columnWidth(ColPort), before + 40);
    EXPECT_EQ(KeptPortCallColumns().Columns()[ColPort].width, before + 40);
}

TEST_F(ColumnKeeperTest, AColumnIsHiddenByTheMenuAndTheUsualOnesComeBack) {
    QMenu* menu = Menu();
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(menu->actions().at(ColPort)->isEnabled());
    menu->actions().at(ColSteamTime)->trigger();
    EXPECT_TRUE(Table().isColumnHidden(ColSteamTime));
    EXPECT_FALSE(Table().isColumnHidden(ColPort));
    Table().setCurrentIndex(Table().model()->index(1, ColWeather));
    QTest::keyClick(&Table(), Qt::Key_Right);
    EXPECT_EQ(Table().currentIndex().column(), ColPortTime) << "the keys pass it over";
    menu->findChild<QAction*>("usualColumns")->trigger();
    EXPECT_FALSE(Table().isColumnHidden(ColSteamTime));
    menu->close();
}

TEST_F(ColumnKeeperTest, ADoubleClickOnABorderFitsTheColumn) {
    Drag(ColPort, 200);
    const int wide = Table().columnWidth(ColPort);
    emit Heads().sectionHandleDoubleClicked(ColPort);
    EXPECT_LT(Table().columnWidth(ColPort), wide);
}

}  // namespace Tarvik::Seaplan
