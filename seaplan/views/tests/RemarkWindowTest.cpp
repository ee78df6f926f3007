// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/protocol/RemarkMessages.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallLines.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

class RemarkWindowTest : public ViewsFixture {
  protected:
    RemarkWindow& Remarks() { return *views.RemarksWindow(); }
    QLineEdit& Subject() { return *Find<QLineEdit>(Remarks(), "remarkSubject"); }
    QPlainTextEdit& Body() { return *Find<QPlainTextEdit>(Remarks(), "remarkBody"); }
    RemarkListView& List() { return *Find<RemarkListView>(Remarks(), "remarkList"); }
    QAbstractButton& Save() { return *Find<QAbstractButton>(Remarks(), "saveRemarkButton"); }
    QString Row(int row) { return List().model()->index(row, 0).data().toString(); }
    void OpenRemarks(const std::string& voyage) {
        OpenVoyage(voyage);
        ClickPart(voyage, Shows(voyage, "Voyage.child.svr3.non") ? "Voyage.child.svr3.non"
                                                                 : "Voyage.child.svr3.exist");
        Remarks().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Remarks()));
    }
};

}  // namespace

TEST_F(RemarkWindowTest, ItIsMadeWhenFirstAskedForAndStandsBesideTheVoyagePanel) {
    OpenVoyage("North Sea");
    EXPECT_EQ(views.RemarksWindow(), nullptr);
    ClickPart("North Sea", "Voyage.child.svr3.non");
    ASSERT_NE(views.RemarksWindow(), nullptr);
    EXPECT_TRUE(Remarks().isVisible());
    EXPECT_EQ(Remarks().objectName(), "remarkPanel");
    EXPECT_EQ(Remarks().y(), Panel().y());
    EXPECT_EQ(Find<QLabel>(Remarks(), "captionLabel")->text(), "Remarks of North Sea");
    EXPECT_EQ(Find<QLabel>(Remarks(), "captionLabel")->height(), 25);
    EXPECT_EQ(List().visualRect(List().model()->index(0, 0)).size(), QSize(150, 50));
    EXPECT_EQ(Subject().width(), 292);
}

TEST_F(RemarkWindowTest, ARemarkIsWrittenWithTheKeyboardAlone) {
    OpenRemarks("North Sea");
    ASSERT_TRUE(Subject().hasFocus());
    EXPECT_FALSE(Save().isEnabled());
    QTest::keyClicks(&Subject(), "Draft");
    EXPECT_TRUE(Save().isEnabled());
    QTest::keyClick(&Subject(), Qt::Key_Return);
    ASSERT_TRUE(Body().hasFocus());
    QTest::keyClicks(&Body(), "11.5 m");
    QTest::keyClick(&Body(), Qt::Key_S, Qt::ControlModifier);
    // A button shows for a moment that it is down before it acts.
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return desk.Count(Ask::kAddRemark, "subject:\"Draft\",body:\"11.5 m\"") == 1; }));
    EXPECT_TRUE(Row(0).startsWith("Draft, "));
    EXPECT_TRUE(Shows("North Sea", "Voyage.child.svr3.exist"));
    QTest::keyClick(&Body(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_FALSE(Remarks().isVisible());
    EXPECT_TRUE(messages.messages.empty());
    ClickPart("North Sea", "Voyage.child.svr3.exist");
    EXPECT_TRUE(Remarks().isVisible());
    EXPECT_EQ(Body().toPlainText(), "11.5 m");
}

TEST_F(RemarkWindowTest, TabGoesFromTheListOverTheFieldsToTheButtons) {
    OpenRemarks("North Sea");
    List().setFocus();
    for (QWidget* next : std::initializer_list<QWidget*>{&Subject(), &Body()}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
    }
}

TEST_F(RemarkWindowTest, ATypedTextIsAskedAboutBeforeTheKeyClosesTheWindow) {
    OpenRemarks("North Sea");
    QTest::keyClicks(&Subject(), "Draft");
    messages.Answer(Interface::SysMsgHandleRes::No);
    QTest::keyClick(&Subject(), Qt::Key_Escape);
    QApplication::processEvents();
    ASSERT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(messages.messages[0].text,
              "The remark has been changed. Save it?\nRemark \"Draft\" of North Sea");
    EXPECT_FALSE(Remarks().isVisible());
    EXPECT_EQ(desk.Count(Ask::kAddRemark), 0);
}

TEST_F(RemarkWindowTest, RowsAreChosenAndDeletedByMouseAndKeyboard) {
    OpenRemarks("Far East 12");
    EXPECT_EQ(Subject().text(), "Subject");
    QTest::keyClick(&Subject(), Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return List().model()->rowCount() == 2; }));
    EXPECT_EQ(Subject().text(), "");
    const auto press = [this](int row, const std::string& name) {
        for (const SubItem& part : List().PartsOf(List().model()->index(row, 0))) {
            if (part.name == name) {
                QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, part.rect.center());
                QApplication::processEvents();
            }
        }
    };
    press(1, "rmk.name");
    EXPECT_EQ(Subject().text(), "Subject");
    EXPECT_EQ(List().currentIndex().row(), 1);
    press(0, "flt.remark.del");
    EXPECT_EQ(List().model()->rowCount(), 1);
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    QTest::keyClick(&List(), Qt::Key_Delete);
    QApplication::processEvents();
    EXPECT_EQ(List().model()->rowCount(), 0);
    EXPECT_FALSE(Body().isEnabled());
    EXPECT_TRUE(Shows("Far East 12", "Voyage.child.svr3.non"));
}

TEST_F(RemarkWindowTest, APortsRemarksOpenInAPanelOfTheirOwn) {
    OpenPortCalls("Far East 12");
    auto* table = Find<PanelTable>(PortCalls(), "portCallTable");
    const QRect cell = table->visualRect(table->model()->index(1, kPortCallImageColumn));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 12 + 60, cell.center().y()));
    QApplication::processEvents();
    ASSERT_NE(views.PortCallRemarksWindow(), nullptr);
    EXPECT_TRUE(views.PortCallRemarksWindow()->isVisible());
    EXPECT_EQ(views.PortCallRemarksWindow()->objectName(), "portCallRemarkPanel");
    EXPECT_EQ(views.RemarksWindow(), nullptr);
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks, "SUEZ CANAL"), 1);
}

TEST_F(RemarkWindowTest, EveryControlHasAnAccessibleNameAndATip) {
    OpenRemarks("North Sea");
    for (QAbstractButton* button : Remarks().findChildren<QAbstractButton*>()) {
        if (button->objectName().startsWith("qt_")) {
            continue;
        }
        EXPECT_FALSE(button->objectName().isEmpty());
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
    for (const QWidget* widget : std::initializer_list<QWidget*>{&List(), &Subject(), &Body()}) {
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
    EXPECT_TRUE(Save().toolTip().contains("Ctrl+S"));
    EXPECT_TRUE(Save().toolTip().contains("nothing to save"));
}

TEST_F(RemarkWindowTest, ALogoutHidesItAndTheThemeReachesIt) {
    OpenRemarks("North Sea");
    const QPalette before = QApplication::palette();
    Skin::ThemeWatch::Publish(Skin::Theme::Dark);
    QApplication::setPalette(QPalette(Skin::Colour(Skin::Role::Window)));
    EXPECT_TRUE(Remarks().styleSheet().contains("#2a4153"));
    QApplication::setPalette(before);
    QTest::keyClicks(&Subject(), "Draft");
    Interface::Raise(Interface::Bus::Logout);
    EXPECT_FALSE(Remarks().isVisible());
    EXPECT_TRUE(messages.messages.empty());
}

TEST_F(RemarkWindowTest, ABoxLeavesTheKeyboardInItsField) {
    OpenRemarks("North Sea");
    Subject().setText(QString(64, QChar(0x8239)));
    QTest::keyClicks(&Subject(), "x");
    QTest::keyClick(&Subject(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !messages.messages.empty(); }));
    EXPECT_EQ(QApplication::focusWidget(), &Subject());
}

TEST_F(RemarkWindowTest, TheTitleIsMeasuredInItsOwnFontAtTheFirstOpening) {
    OpenRemarks("North Sea");
    const auto* title = Find<QLabel>(Remarks(), "captionLabel");
    EXPECT_EQ(title->width(), title->fontMetrics().horizontalAdvance(title->text()) + 20);
}

TEST_F(RemarkWindowTest, ASwitchOfLanguageChangesItWhileItIsHidden) {
    OpenRemarks("North Sea");
    Remarks().hide();
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/seaplan.zh-CN.json");
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(Find<QLabel>(Remarks(), "captionLabel")->text(), "North Sea 的备注");
    EXPECT_EQ(Save().text(), "保存");
    EXPECT_TRUE(Find<QAbstractButton>(Remarks(), "addRemarkButton")->toolTip().startsWith("新建备注"));
    EXPECT_FALSE(Remarks().isVisible());
}

TEST(RemarkLayoutTest, TheUnsavedMarkStandsBeforeTheDeleteImage) {
    const TextWidth width = [](const QString& text, SubItemKind) {
        return 7 * static_cast<int>(text.size());
    };
    const auto parts = LayOutRemark({std::string(60, 'x'), "2024-03-01 08:00:00", true}, {0, 100, 150, 50},
                                    width, {"Not saved", "Delete"});
    ASSERT_EQ(parts.size(), 4U);
    EXPECT_EQ(parts[0].name, "rmk.name");
    EXPECT_EQ(parts[1].name, "rmk.unsave");
    EXPECT_EQ(parts[2].name, "flt.remark.del");
    EXPECT_EQ(parts[3].name, "rmk.time");
    EXPECT_LE(parts[0].rect.right(), parts[1].rect.left());
    EXPECT_LT(parts[1].rect.left(), parts[2].rect.left());
    EXPECT_TRUE(parts[2].clickable);
    for (const SubItem& part : parts) {
        EXPECT_TRUE(QRect(0, 100, 150, 50).contains(part.rect)) << part.name;
    }
    EXPECT_EQ(LayOutRemark({"x", "", false}, {0, 0, 150, 50}, width, {}).size(), 3U);
}

}  // namespace Tarvik::Seaplan
