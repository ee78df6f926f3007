// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/RowCommands.h"

#include <utility>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/editors/ChosenRows.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PasteRows.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

RowCommands::RowCommands(PortCallDesk& desk, CellEditing& editing)
    : desk_(desk), editing_(editing), edits_(desk), paste_(std::make_unique<PasteRows>(desk, editing)) {}

RowCommands::~RowCommands() = default;

void RowCommands::Paste(int row) {
    paste_->OnPaste(row);
}

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
        desk_.View().SelectCell(target, ColPort);
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
    return RowOfPlace(table, place);
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

void RowCommands::DeleteChosen(int row) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PortCallTable& table = desk_.Sheet().table;
    std::vector<int> chosen = desk_.ChosenRows(row);
    std::erase_if(chosen, [&table](int at) { return table.IsBlank(at); });
    if (chosen.size() < 2) {
        OnItemImage(chosen.empty() ? row : chosen.front(), PortCallImage::kDelete);
        return;
    }
    PortCallRows rows = table.ReadAllRows();
    std::vector<int> kept;
    // From the last one on, so that those above stay where they are.
    for (auto at = chosen.rbegin(); at != chosen.rend(); ++at) {
        PortCallRows left;
        if (table.CompactIndex(*at) == *at && desk_.Voyages().DeleteRow(rows, *at, left) == 0) {
            rows = std::move(left);
        } else {
            kept.insert(kept.begin(), *at);
        }
    }
    if (kept.size() < chosen.size()) {
        ShowMoved(0, rows);
        desk_.History().Take(EditOfRows(TextIds::IDS_VIEW_EDITDELETEROWS, chosen.size() - kept.size()));
        desk_.View().SelectCell(chosen.front(), ColPort);
    }
    TellInStatusLine(RowsText(TextIds::IDS_VIEW_ROWSNOTDELETED, kept));
}

void RowCommands::Fill(int from, const std::vector<int>& rows, int column, TextId edit) {
    const PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(from) || column < 0 || column >= kPortCallColumnCount ||
        IsBlankCell(table.Cell(from, column)) ||
        kPortCallColumns[static_cast<std::size_t>(column)].editor == CellEditor::None) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_NOTHINGTOFILL));
    }
    const std::string text = table.Cell(from, column);
    edits_.SetInRows(rows, column, text, edit);
}

void RowCommands::FillDown(int row, int column) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const std::vector<int> rows = desk_.ChosenRows(row);
    if (rows.empty()) {
        return;
    }
    const FilledRows filled = RowsToFill(rows);
    Fill(filled.from, filled.rows, column, TextIds::IDS_VIEW_EDITFILL);
}

void RowCommands::PutInChosen(int row, int column) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    std::vector<int> rows = desk_.ChosenRows(row);
    std::erase(rows, row);
    if (!rows.empty()) {
        Fill(row, rows, column, TextIds::IDS_VIEW_EDITALL);
    }
}

/// Keys over all that is chosen, and over what comes from elsewhere.
bool RowCommands::OnChosenKey(KeyPress press, int row, int column) {
    if (press.key == Key::Delete) {
        DeleteChosen(row);
    } else if (BelongsToTable(press)) {
        FillDown(row, column);
    } else if (press.ctrl && press.key == Key::Enter) {
        PutInChosen(row, column);
    } else if (press.ctrl && press.key == Key::V) {
        Paste(row);
    } else {
        return false;
    }
    return true;
}

bool RowCommands::OnTableKey(KeyPress press, int row, int column) {
    if (OnChosenKey(press, row, column)) {
        return true;
    }
    if (press.key != Key::Up && press.key != Key::Down) {
        return OnCellKey(editing_, press, row, column);
    }
    if (press.alt) {
        OnItemImage(row, press.key == Key::Up ? PortCallImage::kMoveUp : PortCallImage::kMoveDown);
    }
    return press.alt;
}

}  // namespace Tarvik::Seaplan
