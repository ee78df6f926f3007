// SPDX-License-Identifier: MIT
#include "seaplan/panels/mainview/SeaplanViewDlg.h"

#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kVoyagePanelCode = 3;
constexpr Rect kToggledPlace{150, 240, 460, 700};
constexpr Rect kServicePlace{250, 240, 560, 700};
constexpr const char* kHelpTopic = "func033";

/// Texts answered on the bus stay ours.
void* Answer(const char* text) {
    return const_cast<char*>(text);
}

}  // namespace

SeaplanViewDlg::SeaplanViewDlg(const Parts& parts) : p_(parts) {
    showPanel_.Set<&SeaplanViewDlg::OnShowPanel>(this);
    switchLanguage_.Set<&SeaplanViewDlg::OnSwitchLanguage>(this);
    logout_.Set<&SeaplanViewDlg::OnLogout>(this);
    addVessel_.Set<&SeaplanViewDlg::OnAddVessel>(this);
}

SeaplanViewDlg::~SeaplanViewDlg() {
    if (registered_) {
        UnregisterHost();
    }
}

void SeaplanViewDlg::RegisterHost() {
    namespace Bus = Interface::Bus;
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->BindTrvEvent(Bus::ShowPanel.name, &showPanel_);
    kernel->BindTrvEvent(Bus::SwitchLanguage.name, &switchLanguage_);
    kernel->BindTrvEvent(Bus::Logout.name, &logout_);
    kernel->CreateTrvService(Bus::AddVessel.name, this, "", "", nullptr);
    kernel->BindTrvService(Bus::AddVessel.name, &addVessel_);
    registered_ = true;
}

void SeaplanViewDlg::UnregisterHost() {
    namespace Bus = Interface::Bus;
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->UnBindTrvEvent(Bus::ShowPanel.name, &showPanel_);
    kernel->UnBindTrvEvent(Bus::SwitchLanguage.name, &switchLanguage_);
    kernel->UnBindTrvEvent(Bus::Logout.name, &logout_);
    kernel->UnBindTrvService(Bus::AddVessel.name, &addVessel_);
    kernel->DeleteTrvService(Bus::AddVessel.name, this);
    registered_ = false;
}

void* SeaplanViewDlg::OnShowPanel(void* input) {
    const auto* show = static_cast<const Interface::PanelShow*>(input);
    if (show != nullptr && show->panel == kVoyagePanelCode) {
        Toggle();
    }
    return nullptr;
}

void SeaplanViewDlg::Toggle() {
    if (p_.window.IsVisible()) {
        Hide();
        p_.schedule.StopTimer();
        return;
    }
    if (p_.store.categories.empty() && p_.tree.ReloadTree() != 0) {
        return;
    }
    p_.schedule.RefreshVesselPositions();
    p_.tree.OnViewShown(true);
    p_.window.Place(kToggledPlace);
    p_.window.Show();
    if (p_.tree.EnsureCategory() == 0) {
        p_.schedule.StartTimer();
    }
}

void SeaplanViewDlg::Hide() {
    p_.window.Hide();
    p_.tree.OnViewShown(false);
}

void* SeaplanViewDlg::OnSwitchLanguage(void*) {
    ApplyLanguage();
    return nullptr;
}

void SeaplanViewDlg::ApplyLanguage() {
    p_.tree.ApplyLanguage();
    p_.window.ApplyTexts();
}

void* SeaplanViewDlg::OnLogout(void*) {
    p_.schedule.ClearChart();
    p_.tree.Context().tree.DeleteAllItems();
    p_.store.Clear();
    Hide();
    p_.tree.ForgetAfterLogout();
    if (p_.portCalls != nullptr) {
        p_.portCalls->HideAfterLogout();
    }
    return nullptr;
}

void* SeaplanViewDlg::OnAddVessel(void* input) {
    const auto* vi = static_cast<const std::string*>(input);
    if (vi == nullptr || vi->empty()) {
        return Answer("-1");
    }
    if (p_.tree.ReloadTree() != 0) {
        return Answer("-2");
    }
    p_.window.Place(kServicePlace);
    p_.window.Show();
    if (p_.tree.OpenVesselEditor(*vi) != 0) {
        return Answer("-3");
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

void SeaplanViewDlg::ToggleFilter() {
    if (p_.window.FilterVisible()) {
        p_.window.HideFilter();
    } else {
        p_.window.ShowFilter(p_.tree.ShowsDeleted());
    }
}

int SeaplanViewDlg::AddCategory() {
    const std::string name =
        p_.catalog.MakeUniqueName(Text(TextId::IDS_TREE_NEWVOYCATEGORY), p_.tree.Context().categoryNames);
    return p_.tree.AddCategory(name) == 0 ? 0 : -1;
}

void SeaplanViewDlg::RequestHelp() {
    p_.window.RequestHelp(kHelpTopic, 370, 440);
}

}  // namespace Tarvik::Seaplan
