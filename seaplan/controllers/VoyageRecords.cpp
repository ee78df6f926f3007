// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyageRecords.h"

#include "seaplan/controllers/VoyPortCallModule.h"

namespace Tarvik::Seaplan {

namespace {

/// Stands in the place of a voyage id while the panel works as the port distance table.

Outcome<RecordStep> Find(VoyageStore& store, const std::string& vi, VoyInfo*& voyage) {
    if (vi.empty()) {
        return RecordStep::Id;
    }
    voyage = store.FindVoyage(vi);
    return voyage == nullptr ? RecordStep::Voyage : Outcome<RecordStep>();
}

}  // namespace

Outcome<RecordStep> VoyageRecords::GetFigures(const std::string& vi, BunkerFigures& figures) const {
    VoyInfo* voyage = nullptr;
    const auto found = Find(*store_, vi, voyage);
    if (!found.Failed()) {
        figures = voyage->figures;
    }
    return found;
}

std::string VoyageRecords::NameOf(const std::string& vi) const {
    const VoyInfo* voyage = store_->FindVoyage(vi);
    return voyage == nullptr ? std::string() : voyage->vn;
}

Outcome<RecordStep> VoyageRecords::SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    if (vi.empty()) {
        return RecordStep::Id;
    }
    if (module_->SaveFigures(vi, figures) < 0) {
        return RecordStep::Server;
    }
    VoyInfo* voyage = nullptr;
    const auto found = Find(*store_, vi, voyage);
    if (!found.Failed()) {
        voyage->figures = figures;
    }
    return found;
}

Outcome<RecordStep> VoyageRecords::ClearCorrections(const std::string& vi) {
    VoyInfo* voyage = nullptr;
    const auto found = Find(*store_, vi, voyage);
    if (!found.Failed()) {
        voyage->modais = 0;
        voyage->aisModTimes.clear();
    }
    return found;
}

Outcome<RecordStep> VoyageRecords::CountCorrections(const std::string& vi, int& count) const {
    if (vi == kDistanceTableId) {
        return {};
    }
    VoyInfo* voyage = nullptr;
    const auto found = Find(*store_, vi, voyage);
    if (!found.Failed()) {
        count = voyage->modais;
    }
    return found;
}

}  // namespace Tarvik::Seaplan
