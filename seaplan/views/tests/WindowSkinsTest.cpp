// SPDX-License-Identifier: MIT
// Which looks the windows ask for, by the names of their controls.
#include <QFontInfo>
#include <QLabel>
#include <QListWidget>
#include <map>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>

#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/distances/KeepTableWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Controls = std::vector<std::pair<const char*, const char*>>;

class WindowSkinsTest : public ViewsFixture {
  protected:
    void Expect(QWidget& window, const char* dialog, int flag, const Controls& controls) {
        EXPECT_EQ(Skin::SkinOf(window).toStdString(), dialog);
        EXPECT_EQ(window.property("skinFlag").toInt(), flag) << dialog;
        for (const auto& [name, skin] : controls) {
            const auto* control = Find<QWidget>(window, name);
            ASSERT_NE(control, nullptr) << dialog << ' ' << name;
            EXPECT_EQ(Skin::SkinOf(*control).toStdString(), skin) << dialog << ' ' << name;
        }
    }
};

}  // namespace

TEST_F(WindowSkinsTest, TextsKeepTheirSizeThroughAllLooks) {
    OpenPortCalls("Far East 12");
    std::map<const QWidget*, int> sizes;
    const auto size = [](const QWidget& widget) { return QFontInfo(widget.font()).pixelSize(); };
    for (const QWidget* widget : PortCalls().findChildren<QWidget*>()) {
        sizes[widget] = size(*widget);
    }
    EXPECT_GT(sizes.size(), 20U);
    for (const Skin::Theme look : {Skin::Theme::Dark, Skin::Theme::Night, Skin::Theme::Light}) {
        Skin::ThemeWatch::Publish(look);
        QApplication::setPalette(QPalette(Skin::Colour(Skin::Role::Window)));
        QApplication::processEvents();
        ASSERT_EQ(Skin::CurrentTheme(), look);
        for (const auto& [widget, before] : sizes) {
            EXPECT_EQ(size(*widget), before)
                << Skin::ThemeName(look) << ' ' << qPrintable(widget->objectName());
        }
    }
    QApplication::setPalette(QPalette());
}

TEST_F(WindowSkinsTest, TheVoyagePanelAndItsPopups) {
    Toggle();
    Expect(Panel(), "flt.leftmaindlg", 1,
           {{"captionLabel", "Caption_static"},
            {"filterButton", "flt.btn.viewset"},
            {"addCategoryButton", "Voyage_addvoyage"},
            {"helpButton", "trv_help_btn"},
            {"closeButton", "trv_close_btn"},
            {"renameEditor", "voyageEdit"},
            {"vesselEditor", "voyageEdit"},
            {"vesselList", "info.portlistctrl"}});
    Expect(Panel().FilterPopup(), "flt.filter_sortDlg", 1, {{"showDeletedCheck", "trv_check_white"}});
    Expect(Tree().SortPopup(), "flt.filter_sortDlg", 1,
           {{"sortByName", "trv_radio"}, {"sortByDate", "trv_radio"}});
}

TEST_F(WindowSkinsTest, ThePortCallsAndTheirCalendar) {
    OpenPortCalls("Far East 12");
    Expect(PortCalls(), "TRV_portCallDlg", 0,
           {{"captionLabel", "Caption_static"},
            {"changedMark", "Caption_static"},
            {"portCallTable", "VoyageDemoList"},
            {"helpButton", "trv_help_btn"},
            {"closeButton", "trv_close_btn"},
            {"saveButton", "VoySaveBtn"},
            {"clearButton", "VoyDelAllBtn"},
            {"calculateButton", "VoyCalculateBtn"},
            {"positionBookButton", "VoyPostionBookBtn"},
            {"portEditor", "voyageEdit"},
            {"purposeList", "info.portlistctrl"}});
    auto* calendar = Find<QWidget>(PortCalls(), "calendarPopup");
    ASSERT_NE(calendar, nullptr);
    Expect(*calendar, "Trv_DateDlg", 0,
           {{"previousYear", "Date_year_prev"},
            {"previousMonth", "Date_month_prev"},
            {"nextMonth", "Date_month_next"},
            {"nextYear", "Date_year_next"},
            {"calendarHeading", "trv_date_13"},
            {"hourShown", "trv_date_12"},
            {"hourEdit", "trv_pagenum_edit"},
            {"minuteEdit", "Date_time_edit"},
            {"hourMinus", "Date_time_prev"},
            {"minutePlus", "Date_time_next"},
            {"calendarOk", "trv.btn.default"},
            {"calendarCancel", "trv.btn.default"}});
}

TEST_F(WindowSkinsTest, TheNotes) {
    OpenVoyage("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr3.exist");
    Expect(*views.RemarksWindow(), "flt.fleetrremarkdlg", 1,
           {{"captionLabel", "trv.static.title"},
            {"addRemarkButton", "flt.btn.add"},
            {"sortRemarksButton", "flt.btn.sort"},
            {"saveRemarkButton", "trv_btn_59"},
            {"remarkSubject", "flt.edit_292"},
            {"remarkBody", "flt.edit_292_278"},
            {"remarkList", "flt.list.remark"}});
    ClickPart("Far East 12", "Voyage.child.svr5");
    Expect(*views.FiguresWindow(), "TRV_BurnDlg", 1,
           {{"captionLabel", "Caption_static"},
            {"fuelBallast", "trv_edit_60"},
            {"waterInPort", "trv_edit_60"},
            {"undoFiguresButton", "position_cancelBtn"},
            {"saveFiguresButton", "trv_btn_59"}});
}

TEST_F(WindowSkinsTest, TheBookAndTheDialogThatKeepsTheTable) {
    OpenPortCalls("Far East 12");
    Press(PortCalls(), "positionBookButton");
    ASSERT_NE(views.BookWindowMade(), nullptr);
    Expect(*views.BookWindowMade(), "TRV_PositionDlg", 1,
           {{"captionLabel", "Caption_static"},
            {"positionBookTable", "VoyagePositionList"},
            {"saveButton", "trv_btn_59"},
            {"cancelButton", "position_cancelBtn"},
            {"insertButton", "VoyInsertBtn"},
            {"deleteButton", "trv_voyage_btn"},
            {"bookSpeed", "VoyPortCallStatic"},
            {"bookSpeedUnit", "trv_down_arrow_btn"}});
    Expect(*views.KeepWindow(), "TRV_PortDistSaveDlg", 1,
           {{"captionLabel", "Caption_static"},
            {"categoryField", "TRV_PortDistSaveDlg.CateEdit"},
            {"voyageField", "TRV_PortDistSaveDlg.VoyEdit"},
            {"categoryArrow", "TRV_PortDistSaveDlg.CateList"},
            {"keepOkButton", "trv_btn_59"},
            {"keepCancelButton", "trv_btn_59"}});
}

}  // namespace Tarvik::Seaplan
