// SPDX-License-Identifier: MIT
#include <QClipboard>

#include "seaplan/views/tests/PortCallWindowFixture.h"

/// Ctrl+C over the table: its rows as a spreadsheet takes them.
namespace Tarvik::Seaplan {

namespace {

class CopiedRowsTest : public PortCallWindowTest {
  protected:
    QStringList Copy() {
        QApplication::clipboard()->setText(QStringLiteral("before"));
        PortCalls().activateWindow();
        Table().setFocus();
        QApplication::processEvents();
        QTest::keyClick(&Table(), Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().split(u'\n');
    }
};

TEST_F(CopiedRowsTest, TheRowsComeWithHeadsAndUnits) {
    OpenPortCalls("Far East 12");
    const QStringList lines = Copy();
    int filled = 0;
    while (!Cell(filled, ColPort).isEmpty()) {
        ++filled;
    }
    ASSERT_EQ(lines.size(), filled + 2) << "heads, rows and the end of the last line";
    EXPECT_EQ(lines.back(), "");
    const QStringList heads = lines[0].split(u'\t');
    ASSERT_EQ(heads.size(), kPortCallColumnCount);
    EXPECT_EQ(heads[ColPort], "Port");
    EXPECT_TRUE(heads[ColSpeed].endsWith(" kts")) << heads[ColSpeed].toStdString();
    EXPECT_TRUE(heads[ColDistance].endsWith(" NM"));
    for (int row = 0; row < filled; ++row) {
        const QStringList cells = lines[row + 1].split(u'\t');
        ASSERT_EQ(cells.size(), kPortCallColumnCount);
        for (int column = 0; column < kPortCallColumnCount; ++column) {
            EXPECT_EQ(cells[column], Cell(row, column)) << row << " " << column;
        }
    }
}

TEST_F(CopiedRowsTest, ATableWithoutPortsLeavesTheClipboard) {
    OpenPortCalls("North Sea");
    ASSERT_EQ(Cell(0, ColPort), "");
    EXPECT_EQ(Copy(), QStringList("before"));
}

}  // namespace

}  // namespace Tarvik::Seaplan
