// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyageChart.h"

#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/VoyInfo.h"

namespace Tarvik::Seaplan {

std::optional<DrawMode> DrawModeOf(int number) {
    switch (number) {
        case -1:
            return DrawMode::Nothing;
        case 0:
            return DrawMode::BookLine;
        case 1:
            return DrawMode::Progress;
        default:
            return std::nullopt;
    }
}

Outcome<DrawStep> VoyageChart::Draw(const VoyInfo& voyage, DrawMode mode) {
    if (mode == DrawMode::BookLine) {
        return module_->DrawBook(voyage) < 0 ? DrawStep::BookLine : Outcome<DrawStep>();
    }
    if (mode == DrawMode::Progress) {
        if (module_->DrawPlannedProgress(voyage) < 0) {
            return DrawStep::Progress;
        }
        module_->Pending().NoteDrawn(voyage.vi);
    }
    return {};
}

int VoyageChart::Remove(const std::string& vi) {
    return vi.empty() ? -1 : module_->Layer().ClearVoyageObjects(vi);
}

int VoyageChart::Clear() {
    return module_->Layer().ClearAllObjects() < 0 ? -1 : 0;
}

}  // namespace Tarvik::Seaplan
