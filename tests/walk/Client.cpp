// SPDX-License-Identifier: MIT
#include "tests/walk/Client.h"

#include <algorithm>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan::Walk {

namespace {

using Interface::SysMsgHandleRes;

enum BoxKind : int { kNotice = 0, kOkCancel = 1 };

}  // namespace

SysMsgHandleRes Person::SyncSendMsg(int, const std::u16string& text, int flags, void*,
                                    const std::u16string&) {
    const std::string told = Util::StringUtl::TranslateString(text);
    asked.push_back({told.substr(0, told.find('\n')), flags != kNotice, yes});
    if (flags == kNotice) {
        return SysMsgHandleRes::None;
    }
    if (flags == kOkCancel) {
        return yes ? SysMsgHandleRes::Ok : SysMsgHandleRes::Cancel;
    }
    return yes ? SysMsgHandleRes::Yes : SysMsgHandleRes::No;
}

bool Person::Answered(const std::string& text, bool with) const {
    return std::any_of(asked.begin(), asked.end(),
                       [&](const Asked& box) { return box.question && box.text == text && box.yes == with; });
}

Client::Client() {
    directory.ReadNames();
    catalog.SetVoyController(&voyages);
    ctrl.SetPortCallPanel([this] { return &panel; });
    panel.SetSavedListener([this](const std::string& vi) { ShowSaved(vi); });
    portCallModule.SetRouteListener([this] { panel.Commands().OnRouteChosen(); });
    voyages.SetTreeVisible([this] { return window.visible; });
    mainView.RegisterHost();
    // Voyages in the bin can be reached.
    ctrl.Context().showDeleted = true;
}

Client::~Client() {
    voyages.StopTimer();
    mainView.UnregisterHost();
}

void Client::ShowSaved(const std::string& vi) {
    ctrl.ComputeStatus(vi);
    ctrl.ShowStatus(vi);
    mainView.RefreshVoyageRow(vi);
}

void Client::Toggle() {
    const Interface::PanelShow show{Interface::PanelCode::kVoyages, 0};
    Interface::Raise(Interface::Bus::ShowPanel, &show);
}

std::vector<TreeRow> Client::VoyageRows(DeletionState state) const {
    const std::string style = state == InUse ? kVoyageStyle : kDeletedVoyageStyle;
    std::vector<TreeRow> rows;
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            if (tree.GetItemStyle(child) == style) {
                rows.push_back(child);
            }
        }
    }
    return rows;
}

TreeRow Client::CategoryRow() const {
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        if (tree.GetItemStyle(row) == kCategoryStyle) {
            return row;
        }
    }
    return kNoRow;
}

}  // namespace Tarvik::Seaplan::Walk
