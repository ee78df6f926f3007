// SPDX-License-Identifier: MIT
#include "seaplan/panels/distances/CPortDistTabDlg.h"

#include <utility>
#include <vector>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/DistanceTable.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

namespace {

/// CreateVoyageFromTable has told what is wrong with the names up to this result.
constexpr int kNameTaken = -2;

}  // namespace

CPortDistTabDlg::CPortDistTabDlg(Parts parts)
    : p_(std::move(parts)),
      boxes_(p_.view),
      names_(p_.view.Names(), [this](const std::string& name) { PutCategory(name, true); }) {
    namespace Bus = Interface::Bus;
    bindings_.Keep(Interface::Offer(Bus::AddPortName, this, &CPortDistTabDlg::OnAddPortName));
    bindings_.Keep(Interface::Offer(Bus::TakesPortNames, this, &CPortDistTabDlg::OnIsOpenAsked));
    bindings_.Keep(Interface::Subscribe(Bus::ShowPanel, this, &CPortDistTabDlg::OnShowPanel));
}

void CPortDistTabDlg::OnShowPanel(const Interface::PanelShow& show) {
    if (show.panel != Interface::PanelCode::kDistances) {
        return;
    }
    CPortCallPanelDlg* panel = p_.portCalls(true);
    // The rows of a table in sight stay.
    if (!panel->Distances().IsOpen()) {
        panel->OpenDistanceTable();
    }
}

void CPortDistTabDlg::OnAddPortName(const std::string* name) {
    if (name != nullptr && !name->empty()) {
        p_.portCalls(true)->AddPortByName(*name);
    }
}

const bool* CPortDistTabDlg::OnIsOpenAsked() {
    CPortCallPanelDlg* panel = p_.portCalls(false);
    isOpen_ = panel != nullptr && panel->Distances().IsOpen();
    return &isOpen_;
}

/// The tree's rows and names, loaded now where that has not been done. 0, or what the load gives.
int CPortDistTabDlg::LoadTree() {
    return p_.tree.Context().store.categories.empty() ? p_.tree.ReloadTree() : 0;
}

void CPortDistTabDlg::PutCategory(const std::string& text, bool selected) {
    const bool before = std::exchange(filterActive_, false);
    category_ = text;
    p_.view.SetCategory(text, selected);
    filterActive_ = before;
}

void CPortDistTabDlg::Open() {
    names_.Hide();
    // Pressed again, the names that are typed stay.
    if (p_.view.IsVisible()) {
        return p_.view.Show();
    }
    PutCategory("", false);
    voyage_.clear();
    p_.view.SetVoyageName("");
    note_.reset();
    ApplyLanguage();
    p_.view.MoveTo(Centred(p_.panelPlace(), p_.view.PlaceOnScreen()));
    p_.view.Show();
}

void CPortDistTabDlg::ApplyLanguage() {
    p_.view.SetCaption(Text(TextIds::IDS_PORTDISTAB_TITLE), false);
    p_.view.ApplyTexts();
    p_.view.ShowNote(note_ ? Text(*note_) : std::string());
}

void CPortDistTabDlg::ShowNote(std::optional<TextId> note) {
    note_ = note;
    p_.view.ShowNote(note_ ? Text(*note_) : std::string());
}

void CPortDistTabDlg::ShowNames(const std::string& typed) {
    std::vector<std::string> all;
    p_.tree.Context().catalog.ListCategories(all);
    // They drop below their field, which stays in sight while they are filtered.
    Rect below = p_.view.CategoryPlace();
    below.top = below.bottom;
    if (names_.ShowNames(NamesBeginning(all, typed), below) != 0) {
        names_.Hide();
    }
}

void CPortDistTabDlg::OnCategoryTyped(const std::string& text) {
    if (!filterActive_) {
        return names_.Hide();
    }
    category_ = text;
    ShowNames(text);
}

bool CPortDistTabDlg::OnCategoryKey(KeyPress press) {
    switch (press.key) {
        case Key::Enter:
            if (!category_.empty()) {
                names_.Hide();
                PutCategory(category_, true);
            }
            return true;
        case Key::Down:
            return names_.TakeKeyboard();
        case Key::Escape: {
            const bool shown = names_.IsVisible();
            names_.Hide();
            return shown;
        }
        default:
            return false;
    }
}

bool CPortDistTabDlg::OnListKey(KeyPress press, int row) {
    switch (press.key) {
        case Key::Enter:
            OnNameChosen(row);
            return true;
        case Key::Escape:
            names_.Hide();
            return true;
        default:
            return false;
    }
}

void CPortDistTabDlg::OnCategoryLeft() {
    const TreeContext& tree = p_.tree.Context();
    tree.catalog.MakeUniqueName(Text(TextIds::IDS_TREE_NEWVOYAGE), tree.voyageNames, voyage_);
    p_.view.SetVoyageName(voyage_);
}

void CPortDistTabDlg::OnArrow() {
    if (names_.IsVisible()) {
        return names_.Hide();
    }
    LoadTree();
    ShowNames("");
}

void CPortDistTabDlg::OnOk() {
    names_.Hide();
    ShowNote({});
    LoadTree();
    DistanceTable& table = p_.portCalls(true)->Distances();
    // The dialog stays when the panel goes on to a voyage, whose rows are not the ones to be kept.
    if (!table.IsUnkept()) {
        return ShowNote(TextIds::IDS_VIEW_TABLEGONE);
    }
    if (table.CountPlaces() < 2) {
        return boxes_.Notice(TextIds::IDS_PORTDISTAB_SAVEPORTWARN);
    }
    TableVoyage made;
    if (const int code = p_.tree.CreateVoyageFromTable(category_, voyage_, made); code != 0) {
        if (code < kNameTaken) {
            ShowNote(TextIds::IDS_VIEW_TABLENOTKEPT);
        }
        return;
    }
    p_.portCalls(true)->SetVoyage(made.vi);
    table.KeepAs(made.vi);
    OnClose();
}

void CPortDistTabDlg::OnClose() {
    names_.Hide();
    p_.view.Hide();
}

}  // namespace Tarvik::Seaplan
