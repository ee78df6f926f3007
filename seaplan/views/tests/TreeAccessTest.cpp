// SPDX-License-Identifier: MIT
// The voyage tree as a screen reader walks it.
#include <QAccessible>
#include <vector>

#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

class TreeAccessTest : public ViewsFixture {
  protected:
    QAccessibleInterface& Root() { return *QAccessible::queryAccessibleInterface(&Tree()); }
    static QString Name(QAccessibleInterface* told) { return told->text(QAccessible::Name); }
    /// The row whose name begins so; null for none.
    QAccessibleInterface* Row(const QString& begin) {
        for (int i = 1; i < Root().childCount(); ++i) {
            if (Name(Root().child(i)).startsWith(begin)) {
                return Root().child(i);
            }
        }
        return nullptr;
    }
    QAccessibleInterface* Item(const QString& row, const QString& begin) {
        QAccessibleInterface* told = Row(row);
        for (int i = 0; told != nullptr && i < told->childCount(); ++i) {
            if (Name(told->child(i)).startsWith(begin)) {
                return told->child(i);
            }
        }
        return nullptr;
    }
    void Do(QAccessibleInterface* told, const QString& action) {
        ASSERT_NE(told, nullptr);
        ASSERT_NE(told->actionInterface(), nullptr);
        told->actionInterface()->doAction(action);
        QApplication::processEvents();
    }
    void PressIt(QAccessibleInterface* told) { Do(told, QAccessibleActionInterface::pressAction()); }
    /// Where the keyboard is, as a screen reader asks for it.
    QString Focused() {
        QAccessibleInterface* focus = Root().focusChild();
        return focus == nullptr ? QString() : Name(focus);
    }
};

}  // namespace

TEST_F(TreeAccessTest, RowsStandInTheOrderOfTheScreenBehindTheHiddenHeader) {
    Toggle();
    EXPECT_EQ(Root().role(), QAccessible::Tree);
    EXPECT_EQ(Root().childCount(), 1 + 3);
    PressIt(Row("Container 2024"));
    ASSERT_EQ(Root().childCount(), 1 + 3 + 3);
    EXPECT_TRUE(Name(Root().child(1)).startsWith("Container 2024"));
    for (int i = 1; i < Root().childCount(); ++i) {
        QAccessibleInterface* row = Root().child(i);
        EXPECT_EQ(Root().indexOfChild(row), i);
        EXPECT_EQ(row->role(), QAccessible::TreeItem);
        EXPECT_EQ(row->parent(), &Root());
        EXPECT_FALSE(Name(row).isEmpty()) << i;
    }
    PressIt(Row("Container 2024"));
    EXPECT_EQ(Root().childCount(), 1 + 3) << "folded again";
}

TEST_F(TreeAccessTest, EveryItemOfEveryRowHasANameAndCanBePressed) {
    OpenVoyage("Far East 12");
    for (int i = 1; i < Root().childCount(); ++i) {
        QAccessibleInterface* row = Root().child(i);
        EXPECT_GT(row->childCount(), 0) << Name(row).toStdString();
        for (int k = 0; k < row->childCount(); ++k) {
            QAccessibleInterface* item = row->child(k);
            EXPECT_EQ(item->role(), QAccessible::PushButton);
            EXPECT_FALSE(Name(item).isEmpty()) << Name(row).toStdString() << ' ' << k;
            EXPECT_EQ(item->parent(), row);
            EXPECT_EQ(row->indexOfChild(item), k);
            EXPECT_TRUE(
                item->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        }
    }
}

TEST_F(TreeAccessTest, StatesSayWhatIsOpenSelectedAndFocused) {
    OpenVoyage("Far East 12");
    EXPECT_TRUE(Row("Container 2024")->state().expandable);
    EXPECT_TRUE(Row("Container 2024")->state().expanded);
    EXPECT_TRUE(Row("Bulk")->state().collapsed || !Row("Bulk")->state().expandable);
    EXPECT_TRUE(Row("Far East 12")->state().selected);
    EXPECT_FALSE(Row("North Sea")->state().selected);
    EXPECT_TRUE(Row("North Sea")->state().focusable);
}

TEST_F(TreeAccessTest, APressOnAVoyageSelectsItAndOneOnItsItemActs) {
    Toggle();
    PressIt(Row("Container 2024"));
    PressIt(Row("North Sea"));
    EXPECT_EQ(Rows().Selected(), RowOf("North Sea"));
    PressIt(Item("North Sea", "Noon report"));
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text, texts.All().at({"Seaplan", "IDS_TREE_NOONREPORTWARN"}));
    PressIt(Item("North Sea", "Rename"));
    EXPECT_TRUE(Find<QLineEdit>(Panel(), "renameEditor")->isVisible());
}

TEST_F(TreeAccessTest, AnItemOfARowThatIsNotOpenCanBePressedToo) {
    OpenVoyage("North Sea");
    QAccessibleInterface* item = Item("Baltic feeder", "Port calls");
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->state().offscreen);
    EXPECT_TRUE(item->rect().isEmpty());
    PressIt(item);
    EXPECT_TRUE(PortCalls().isVisible());
    EXPECT_EQ(Rows().Selected(), RowOf("Baltic feeder"));
}

TEST_F(TreeAccessTest, APlaceOnTheScreenLeadsToItsRowAndItem) {
    OpenVoyage("Far East 12");
    QAccessibleInterface* row = Row("Far East 12");
    QAccessibleInterface* item = Item("Far East 12", "Port calls");
    ASSERT_NE(item, nullptr);
    const QPoint place = item->rect().center();
    EXPECT_EQ(Root().childAt(place.x(), place.y()), row);
    EXPECT_EQ(row->childAt(place.x(), place.y()), item);
    EXPECT_TRUE(row->rect().contains(item->rect()));
}

TEST_F(TreeAccessTest, TheKeyboardsPlaceIsARowOrAnItemOfIt) {
    OpenVoyage("Far East 12");
    Tree().activateWindow();
    Tree().setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
    const QString before = Focused();
    EXPECT_TRUE(before.startsWith("Far East 12")) << before.toStdString();
    QTest::keyClick(&Tree(), Qt::Key_Down);
    const QString row = Focused();
    EXPECT_NE(row, before);
    EXPECT_TRUE(Root().focusChild()->state().focused);
    QTest::keyClick(&Tree(), Qt::Key_Tab);
    EXPECT_NE(Focused(), row);
    QAccessibleInterface* item = Root().focusChild();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->role(), QAccessible::PushButton);
    EXPECT_TRUE(item->state().focused);
    EXPECT_FALSE(item->parent()->state().focused);
}

TEST_F(TreeAccessTest, FocusCanBeAskedFor) {
    OpenVoyage("Far East 12");
    Tree().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
    Do(Item("Far East 12", "Port calls"), QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(Tree().FocusedPart(), "Voyage.child.svr4");
    EXPECT_FALSE(PortCalls().isVisible()) << "no press";
}

TEST_F(TreeAccessTest, ARowThatIsGoneIsToldAsGone) {
    OpenVoyage("North Sea");
    QAccessibleInterface* row = Row("North Sea");
    QAccessibleInterface* item = Item("North Sea", "Noon report");
    ASSERT_NE(item, nullptr);
    views.Tree().ReloadTree();
    EXPECT_FALSE(row->isValid());
    EXPECT_FALSE(item->isValid());
    EXPECT_TRUE(row->state().invalid);
    PressIt(item);
    EXPECT_TRUE(messages.messages.empty());
}

}  // namespace Tarvik::Seaplan
