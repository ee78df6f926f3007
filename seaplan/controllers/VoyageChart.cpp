// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyageChart.h"

#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/VoyInfo.h"

namespace Tarvik::Seaplan {

std::optional<DrawMode> DrawModeOf(int number) {
    for (const DrawMode mode : {DrawMode::Nothing, DrawMode::BookLine, DrawMode::Progress}) {
        if (NumberOf(mode) == number) {
            return mode;
        }
    }
    return std::nullopt;
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
