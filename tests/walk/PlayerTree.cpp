// SPDX-License-Identifier: MIT
/// Steps in the voyage tree.
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "tests/walk/Player.h"

namespace Tarvik::Seaplan::Walk {

/// The voyage in use at this place, pressed or not; kNoRow when there is none, or the press took it away.
TreeRow Player::PressedRow(int which, bool press) {
    const auto rows = client_->VoyageRows(InUse);
    if (rows.empty()) {
        return kNoRow;
    }
    const TreeRow row = rows[static_cast<std::size_t>(which) % rows.size()];
    if (press) {
        PressElsewhere();
        if (client_->tree.Row(row) == nullptr) {
            return kNoRow;
        }
        client_->ctrl.OnRowPressed(row);
    }
    return client_->tree.Row(row) == nullptr ? kNoRow : row;
}

/// The place of a voyage with a vessel of the fleet, where there is one: others cannot be corrected.
int Player::PlaceOfVessel(int which) const {
    const auto rows = client_->VoyageRows(InUse);
    std::vector<int> places;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto* voyage = static_cast<const VoyInfo*>(client_->tree.GetItemData(rows[i]));
        if (!voyage->vsi.empty()) {
            places.push_back(static_cast<int>(i));
        }
    }
    return places.empty() ? which : places[static_cast<std::size_t>(which) % places.size()];
}

/// Presses an item of a voyage in use where it is in sight, else the other one.
void Player::Click(int which, const char* item, const char* otherwise) {
    const TreeRow row = PressedRow(which, true);
    if (row == kNoRow) {
        return;
    }
    if (client_->tree.IsItemVisible(row, item)) {
        client_->ctrl.OnItemClicked(row, item);
    } else if (otherwise != nullptr) {
        client_->ctrl.OnItemClicked(row, otherwise);
    }
}

void Player::ClickDeleted(int which, const char* item) {
    PressElsewhere();
    const auto rows = client_->VoyageRows(InRecycleBin);
    if (!rows.empty()) {
        client_->ctrl.OnItemClicked(rows[static_cast<std::size_t>(which) % rows.size()], item);
    }
}

void Player::AddVoyage() {
    PressElsewhere();
    const TreeRow row = client_->CategoryRow();
    if (row != kNoRow && client_->store.voyages.size() < kMostVoyages) {
        client_->ctrl.OnItemClicked(row, Item::kAddVoyage);
    }
}

void Player::Rename(const Step& step) {
    const TreeRow row = PressedRow(step.which, true);
    if (row == kNoRow) {
        return;
    }
    client_->ctrl.OnItemClicked(row, Item::kRenameVoyage);
    client_->ctrl.Renaming().OnTyped("Voyage " + std::to_string(step.what));
    if (step.yes) {
        client_->ctrl.Renaming().Commit();
    }
}

void Player::SetVessel(const Step& step) {
    Click(step.which, Item::kAssignShip, Item::kReplaceShip);
    VoyShipEditDlg& editor = client_->ctrl.Vessels().Editor();
    if (editor.IsVisible()) {
        editor.OnTyped("VESSEL " + std::to_string(step.what));
        editor.OnEnter(-1);
    }
}

/// Ways to a table: by mouse, by keyboard, by the row's menu.
void Player::PlayOpening(const Step& step) {
    if (step.act == Act::Open) {
        Click(step.which, Item::kPortCalls);
    } else if (step.act == Act::RightPress) {
        Click(step.which, step.what % 2 == 0 ? Item::kSetPortCall : Item::kPortCalls, Item::kPortCalls);
    } else if (const TreeRow row = PressedRow(step.which, false); row != kNoRow) {
        // The focus went to the tree without a press.
        if (client_->view.visible && client_->view.openEditor) {
            client_->panel.Cells().OnEditorFocusLost(*client_->view.openEditor);
        }
        client_->ctrl.OnItemClicked(row, Item::kPortCalls);
    }
}

void Player::PlayTree(const Step& step) {
    switch (step.act) {
        case Act::Press:
            PressedRow(step.which, true);
            break;
        case Act::AddVoyage:
            AddVoyage();
            break;
        case Act::Rename:
            Rename(step);
            break;
        case Act::DeleteVoyage:
            Click(step.which, Item::kDeleteVoyage);
            break;
        case Act::RecoverVoyage:
            ClickDeleted(step.which, Item::kRecoverVoyage);
            break;
        case Act::DestroyVoyage:
            ClickDeleted(step.which, Item::kClearVoyage);
            break;
        case Act::Pin:
            Click(step.which, Item::kUnpinned, Item::kPinned);
            break;
        case Act::Track:
            Click(step.which, Item::kAisOff, Item::kAisOn);
            break;
        case Act::Vessel:
            SetVessel(step);
            break;
        case Act::Correct:
            Click(PlaceOfVessel(step.which), Item::kModify);
            break;
        case Act::Toggle:
            PressElsewhere();
            Client::Toggle();
            break;
        default:
            PlayOpening(step);
            break;
    }
}

}  // namespace Tarvik::Seaplan::Walk
