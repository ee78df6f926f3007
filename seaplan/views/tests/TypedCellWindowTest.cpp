// SPDX-License-Identifier: MIT
/// Typing on the tables of the port calls and of the position book, by the keyboard and an input method.
#include <QInputMethodEvent>

#include "seaplan/views/tests/PortCallWindowFixture.h"
#include "seaplan/views/tests/PositionBookFixture.h"

namespace Tarvik::Seaplan {

namespace {

class TypedCellWindowTest : public PortCallWindowTest {
  protected:
    void SetUp() override { OpenInFront("Far East 12"); }
    void Front(int row, int column) { Table().setCurrentIndex(Table().model()->index(row, column)); }
    void Compose(const QString& composed, const QString& committed) {
        QInputMethodEvent event(composed, {});
        event.setCommitString(committed);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
};

TEST_F(TypedCellWindowTest, EveryCharacterComesIntoTheEditor) {
    Front(1, ColSpeed);
    QTest::keyClick(&Table(), '1');
    ASSERT_TRUE(SpeedEditor().hasFocus());
    QTest::keyClicks(&SpeedEditor(), "7.5");
    EXPECT_EQ(SpeedEditor().text(), "17.5");
    QTest::keyClick(&SpeedEditor(), Qt::Key_Return);
    EXPECT_EQ(Cell(1, ColSpeed), "17.50");
}

TEST_F(TypedCellWindowTest, ACommandTypesNothing) {
    Front(1, ColSpeed);
    QTest::keyClick(&Table(), Qt::Key_7, Qt::ControlModifier);
    QTest::keyClick(&Table(), Qt::Key_7, Qt::AltModifier);
    QTest::keyClick(&Table(), Qt::Key_Backspace);
    QTest::keyClick(&Table(), Qt::Key_Space);
    EXPECT_FALSE(SpeedEditor().isVisible());
}

TEST_F(TypedCellWindowTest, AnInputMethodComposesInTheEditor) {
    Front(1, ColPort);
    EXPECT_TRUE(Table().testAttribute(Qt::WA_InputMethodEnabled));
    Compose("lu", {});
    ASSERT_TRUE(PortEditor().hasFocus());
    EXPECT_EQ(PortEditor().text(), "");
    Compose({}, QString::fromUtf8("鹿"));
    EXPECT_EQ(PortEditor().text(), QString::fromUtf8("鹿"));
}

TEST_F(TypedCellWindowTest, ATextThatAnInputMethodHasReadyBeginsAsATypedOne) {
    Front(1, ColPort);
    Compose({}, QString::fromUtf8("鹿特"));
    ASSERT_TRUE(PortEditor().hasFocus());
    EXPECT_EQ(PortEditor().text(), QString::fromUtf8("鹿特"));
}

TEST_F(PositionBookFixture, TypingOnACellOfTheBookBeginsToEditIt) {
    OpenBook();
    Book().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Book()));
    ClickCell(1, BookSpeed);
    Type("12");
    Table().setFocus();
    Table().setCurrentIndex(Table().model()->index(1, BookSpeed));
    QTest::keyClick(&Table(), '1');
    ASSERT_TRUE(Editor().hasFocus());
    Type("3.5");
    EXPECT_EQ(Cell(1, BookSpeed), "13.50");
}

}  // namespace

}  // namespace Tarvik::Seaplan
