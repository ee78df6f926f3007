// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookDesk.h"

#include <utility>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/calculation/book/BookPanel.h"
#include "seaplan/panels/editors/ChosenRows.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// Legs that are unfolded on show stay so in another state of the same book: its ports and named points are
/// the same ones in every state, and the waypoints behind them follow.
void KeepUnfolded(const PosBookData& shown, PosBookData& state) {
    std::vector<unsigned char> flags;
    for (const PosBookPortRow& port : shown.ports) {
        for (const PosBookRow& row : port.rows) {
            if (row.kind != PlainPoint) {
                flags.push_back(row.expanded);
            }
        }
        flags.push_back(port.expanded);
    }
    std::size_t next = 0;
    unsigned char flag = 0;
    const auto take = [&](unsigned char old) { return next < flags.size() ? flags[next++] : old; };
    for (PosBookPortRow& port : state.ports) {
        for (PosBookRow& row : port.rows) {
            flag = row.kind == PlainPoint ? flag : take(row.expanded);
            row.expanded = flag;
        }
        flag = take(port.expanded);
        port.expanded = flag;
    }
}

}  // namespace

BookDesk::Report::Report(BookDesk& desk) : desk_(desk) {
    if (desk_.reports_++ == 0) {
        desk_.before_ = desk_.Front();
    }
}

BookDesk::Report::~Report() {
    if (--desk_.reports_ == 0) {
        desk_.Show();
    }
}

/// The place before another one on the way.
PosBookRowRef BookDesk::Before(const PosBookRowRef& ref) const {
    const auto& leg = sheet_.data.ports[static_cast<std::size_t>(ref.port)].rows;
    const int sub = ref.sub == PosBookRowRef::kPort ? static_cast<int>(leg.size()) : ref.sub;
    return sub > 0 ? PosBookRowRef{ref.port, sub - 1} : PosBookRowRef{ref.port - 1};
}

PosBookRowRef BookDesk::Front() const {
    return sheet_.IsRow(sheet_.selected) ? sheet_.RefOf(sheet_.selected)
                                         : PosBookRowRef{kNoPort, PosBookRowRef::kPort};
}

/// The list's row of a place, or of the one behind which it is folded away; -1 for none.
int BookDesk::RowShowing(PosBookRowRef ref) const {
    while (ref.port >= 0 && sheet_.RowOf(ref) < 0) {
        ref = Before(ref);
    }
    return ref.port < 0 ? -1 : sheet_.RowOf(ref);
}

void BookDesk::UnfoldBefore(const PosBookRowRef& ref) {
    const int row = RowShowing(Before(ref));
    if (row >= 0 && !sheet_.PlaceAt(row).expanded) {
        ToggleBookRow(sheet_.data, sheet_.refs, row);
    }
}

void BookDesk::Show() {
    if (history_.IsThere()) {
        NoteHistory();
    }
    // The table is filled anew by a change of zone and by a save, so its zone is asked for late.
    if (const BookOwner* owner = p_.owner()) {
        sheet_.tableZone = owner->Origin().tableZone;
    }
    p_.view.SetCaption(Text(TextIds::IDC_WP_T_TITLE), sheet_.changed);
    p_.view.ShowSheet(sheet_);
    if (p_.view.IsVisible()) {
        chart_.Show(sheet_.data, sheet_.refs, sheet_.selected);
    } else {
        chart_.Hide();
    }
}

void BookDesk::NoteHistory() {
    sheet_.changed = !history_.IsSaved();
    sheet_.edits = history_.Texts();
}

/// Another state of the book: its rows are listed anew.
void BookDesk::ShowState(PosBookData book, const PosBookRowRef& front) {
    sheet_.data = std::move(book);
    Recompute();
    sheet_.refs = ListBookRows(sheet_.data);
    sheet_.selected = RowShowing(front);
    NoteHistory();
}

void BookDesk::Take(const PosBookData& book) {
    history_.Start(book);
    ShowState(book, {kNoPort, PosBookRowRef::kPort});
}

void BookDesk::Recompute() {
    sheet_.totals = RecomputeBook(sheet_.data, sheet_.units, Util::_datetime_t::gmt_now());
}

void BookDesk::TakeEdit(const EditName& name) {
    if (together_) {
        edited_ = true;
        return;
    }
    sheet_.data.crossesDateLine = CrossesDateLine(sheet_.data);
    Recompute();
    history_.Push(sheet_.data, name, {before_, Front()});
    before_ = Front();
    NoteHistory();
}

void BookDesk::Together(const std::function<EditName()>& edits) {
    edited_ = false;
    together_ = true;
    const EditName name = edits();
    together_ = false;
    if (edited_) {
        TakeEdit(name);
    }
}

bool BookDesk::GoBack() {
    if (!history_.CanGoBack()) {
        return false;
    }
    const PosBookRowRef front = history_.Now().extra.before;
    PosBookData state = *history_.Back();
    KeepUnfolded(sheet_.data, state);
    ShowState(std::move(state), front);
    return true;
}

bool BookDesk::GoForward() {
    if (!history_.CanGoForward()) {
        return false;
    }
    PosBookData state = *history_.Forward();
    KeepUnfolded(sheet_.data, state);
    ShowState(std::move(state), history_.Now().extra.after);
    return true;
}

void BookDesk::DropEdits() {
    PosBookData saved = history_.Backup();
    history_.Push(saved, {TextIds::IDS_VIEW_EDITCANCEL}, {Front(), Front()});
    if (history_.IsBackupStored()) {
        history_.MarkSaved();
    }
    ShowState(std::move(saved), Front());
}

void BookDesk::NoteStored(bool known) {
    known ? history_.MarkSaved(sheet_.data) : history_.MarkUnsaved();
    NoteHistory();
}

int BookDesk::Regenerate(int row, bool addMidpoint) {
    const int before = sheet_.RowCount();
    const int count = RegenerateLeg(sheet_.data, sheet_.refs, row, addMidpoint);
    if (sheet_.selected >= row) {
        sheet_.selected += sheet_.RowCount() - before;
    }
    return count;
}

void BookDesk::TakeZone(const std::string& zone) {
    const std::string* asked = zone.empty() ? Interface::Call(Interface::Bus::CurrentTimeZone) : &zone;
    if (asked != nullptr) {
        sheet_.zone = *asked;
    }
}

Boxes& BookDesk::ToPerson() {
    Show();
    return boxes_;
}

TextId TextOf(BookRefusal refusal) {
    switch (refusal) {
        case BookRefusal::Latitude:
            return TextIds::IDS_WP_LAT_ERR;
        case BookRefusal::Longitude:
            return TextIds::IDS_WP_LON_ERR;
        case BookRefusal::Speed:
            return TextIds::IDS_WP_SPD_ERR;
        case BookRefusal::Date:
            return TextIds::IDS_WP_DT_ERR;
        default:
            return TextIds::IDS_WP_NUM_ERR;
    }
}

void BookDesk::Refuse(BookRefusal refusal) {
    if (refusal != BookRefusal::None) {
        ToPerson().Notice(TextOf(refusal));
    }
}

std::vector<int> ChosenRows(BookDesk& desk) {
    // A text that was taken just now may have brought rows in.
    desk.Show();
    const BookSheet& sheet = desk.Sheet();
    return RowsInOrder(desk.View().ChosenRows(), sheet.selected,
                       [&sheet](int row) { return sheet.IsRow(row); });
}

}  // namespace Tarvik::Seaplan
