// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/TableCalculation.h"

#include <algorithm>
#include <utility>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/RouteFinder.h"
#include "seaplan/controllers/RouteWays.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/portcall/VoyageFilling.h"
#include "seaplan/panels/texts/PortCallTexts.h"

namespace Tarvik::Seaplan {

bool TableCalculation::Prepare(PortCallRows& rows) const {
    PortCallRows read;
    if (desk_.Sheet().ReadUnrounded(read) != 0) {
        return false;
    }
    PrepareFirstPurpose(read);
    return DropSamePortRows(read, desk_.Ports().SamePorts(), rows) == 0;
}

/// The schedule of new rows. A distance table has no voyage whose legs could be kept; its route waits for the
/// one that it may become.
int TableCalculation::Schedule(const PortCallRows& rows, PortCallRows& result, int& hadPortCalls) {
    VoyController& voyages = desk_.Voyages();
    const PortCallSheet& sheet = desk_.Sheet();
    PendingRoute& pending = voyages.Module().Pending();
    const bool anew = pending.IsAnewFor(sheet.voyageId);
    if (!sheet.state.distanceTable && !anew) {
        return voyages.CalculateForVoyage(sheet.voyageId, rows, result, hadPortCalls);
    }
    if (anew && voyages.ScheduleCurrentRoute(rows, result) == 0) {
        return 0;
    }
    const int code = voyages.CalculatePortCalls(rows, result);
    if (code == 0) {
        pending.Assign(sheet.voyageId);
        if (anew) {
            pending.MarkAnew();
        }
    }
    return code;
}

Outcome<TableStep> TableCalculation::Calculate() {
    desk_.Sheet().cause.clear();
    PortCallRows rows;
    if (!Prepare(rows)) {
        desk_.Sheet().cause = Text(TextIds::IDS_VIEW_NEEDTWOPORTS);
        return TableStep::Rows;
    }
    PortCallRows result;
    int hadPortCalls = 0;
    const bool failed = [&] {
        const PortCallDesk::Busy busy(desk_);
        return Schedule(rows, result, hadPortCalls) != 0;
    }();
    if (failed) {
        desk_.SetCauseOfFault();
        return TableStep::Route;
    }
    const PortCallNote note = NoteOfRoute();
    const auto shown = hadPortCalls != 0                         ? ShowAndSave()
                       : ShowCalculated(rows, std::move(result)) ? Outcome<TableStep>()
                                                                 : TableStep::Show;
    desk_.SetNote(note);
    return shown;
}

/// Known legs are told with the day of the oldest, in the zone of the rows, points that were chosen by their
/// names, for as long as these rows stand there.
PortCallNote TableCalculation::NoteOfRoute() const {
    const PendingRoute& pending = desk_.Voyages().Module().Pending();
    if (pending.KnownSince() || !pending.IsFor(desk_.Sheet().voyageId)) {
        return NoteOfKnownLegs(pending.KnownSince(), desk_.Sheet().state.zone);
    }
    const std::vector<std::string> chosen = ChosenPoints(pending.Stops());
    std::vector<std::string> names;
    names.reserve(chosen.size());
    for (const std::string& id : chosen) {
        names.push_back(RoutePointName(desk_.Voyages().Module().Routes().Ports(), id));
    }
    return NoteOfChoices(names);
}

bool TableCalculation::ShowCalculated(const PortCallRows& rows, PortCallRows result) {
    KeepPortIds(rows, result);
    if (desk_.ShowChangedRows(result) != 0) {
        return false;
    }
    desk_.Sheet().stored.NoteRoute(desk_.Sheet().table);
    return true;
}

/// The result stands in the voyage already, with all that was changed here: nothing is left to ask about.
Outcome<TableStep> TableCalculation::ShowAndSave() {
    PortCallSheet& sheet = desk_.Sheet();
    const auto stored = sheet.stored;
    const bool unread = sheet.unread;
    sheet.state.changed = false;
    desk_.Voyages().RemoveVoyageObjects(sheet.voyageId);
    desk_.View().Hide();
    const int filled = filling_.Fill(DrawMode::Progress);
    desk_.View().Show();
    if (filled != 0) {
        return TableStep::Fill;
    }
    // What stands there now was calculated, and tells nothing of the port calls that the server has.
    sheet.unread = unread;
    if (!saving_.Save(sheet.voyageId, DrawMode::Nothing).Failed()) {
        return {};
    }
    sheet.stored = stored;
    sheet.stored.NoteRoute(sheet.table);
    sheet.MarkChanged(desk_.Ports());
    return TableStep::Save;
}

/// The route of the rows as the server has it now; the sheet's cause tells why there is none.
bool TableCalculation::FindAnew(const PortCallRows& rows, PortCallRows& fresh) {
    const PortCallDesk::Busy busy(desk_);
    VoyController& voyages = desk_.Voyages();
    if (voyages.CalculatePortCalls(rows, fresh) != 0) {
        desk_.SetCauseOfFault();
        return false;
    }
    // Known legs are what the table has already.
    if (voyages.Module().Pending().KnownSince()) {
        desk_.Sheet().cause = Text(TextIds::IDS_VIEW_FAULTCONNECTION);
        return false;
    }
    return true;
}

/// Draws again what the calculation has drawn over.
void TableCalculation::ShowFormerRoute() {
    VoyController& voyages = desk_.Voyages();
    const PortCallSheet& sheet = desk_.Sheet();
    if (voyages.Module().Pending().IsFor(sheet.voyageId)) {
        voyages.Module().DrawCurrentRoute();
        return;
    }
    voyages.ClearChart();
    if (sheet.state.canOpenBook) {
        voyages.ShowVoyage(sheet.voyageId);
    }
}

Outcome<AnewStep> TableCalculation::TakeAnew(const PortCallRows& rows, const TakesRoute& takes) {
    PendingRoute& pending = desk_.Voyages().Module().Pending();
    PendingRoute::Rollback before(pending);
    PortCallRows fresh;
    if (!FindAnew(rows, fresh)) {
        return AnewStep::Route;
    }
    const PortCallTable shown = desk_.Sheet().table;
    const std::string voyage = desk_.Sheet().voyageId;
    if (!takes(rows, fresh)) {
        return AnewStep::Left;
    }
    desk_.Sheet().cause.clear();
    const bool same = desk_.Sheet().table == shown && desk_.Sheet().voyageId == voyage;
    if (!same || !ShowCalculated(rows, std::move(fresh))) {
        return AnewStep::Show;
    }
    before.Keep();
    pending.Assign(voyage);
    if (desk_.Sheet().state.canOpenBook) {
        pending.MarkAnew();
    }
    desk_.SetNote({});
    return {};
}

Outcome<AnewStep> TableCalculation::CalculateAnew(const TakesRoute& takes) {
    PortCallRows rows;
    if (!Prepare(rows)) {
        desk_.Sheet().cause = Text(TextIds::IDS_VIEW_NEEDTWOPORTS);
        return AnewStep::Rows;
    }
    const auto taken = TakeAnew(rows, takes);
    if (taken.Failed()) {
        ShowFormerRoute();
    }
    return taken;
}

Outcome<FollowStep> TableCalculation::FollowRoute() {
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return FollowStep::Rows;
    }
    PortCallRows result;
    if (!desk_.Voyages().Module().Pending().IsFor(desk_.Sheet().voyageId) ||
        desk_.Voyages().ScheduleCurrentRoute(rows, result) != 0) {
        return FollowStep::Route;
    }
    desk_.SetNote(NoteOfRoute());
    return ShowCalculated(rows, std::move(result)) ? Outcome<FollowStep>() : FollowStep::Show;
}

Outcome<SaveRowsStep> TableCalculation::Save(DrawMode mode) {
    PortCallSheet& sheet = desk_.Sheet();
    const PortCallRows rows = sheet.table.ReadRows();
    if (rows.size() < 2) {
        desk_.Sheet().cause = Text(TextIds::IDS_VIEW_NEEDTWOPORTS);
        return SaveRowsStep::Rows;
    }
    const bool missing = std::any_of(rows.begin() + 1, rows.end(), [](const VoyPortCall& row) {
        return static_cast<double>(row.distance) < kNoDistance;
    });
    // Rows that a calculation was taken back from keep the miles of other ports, though the book fits them.
    const bool stale = !sheet.stored.IsRouteOf(sheet.table);
    if (missing || stale || !desk_.Voyages().HasRouteFor(sheet.voyageId, rows)) {
        if (Calculate().Failed()) {
            return SaveRowsStep::Calculation;
        }
        // The calculation of a saved voyage has saved it, and only a drawing is left to do.
        if (!sheet.state.changed && mode == DrawMode::Nothing) {
            return {};
        }
    }
    return saving_.Save(sheet.voyageId, mode).Failed() ? SaveRowsStep::Server : Outcome<SaveRowsStep>();
}

}  // namespace Tarvik::Seaplan
