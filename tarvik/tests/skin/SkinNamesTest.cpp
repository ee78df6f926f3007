// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

namespace Tarvik::Skin {

namespace {

struct Known {
    ControlClass control;
    std::initializer_list<const char*> names;
};

/// What the windows of the plug-ins ask for.
const Known kAsked[] = {
    {ControlClass::Dialog,
     {"flt.leftmaindlg", "flt.filter_sortDlg", "flt.fleetrremarkdlg", "TRV_BurnDlg", "TRV_portCallDlg",
      "TRV_PositionDlg", "TRV_PortDistSaveDlg", "TreeEditDlg", "trv_droplist_dlg", "transparent_childdialog",
      "Trv_DateDlg"}},
    {ControlClass::PushButton,
     {"trv_help_btn",
      "trv_close_btn",
      "flt.btn.viewset",
      "Voyage_addvoyage",
      "flt.btn.add",
      "flt.btn.sort",
      "VoySaveBtn",
      "VoyDelAllBtn",
      "VoyCalculateBtn",
      "VoyInsertBtn",
      "trv_voyage_btn",
      "VoyPostionBookBtn",
      "position_cancelBtn",
      "trv_btn_59",
      "trv.btn.default",
      "trv_down_arrow_btn",
      "Date_Select_full",
      "TimeSelTrace",
      "Date_year_prev",
      "Date_year_next",
      "Date_month_prev",
      "Date_month_next",
      "Date_time_prev",
      "Date_time_next",
      "TRV_PortDistSaveDlg.CateList"}},
    {ControlClass::CheckBox, {"trv_check_white"}},
    {ControlClass::RadioButton, {"trv_radio", "DateInMonth", "DateOutMonth", "DateToday"}},
    {ControlClass::StaticText,
     {"Caption_static", "trv.static.title", "VoyPortCallStatic", "static_font11", "trv_date_10",
      "trv_date_12", "trv_date_13"}},
    {ControlClass::EditField,
     {"flt.edit_292", "flt.edit_292_278", "trv_edit_60", "voyageEdit", "trv_pagenum_edit", "Date_time_edit",
      "TRV_PortDistSaveDlg.CateEdit", "TRV_PortDistSaveDlg.VoyEdit"}},
    {ControlClass::ListView,
     {"VoyageDemoList", "VoyagePositionList", "flt.list.remark", "info.portlistctrl"}}};

class Panel final : public ToolWindow {
  public:
    Panel() : ToolWindow(nullptr, QStringLiteral("panel")) {}

  protected:
    void CloseAsked() override {}
};

}  // namespace

TEST(SkinNames, EveryNameThatIsAskedForHasALookInItsClass) {
    std::size_t asked = 0;
    for (const Known& known : kAsked) {
        for (const char* name : known.names) {
            QLabel control;
            EXPECT_TRUE(SkinWindow(control, known.control, name)) << name;
            EXPECT_EQ(SkinOf(control).toStdString(), name);
            ++asked;
        }
    }
    EXPECT_EQ(SkinNames().size(), asked) << "a look that nobody asks for";
}

TEST(SkinNames, NoNameStandsTwiceInAClass) {
    std::set<std::pair<ControlClass, std::string>> seen;
    for (const SkinName& known : SkinNames()) {
        EXPECT_TRUE(seen.emplace(known.control, known.name).second) << known.name;
    }
}

TEST(SkinNames, AnUnknownNameOrOneOfAnotherClassLeavesTheControlAsItWas) {
    QLineEdit field;
    EXPECT_FALSE(SkinWindow(field, ControlClass::EditField, "trv_edit_61"));
    EXPECT_FALSE(SkinWindow(field, ControlClass::PushButton, "trv_edit_60"));
    EXPECT_EQ(SkinOf(field), "");
    EXPECT_FALSE(field.property("field").isValid());
}

TEST(SkinNames, ANameSelectsTheLook) {
    QWidget window;
    window.setStyleSheet(StyleSheet());
    auto* plain = new QLineEdit(&window);
    auto* field = new QLineEdit(&window);
    EXPECT_TRUE(SkinWindow(*field, ControlClass::EditField, "trv_edit_60"));
    for (QWidget* control : {plain, field}) {
        control->ensurePolished();
    }
    EXPECT_EQ(plain->font().pixelSize(), 12);
    EXPECT_EQ(field->font().pixelSize(), 13);
}

TEST(SkinNames, AButtonTakesItsIconAgainInEachTheme) {
    Panel window;
    auto* help = new QToolButton(&window);
    EXPECT_TRUE(SkinWindow(*help, ControlClass::PushButton, "trv_help_btn", 1));
    const auto picture = [&] { return help->icon().pixmap(16).toImage(); };
    const QImage light = picture();
    EXPECT_FALSE(light.isNull());
    SetTheme(Theme::Night);
    window.ApplySkin();
    EXPECT_NE(picture(), light);
    SetTheme(Theme::Light);
}

}  // namespace Tarvik::Skin
