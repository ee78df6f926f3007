// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/controllers/ProgressDrawing.h"
#include "seaplan/data/Position.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

Interface::TrvMapPlan PlanOf(const VoyInfo& voyage, const Interface::TrvMapObjectRef& ship) {
    Interface::TrvMapPlan plan{ship.layer, voyage.vi, ship.type, voyage.vn, voyage.vsn, {}};
    BookPoints rows = voyage.positionBook.points;
    if (ComputeBookTimes(voyage.positionBook.eta, voyage.portCalls, rows) < 0) {
        return plan;
    }
    for (const PosBookPoint& row : rows) {
        GeoPoint at;
        if (!ReadPosition(row.position, 0, at)) {
            plan.places.clear();
            return plan;
        }
        plan.places.push_back({at.x, at.y, UtcOfPlanTime(row.eta).to_gmt_timer(),
                               UtcOfPlanTime(row.etd).to_gmt_timer(), row.psn, row.pst == PortPoint});
    }
    return plan;
}

}  // namespace Tarvik::Seaplan
