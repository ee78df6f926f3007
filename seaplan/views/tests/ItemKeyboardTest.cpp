// SPDX-License-Identifier: MIT
// The keyboard on the items of a row, and the states that a screen reader asks for.
#include <QAccessible>

#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

class ItemKeyboardTest : public ViewsFixture {
  protected:
    /// A voyage with the keyboard on one of its items.
    void GoTo(const std::string& voyage, const std::string& item) {
        OpenVoyage(voyage);
        Tree().activateWindow();
        Tree().setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
        for (int i = 0; i < 20 && Tree().FocusedPart() != item; ++i) {
            Key(Qt::Key_Tab);
        }
        ASSERT_EQ(Tree().FocusedPart(), item);
    }
    void Key(Qt::Key key) {
        QTest::keyClick(&Tree(), key);
        QApplication::processEvents();
    }
    QAccessible::State StateOf(const char* item) {
        QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&Tree());
        QAccessibleInterface* row = root->focusChild()->parent();
        const auto parts = EnabledOf(Tree().PartsOf(Rows().Selected()));
        for (int i = 0; i < row->childCount(); ++i) {
            if (parts[static_cast<std::size_t>(i)].name == item) {
                return row->child(i)->state();
            }
        }
        ADD_FAILURE() << "no " << item;
        return {};
    }
};

}  // namespace

TEST_F(ItemKeyboardTest, EnterTwicePressesTheSameItemTwice) {
    GoTo("Far East 12", "Voyage.child.svr6");
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    EXPECT_EQ(messages.messages.size(), 2U);
    EXPECT_EQ(Tree().FocusedPart(), "Voyage.child.svr6");
    EXPECT_EQ(views.PortCallsWindow()->isVisible(), false) << "that is the key of the row itself";
}

TEST_F(ItemKeyboardTest, ASwitchSaysWhetherItIsOnAndKeepsTheKeyboard) {
    GoTo("Far East 12", "Voyage.child.svr1.auto");
    EXPECT_TRUE(StateOf("Voyage.child.svr1.auto").checkable);
    EXPECT_TRUE(StateOf("Voyage.child.svr1.auto").checked);
    EXPECT_FALSE(StateOf("Voyage.child.svr4").checkable);
    Key(Qt::Key_Return);
    ASSERT_EQ(Tree().FocusedPart(), "Voyage.child.svr1.default");
    EXPECT_TRUE(StateOf("Voyage.child.svr1.default").checkable);
    EXPECT_FALSE(StateOf("Voyage.child.svr1.default").checked);
}

TEST_F(ItemKeyboardTest, AnotherRowBeginsWithoutAnItem) {
    GoTo("Far East 12", "Voyage.child.svr4");
    Key(Qt::Key_Down);
    EXPECT_EQ(Rows().GetItemText(Rows().Selected()), "North Sea");
    EXPECT_EQ(Tree().FocusedPart(), "");
    Key(Qt::Key_Tab);
    ASSERT_NE(Tree().FocusedPart(), "");
    ClickRow("Far East 12");
    EXPECT_EQ(Tree().FocusedPart(), "");
}

}  // namespace Tarvik::Seaplan
