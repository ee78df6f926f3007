// SPDX-License-Identifier: MIT
#include "seaplan/panels/mainview/SeaplanViewDlg.h"

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRename.h"

namespace Tarvik::Seaplan {

namespace {

constexpr Rect kToggledPlace{150, 240, 460, 700};
constexpr Rect kServicePlace{250, 240, 560, 700};
/// Of a language file without a title.
constexpr const char* kTitle = "VoyageManager";
constexpr const char* kHelpTopic = "func033";

}  // namespace

SeaplanViewDlg::SeaplanViewDlg(const Parts& parts)
    : p_(parts),
      filter_(parts.filterPopup, parts.tree, [this] { return RecoverAll(); }),
      search_(parts.tree.Context(), parts.searchView) {}

void SeaplanViewDlg::RegisterHost() {
    namespace Bus = Interface::Bus;
    if (showPanel_.IsBound()) {
        return;
    }
    showPanel_ = Interface::Subscribe(Bus::ShowPanel, this, &SeaplanViewDlg::OnShowPanel);
    switchLanguage_ = Interface::Subscribe(Bus::SwitchLanguage, this, &SeaplanViewDlg::ApplyLanguage);
    logout_ = Interface::Subscribe(Bus::Logout, this, &SeaplanViewDlg::OnLogout);
    switchZone_ = Interface::Subscribe(Bus::SwitchTimeZone, this, &SeaplanViewDlg::OnTimeZone);
    addVessel_ = Interface::Offer(Bus::AddVessel, this, &SeaplanViewDlg::OnAddVessel);
}

void SeaplanViewDlg::UnregisterHost() {
    for (Interface::Binding* binding : {&showPanel_, &switchLanguage_, &logout_, &switchZone_, &addVessel_}) {
        binding->Withdraw();
    }
}

void SeaplanViewDlg::OnShowPanel(const Interface::PanelShow& show) {
    if (show.panel == Interface::PanelCode::kVoyages) {
        Toggle();
    }
}

void SeaplanViewDlg::Toggle() {
    if (p_.window.IsVisible()) {
        Hide();
        p_.voyages.StopTimer();
        return;
    }
    if (p_.store.categories.empty() && p_.tree.ReloadTree() != 0) {
        return;
    }
    p_.voyages.RefreshVesselPositions();
    p_.tree.OnViewShown(true);
    p_.window.Place(kToggledPlace);
    p_.window.Show();
    if (p_.tree.Categories().Ensure()) {
        p_.voyages.StartTimer();
    }
}

bool SeaplanViewDlg::OnKey(Key key) {
    const bool ends = key == Key::Escape && search_.IsOpen();
    if (ends) {
        search_.Close();
    }
    return ends;
}

void SeaplanViewDlg::Hide() {
    // The name being typed is taken while its row, and the box that may tell what is wrong with it, can be
    // seen.
    p_.tree.CloseEditors();
    search_.Close();
    filter_.Hide();
    p_.window.Hide();
    p_.tree.OnViewShown(false);
}

void SeaplanViewDlg::ApplyLanguage() {
    p_.tree.ApplyLanguage();
    filter_.ApplyLanguage();
    std::string title;
    LoadText(title, static_cast<int>(TextIds::IDS_TREE_VOYTITLE), kTitle);
    p_.window.SetCaption(title, false);
    p_.window.ApplyTexts();
}

void SeaplanViewDlg::OnLogout() {
    p_.voyages.ClearChart();
    // What is being typed belongs to the user who goes.
    p_.tree.Renaming().Abandon();
    search_.Close();
    search_.ForgetRead();
    p_.tree.Context().tree.DeleteAllItems();
    p_.store.Clear();
    Hide();
    p_.tree.ForgetAfterLogout();
    if (CPortCallPanelDlg* portCalls = p_.portCalls ? p_.portCalls() : nullptr) {
        portCalls->HideAfterLogout();
    }
    if (p_.hideAfterPortCalls) {
        p_.hideAfterPortCalls();
    }
}

void SeaplanViewDlg::OnTimeZone(const std::string* /*zone*/) {
    // Their times were read in the zone before, so schedules and books are loaded anew at their next use.
    for (auto& [vi, voyage] : p_.store.voyages) {
        voyage.portCalls.clear();
        voyage.positionBook.points.clear();
    }
    search_.ForgetRead();
}

const char* SeaplanViewDlg::OnAddVessel(const std::string* vi) {
    if (vi == nullptr || vi->empty()) {
        return "-1";
    }
    if (p_.tree.ReloadTree() != 0) {
        return "-2";
    }
    p_.window.Place(kServicePlace);
    p_.window.Show();
    if (p_.tree.OpenVesselEditor(*vi) != 0) {
        return "-3";
    }
    return nullptr;
}

int SeaplanViewDlg::RefreshVoyageRow(const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    if (p_.store.FindVoyage(vi) == nullptr) {
        return -2;
    }
    return p_.tree.RefreshVoyageRow(vi) == 0 ? 0 : -3;
}

int SeaplanViewDlg::RecoverAll() {
    const auto states = p_.store.categoryStates;
    for (const auto& [ci, state] : states) {
        if (state == InRecycleBin && p_.catalog.RecoverCategory(ci) != 0) {
            return -1;
        }
    }
    const auto categories = p_.store.categoryVoyages;
    for (const auto& [ci, voyages] : categories) {
        // What lay in a destroyed category is gone with it; asking for it would stop the others from coming
        // back.
        const auto category = states.find(ci);
        if (category != states.end() && category->second == Destroyed) {
            continue;
        }
        for (const auto& [vi, state] : voyages) {
            if (state == InRecycleBin && p_.catalog.RecoverVoyage(ci, vi) != 0) {
                return -2;
            }
        }
    }
    return p_.tree.ReloadTree() == 0 ? 0 : -3;
}

int SeaplanViewDlg::AddCategory() {
    CategoryCommands& categories = p_.tree.Categories();
    return categories.Add(categories.NewName()) ? 0 : -1;
}

void SeaplanViewDlg::RequestHelp() {
    p_.window.RequestHelp(kHelpTopic, kHelpWidth, kHelpHeight);
}

void SeaplanViewDlg::OnSurfacePressed() {
    p_.tree.CloseEditors();
}

}  // namespace Tarvik::Seaplan
