// SPDX-License-Identifier: MIT
/// Choosing several rows of the position book with mouse and keyboard, and pasting waypoints.
#include <QClipboard>
#include <QTimer>

#include "seaplan/views/tests/PositionBookFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class BookChosenRowsWindowTest : public PositionBookFixture {
  protected:
    void SetUp() override {
        OpenBook();
        Book().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Book()));
        Table().setFocus();
        Table().setCurrentIndex(Table().model()->index(1, BookSpeed));
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(&Table(), key, held);
        QApplication::processEvents();
    }
    void Click(int row, Qt::KeyboardModifiers held) {
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, held, CellRect(row, BookSpeed).center());
        QApplication::processEvents();
    }
    std::vector<int> Chosen() { return Table().ChosenRows(); }
    /// Rows with a number of their own.
    int Rows() {
        int rows = 0;
        while (rows < Table().model()->rowCount() && !Cell(rows, BookOrder).isEmpty()) {
            ++rows;
        }
        return rows;
    }
};

TEST_F(BookChosenRowsWindowTest, ShiftAndAnArrowChooseOn) {
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2, 3));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2));
    Key(Qt::Key_Down);
    EXPECT_THAT(Chosen(), ElementsAre(3));
}

TEST_F(BookChosenRowsWindowTest, AClickWithShiftOrCtrlChoosesAndOpensNothing) {
    Click(3, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2, 3));
    Click(2, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 3));
    EXPECT_FALSE(Editor().isVisible());
    Click(2, {});
    EXPECT_THAT(Chosen(), ElementsAre(2));
    EXPECT_TRUE(Editor().isVisible());
}

TEST_F(BookChosenRowsWindowTest, ASpeedIsTypedForAllChosenRowsWhichStayChosen) {
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_F2);
    ASSERT_TRUE(Editor().isVisible());
    EXPECT_THAT(Chosen(), ElementsAre(1, 2)) << "an editor over one of them leaves them chosen";
    QTest::keyClicks(&Editor(), "17");
    QTest::keyClick(&Editor(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Cell(1, BookSpeed), "17.00");
    EXPECT_EQ(Cell(2, BookSpeed), "17.00");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_THAT(Chosen(), ElementsAre(1, 2));
    QTest::keyClick(&Table(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Cell(1, BookSpeed), "17.00");
    EXPECT_NE(Cell(2, BookSpeed), "17.00");
}

TEST_F(BookChosenRowsWindowTest, WaypointsAreInsertedAndDeletedTogether) {
    Key(Qt::Key_Insert);
    Key(Qt::Key_Insert);
    const int front = Table().currentIndex().row();
    EXPECT_THAT(Chosen(), ElementsAre(front)) << "rows that come leave one chosen";
    Table().setCurrentIndex(Table().model()->index(front, BookTrack));
    QTest::keyClicks(&Table(), "R");
    QTest::keyClick(&Choices(), Qt::Key_Return);
    ASSERT_EQ(Cell(front, BookTrack), "RL") << "a great circle would be cut anew";
    const int rows = Rows();
    Key(Qt::Key_Up);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    ASSERT_THAT(Chosen(), ElementsAre(front - 2, front - 1));
    Key(Qt::Key_Delete);
    EXPECT_EQ(Rows(), rows - 2);
    EXPECT_THAT(Chosen(), ElementsAre(front - 2));
    QTest::keyClick(&Table(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rows(), rows);
}

TEST_F(BookChosenRowsWindowTest, PastedWaypointsAreShownAndTakenOnAYes) {
    const int rows = Rows();
    Table().setCurrentIndex(Table().model()->index(1, BookName));
    QApplication::clipboard()->setText(QStringLiteral("Off Texel\t53 15.0N\t4 20.0E\nsomewhere\t\t\n"));
    QString words;
    QTimer::singleShot(0, &Book(), [this, &words] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        const auto* table = Find<PanelTable>(*dialog, "pasteTable");
        EXPECT_EQ(table->model()->index(0, 2).data().toString(), QStringLiteral("53\u00B0 15.00' N"));
        EXPECT_EQ(table->model()->rowCount(), 2);
        words = Find<QLabel>(*dialog, "pasteWords")->text();
        Press(*dialog, "pasteTakeButton");
    });
    QTest::keyClick(&Table(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(words.contains(QStringLiteral("row 2: 1"))) << words.toStdString();
    EXPECT_GT(Rows(), rows);
    const int front = Table().currentIndex().row();
    EXPECT_EQ(Cell(front - 1, BookName), "Off Texel");
    EXPECT_EQ(Cell(front - 1, BookLatitude), "53.2500");
    Book().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Book()));
    QTest::keyClick(&Table(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Cell(front - 1, BookName), "Off Texel");
}

}  // namespace

}  // namespace Tarvik::Seaplan
