// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/CPosBookDlg.h"

#include <utility>

namespace Tarvik::Seaplan {

CPosBookDlg::CPosBookDlg(BookDesk::Parts parts)
    : desk_(std::move(parts)), editing_(desk_), commands_(desk_, editing_) {
    desk_.TakeZone({});
    desk_.Chart().SetReports(
        {[this](int row) {
             if (desk_.Sheet().IsRow(row)) {
                 editing_.OnRowSelected(row);
             }
         },
         [this](int row, const Position& to) { commands_.OnDragged(row, to); },
         [this](const Position& from, const Position& to) { commands_.OnPulled(from, to); }});
}

void CPosBookDlg::ShowBook(const PosBookData& book) {
    const BookDesk::Report report(desk_);
    BookView& view = desk_.View();
    editing_.HideEditors();
    desk_.Take(book);
    desk_.Show();
    view.MoveTo(Centred(desk_.MainPlace(), view.PlaceOnScreen()));
    view.Show();
    desk_.Owner().SetBookOpen(true);
}

void CPosBookDlg::Recompute() {
    const BookDesk::Report report(desk_);
    desk_.Recompute();
}

void CPosBookDlg::ApplyLanguage() {
    desk_.View().ApplyTexts();
    desk_.Show();
}

void CPosBookDlg::OnLogout() {
    if (desk_.View().IsVisible()) {
        commands_.Hide();
    }
    const BookDesk::Report report(desk_);
    desk_.Take({});
}

void CPosBookDlg::OnTimeZone(const std::string& zone) {
    const BookDesk::Report report(desk_);
    if (zone == desk_.Sheet().zone) {
        return;
    }
    // A date over a cell is one in the old zone.
    editing_.Picker().Hide();
    desk_.TakeZone(zone);
}

}  // namespace Tarvik::Seaplan
