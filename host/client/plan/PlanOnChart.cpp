// SPDX-License-Identifier: MIT
#include "host/client/plan/PlanOnChart.h"

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/PointText.h>

namespace Tarvik::Client {

namespace {

/// The chart reads moments in the zone of plan times, whichever that of the plan is: this one it reads so.
std::int64_t MomentReadAs(const Util::_datetime_t& local) {
    return Util::DateTimeUtl::ConvertToUTC(local, Util::kPlanZone).to_gmt_timer();
}

}  // namespace

Interface::TrvMapPlan PlanOnChart(const Interface::PlanResult& plan) {
    Interface::TrvMapPlan told{"PLAN", "PLAN", "PLAN", {}, {}, {}};
    told.places.reserve(plan.route.size());
    for (const Interface::PlanWaypoint& point : plan.route) {
        const auto at = Util::ReadPoint(point.position);
        if (!at) {
            told.places.clear();
            return told;
        }
        told.places.push_back({at->x, at->y, MomentReadAs(point.eta), MomentReadAs(point.etd), point.name,
                               point.kind == Interface::WaypointKind::Port});
    }
    return told;
}

}  // namespace Tarvik::Client
