// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

#include <utility>

namespace Tarvik::Seaplan {

CPortCallPanelDlg::CPortCallPanelDlg(PortCallDesk::Parts parts)
    : desk_(std::move(parts)),
      editing_(desk_),
      corrected_(desk_),
      filling_(desk_, editing_, corrected_, [this] { return commands_.SaveBeforeLeaving(); }),
      commands_(desk_, editing_, corrected_, filling_),
      rows_(desk_, editing_),
      distances_(desk_, editing_, filling_, commands_) {
    desk_.ResetSheet();
}

void CPortCallPanelDlg::SetVoyage(const std::string& vi) {
    filling_.SetVoyage(vi);
    if (voyageSet_) {
        voyageSet_();
    }
}

void CPortCallPanelDlg::ApplyLanguage() {
    desk_.ShowTexts();
    const PortCallState& state = desk_.Sheet().state;
    desk_.View().SetCaption(state.caption, state.changed);
    desk_.View().ApplyTexts();
    desk_.Show();
}

void CPortCallPanelDlg::ShowBesideTree() {
    desk_.PlaceBesideTree();
    desk_.View().Show();
}

void CPortCallPanelDlg::PutBack(const PortCallSheet& sheet) {
    const PortCallDesk::Report report(desk_);
    editing_.HideEditors();
    desk_.Sheet() = sheet;
}

void CPortCallPanelDlg::HideAfterLogout() {
    filling_.Forget();
    desk_.View().Hide();
}

}  // namespace Tarvik::Seaplan
