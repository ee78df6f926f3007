// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookCommands.h"

#include <algorithm>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kHelpTopic = "func035";
constexpr int kBookHelpWidth = 350;
constexpr int kBookHelpHeight = 370;

}  // namespace

void BookCommands::OnItemImage(int row, const std::string& name) {
    if (name == BookSheet::kExpand || name == BookSheet::kExpanded) {
        OnExpand(row);
    }
}

void BookCommands::OnExpand(int row) {
    const BookDesk::Report report(desk_);
    BookSheet& sheet = desk_.Sheet();
    // What is taken may bring rows into the list beside the one that was edited, which is in front.
    const int edited = sheet.selected;
    const int before = sheet.RowCount();
    editing_.CommitEditors();
    if (row == edited) {
        row = sheet.selected;
    } else if (edited >= 0 && edited < row) {
        row += sheet.RowCount() - before;
    }
    const PosBookRowRef front = sheet.IsRow(sheet.selected) ? sheet.RefOf(sheet.selected) : PosBookRowRef{};
    if (ToggleBookRow(sheet.data, sheet.refs, row) && sheet.selected >= 0) {
        // Where the row in front was hidden, the one that hid it comes there.
        const int shown = sheet.RowOf(front);
        sheet.selected = shown < 0 ? row : shown;
    }
}

int BookCommands::RegenerateLeg(int listRow, bool addMidpoint) {
    const BookDesk::Report report(desk_);
    const int count = desk_.Regenerate(listRow, addMidpoint);
    if (count > 0) {
        desk_.TakeEdit({TextIds::IDS_VIEW_EDITINSERT, listRow});
    }
    return count;
}

void BookCommands::OnInsert() {
    const BookDesk::Report report(desk_);
    if (!editing_.CommitEditors()) {
        return;
    }
    BookSheet& sheet = desk_.Sheet();
    if (!sheet.CanInsert()) {
        return;
    }
    // Who inserts a waypoint wants to see it.
    if (const int before = sheet.selected - 1; !sheet.PlaceAt(before).expanded) {
        OnExpand(before);
    }
    RegenerateLeg(sheet.selected, true);
}

bool BookCommands::DeleteRow(int listRow) {
    const BookDesk::Report report(desk_);
    BookSheet& sheet = desk_.Sheet();
    if (DeleteBookRow(sheet.data, sheet.refs, sheet.totals, listRow) == BookDeletion::Refused) {
        return false;
    }
    sheet.selected = std::min(sheet.selected, sheet.RowCount() - 1);
    desk_.TakeEdit({TextIds::IDS_VIEW_EDITDELETE, listRow});
    return true;
}

void BookCommands::OnUnitChosen(UnitKind kind, int index) {
    const BookDesk::Report report(desk_);
    // A speed being typed is one in the old unit.
    editing_.CommitEditors();
    desk_.Sheet().ChooseUnit(kind, index);
}

bool BookCommands::Save() {
    const BookDesk::Report report(desk_);
    if (!desk_.Sheet().changed) {
        return true;
    }
    desk_.NoteStored(false);
    desk_.Show();
    const bool saved = desk_.Owner().SavePositionBook(desk_.Sheet().data) == 0;
    if (desk_.View().IsVisible()) {
        // The owner has shown itself again.
        desk_.Owner().SetBookOpen(true);
        desk_.View().Show();
    }
    if (saved) {
        desk_.NoteStored(true);
    }
    return saved;
}

void BookCommands::OnSave() {
    const BookDesk::Report report(desk_);
    if (editing_.CommitEditors()) {
        Save();
    }
}

void BookCommands::OnSaveKey() {
    const BookDesk::Report report(desk_);
    if (editing_.CommitText()) {
        Save();
    }
}

void BookCommands::OnCancel() {
    const BookDesk::Report report(desk_);
    editing_.HideEditors();
    if (desk_.Sheet().changed) {
        desk_.DropEdits();
    }
}

void BookCommands::OnUndo() {
    const BookDesk::Report report(desk_);
    if (editing_.CommitEditors()) {
        desk_.GoBack();
    }
}

void BookCommands::OnRedo() {
    const BookDesk::Report report(desk_);
    if (editing_.CommitEditors()) {
        desk_.GoForward();
    }
}

/// Whether a waypoint may come there; what is being typed is taken first.
bool BookCommands::MayMoveTo(const GeoPoint& to) {
    if (!editing_.CommitEditors()) {
        return false;
    }
    const BookRefusal latitude = CheckDegrees(to.y, Axis::Latitude);
    const BookRefusal refusal =
        latitude == BookRefusal::None ? CheckDegrees(to.x, Axis::Longitude) : latitude;
    desk_.Refuse(refusal);
    return refusal == BookRefusal::None;
}

void BookCommands::OnDragged(int row, const GeoPoint& to) {
    const BookDesk::Report report(desk_);
    BookSheet& sheet = desk_.Sheet();
    const int before = sheet.RowCount();
    if (!sheet.IsRow(row) || !MayMoveTo(to) || sheet.RowCount() != before) {
        return;
    }
    sheet.selected = row;
    if (sheet.IsEdited(row, BookLongitude)) {
        BookEdits(desk_).MoveTo(row, to);
    } else {
        desk_.ToPerson().Notice(TextIds::IDS_VIEW_NOTDRAGGED);
    }
}

void BookCommands::OnPulled(const GeoPoint& from, const GeoPoint& to) {
    const BookDesk::Report report(desk_);
    if (MayMoveTo(to) && !BookEdits(desk_).PullLeg(from, to)) {
        desk_.ToPerson().Notice(TextIds::IDS_VIEW_NOTDRAGGED);
    }
}

void BookCommands::Hide() {
    editing_.HideEditors();
    desk_.View().Hide();
    desk_.Owner().SetBookOpen(false);
}

void BookCommands::OnClose() {
    const BookDesk::Report report(desk_);
    if (!editing_.CommitEditors()) {
        return;
    }
    const auto lost = [this] { return Text(TextIds::IDS_VIEW_LOSTBOOK, {desk_.Owner().Origin().voyage}); };
    if (desk_.Sheet().changed && desk_.ToPerson().Question(TextIds::IDS_WP_TIP_SAVE, lost()) && !Save()) {
        return;
    }
    Hide();
    desk_.View().TellClosed();
}

void BookCommands::OnHelp() {
    desk_.View().RequestHelp(kHelpTopic, kBookHelpWidth, kBookHelpHeight);
}

bool BookCommands::OnTableKey(KeyPress press, int row, int column) {
    if (OnChosenKey(press, column)) {
        return true;
    }
    switch (press.key) {
        case Key::Insert:
            OnInsert();
            return true;
        case Key::Space:
            OnExpand(row);
            return true;
        default:
            return OnCellKey(editing_, press, row, column);
    }
}

}  // namespace Tarvik::Seaplan
