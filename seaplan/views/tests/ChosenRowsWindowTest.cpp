// SPDX-License-Identifier: MIT
/// Choosing several rows of the port calls with mouse and keyboard.
#include <QClipboard>
#include <QShortcut>

#include "seaplan/views/tests/PortCallWindowFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class ChosenRowsWindowTest : public PortCallWindowTest {
  protected:
    void SetUp() override {
        OpenInFront("Far East 12");
        Table().setCurrentIndex(Table().model()->index(1, ColSpeed));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(&Table(), key, held); }
    void Click(int row, Qt::KeyboardModifiers held) {
        const QRect cell = Table().visualRect(Table().model()->index(row, ColSpeed));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, held, cell.center());
        QApplication::processEvents();
    }
    std::vector<int> Chosen() { return Table().ChosenRows(); }
};

TEST_F(ChosenRowsWindowTest, ShiftAndAnArrowChooseOn) {
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2, 3));
    Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2));
    Press(Qt::Key_Left);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2)) << "another column of the same row";
    EXPECT_EQ(Table().currentIndex().column(), ColPurpose);
    Press(Qt::Key_Down);
    EXPECT_THAT(Chosen(), ElementsAre(3));
}

TEST_F(ChosenRowsWindowTest, AClickWithShiftOrCtrlChoosesAndOpensNothing) {
    Click(3, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2, 3));
    Click(2, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 3));
    EXPECT_FALSE(SpeedEditor().isVisible());
    Click(2, {});
    EXPECT_THAT(Chosen(), ElementsAre(2));
    EXPECT_TRUE(SpeedEditor().isVisible());
}

TEST_F(ChosenRowsWindowTest, APressBelowAllRowsLeavesThemChosen) {
    Press(Qt::Key_Down, Qt::ShiftModifier);
    PortCalls().resize(PortCalls().width(), PortCalls().height() + 200);
    QApplication::processEvents();
    const QPoint below(100, Table().viewport()->height() - 4);
    ASSERT_FALSE(Table().indexAt(below).isValid());
    PressAndShake(*Table().viewport(), below);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2));
    EXPECT_EQ(Table().currentIndex().row(), 2);
}

TEST_F(ChosenRowsWindowTest, ASpeedIsTypedForAllChosenRows) {
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_F2);
    ASSERT_TRUE(SpeedEditor().isVisible());
    EXPECT_THAT(Chosen(), ElementsAre(1, 2)) << "an editor over one of them leaves them chosen";
    QTest::keyClicks(&SpeedEditor(), "17");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Cell(1, ColSpeed), "17.00");
    EXPECT_EQ(Cell(2, ColSpeed), "17.00");
    EXPECT_FALSE(SpeedEditor().isVisible());
    QTest::keyClick(&Table(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Cell(1, ColSpeed), "17.00");
    EXPECT_NE(Cell(2, ColSpeed), "17.00");
}

TEST_F(ChosenRowsWindowTest, CtrlDFillsDownAndDeleteTakesThemAway) {
    Click(1, {});
    QTest::keyClicks(&SpeedEditor(), "18");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Return);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Cell(2, ColSpeed), "18.00");
    const QString last = Cell(3, ColPort);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Cell(1, ColPort), last);
}

TEST_F(ChosenRowsWindowTest, TheTableKeepsCtrlDFromTheClientsCommandOfTheSameKeys) {
    int commands = 0;
    const QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_D), &PortCalls(), [&commands] { ++commands; });
    Click(1, {});
    QTest::keyClicks(&SpeedEditor(), "18");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Return);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Cell(2, ColSpeed), "18.00");
    EXPECT_EQ(commands, 0);
    PortCalls().setFocus();
    QTest::keyClick(&PortCalls(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(commands, 1) << "beside the table the keys are the client's";
}

TEST_F(ChosenRowsWindowTest, OnlyTheChosenRowsAreCopied) {
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(lines.size(), 4) << "heads, two rows and the end of the last line";
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("2\t") + Cell(1, ColPort)));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("3\t") + Cell(2, ColPort)));
}

}  // namespace

}  // namespace Tarvik::Seaplan
