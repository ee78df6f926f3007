// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include <tarvik/bus/PlanContract.h>
#include <tarvik/interface/ChartRecords.h>

#include "seaplan/calculation/PlannedProgress.h"
#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyInfo.h"

namespace Tarvik::Seaplan {

enum class ProgressStep {
    TooFewRows,    ///< fewer than two ports or book rows
    Layer,         ///< the layer cannot be set up
    Clear,         ///< the route on show cannot be cleared
    Times,         ///< the book's rows have no times
    Groups,        ///< the book cannot be cut at its ports
    GroupCount,    ///< it has not as many ports as the schedule
    NoCorrection,  ///< no time of a correction
    Reckoning,     ///< the place of the ship cannot be worked out
    Id,            ///< the voyage has no id
    Remaining,     ///< the line ahead
    Sailed,        ///< the line behind
    Ship,          ///< no place for the icon
    Extent,        ///< the view
};
/// Numbers of DrawPlannedProgress.
inline constexpr CodeTable kPlannedProgressCodes{
    Code{ProgressStep::TooFewRows, -1}, Code{ProgressStep::Layer, -2},
    Code{ProgressStep::Clear, -3},      Code{ProgressStep::Groups, -4},
    Code{ProgressStep::GroupCount, -5}, Code{ProgressStep::Reckoning, kOwnNumber},  // -6 to -13, PlanProgress
    Code{ProgressStep::Id, -14},        Code{ProgressStep::Remaining, -15},
    Code{ProgressStep::Sailed, -16},    Code{ProgressStep::Ship, -17},
    Code{ProgressStep::Extent, -18},
};
/// Numbers of DrawAisProgress.
inline constexpr CodeTable kAisProgressCodes{
    Code{ProgressStep::TooFewRows, -1},
    Code{ProgressStep::Layer, -2},
    Code{ProgressStep::Times, -3},
    Code{ProgressStep::Groups, -4},
    Code{ProgressStep::GroupCount, -5},
    Code{ProgressStep::NoCorrection, -6},
    Code{ProgressStep::Reckoning, kOwnNumber},  // -7 to -14, CorrectedProgress
    Code{ProgressStep::Id, -15},
    Code{ProgressStep::Remaining, -16},
    Code{ProgressStep::Sailed, -17},
    Code{ProgressStep::Ship, -18},
    Code{ProgressStep::Extent, -19},
};

/// Draws a voyage as lines sailed and remaining with the ship where the plan has it now.
class ProgressDrawing {
  public:
    /// Draws on `layer`, which outlives it.
    explicit ProgressDrawing(VoyageLayer& layer) : layer_(layer) {}

    /// By the clock and the plan alone: kPlannedProgressCodes.
    Outcome<ProgressStep> DrawPlanned(const VoyInfo& voyage);
    /// For a voyage corrected from AIS, without what the real track covers: kAisProgressCodes.
    Outcome<ProgressStep> DrawCorrected(const VoyInfo& voyage);
    /// "x,y" of the ship's icon, empty while the voyage has none.
    std::string ShipPosition(const std::string& vi) const;

  private:
    Outcome<ProgressStep> Show(const VoyInfo& voyage, const PlannedProgress& progress);

    VoyageLayer& layer_;
    std::map<std::string, std::string> shipPositions_;
};

/// The plan of a voyage with its book, as the chart is told it; `ship` names the voyage's image. Without
/// places when the book cannot be timed, so that the chart forgets it.
Interface::TrvMapPlan PlanOf(const VoyInfo& voyage, const Interface::TrvMapObjectRef& ship);

}  // namespace Tarvik::Seaplan
