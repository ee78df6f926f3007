// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <tarvik/bus/PlanContract.h>

#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// A moment of the plan: seconds after 1970-01-01 00:00:00 UTC.
using PlanTime = std::int64_t;

/// The present moment.
PlanTime PlanTimeNow();
/// The same moment in centiseconds.
std::int64_t CsecsOf(PlanTime time);
/// A moment as it is read on the chart, "2026-12-01 08:00", in the zone of plan times.
std::string PlanTimeText(PlanTime time);

/// A voyage's plan with its places projected, each at most half a turn from the one before.
struct VoyagePlan {
    Interface::TrvMapPlan told;
    std::vector<WorldPoint> way;
    std::size_t tint = 0;  ///< which colour of the series it has while every voyage has its own
};

/// Where the plan has a ship at a time.
struct PlannedShip {
    const VoyagePlan* plan = nullptr;
    WorldPoint place;
    double course = -1;        ///< degrees on the chart; below 0 while she lies in port
    std::size_t nextPort = 0;  ///< index of the place that she is bound for, or lies at
};

/// A leg of a plan: the places at its ends by index.
struct PlanLeg {
    const VoyagePlan* plan = nullptr;
    std::size_t from = 0;
    std::size_t to = 0;
};

/// The plans of the voyages on the chart, without a window.
class VoyagePlans {
  public:
    /// As TRV_MAP_SET_PLAN tells. A plan with a place that is none on earth, or with times that go back, is
    /// forgotten too.
    void Set(const Interface::TrvMapPlan& plan);
    bool IsEmpty() const { return plans_.empty(); }
    /// Called after each change; an empty function ends it.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }
    /// Counts the changes of the plans.
    std::uint64_t Revision() const { return revision_; }
    /// All plans, by the ids of their voyages.
    const std::map<std::string, VoyagePlan>& All() const { return plans_; }
    /// The plan whose voyage a line or a ship of a layer belongs to, null without one.
    const VoyagePlan* Find(const std::string& layer, const std::string& id) const;

    /// Chooses a voyage by its id, whether it has a plan or not.
    void Choose(const std::string& id);
    /// The plan of the chosen voyage, else the only one; null without one.
    const VoyagePlan* Chosen() const;
    /// Whether an image is the ship of a plan.
    bool IsShip(const std::string& layer, const std::string& type, const std::string& id) const;

    struct Span {
        PlanTime first = 0;
        PlanTime last = 0;
    };
    /// From the first departure of all voyages to their last arrival; nothing without a plan.
    std::optional<Span> Times() const;
    /// Where all ships are: before the departure in the first port, behind the arrival in the last.
    std::vector<PlannedShip> At(PlanTime time) const;
    /// The leg of a voyage with an end of a drawn line's leg; nothing when it has none.
    static std::optional<PlanLeg> LegOf(const VoyagePlan& plan, WorldPoint from, WorldPoint to);

  private:
    void Take(const Interface::TrvMapPlan& plan);
    /// The colour that a voyage has, or the first that no other one has.
    std::size_t TintFor(const std::string& id) const;

    std::map<std::string, VoyagePlan> plans_;
    std::uint64_t revision_ = 0;
    std::string chosen_;
    std::function<void()> observer_;
};

}  // namespace Tarvik::Seamap
