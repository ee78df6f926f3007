// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/RowCommands.h"

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

int RowCommands::ShowMoved(int result, const PortCallRows& rows) {
    if (result == 0) {
        desk_.Sheet().table.WritePartial(rows, desk_.IsCorrected());
        desk_.Sheet().MarkChanged(desk_.Ports());
        desk_.Show();
    }
    return result;
}

int RowCommands::Move(int row, const std::string& name) {
    const PortCallTable& table = desk_.Sheet().table;
    if (table.CompactIndex(row) != row) {
        // Below a blank row the controller would take another row for this one.
        return -4;
    }
    const PortCallRows rows = table.ReadAllRows();
    PortCallRows moved;
    if (name == PortCallImage::kDelete) {
        const int deleted = ShowMoved(desk_.Voyages().DeleteRow(rows, row, moved), moved);
        desk_.History().Take({TextIds::IDS_VIEW_EDITDELETE, row});
        return deleted;
    }
    if (name != PortCallImage::kMoveUp && name != PortCallImage::kMoveDown) {
        return -3;
    }
    const bool up = name == PortCallImage::kMoveUp;
    const int result = ShowMoved(
        up ? desk_.Voyages().MoveRowUp(rows, row, moved) : desk_.Voyages().MoveRowDown(rows, row, moved),
        moved);
    desk_.History().Take({TextIds::IDS_VIEW_EDITMOVE, row});
    const int target = up ? row - 1 : row + 1;
    if (result == 0 && (up || !table.IsBlank(target))) {
        desk_.View().SelectRow(target);
    }
    return result;
}

/// The remarks of a port belong to the voyage's id with the port's name behind it.
int RowCommands::OpenRemarks(int row) {
    const std::string port = desk_.Sheet().table.ReadRow(row).ppn;
    if (CRemarkPanel* remarks = desk_.Given().remarks ? desk_.Given().remarks() : nullptr) {
        remarks->Open(0, PortCallRemark, desk_.Sheet().voyageId + port, port);
    }
    return 0;
}

/// Takes what is being typed and tells where a row stands then: a schedule that follows closes the blank rows
/// above it.
int RowCommands::CommitBefore(int row) {
    const PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(row) || table.IsBlank(row)) {
        editing_.CommitEditors();
        return row;
    }
    const int place = table.CompactIndex(row);
    const int filled = table.CompactIndex(table.RowCount());
    editing_.CommitEditors();
    if (table.CompactIndex(table.RowCount()) != filled) {
        // A port was typed into a blank row, and nothing moved.
        return row;
    }
    int now = 0;
    while (now < table.RowCount() - 1 && (table.IsBlank(now) || table.CompactIndex(now) != place)) {
        ++now;
    }
    return now;
}

int RowCommands::OnItemImage(int row, const std::string& name) {
    const PortCallDesk::Report report(desk_);
    const PortCallTable& table = desk_.Sheet().table;
    row = CommitBefore(row);
    if (!table.IsNumbered(row) || table.IsBlank(row)) {
        return -1;
    }
    int corrected = 0;
    if (desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return -2;
    }
    const int ship = table.FindLastAisRow();
    if (corrected > 0 && ship < 0) {
        return -2;
    }
    // No port moves above the ship's position.
    if (name == PortCallImage::kMoveUp && corrected > 0 && row - 1 == ship) {
        return 0;
    }
    const int result = name == PortCallImage::kRemark ? OpenRemarks(row) : Move(row, name);
    editing_.CommitEditors();
    return result;
}

bool RowCommands::OnTableKey(KeyPress press, int row, int column) {
    switch (press.key) {
        case Key::Delete:
            OnItemImage(row, PortCallImage::kDelete);
            return true;
        case Key::Up:
        case Key::Down:
            if (press.alt) {
                OnItemImage(row, press.key == Key::Up ? PortCallImage::kMoveUp : PortCallImage::kMoveDown);
            }
            return press.alt;
        default:
            return OnCellKey(editing_, press, row, column);
    }
}

}  // namespace Tarvik::Seaplan
