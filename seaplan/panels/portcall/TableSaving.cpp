// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/TableSaving.h"

#include "seaplan/controllers/ScheduleSaving.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

Outcome<TableSaveStep> TableSaving::Save(const std::string& vi, DrawMode mode) {
    if (vi.empty()) {
        return TableSaveStep::Voyage;
    }
    PortCallRows rows;
    desk_.Sheet().cause.clear();
    if (desk_.Sheet().ReadUnrounded(rows) != 0) {
        return TableSaveStep::Rows;
    }
    if (!MayReplace(vi)) {
        return TableSaveStep::Unread;
    }
    const bool done = [&] {
        const PortCallDesk::Busy busy(desk_);
        return IsScheduleSaved(desk_.Voyages().SaveSchedule(vi, rows, NumberOf(mode)));
    }();
    if (!done) {
        desk_.SetCauseOfFault();
        desk_.History().NoteNotSaved();
        return TableSaveStep::Server;
    }
    desk_.Sheet().unread = false;
    desk_.TellSaved(vi);
    return {};
}

/// A table that could not be read must not replace what the server has.
bool TableSaving::MayReplace(const std::string& vi) {
    constexpr int kNoList = -2;
    PortCallSheet& sheet = desk_.Sheet();
    if (sheet.unread) {
        PortCallRows stored;
        const int read = desk_.Voyages().Module().LoadPortCalls(vi, stored);
        sheet.unread = read != kNoPortCalls;
        desk_.Sheet().cause =
            Text(read == kNoList ? TextIds::IDS_VIEW_FAULTCONNECTION : TextIds::IDS_VIEW_FAULTUNREAD);
    }
    return !sheet.unread;
}

}  // namespace Tarvik::Seaplan
