// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include <tarvik/interface/ChartRecords.h>

#include "seaplan/chart/ChartLines.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/RouteStop.h"

namespace Tarvik::Seaplan {

/// Everything that the plug-in draws in the chart's layer "VOYAGE", by the chart services of the bus. Results
/// are 0 or a negative step number; the chart's own answers are not looked at.
class VoyageLayer {
  public:
    VoyageLayer();
    /// Adds the layer and fills the style records again. 0.
    int SetupLayer();
    /// Removes route labels, route lines and alternatives. 0.
    int ClearRouteObjects();
    /// The same, ships and book lines too. 0.
    int ClearAllObjects();
    /// Removes a voyage's lines and ship: eleven ids a call, five rounds. -1 empty id.
    int ClearVoyageObjects(const std::string& vi);
    /// Puts the ship's icon at "x,y". -1 empty position.
    int PlaceShip(Interface::TrvMapImageParams& record, const std::string& position);
    /// Draws a line cut at the date line; piece numbers from 0 (mode 0) or 5 (mode 1). -1 fewer than two
    /// points, -4 another mode.
    int DrawLine(Interface::TrvMapLineParams& line, const PointTexts& points, int mode);
    /// Sends the view that shows all points, unless autoExtent is off. 0.
    int SetExtent(const PointTexts& points);
    /// Draws a calculated route with its labels. -1 fewer than two stops; -2 to -7 by step.
    int DrawRoute(const RouteStops& stops, PortDirectory& ports);
    /// The names of the route points that leave a choice. -1 fewer than two stops; -2 the table of points
    /// cannot be read; -3 it does not hold one of them, and the labels before it stay.
    int DrawRoutePointLabels(const RouteStops& stops, PortDirectory& ports);
    /// Draws the rows of a position book as the remaining line. -1 fewer than two; -2, -3; -4 empty id; -5,
    /// -6.
    int DrawBook(const std::string& vi, const PointTexts& positions);
    /// Puts the ship's icon at `position` and draws two stretches as one remaining line when they have two
    /// points together. -1 empty position, -2 the line.
    int DrawShipAndTrack(const std::string& id, const std::string& position, const PointTexts& first,
                         const PointTexts& second);
    /// Labels one alternative of a route point.
    void AddAlternativeLabel(const RoutePointRow& point);
    void ClearAlternatives();

    bool autoExtent = true;
    Interface::TrvMapLineParams mainLine;
    Interface::TrvMapLineParams remainingLine;
    Interface::TrvMapLineParams sailedLine;
    Interface::TrvMapLineParams spareLine;
    Interface::TrvMapPointParams routePointLabel;
    Interface::TrvMapPointParams alternativeLabel;
    Interface::TrvMapImageParams shipIcon;

  private:
    void ClearType(const char* type);
    Interface::TrvMapLayerParams layer_;
};

}  // namespace Tarvik::Seaplan
