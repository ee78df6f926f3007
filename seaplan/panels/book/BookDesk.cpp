// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookDesk.h"

#include <algorithm>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/calculation/book/BookPanel.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"

namespace Tarvik::Seaplan {

BookDesk::Report::~Report() {
    if (--desk_.reports_ == 0) {
        desk_.Show();
    }
}

void BookDesk::Show() {
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
    sheet_.canUndo = history_.CanGoBack();
    sheet_.canRedo = history_.CanGoForward();
}

/// Another state of the book: its rows are listed anew, and the row in front stays one of them.
void BookDesk::ShowState(const PosBookData& book) {
    sheet_.data = book;
    Recompute();
    sheet_.refs = ListBookRows(sheet_.data);
    sheet_.selected = std::min(sheet_.selected, sheet_.RowCount() - 1);
    NoteHistory();
}

void BookDesk::Take(const PosBookData& book) {
    history_.Start(book);
    sheet_.selected = -1;
    ShowState(book);
}

void BookDesk::Recompute() {
    sheet_.totals = RecomputeBook(sheet_.data, sheet_.units, Util::_datetime_t::gmt_now());
}

void BookDesk::TakeEdit() {
    sheet_.data.crossesDateLine = CrossesDateLine(sheet_.data);
    Recompute();
    history_.Push(sheet_.data);
    NoteHistory();
}

bool BookDesk::GoBack() {
    const PosBookData* state = history_.Back();
    if (state == nullptr) {
        return false;
    }
    ShowState(*state);
    return true;
}

bool BookDesk::GoForward() {
    const PosBookData* state = history_.Forward();
    if (state == nullptr) {
        return false;
    }
    ShowState(*state);
    return true;
}

void BookDesk::DropEdits() {
    const PosBookData saved = history_.Backup();
    history_.Push(saved);
    history_.MarkSaved();
    ShowState(saved);
}

void BookDesk::NoteSaved() {
    history_.MarkSaved();
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

TextId BookDesk::TextOf(BookRefusal refusal) {
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

}  // namespace Tarvik::Seaplan
