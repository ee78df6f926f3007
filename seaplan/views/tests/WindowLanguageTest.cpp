// SPDX-License-Identifier: MIT
// A switch of language reaches every window, hidden ones too.
#include <QLabel>
#include <QListWidget>
#include <algorithm>
#include <memory>
#include <set>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/distances/KeepTableWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class WindowLanguageTest : public ViewsFixture {
  protected:
    std::unique_ptr<KeyTexts> keys;
    /// From now on every text reads as its key.
    void Switch() {
        keys = std::make_unique<KeyTexts>();
        Interface::Raise(Interface::Bus::SwitchLanguage);
    }
    QString TextOf(QWidget& window, const char* button) {
        return Find<QAbstractButton>(window, button)->text();
    }
    QString NameOf(QWidget& window, const char* control) {
        return Find<QWidget>(window, control)->accessibleName();
    }
};

}  // namespace

TEST_F(WindowLanguageTest, HiddenRemarks) {
    OpenVoyage("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr3.exist");
    RemarkWindow& remarks = *views.RemarksWindow();
    Press(remarks, "closeButton");
    ASSERT_FALSE(remarks.isVisible());
    Switch();
    EXPECT_EQ(NameOf(remarks, "helpButton"), "IDC_BT_HELP2");
    EXPECT_EQ(NameOf(remarks, "closeButton"), "IDC_BT_CLOSE2");
    EXPECT_EQ(TextOf(remarks, "addRemarkButton"), "IDC_BTN_ADD");
    EXPECT_EQ(TextOf(remarks, "sortRemarksButton"), "IDC_BTN_SORT");
    EXPECT_EQ(TextOf(remarks, "saveRemarkButton"), "IDS_VIEW_REMARKSAVE");
    EXPECT_FALSE(remarks.isVisible());
}

TEST_F(WindowLanguageTest, HiddenConsumption) {
    OpenVoyage("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr5");
    BunkerWindow& figures = *views.FiguresWindow();
    Press(figures, "closeButton");
    Switch();
    EXPECT_EQ(figures.windowTitle(), "IDC_BK_T_TITLE - Far East 12");
    EXPECT_EQ(TextOf(figures, "saveFiguresButton"), "IDC_BK_BT_SAVE");
    EXPECT_EQ(TextOf(figures, "undoFiguresButton"), "IDC_BK_BT_CANCEL");
    EXPECT_EQ(NameOf(figures, "helpButton"), "IDC_BK_BT_HELP");
    std::set<QString> labels;
    for (const QLabel* label : figures.findChildren<QLabel*>()) {
        labels.insert(label->text());
    }
    for (const char* key : {"IDC_BK_T_FO", "IDC_BK_T_DO", "IDC_BK_T_FW", "IDC_BK_T_UNIT1", "IDC_BK_T_UNIT2",
                            "IDC_BK_T_UNIT3"}) {
        EXPECT_TRUE(labels.contains(key)) << key;
    }
    EXPECT_EQ(Find<QAbstractButton>(figures, "saveFiguresButton")->shortcut(),
              QKeySequence(Qt::CTRL | Qt::Key_S));
}

TEST_F(WindowLanguageTest, AFileWithoutTextsShowsTheCaptionsThatTheWindowsWereMadeWith) {
    OpenVoyage("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr5");
    BunkerWindow& figures = *views.FiguresWindow();
    keys = std::make_unique<KeyTexts>();
    keys->missing = {u"IDS_TREE_VOYTITLE", u"IDC_BK_T_TITLE", u"IDC_BK_BT_SAVE", u"IDC_BK_BT_CANCEL",
                     u"IDC_BK_T_FO"};
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(Panel().windowTitle(), "VoyageManager");
    EXPECT_EQ(Find<QLabel>(Panel(), "captionLabel")->text(), "VoyageManager");
    EXPECT_EQ(figures.windowTitle(), "消耗设置 - Far East 12");
    EXPECT_EQ(TextOf(figures, "saveFiguresButton"), "保存");
    EXPECT_EQ(NameOf(figures, "saveFiguresButton"), "保存");
    EXPECT_EQ(TextOf(figures, "undoFiguresButton"), "<==");
    const auto labels = figures.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text().isEmpty();
    })) << "a label has no caption of its own";
}

TEST_F(WindowLanguageTest, HiddenFilterSortPopupAndVesselBox) {
    Toggle();
    Switch();
    EXPECT_EQ(TextOf(Panel().FilterPopup(), "showDeletedCheck"), "IDS_TREEVIEW_RECOVER");
    EXPECT_EQ(NameOf(Panel().FilterPopup(), "showDeletedCheck"), "IDS_TREEVIEW_RECOVER");
    EXPECT_EQ(TextOf(Tree().SortPopup(), "sortByName"), "IDS_VOY_SORTBYNAME");
    EXPECT_EQ(TextOf(Tree().SortPopup(), "sortByDate"), "IDS_VOY_SORTBYDATE");
    EXPECT_EQ(NameOf(Panel(), "vesselEditor"), "IDS_VIEW_VESSELEDITOR");
    EXPECT_EQ(NameOf(Panel(), "vesselList"), "IDS_VIEW_VESSELEDITOR");
    EXPECT_EQ(NameOf(Panel(), "filterButton"), "IDS_TREE_DELOPERATER");
}

TEST_F(WindowLanguageTest, AHiddenVoyagePanel) {
    OpenVoyage("Far East 12");
    Press(Panel(), "closeButton");
    Switch();
    EXPECT_EQ(Panel().windowTitle(), "IDS_TREE_VOYTITLE");
    EXPECT_EQ(NameOf(Panel(), "addCategoryButton"), "IDS_TREE_ADDCATEGORY");
    EXPECT_EQ(NameOf(Panel(), "closeButton"), "IDS_TREE_CLOSE");
    EXPECT_EQ(Tree().accessibleName(), "IDS_VIEW_TREE");
}

TEST_F(WindowLanguageTest, AHiddenPositionBook) {
    OpenPortCalls("Far East 12");
    Press(PortCalls(), "positionBookButton");
    BookWindow& book = *views.BookWindowMade();
    Press(book, "closeButton");
    ASSERT_FALSE(book.isVisible());
    Switch();
    EXPECT_EQ(NameOf(book, "helpButton"), "IDC_WP_BT_HELP");
    EXPECT_EQ(NameOf(book, "saveButton"), "IDC_WP_BT_SAVE");
    EXPECT_TRUE(book.windowTitle().contains("IDC_WP_T_TITLE")) << book.windowTitle().toStdString();
}

TEST_F(WindowLanguageTest, TheDialogThatKeepsADistanceTable) {
    OpenPortCalls("Far East 12");
    const Interface::PanelShow show{Interface::PanelCode::kDistances, 0};
    Interface::Raise(Interface::Bus::ShowPanel, &show);
    for (const char* name : {"ROTTERDAM", "SINGAPORE"}) {
        const std::string port = name;
        Interface::Call(Interface::Bus::AddPortName, &port);
    }
    Press(PortCalls(), "saveButton");
    QWidget& dialog = *views.KeepWindow();
    ASSERT_TRUE(dialog.isVisible());
    for (const bool hidden : {false, true}) {
        keys.reset();
        Interface::Raise(Interface::Bus::SwitchLanguage);
        if (hidden) {
            Press(dialog, "keepCancelButton");
        }
        ASSERT_EQ(dialog.isVisible(), !hidden);
        ASSERT_NE(TextOf(dialog, "keepOkButton"), "IDS_PORTDISTAB_OK");
        Switch();
        EXPECT_EQ(TextOf(dialog, "keepOkButton"), "IDS_PORTDISTAB_OK");
        EXPECT_EQ(TextOf(dialog, "keepCancelButton"), "IDS_PORTDISTAB_CANCEL");
        EXPECT_EQ(NameOf(dialog, "categoryField"), "IDS_PORTDISTAB_CATENAME");
        EXPECT_EQ(NameOf(dialog, "closeButton"), "IDS_PORTCALL_CLOSE");
        EXPECT_EQ(Find<QLabel>(dialog, "captionLabel")->text(), "IDS_PORTDISTAB_TITLE");
    }
}

}  // namespace Tarvik::Seaplan
