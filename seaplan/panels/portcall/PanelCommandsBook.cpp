// SPDX-License-Identifier: MIT
/// The position book of the voyage in the table: opened as it is saved, and saved for the voyage of which it
/// is.
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallParts.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/portcall/VoyageFilling.h"
#include "seaplan/panels/texts/PortCallTexts.h"

namespace Tarvik::Seaplan {

void PanelCommands::OnPositionBook() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PortCallSheet& sheet = desk_.Sheet();
    CPosBookDlg* dialog = desk_.Given().book ? desk_.Given().book() : nullptr;
    if (dialog == nullptr || !sheet.state.canOpenBook) {
        return;
    }
    // The question promises the saved state; what a save that broke off has left is told, since nobody knows
    // it.
    const std::string known =
        desk_.History().IsStoredKnown() ? std::string() : Text(TextIds::IDS_VIEW_BOOKAFTERBREAK);
    if (sheet.state.changed && !desk_.ToPerson().Confirm(TextIds::IDS_PORTCALL_WARNSAVEFORPSBK, known)) {
        return;
    }
    PosBookData book;
    if (desk_.Voyages().GetPosBookData(sheet.voyageId, book) == 0) {
        bookVoyage_ = sheet.voyageId;
        dialog->ShowBook(book);
    }
}

int PanelCommands::SavePositionBook(const PosBookData& book) {
    const PortCallDesk::Report report(desk_);
    const int code = [&] {
        const PortCallDesk::Busy busy(desk_);
        return desk_.Voyages().SavePositionBook(bookVoyage_, book);
    }();
    if (code != 0) {
        desk_.ToPerson().Notice(TextIds::IDS_PORTCALL_SAVEEXCEPTION,
                                BookCauseText(desk_.Voyages().LastFault(), book, desk_.Sheet().table));
        return code;
    }
    desk_.TellSaved(bookVoyage_);
    // The tree may have opened another voyage meanwhile, which stays on show.
    if (desk_.Sheet().voyageId == bookVoyage_) {
        filling_.Refill();
        desk_.View().Show();
    }
    desk_.Voyages().RemoveVoyageObjects(bookVoyage_);
    desk_.Voyages().ShowVoyage(bookVoyage_);
    return 0;
}

std::string PanelCommands::BookVoyage() const {
    return desk_.Voyages().NameOf(bookVoyage_);
}

}  // namespace Tarvik::Seaplan
