// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyageFacades.h"

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VesselWatch.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/VoyageRecords.h"

namespace Tarvik::Seaplan {

VoyageRecordFacade::VoyageRecordFacade(VoyPortCallModule* module, VoyageStore* store)
    : records_(std::make_unique<VoyageRecords>(module, store)) {}

VoyageRecordFacade::~VoyageRecordFacade() = default;

int VoyageRecordFacade::GetFigures(const std::string& vi, BunkerFigures& figures) const {
    return kReadRecordCodes.Of(records_->GetFigures(vi, figures));
}

int VoyageRecordFacade::SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    return kSaveFiguresCodes.Of(records_->SaveFigures(vi, figures));
}

std::string VoyageRecordFacade::NameOf(const std::string& vi) const {
    return records_->NameOf(vi);
}

int VoyageRecordFacade::ClearAisMod(const std::string& vi) {
    return kReadRecordCodes.Of(records_->ClearCorrections(vi));
}

int VoyageRecordFacade::GetModAis(const std::string& vi, int& count) const {
    return kReadRecordCodes.Of(records_->CountCorrections(vi, count));
}

VesselFacade::VesselFacade(VoyCatalogController* catalog, VoyageStore* store)
    : watch_(std::make_unique<VesselWatch>(catalog, store)) {}

VesselFacade::~VesselFacade() = default;

int VesselFacade::RefreshVesselPositions() {
    return kRefreshPositionsCodes.Of(watch_->RefreshPositions());
}

int VesselFacade::RefreshTrace(const std::string& vi) {
    return kRefreshTraceCodes.Of(watch_->RefreshTrace(vi));
}

int VesselFacade::HideAisTrack(const std::string& vi) {
    return kRefreshTraceCodes.Of(watch_->HideTrack(vi));
}

int RouteRowsFacade::MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = Seaplan::MoveRowUp(rows, index, out);
    if (result == 0) {
        rowsModule_->Pending().NoteRowsChanged();
    }
    return result;
}

int RouteRowsFacade::MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = Seaplan::MoveRowDown(rows, index, out);
    if (result == 0) {
        rowsModule_->Pending().NoteRowsChanged();
    }
    return result;
}

int RouteRowsFacade::DeleteRow(const PortCallRows& rows, int index, PortCallRows& out) {
    const int result = RemoveRowAt(rows, index, out);
    if (result == 0) {
        rowsModule_->Pending().NoteRowsChanged();
    }
    return result;
}

int RouteRowsFacade::RouteIsCurrent() const {
    return rowsModule_->Pending().IsCurrent();
}

}  // namespace Tarvik::Seaplan
