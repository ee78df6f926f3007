// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>

#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/controllers/ProgressDrawing.h"
#include "seaplan/controllers/RouteFinder.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

/// What fails after a click on the chart.
enum class ClickStep { Id, Alternative, Extent, Group, Send, Parse, Draw, Voyage };
/// Answers to a click on a route point.
inline constexpr CodeTable kRoutePointClickCodes{
    Code{ClickStep::Id, -1},           // no id, or none of a route point
    Code{ClickStep::Alternative, -2},  // an alternative that is no route point
    Code{ClickStep::Extent, -3},       // the view
};
/// Answers to a click on one of its alternatives.
inline constexpr CodeTable kAlternativeClickCodes{
    Code{ClickStep::Id, -1},     // no id, or no route point was clicked before
    Code{ClickStep::Group, -2},  // the route has no choice at that point
    Code{ClickStep::Send, -3},   // no exchange
    Code{ClickStep::Parse, -4},  // the reply is no route
    Code{ClickStep::Draw, -5},   // the new route is taken, but not drawn
};
/// Answers to a click on a ship.
inline constexpr CodeTable kShipClickCodes{
    Code{ClickStep::Id, -1},      // no id
    Code{ClickStep::Voyage, -2},  // an unknown voyage
};

/// Answers the chart's clicks on the plug-in's objects: shows the alternatives of a route point, sends the
/// pending route by way of the one that is chosen, shows a ship's card. Bound to the bus from its making to
/// its end.
class ChartClicks : public Core::TObject {
  public:
    using CursorSource = std::function<std::pair<int, int>()>;

    /// Binds to the three click events; the collaborators outlive it.
    ChartClicks(VoyageStore* store, VoyageLayer& layer, RouteFinder& routes, ProgressDrawing& drawing);
    ChartClicks(const ChartClicks&) = delete;
    ChartClicks& operator=(const ChartClicks&) = delete;

    /// Where the cursor is, in screen pixels.
    CursorSource cursor;
    /// Called after the pending route has changed, whether it could be drawn or not.
    std::function<void()> routeChosen;

  private:
    const char* OnRoutePoint(const std::string* id);
    const char* OnAlternative(const std::string* id);
    const char* OnShip(const std::string* vi);
    Outcome<ClickStep> ShowAlternatives(const std::string& id);
    Outcome<ClickStep> ChooseAlternative(const std::string& id);
    Outcome<ClickStep> ShowVesselCard(const std::string& vi);

    VoyageStore* store_;
    VoyageLayer& layer_;
    RouteFinder& routes_;
    ProgressDrawing& drawing_;
    std::string clickedRoutePoint_;
    Interface::Binding routePointClick_;
    Interface::Binding alternativeClick_;
    Interface::Binding shipClick_;
};

}  // namespace Tarvik::Seaplan
