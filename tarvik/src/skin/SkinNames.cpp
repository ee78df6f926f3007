// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QStyle>
#include <algorithm>
#include <iterator>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/SkinNames.h>

namespace Tarvik::Skin {

namespace {

constexpr const char* kName = "skinName";
constexpr const char* kFlag = "skinFlag";
constexpr const char* kIcon = "skinIcon";

/// What a name stands for: the property by which the style sheet knows it, and the icon of a button. A name
/// without either is drawn as every control of its class.
struct Look {
    ControlClass control;
    const char* name;
    const char* property = nullptr;
    const char* value = "true";
    const char* icon = nullptr;
};

constexpr Look Plain(ControlClass control, const char* name) {
    return {control, name};
}
constexpr Look Drawn(const char* name, const char* icon) {
    return {ControlClass::PushButton, name, nullptr, "true", icon};
}
constexpr Look Marked(ControlClass control, const char* name, const char* property,
                      const char* value = "true") {
    return {control, name, property, value};
}

using enum ControlClass;

constexpr Look kLooks[] = {
    Plain(Dialog, "flt.leftmaindlg"),
    Plain(Dialog, "flt.filter_sortDlg"),
    Plain(Dialog, "flt.fleetrremarkdlg"),
    Plain(Dialog, "TRV_BurnDlg"),
    Plain(Dialog, "TRV_portCallDlg"),
    Plain(Dialog, "TRV_PositionDlg"),
    Plain(Dialog, "TRV_PortDistSaveDlg"),
    Plain(Dialog, "TreeEditDlg"),
    Plain(Dialog, "trv_droplist_dlg"),
    Plain(Dialog, "transparent_childdialog"),
    Plain(Dialog, "Trv_DateDlg"),
    Drawn("trv_help_btn", "help"),
    Drawn("trv_close_btn", "close"),
    Drawn("flt.btn.viewset", "filter"),
    Drawn("Voyage_addvoyage", "add"),
    Drawn("flt.btn.add", "add"),
    Drawn("flt.btn.sort", "sort-down"),
    Drawn("position_cancelBtn", "recover"),
    Drawn("VoySaveBtn", "save"),
    Drawn("VoyDelAllBtn", "clear"),
    Drawn("VoyInsertBtn", "add"),
    Drawn("trv_voyage_btn", "delete"),
    Drawn("trv_down_arrow_btn", "chevron-down"),
    Drawn("TRV_PortDistSaveDlg.CateList", "chevron-down"),
    Plain(PushButton, "trv_btn_59"),
    Plain(PushButton, "trv.btn.default"),
    Marked(PushButton, "VoyCalculateBtn", "primary"),
    Plain(PushButton, "VoyPostionBookBtn"),
    Marked(PushButton, "Date_Select_full", "dateButton", "full"),
    Marked(PushButton, "TimeSelTrace", "dateButton", "trace"),
    Plain(PushButton, "Date_year_prev"),
    Plain(PushButton, "Date_year_next"),
    Plain(PushButton, "Date_month_prev"),
    Plain(PushButton, "Date_month_next"),
    Plain(PushButton, "Date_time_prev"),
    Plain(PushButton, "Date_time_next"),
    Plain(CheckBox, "trv_check_white"),
    Plain(RadioButton, "trv_radio"),
    Marked(RadioButton, "DateInMonth", "look", "inside"),
    Marked(RadioButton, "DateOutMonth", "look", "outside"),
    Marked(RadioButton, "DateToday", "look", "today"),
    Plain(StaticText, "Caption_static"),
    Plain(StaticText, "trv.static.title"),
    Plain(StaticText, "VoyPortCallStatic"),
    Plain(StaticText, "static_font11"),
    Plain(StaticText, "trv_date_12"),
    Plain(StaticText, "trv_date_13"),
    Marked(StaticText, "trv_date_10", "secondary"),
    Marked(EditField, "flt.edit_292", "field"),
    Marked(EditField, "flt.edit_292_278", "field"),
    Marked(EditField, "trv_edit_60", "field"),
    Marked(EditField, "TRV_PortDistSaveDlg.CateEdit", "field"),
    Marked(EditField, "TRV_PortDistSaveDlg.VoyEdit", "field"),
    Plain(EditField, "voyageEdit"),
    Plain(EditField, "trv_pagenum_edit"),
    Plain(EditField, "Date_time_edit"),
    Plain(ListView, "VoyageDemoList"),
    Plain(ListView, "VoyagePositionList"),
    Plain(ListView, "info.portlistctrl"),
    Marked(ListView, "flt.list.remark", "caption"),
};

const Look* FindLook(ControlClass control, std::string_view name) {
    const auto* const found = std::find_if(std::begin(kLooks), std::end(kLooks), [&](const Look& look) {
        return look.control == control && look.name == name;
    });
    return found == std::end(kLooks) ? nullptr : found;
}

void PutIcon(QWidget& widget) {
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    const QVariant icon = widget.property(kIcon);
    if (button != nullptr && icon.isValid()) {
        button->setIcon(MakeIcon(icon.toString().toStdString()));
    }
}

}  // namespace

std::vector<SkinName> SkinNames() {
    std::vector<SkinName> names;
    std::transform(std::begin(kLooks), std::end(kLooks), std::back_inserter(names), [](const Look& look) {
        return SkinName{look.control, look.name};
    });
    return names;
}

bool SkinWindow(QWidget& widget, ControlClass control, std::string_view name, int flag) {
    const Look* look = FindLook(control, name);
    if (look == nullptr) {
        return false;
    }
    widget.setProperty(kName, QString::fromLatin1(look->name));
    widget.setProperty(kFlag, flag);
    if (look->property != nullptr) {
        widget.setProperty(look->property, QString::fromLatin1(look->value));
        // The style sheet reads a property only when it takes the control anew.
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
    }
    if (look->icon != nullptr) {
        widget.setProperty(kIcon, QString::fromLatin1(look->icon));
        PutIcon(widget);
    }
    return true;
}

QString SkinOf(const QWidget& widget) {
    return widget.property(kName).toString();
}

void DressAgain(QWidget& window) {
    for (QWidget* child : window.findChildren<QWidget*>()) {
        PutIcon(*child);
    }
}

}  // namespace Tarvik::Skin
