// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QRadioButton>
#include <algorithm>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/window/Boxes.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "seaplan/views/window/ViewText.h"
#include "testsupport/RecordingHost.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

TEST_F(ViewsFixture, TheChartsButtonShowsThePanelInItsPlaceAndHidesItAgain) {
    EXPECT_FALSE(Panel().isVisible());
    Toggle();
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_EQ(Panel().geometry(), QRect(150, 240, 310, 460));
    EXPECT_TRUE(views.TreeVisible());
    Toggle();
    EXPECT_FALSE(Panel().isVisible());
}

TEST_F(ViewsFixture, TheTreeStandsInItsPlaceInThePanel) {
    Toggle();
    EXPECT_EQ(Tree().mapTo(&Panel(), QPoint(0, 0)), QPoint(10, 45));
    EXPECT_EQ(Tree().size(), QSize(310 - 8 - 10, 460 - 30 - 45));
    EXPECT_EQ(Panel().objectName(), "voyagePanel");
    EXPECT_EQ(Tree().objectName(), "voyageTree");
}

TEST_F(ViewsFixture, TheCloseButtonSaysThatPinnedRoutesGoWithThePanel) {
    Toggle();
    EXPECT_TRUE(Find<QAbstractButton>(Panel(), "closeButton")->toolTip().contains("pinned routes"));
}

TEST_F(ViewsFixture, EveryControlOfThePanelHasAnAccessibleNameAndATip) {
    Toggle();
    for (const char* name : {"filterButton", "addCategoryButton", "helpButton", "closeButton"}) {
        auto* button = Find<QAbstractButton>(Panel(), name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_FALSE(button->accessibleName().isEmpty()) << name;
        EXPECT_TRUE(button->toolTip().startsWith(button->accessibleName())) << name;
        EXPECT_FALSE(button->icon().isNull()) << name;
        EXPECT_NE(button->focusPolicy(), Qt::NoFocus) << name;
    }
    EXPECT_FALSE(Tree().accessibleName().isEmpty());
    EXPECT_FALSE(Find<QLineEdit>(Panel(), "renameEditor")->accessibleName().isEmpty());
}

TEST_F(ViewsFixture, ANewCategoryIsNamedInPlace) {
    Toggle();
    Press(Panel(), "addCategoryButton");
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    ASSERT_TRUE(editor->isVisible());
    EXPECT_EQ(editor->text(), "New category - 0");
    EXPECT_EQ(editor->selectedText(), editor->text());
    EXPECT_EQ(editor->maxLength(), 30);
    QTest::keyClicks(editor, "Winter");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_NE(RowOf("Winter"), kNoRow);
    EXPECT_EQ(desk.Count(Ask::kRenameCategory, "Winter"), 1);
}

TEST_F(ViewsFixture, AVoyageIsAddedUnderItsCategoryAndNamed) {
    Toggle();
    ClickRow("Bulk");
    ClickPart("Bulk", "Voyage.parent.svr3");
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    ASSERT_TRUE(editor->isVisible());
    EXPECT_EQ(editor->maxLength(), 20);
    QTest::keyClicks(editor, "Ore 2");
    QTest::keyClick(editor, Qt::Key_Enter);
    EXPECT_EQ(Rows().GetParentItem(RowOf("Ore 2")), RowOf("Bulk"));
    EXPECT_TRUE(Rows().IsItemExpanded(RowOf("Bulk")));
}

TEST_F(ViewsFixture, LeavingTheBoxTakesTheName) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_child_rename");
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    ASSERT_TRUE(editor->isVisible());
    QTest::keyClicks(editor, "Skagerrak");
    QFocusEvent out(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(editor, &out);
    EXPECT_TRUE(editor->isVisible()) << "the name is taken when the keyboard has arrived elsewhere";
    QApplication::processEvents();
    EXPECT_FALSE(editor->isVisible());
    EXPECT_NE(RowOf("Skagerrak"), kNoRow);
}

TEST_F(ViewsFixture, ALongNameIsShownWholeAndOnlyTypingIsLimited) {
    const std::string wide = "A voyage of more than twenty";
    desk.AddVoyage("Container 2024", {.name = wide});
    OpenVoyage("North Sea");
    ClickRow(wide);
    ClickPart(wide, "Voyage_child_rename");
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    ASSERT_TRUE(editor->isVisible());
    EXPECT_EQ(editor->text().toStdString(), wide);
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClicks(editor, "x");
    EXPECT_EQ(editor->text().toStdString(), wide) << "nothing more goes in";
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(desk.Count(Ask::kRenameVoyage), 0);
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(ViewsFixture, APressOnTheSurfaceTakesTheName) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_child_rename");
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    QTest::keyClicks(editor, "Skagerrak");
    QTest::mouseClick(&Panel(), Qt::LeftButton, {}, QPoint(5, Panel().height() - 5));
    QApplication::processEvents();
    EXPECT_FALSE(editor->isVisible());
    EXPECT_NE(RowOf("Skagerrak"), kNoRow);
}

TEST_F(ViewsFixture, AClickUnfoldsACategoryAndAnotherFoldsIt) {
    Toggle();
    ClickRow("Container 2024");
    EXPECT_TRUE(Rows().IsItemExpanded(RowOf("Container 2024")));
    EXPECT_EQ(Rows().Selected(), RowOf("Container 2024"));
    ClickRow("Container 2024");
    EXPECT_FALSE(Rows().IsItemExpanded(RowOf("Container 2024")));
    EXPECT_EQ(Rows().Selected(), kNoRow);
}

TEST_F(ViewsFixture, TheArrowOfARefusedPressDoesNotClick) {
    OpenVoyage("Far East 12");
    const auto before = desk.host.Texts();
    for (const SubItem& part : Tree().PartsOf(RowOf("Far East 12"))) {
        if (part.name != "Voyage.child.svr9") {
            continue;
        }
        QTest::mousePress(Tree().viewport(), Qt::LeftButton, {}, part.rect.center());
        QTest::mouseRelease(Tree().viewport(), Qt::LeftButton, {}, QPoint(100, 380));
    }
    EXPECT_EQ(desk.host.Texts(), before);
}

TEST_F(ViewsFixture, TheKeyboardWalksTheTree) {
    Toggle();
    Tree().setFocus();
    QTest::keyClick(&Tree(), Qt::Key_Right);
    EXPECT_TRUE(Rows().IsItemExpanded(RowOf("Container 2024")));
    QTest::keyClick(&Tree(), Qt::Key_Down);
    EXPECT_EQ(Rows().Selected(), RowOf("Baltic feeder"));
    QTest::keyClick(&Tree(), Qt::Key_Left);
    EXPECT_EQ(Rows().Selected(), RowOf("Container 2024"));
    QTest::keyClick(&Tree(), Qt::Key_Left);
    EXPECT_FALSE(Rows().IsItemExpanded(RowOf("Container 2024")));
}

TEST_F(ViewsFixture, F2RenamesInsertAddsAndDeleteMovesToTheBin) {
    OpenVoyage("North Sea");
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    QTest::keyClick(&Tree(), Qt::Key_F2);
    ASSERT_TRUE(editor->isVisible());
    QTest::keyClicks(editor, "Kattegat");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_NE(RowOf("Kattegat"), kNoRow);
    QTest::keyClick(&Tree(), Qt::Key_Insert);
    EXPECT_EQ(desk.Count(Ask::kAddVoyage, "New voyage - 0"), 1);
    QTest::keyClick(editor, Qt::Key_Return);
    ClickRow("Kattegat");
    const std::string deleted = desk.Voyage("Kattegat").vi;
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage, deleted), 1);
    EXPECT_EQ(RowOf("Kattegat"), kNoRow);
}

TEST_F(ViewsFixture, InsertWithoutARowAddsACategory) {
    Toggle();
    Rows().DeleteAllItems();
    QTest::keyClick(&Tree(), Qt::Key_Insert);
    EXPECT_EQ(desk.Count(Ask::kAddCategory, "New category - 0"), 1);
}

TEST_F(ViewsFixture, EnterOpensThePortCallsOfAVoyage) {
    OpenVoyage("Far East 12");
    QTest::keyClick(&Tree(), Qt::Key_Return);
    EXPECT_TRUE(PortCalls().isVisible());
}

TEST_F(ViewsFixture, TabWalksTheItemsOfTheSelectedRow) {
    OpenVoyage("Far East 12");
    Tree().activateWindow();
    Tree().setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
    EXPECT_EQ(Tree().FocusedPart(), "");
    QTest::keyClick(&Tree(), Qt::Key_Tab);
    EXPECT_EQ(Tree().FocusedPart(), "Voyage.child.svr1.auto");
    QTest::keyClick(&Tree(), Qt::Key_Tab);
    EXPECT_EQ(Tree().FocusedPart(), "Voyage_child_rename");
    QTest::keyClick(&Tree(), Qt::Key_Space);
    EXPECT_TRUE(Find<QLineEdit>(Panel(), "renameEditor")->isVisible());
}

TEST_F(ViewsFixture, ABoxLeavesTheKeyboardOnTheItemOfTheRow) {
    OpenVoyage("Far East 12");
    Tree().activateWindow();
    Tree().setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Panel()));
    QTest::keyClick(&Tree(), Qt::Key_Tab);
    QTest::keyClick(&Tree(), Qt::Key_Tab);
    ASSERT_EQ(Tree().FocusedPart(), "Voyage_child_rename");
    Boxes(Tree().Widget()).Notice(TextIds::IDS_TREE_NOONREPORTWARN);
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_TRUE(Tree().isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), &Tree());
    EXPECT_EQ(Tree().FocusedPart(), "Voyage_child_rename");
}

TEST_F(ViewsFixture, TheMenuOfARowHasItsCommands) {
    OpenVoyage("Far East 12");
    for (const SubItem& part : Tree().PartsOf(RowOf("Far East 12"))) {
        if (part.name != "name") {
            continue;
        }
        QContextMenuEvent event(QContextMenuEvent::Mouse, part.rect.center(),
                                Tree().viewport()->mapToGlobal(part.rect.center()));
        QApplication::sendEvent(Tree().viewport(), &event);
    }
    auto* menu = Tree().findChild<QMenu*>("rowMenu");
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->isVisible());
    QAction* open = nullptr;
    for (QAction* action : menu->actions()) {
        EXPECT_EQ(action->text().isEmpty(), action->isSeparator());
        if (action->text() == "Port calls") {
            open = action;
        }
    }
    ASSERT_NE(open, nullptr);
    open->trigger();
    EXPECT_TRUE(PortCalls().isVisible());
}

TEST_F(ViewsFixture, KeysWithoutUseInTheBoxesDoNotReachTheTree) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", "Voyage_child_rename");
    auto* rename = Find<QLineEdit>(Panel(), "renameEditor");
    ASSERT_TRUE(rename->isVisible());
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Insert, Qt::Key_F2, Qt::Key_PageUp}) {
        QTest::keyClick(rename, key);
        EXPECT_TRUE(rename->isVisible()) << key;
        EXPECT_EQ(Rows().Selected(), RowOf("North Sea")) << key;
    }
    QTest::keyClick(rename, Qt::Key_Return);
    ClickPart("North Sea", "Voyage_AssignShip");
    auto* vessel = Find<QLineEdit>(Panel(), "vesselEditor");
    ASSERT_TRUE(vessel->isVisible());
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Insert, Qt::Key_F2, Qt::Key_PageUp}) {
        QTest::keyClick(vessel, key);
        EXPECT_TRUE(vessel->isVisible()) << key;
        EXPECT_FALSE(rename->isVisible()) << key;
        EXPECT_EQ(Rows().Selected(), RowOf("North Sea")) << key;
    }
    EXPECT_EQ(desk.Count(Ask::kAddVoyage), 0);
}

TEST_F(ViewsFixture, TheMenuKeyOpensTheMenuOfTheRowThatThePanelPicks) {
    OpenVoyage("Far East 12");
    Tree().setCurrentIndex(Tree().model()->index(0, 0));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(Tree().viewport(), &event);
    auto* menu = Tree().findChild<QMenu*>("rowMenu");
    ASSERT_NE(menu, nullptr);
    const auto actions = menu->actions();
    EXPECT_TRUE(std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
        return action->text() == "Port calls";
    })) << "the selected voyage's, not that of the category with the keyboard";
}

TEST_F(ViewsFixture, ARightPressIsFirstAPress) {
    Toggle();
    ClickRow("Container 2024");
    for (const SubItem& part : Tree().PartsOf(RowOf("Far East 12"))) {
        if (part.name == "name") {
            QContextMenuEvent event(QContextMenuEvent::Mouse, part.rect.center(),
                                    Tree().viewport()->mapToGlobal(part.rect.center()));
            QApplication::sendEvent(Tree().viewport(), &event);
        }
    }
    EXPECT_EQ(Rows().Selected(), RowOf("Far East 12"));
    auto* menu = Tree().findChild<QMenu*>("rowMenu");
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
        EXPECT_NE(action->text(), ViewText(TextIds::IDS_TREE_SETPORTCALL)) << "the voyage has port calls";
    }
}

TEST_F(ViewsFixture, TheFilterShowsTheRecycleBin) {
    Toggle();
    Press(Panel(), "filterButton");
    auto* check = Find<QCheckBox>(Panel(), "showDeletedCheck");
    ASSERT_NE(check, nullptr);
    EXPECT_TRUE(Panel().FilterPopup().isVisible());
    EXPECT_EQ(check->parentWidget()->size(), QSize(180, 35));
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    EXPECT_NE(RowOf("Old plans"), kNoRow);
    EXPECT_NE(RowOf("Cancelled"), kNoRow);
    Press(Panel(), "filterButton");
    EXPECT_FALSE(Panel().FilterPopup().isVisible());
    Press(Panel(), "filterButton");
    EXPECT_TRUE(check->isChecked());
}

TEST_F(ViewsFixture, ADeletedVoyageIsRecovered) {
    Toggle();
    views.Tree().SetShowDeleted(true);
    ClickRow("Container 2024");
    ClickPart("Cancelled", "Voyage.child.svr.recover");
    EXPECT_EQ(desk.store.categoryVoyages[desk.Category("Container 2024").ci][desk.Voyage("Cancelled").vi],
              InUse);
    EXPECT_EQ(Rows().GetItemStyle(RowOf("Cancelled")), kVoyageStyle);
}

TEST_F(ViewsFixture, TheSortPanelSortsByDate) {
    Toggle();
    ClickRow("Container 2024");
    ClickPart("Container 2024", "Voyage.parent.svr9");
    auto* byDate = Find<QRadioButton>(Tree(), "sortByDate");
    ASSERT_NE(byDate, nullptr);
    EXPECT_TRUE(Find<QRadioButton>(Tree(), "sortByName")->isChecked());
    EXPECT_EQ(byDate->parentWidget()->size(), QSize(180, 60));
    QTest::mouseClick(byDate, Qt::LeftButton, {}, QPoint(8, byDate->height() / 2));
    EXPECT_EQ(views.Tree().Context().categorySorts[desk.Category("Container 2024").ci].sortKey, SortByDate);
    EXPECT_EQ(Rows().GetItemText(Rows().GetChildItem(RowOf("Container 2024"))), "North Sea");
    EXPECT_FALSE(byDate->parentWidget()->isVisible());
}

TEST_F(ViewsFixture, AScreenReaderHearsWhatARowShows) {
    OpenVoyage("Far East 12");
    const QModelIndex category = Tree().model()->index(0, 0);
    EXPECT_EQ(category.data(Qt::AccessibleTextRole).toString(), "Container 2024, (3)");
    const QModelIndex voyage = Tree().model()->index(1, 0, category);
    EXPECT_EQ(voyage.data(Qt::AccessibleTextRole).toString(),
              "Far East 12, Departs 2024-03-21  Arrives 2024-04-21, Vessel: NORTHERN LIGHT, "
              "Planned: the voyage has not begun, has remarks");
}

TEST_F(ViewsFixture, TheCloseButtonHidesThePanel) {
    Toggle();
    Press(Panel(), "closeButton");
    EXPECT_FALSE(Panel().isVisible());
}

TEST_F(ViewsFixture, AnEmptyTreeSaysWhatToDo) {
    Toggle();
    Rows().DeleteAllItems();
    const QImage hint = Tree().grab().toImage();
    const FileTexts nothing("");
    Tree().ApplyTexts();
    EXPECT_NE(hint, Tree().grab().toImage());
}

TEST_F(ViewsFixture, TheWindowsFollowTheClientsTheme) {
    Toggle();
    const QColor light = Panel().grab().toImage().pixelColor(20, 35);
    qApp->setProperty("tarvik.theme", "dark");
    QEvent change(QEvent::ApplicationPaletteChange);
    QApplication::sendEvent(qApp, &change);
    EXPECT_EQ(Skin::CurrentTheme(), Skin::Theme::Dark);
    EXPECT_NE(Panel().grab().toImage().pixelColor(20, 35), light);
    EXPECT_EQ(Panel().grab().toImage().pixelColor(20, 35), Skin::Colour(Skin::Role::Window));
}

TEST_F(ViewsFixture, ALanguageSwitchReachesEveryText) {
    OpenPortCalls("Far East 12");
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/seaplan.zh-CN.json");
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(Panel().windowTitle(), "航次");
    EXPECT_EQ(PortCalls().windowTitle(), "挂靠港");
    EXPECT_EQ(Find<QAbstractButton>(PortCalls(), "calculateButton")->text(), "计算");
    EXPECT_TRUE(Find<QAbstractButton>(Panel(), "addCategoryButton")->toolTip().startsWith("新建分类"));
}

TEST_F(ViewsFixture, ADoubleClickOnAVoyageOpensItsPortCalls) {
    OpenVoyage("Far East 12");
    const auto name = [this](const std::string& row) {
        for (const SubItem& part : Tree().PartsOf(RowOf(row))) {
            if (part.name == "name") {
                return part.rect.center();
            }
        }
        return QPoint();
    };
    const auto doubleClick = [this](QPoint at) {
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, at);
        QApplication::processEvents();
        QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, at);
        QApplication::processEvents();
    };
    doubleClick(name("Container 2024"));
    EXPECT_FALSE(PortCalls().isVisible()) << "a category has none";
    ClickRow("Container 2024");
    ClickRow("Far East 12");
    // The row above shrinks at the first press, so that another row lies under the pointer at the second.
    doubleClick(name("North Sea"));
    EXPECT_TRUE(PortCalls().isVisible());
    EXPECT_EQ(Rows().GetItemText(Rows().Selected()), "North Sea");
}

}  // namespace Tarvik::Seaplan
