// SPDX-License-Identifier: MIT
/// A text that its cell cuts is told whole where the pointer rests, and only there.
#include <QHelpEvent>
#include <QToolTip>

#include "seaplan/views/tests/PortCallWindowFixture.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kNarrow = 30;
constexpr int kWide = 300;

class CutTextTest : public PortCallWindowTest {
  protected:
    QString TipAt(int row, int column, int width) {
        Table().setColumnWidth(column, width);
        return Table().TipOf(Table().model()->index(row, column));
    }
    QString ShownTip(int row, int column) {
        const QPoint place = Table().visualRect(Table().model()->index(row, column)).center();
        QHelpEvent help(QEvent::ToolTip, place, Table().viewport()->mapToGlobal(place));
        QApplication::sendEvent(Table().viewport(), &help);
        return QToolTip::text();
    }
};

TEST_F(CutTextTest, APortsNameIsToldOnlyWhereItIsCut) {
    OpenPortCalls("Far East 12");
    EXPECT_EQ(TipAt(0, ColPort, kNarrow), "ROTTERDAM");
    EXPECT_EQ(ShownTip(0, ColPort), "ROTTERDAM");
    EXPECT_EQ(TipAt(0, ColPort, kWide), "");
    EXPECT_EQ(Table().TipOf({}), "");
    QToolTip::hideText();
}

TEST_F(CutTextTest, WhatIsSaidOfACellStandsBehindItsText) {
    OpenPortCalls("North Sea");
    ClickCell(0, ColPort);
    QTest::keyClicks(&PortEditor(), "Atlantis");
    QTest::keyClick(&PortEditor(), Qt::Key_Return);
    const QString why = TipAt(0, ColPort, kWide);
    EXPECT_TRUE(why.startsWith("No port has this name")) << why.toStdString();
    EXPECT_EQ(TipAt(0, ColPort, kNarrow), "Atlantis\n" + why);
}

}  // namespace

}  // namespace Tarvik::Seaplan
