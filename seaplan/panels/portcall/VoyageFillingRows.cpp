// SPDX-License-Identifier: MIT
// The stored rows of the voyage on show, as the server gives them.
#include <utility>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/ScheduleLoading.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/VoyageFilling.h"

namespace Tarvik::Seaplan {

/// Rows that came without a book of theirs, as a save leaves them that broke off: they wait to be calculated.
/// Without any rows nobody knows whether the voyage has some.
void VoyageFilling::ShowUnfinished(LoadEnd end, PortCallRows rows) {
    PortCallSheet& sheet = desk_.Sheet();
    sheet.unread = end != LoadEnd::WithoutBook || rows.empty();
    if (!sheet.unread) {
        ResolvePortIds(rows);
        sheet.ShowEntered(rows);
        sheet.MarkUnchanged();
        sheet.MarkChanged(desk_.Ports());
        desk_.SetNote({PortCallNote::Kind::Unfinished});
    }
}

int VoyageFilling::Load(DrawMode mode) {
    PortCallSheet& sheet = desk_.Sheet();
    PortCallRows loaded;
    const LoadEnd end = [&] {
        const PortCallDesk::Busy busy(desk_);
        return LoadEndOf(desk_.Voyages().LoadSchedule(sheet.voyageId, loaded, NumberOf(mode)));
    }();
    if (end != LoadEnd::Loaded) {
        Clear();
        ShowUnfinished(end, std::move(loaded));
        return 0;
    }
    PortCallRows rows;
    if (RecomputeSchedule(loaded, rows) != 0) {
        return -3;
    }
    desk_.Voyages().ResolvePortIds(rows);
    if (sheet.ShowRows(rows, desk_.IsCorrected()) != 0) {
        return -3;
    }
    sheet.MarkLoaded(rows);
    sheet.state.canClear = true;
    sheet.state.canOpenBook = true;
    sheet.state.canCalculate = true;
    return 0;
}

}  // namespace Tarvik::Seaplan
