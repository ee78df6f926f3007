// SPDX-License-Identifier: MIT
/// The popups of choices and the windows beside the tree, reached and left with the keyboard alone.
#include <QCheckBox>
#include <QRadioButton>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class PopupKeysTest : public ViewsFixture {
  protected:
    QLineEdit* Field() { return Find<QLineEdit>(Panel(), "searchField"); }
    /// A key to whatever has the keyboard in the popup on show.
    static void Key(Qt::Key key) {
        QWidget* popup = QApplication::activePopupWidget();
        ASSERT_NE(popup, nullptr);
        QTest::keyClick(popup->focusWidget() == nullptr ? popup : popup->focusWidget(), key);
    }
    static QString FocusedLine() {
        QWidget* popup = QApplication::activePopupWidget();
        return popup == nullptr || popup->focusWidget() == nullptr ? QString()
                                                                   : popup->focusWidget()->objectName();
    }
    void OpenReadyQuestions() {
        Toggle();
        QTest::keyClick(&Panel(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(Find<QToolButton>(Panel(), "searchFilter"), Qt::Key_Space);
    }
};

}  // namespace

TEST_F(PopupKeysTest, AReadyQuestionIsChosenWithArrowsAndEnter) {
    OpenReadyQuestions();
    EXPECT_EQ(FocusedLine(), "findAll");
    Key(Qt::Key_Up);
    EXPECT_EQ(FocusedLine(), "findAll") << "there is no line above";
    for (int i = 0; i < 5; ++i) {
        Key(Qt::Key_Down);
    }
    EXPECT_EQ(FocusedLine(), "findWithoutRoute");
    EXPECT_EQ(views.Panel().Search().State().filter, VoyageFilter::All) << "walking chooses nothing";
    EXPECT_TRUE(Find<QRadioButton>(Panel(), "findAll")->isChecked());
    Key(Qt::Key_Return);
    EXPECT_EQ(views.Panel().Search().State().filter, VoyageFilter::WithoutRoute);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(Field()->hasFocus()) << "the next Enter goes to the first answer";
}

TEST_F(PopupKeysTest, EscapeClosesThePopupAndChoosesNothing) {
    OpenReadyQuestions();
    Key(Qt::Key_Down);
    Key(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(views.Panel().Search().State().filter, VoyageFilter::All);
    EXPECT_TRUE(Field()->isVisible()) << "the search goes on";
}

TEST_F(PopupKeysTest, TheRecycleBinIsShownWithSpace) {
    Toggle();
    QTest::keyClick(Find<QToolButton>(Panel(), "filterButton"), Qt::Key_Space);
    EXPECT_EQ(FocusedLine(), "showDeletedCheck");
    Key(Qt::Key_Space);
    EXPECT_NE(RowOf("Old plans"), kNoRow);
    EXPECT_TRUE(Panel().FilterPopup().isVisible());
    Key(Qt::Key_Enter);
    EXPECT_EQ(RowOf("Old plans"), kNoRow);
}

TEST_F(PopupKeysTest, TheOrderOfACategoryIsChosenFromItsTickedLineOn) {
    Toggle();
    ClickRow("Container 2024");
    ClickPart("Container 2024", "Voyage.parent.svr9");
    EXPECT_EQ(FocusedLine(), "sortByName");
    Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    EXPECT_EQ(views.Tree().Context().categorySorts[desk.Category("Container 2024").ci].sortKey, SortByDate);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    ClickPart("Container 2024", "Voyage.parent.svr9");
    EXPECT_EQ(FocusedLine(), "sortByDate");
}

TEST_F(PopupKeysTest, AWindowThatClosesGivesTheKeyboardBack) {
    OpenVoyage("Far East 12");
    Panel().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
    for (const char* item : {"Voyage.child.svr3.non", "Voyage.child.svr3.exist", "Voyage.child.svr5"}) {
        if (!Shows("Far East 12", item)) {
            continue;
        }
        ClickPart("Far East 12", item);
        QWidget* opened = QApplication::activeWindow();
        ASSERT_NE(opened, &Panel()) << item;
        QTest::keyClick(opened, Qt::Key_W, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Panel())) << item;
        EXPECT_FALSE(opened->isVisible()) << item;
        EXPECT_TRUE(Tree().hasFocus()) << item;
    }
}

TEST_F(PopupKeysTest, AWindowThatClosesBehindTakesNoKeyboardAway) {
    OpenVoyage("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr5");
    QWidget* figures = QApplication::activeWindow();
    ClickPart("Far East 12", "Voyage.child.svr4");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&PortCalls()));
    views.VoyageWindow()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
    figures->close();
    QApplication::processEvents();
    EXPECT_TRUE(Panel().isActiveWindow());
}

}  // namespace Tarvik::Seaplan
