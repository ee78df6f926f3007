// SPDX-License-Identifier: MIT
// Dead reckoning by the plan: on the leg under way the ship's place is in proportion to the time between the
// departure from one place and the arrival at the next, along the line that is drawn. Cost: one
// pass over the places of each voyage.
#include "host/plugins/seamap/core/VoyagePlans.h"

#include <algorithm>
#include <cmath>

#include <tarvik/util/Clock.h>
#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Geodesy.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

namespace {

/// Turns by which a drawn point may stand off its place: texts of positions are rounded.
constexpr double kSamePlace = 1e-5;

constexpr std::int64_t kCsecsPerSecond = 100;

bool IsGood(const Interface::TrvMapPlan& plan) {
    PlanTime before = plan.places.empty() ? 0 : plan.places.front().arrival;
    for (const Interface::TrvMapPlanPlace& place : plan.places) {
        if (!Util::IsOnEarth(place.x, place.y) || place.arrival < before || place.departure < place.arrival) {
            return false;
        }
        before = place.departure;
    }
    return plan.places.size() >= 2;
}

bool AreSame(WorldPoint a, WorldPoint b) {
    const double x = a.x - b.x;
    return std::fabs(x - std::round(x)) < kSamePlace && std::fabs(a.y - b.y) < kSamePlace;
}

PlannedShip ShipAt(const VoyagePlan& plan, PlanTime time) {
    const auto& places = plan.told.places;
    const auto next =
        std::find_if(places.begin(), places.end(),
                     [time](const Interface::TrvMapPlanPlace& place) { return time < place.arrival; });
    const std::size_t to = std::min(static_cast<std::size_t>(next - places.begin()), places.size() - 1);
    PlannedShip ship{&plan, plan.way[to], -1, to};
    if (next == places.begin() || next == places.end()) {
        return ship;
    }
    const std::size_t from = to - 1;
    while (ship.nextPort + 1 < places.size() && !places[ship.nextPort].port) {
        ++ship.nextPort;
    }
    const WorldPoint a = plan.way[from], b = plan.way[to];
    const auto left = static_cast<double>(time - places[from].departure);
    if (left < 0) {
        ship.place = a;
        ship.nextPort = places[from].port ? from : ship.nextPort;
        return ship;
    }
    const double share = left / static_cast<double>(places[to].arrival - places[from].departure);
    ship.place = {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
    ship.course = std::fmod(std::atan2(b.x - a.x, a.y - b.y) / Server::kDegree + 360, 360);
    return ship;
}

}  // namespace

PlanTime PlanTimeNow() {
    return Util::Clock::Current().NowUtcCsecs() / kCsecsPerSecond;
}

std::int64_t CsecsOf(PlanTime time) {
    return time * kCsecsPerSecond;
}

std::string PlanTimeText(PlanTime time) {
    return Util::DateTimeUtl::ConvertFromUTC(Util::_datetime_t::from_gmt_timer(time), Util::kPlanZone)
        .fmt(Util::kMinuteFormat);
}

void VoyagePlans::Set(const Interface::TrvMapPlan& plan) {
    Take(plan);
    ++revision_;
    if (observer_) {
        observer_();
    }
}

void VoyagePlans::Take(const Interface::TrvMapPlan& plan) {
    if (plan.id.empty()) {
        std::erase_if(plans_, [&](const auto& kept) { return kept.second.told.layer == plan.layer; });
        return;
    }
    if (!IsGood(plan)) {
        plans_.erase(plan.id);
        return;
    }
    VoyagePlan kept{plan, {}, TintFor(plan.id)};
    for (const Interface::TrvMapPlanPlace& place : plan.places) {
        WorldPoint point = Project({place.x, place.y});
        if (!kept.way.empty()) {
            point.x += std::round(kept.way.back().x - point.x);
        }
        kept.way.push_back(point);
    }
    plans_[plan.id] = std::move(kept);
}

std::size_t VoyagePlans::TintFor(const std::string& id) const {
    if (const auto known = plans_.find(id); known != plans_.end()) {
        return known->second.tint;
    }
    std::vector<bool> taken(plans_.size() + 1, false);
    for (const auto& [other, plan] : plans_) {
        if (plan.tint < plans_.size()) {
            taken[plan.tint] = true;
        }
    }
    return static_cast<std::size_t>(std::find(taken.begin(), taken.end(), false) - taken.begin());
}

const VoyagePlan* VoyagePlans::Find(const std::string& layer, const std::string& id) const {
    auto found = plans_.find(id);
    if (found == plans_.end()) {
        found = plans_.find(id.substr(0, id.rfind('_')));
    }
    return found == plans_.end() || found->second.told.layer != layer ? nullptr : &found->second;
}

void VoyagePlans::Choose(const std::string& id) {
    chosen_ = id;
}

const VoyagePlan* VoyagePlans::Chosen() const {
    const auto chosen = plans_.find(chosen_);
    if (chosen != plans_.end()) {
        return &chosen->second;
    }
    return plans_.size() == 1 ? &plans_.begin()->second : nullptr;
}

bool VoyagePlans::IsShip(const std::string& layer, const std::string& type, const std::string& id) const {
    const auto found = plans_.find(id);
    return found != plans_.end() && found->second.told.layer == layer && found->second.told.shipType == type;
}

std::optional<VoyagePlans::Span> VoyagePlans::Times() const {
    std::optional<Span> times;
    for (const auto& [id, plan] : plans_) {
        const PlanTime first = plan.told.places.front().departure;
        const PlanTime last = plan.told.places.back().arrival;
        times = times ? Span{std::min(times->first, first), std::max(times->last, last)} : Span{first, last};
    }
    return times;
}

std::vector<PlannedShip> VoyagePlans::At(PlanTime time) const {
    std::vector<PlannedShip> ships;
    ships.reserve(plans_.size());
    for (const auto& [id, plan] : plans_) {
        ships.push_back(ShipAt(plan, time));
    }
    return ships;
}

std::optional<PlanLeg> VoyagePlans::LegOf(const VoyagePlan& plan, WorldPoint from, WorldPoint to) {
    std::optional<PlanLeg> half;
    for (std::size_t i = 1; i < plan.way.size(); ++i) {
        const bool begins = AreSame(plan.way[i - 1], from), ends = AreSame(plan.way[i], to);
        if (begins && ends) {
            return PlanLeg{&plan, i - 1, i};
        }
        // The line of a ship under way begins or ends where she is.
        if (!half && (begins || ends)) {
            half = PlanLeg{&plan, i - 1, i};
        }
    }
    return half;
}

}  // namespace Tarvik::Seamap
