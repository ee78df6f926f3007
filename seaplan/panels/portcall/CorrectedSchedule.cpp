// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CorrectedSchedule.h"

#include <utility>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/portcall/PortCallDesk.h"

namespace Tarvik::Seaplan {

void CorrectedSchedule::SetTime(const std::string& vi, const std::string& time) {
    voyageId_ = vi;
    time_ = time;
}

void CorrectedSchedule::GiveUp() {
    time_.clear();
    desk_.SetCorrectionPending(false);
}

int CorrectedSchedule::ShowHistoryAndPlan() {
    PortCallSheet& sheet = desk_.Sheet();
    PortCallRows rows;
    PortCallRows plan;
    if (desk_.Voyages().SplitAisRows(sheet.voyageId, rows, plan) != 0) {
        return -1;
    }
    const std::size_t history = rows.size();
    rows.insert(rows.end(), plan.begin(), plan.end());
    desk_.Voyages().ResolvePortIds(rows);
    return sheet.ShowHistoryAndPlan(rows, history) == 0 ? 0 : -2;
}

int CorrectedSchedule::Fill() {
    if (const int failed = ShowHistoryAndPlan(); failed != 0) {
        return failed;
    }
    PortCallSheet& sheet = desk_.Sheet();
    desk_.SetCorrectionPending(false);
    sheet.MarkUnchanged();
    sheet.state.canClear = false;
    sheet.state.canOpenBook = true;
    sheet.state.canCalculate = true;
    return 0;
}

void CorrectedSchedule::MarkFresh() {
    PortCallSheet& sheet = desk_.Sheet();
    desk_.SetCorrectionPending(true);
    sheet.editedVoyageId = sheet.voyageId;
    sheet.state.changed = true;
    sheet.state.canSave = true;
    sheet.state.canOpenBook = false;
}

int CorrectedSchedule::ReplanAndSave() {
    PortCallSheet& sheet = desk_.Sheet();
    desk_.Sheet().cause.clear();
    PortCallRows before;
    PortCallRows after;
    if (!sheet.table.ReadRowsSplit(before, after)) {
        return -1;
    }
    PortCallRows history;
    PortCallRows plan;
    if (ToStandardUnits(before, sheet.Units(), history) != 0 ||
        ToStandardUnits(after, sheet.Units(), plan) != 0) {
        return -2;
    }
    PortCallRows ports;
    if (desk_.Voyages().ReplanFromAis(sheet.voyageId, history, plan, ports) != 0) {
        desk_.SetCauseOfFault();
        return -3;
    }
    PortCallSheet entered = sheet;
    if (ShowHistoryAndPlan() != 0) {
        sheet = std::move(entered);
        return -4;
    }
    if (desk_.Voyages().SaveSchedule(sheet.voyageId, ports, -1) != 0) {
        // What was to be saved stays with the person, and not what a save would have made of it.
        sheet = std::move(entered);
        desk_.SetCauseOfFault();
        return -5;
    }
    return 0;
}

int CorrectedSchedule::Calculate() {
    const int replanned = [this] {
        const PortCallDesk::Busy busy(desk_);
        return ReplanAndSave();
    }();
    if (replanned != 0) {
        return replanned;
    }
    PortCallSheet& sheet = desk_.Sheet();
    if (!time_.empty() && voyageId_ == sheet.voyageId) {
        desk_.Catalog().AddAisModTime(voyageId_, time_);
        time_.clear();
    }
    desk_.Voyages().RemoveVoyageObjects(sheet.voyageId);
    desk_.Voyages().ShowVoyage(sheet.voyageId);
    desk_.SetCorrectionPending(false);
    sheet.MarkUnchanged();
    sheet.state.canOpenBook = true;
    desk_.TellSaved(sheet.voyageId);
    return 0;
}

}  // namespace Tarvik::Seaplan
