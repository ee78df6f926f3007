// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/CPosBookDlg.h"

#include <utility>

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/BookDesk.h"
#include "seaplan/panels/book/BookEditing.h"

namespace Tarvik::Seaplan {

/// The book's parts by task, over the desk that they share.
struct CPosBookDlg::Inner {
    explicit Inner(const BookParts& parts) : desk(parts), editing(desk), commands(desk, editing) {}

    BookDesk desk;
    BookEditing editing;
    BookCommands commands;
};

CPosBookDlg::CPosBookDlg(const BookParts& parts) : in_(std::make_unique<Inner>(parts)) {
    in_->desk.TakeZone({});
    in_->desk.Chart().SetReports(
        {[this](int row) {
             if (in_->desk.Sheet().IsRow(row)) {
                 in_->editing.OnRowSelected(row);
             }
         },
         [this](int row, const GeoPoint& to) { in_->commands.OnDragged(row, to); },
         [this](const GeoPoint& from, const GeoPoint& to) { in_->commands.OnPulled(from, to); }});
}

CPosBookDlg::~CPosBookDlg() = default;

void CPosBookDlg::ShowBook(const PosBookData& book) {
    const BookDesk::Report report(in_->desk);
    BookView& view = in_->desk.View();
    in_->editing.HideEditors();
    in_->desk.Take(book);
    in_->desk.Show();
    view.MoveTo(Centred(in_->desk.MainPlace(), view.PlaceOnScreen()));
    view.Show();
    in_->desk.Owner().SetBookOpen(true);
}

void CPosBookDlg::Recompute() {
    const BookDesk::Report report(in_->desk);
    in_->desk.Recompute();
}

void CPosBookDlg::ApplyLanguage() {
    in_->desk.View().ApplyTexts();
    in_->desk.Show();
}

void CPosBookDlg::OnLogout() {
    if (in_->desk.View().IsVisible()) {
        in_->commands.Hide();
    }
    const BookDesk::Report report(in_->desk);
    in_->desk.Take({});
}

void CPosBookDlg::OnTimeZone(const std::string& zone) {
    const BookDesk::Report report(in_->desk);
    if (zone == in_->desk.Sheet().zone) {
        return;
    }
    // A date over a cell is one in the old zone.
    in_->editing.Picker().Hide();
    in_->desk.TakeZone(zone);
}

int CPosBookDlg::RegenerateLeg(int listRow, bool addMidpoint) {
    return in_->commands.RegenerateLeg(listRow, addMidpoint);
}

bool CPosBookDlg::DeleteRow(int listRow) {
    return in_->commands.DeleteRow(listRow);
}

bool CPosBookDlg::IsNumberText(const std::string& text) {
    return Seaplan::IsNumberText(text);
}

BookEditing& CPosBookDlg::Cells() {
    return in_->editing;
}

BookCommands& CPosBookDlg::Commands() {
    return in_->commands;
}

const BookSheet& CPosBookDlg::Sheet() const {
    return in_->desk.Sheet();
}

}  // namespace Tarvik::Seaplan
