// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ScheduleLoading.h"

#include <vector>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/protocol/BookCommands.h"

namespace Tarvik::Seaplan {

Outcome<LoadStep> ScheduleLoader::Fetch(VoyInfo& voyage, PortCallRows& rows) {
    if (!voyage.portCalls.empty() && !voyage.positionBook.points.empty()) {
        rows = voyage.portCalls;
        return {};
    }
    VoyPositionBook book;
    if (module_->LoadPortCalls(voyage.vi, rows) < 0) {
        return LoadStep::PortCalls;
    }
    const int read = module_->LoadPositionBook(voyage.vi, book);
    if (read < 0 && read != kNoBook) {
        rows.clear();
        return LoadStep::Book;
    }
    voyage.positionBook = book;
    if (read < 0) {
        return LoadStep::Book;
    }
    rows.front().eta = book.eta;
    return {};
}

Outcome<LoadStep> ScheduleLoader::Load(const std::string& vi, PortCallRows& rows,
                                       std::optional<DrawMode> mode) {
    const auto read = Read(vi, rows, mode);
    if (LoadEndOf(kLoadScheduleCodes.Of(read)) == LoadEnd::Loaded) {
        module_->Pending().NoteLoaded(vi, rows);
    }
    return read;
}

Outcome<LoadStep> ScheduleLoader::Read(const std::string& vi, PortCallRows& rows,
                                       std::optional<DrawMode> mode) {
    if (vi.empty()) {
        return LoadStep::Id;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return LoadStep::Voyage;
    }
    if (const auto failed = Fetch(*voyage, rows); failed.Failed()) {
        return failed;
    }
    const PortCallRows stored = rows;
    if (!BookFits(voyage->positionBook.points, rows) || LegTotalsFromBook(voyage->positionBook, rows) < 0) {
        return LoadStep::Totals;
    }
    KeepPortIds(stored, rows);
    voyage->portCalls = rows;
    if (!mode) {
        return LoadStep::Mode;
    }
    if (const auto drawn = chart_.Draw(*voyage, *mode); drawn.Failed()) {
        return drawn.At() == DrawStep::Progress ? LoadStep::Progress : LoadStep::BookLine;
    }
    module_->Pending().NoteShown(rows);
    return {};
}

Outcome<DiscardStep> ScheduleLoader::Discard(const std::string& vi) {
    if (vi.empty()) {
        return DiscardStep::Id;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return DiscardStep::Voyage;
    }
    voyage->portCalls.clear();
    voyage->positionBook.points.clear();
    if (voyage->aisModTimes.empty()) {
        voyage->modais = 0;
    }
    PortCallRows rows;
    return Load(vi, rows, DrawMode::Nothing).Failed() ? DiscardStep::Load : Outcome<DiscardStep>();
}

Outcome<ShowStep> ScheduleLoader::Show(const std::string& vi) {
    int state = 0;
    if (vi.empty()) {
        return ShowStep::Id;
    }
    if (catalog_->GetVoyageState(vi, state) < 0) {
        return ShowStep::State;
    }
    if (state != InUse) {
        return ShowStep::NotInUse;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ShowStep::Voyage;
    }
    if (chart_.Remove(vi) < 0) {
        return ShowStep::Remove;
    }
    PortCallRows rows;
    if (voyage->modais == 0) {
        return Read(vi, rows, DrawMode::Progress).Failed() ? ShowStep::LoadDrawn : Outcome<ShowStep>();
    }
    if (Read(vi, rows, DrawMode::Nothing).Failed()) {
        return ShowStep::Load;
    }
    std::vector<std::string> times;
    if (catalog_->GetAisModTimes(vi, times) < 0) {
        return ShowStep::Times;
    }
    return module_->DrawAisProgress(*voyage) < 0 ? ShowStep::Corrected : Outcome<ShowStep>();
}

void ScheduleLoader::ShowSwitchedOn() {
    for (const auto& [vi, voyage] : store_->voyages) {
        if (voyage.vr == 1) {
            module_->Layer().autoExtent = false;
            static_cast<void>(Show(vi));
            module_->Layer().autoExtent = true;
        }
    }
}

}  // namespace Tarvik::Seaplan
