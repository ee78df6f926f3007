// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/calculation/PointTables.h"
#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

/// A voyage's schedule on the server, its route and its place on the chart: composes the protocol's commands,
/// the calculation's functions and the chart layer. Results: 0 or the negative number of the failed step.
class VoyPortCallModule : public Core::TObject {
  public:
    explicit VoyPortCallModule(VoyageStore* store);
    ~VoyPortCallModule() override;
    static VoyPortCallModule* Instance();

    // Server
    int LoadPortCalls(const std::string& vi, PortCallRows& rows);
    int LoadPositionBook(const std::string& vi, VoyPositionBook& book);
    int EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id);
    int SetPositionBookDate(const std::string& id, const std::string& date);
    int SavePositionBookRows(const std::string& id, const BookPoints& rows);
    int SavePortCalls(const std::string& vi, PortCallRows& rows);
    int SaveFigures(const std::string& vi, const BunkerFigures& figures);

    // Routes
    /// Route of the rows into `results` and the current stops; -5 when stops and rows differ in number.
    int GetRoute(const PortCallRows& rows, PortCallRows& results, bool wholeList);
    int GetStopsByCache(const PortCallRows& rows, RouteStops& out);
    /// Adds the good lines of a cache file, "" for the usual one; a missing one and one too large to be a
    /// cache add none. 0.
    int LoadCache(const std::string& name, LegCache& cache);
    int SaveCache(const std::string& name, const LegCache& cache);
    const RouteStops& CurrentStops() const { return stops_; }
    void ClearCurrentStops() { stops_.clear(); }
    void SetCurrentStops(RouteStops stops) { stops_ = std::move(stops); }
    /// The server's way from `position` to a port: its points, the position first and the port last; an empty
    /// answer gives none. -1 no position or no port id (nothing is sent); -2 no exchange; -3 empty reply; -4
    /// refused; -5 a point that is no position.
    int RequestNearestRoute(const std::string& position, const std::string& portId,
                            std::vector<std::string>& points);
    /// Book rows of the current stops; codes of BookFromStops, -2 when the route points cannot be read.
    int BookFromCurrentStops(BookPoints& rows);
    /// Id, name and position of the rows' ports, in order. -1 the table of points cannot be read; -2 a port
    /// that it does not hold, with the ports before it in `out`.
    int PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out);

    // Chart
    VoyageLayer& Layer() { return layer_; }
    int DrawCurrentRoute();
    int DrawBook(const VoyInfo& voyage);
    /// The voyage as lines sailed and remaining with the ship where the plan has it now. -1 too few rows; -2
    /// layer; -3 clearing; -4 groups; -5 their number; -6 to -13 of PlanProgress; -14 empty id; -15, -16
    /// lines; -17 no place for the ship; -18 extent.
    int DrawPlannedProgress(const VoyInfo& voyage);
    /// The same for a voyage corrected from AIS, without what the real track covers. -1 too few rows; -2
    /// layer; -3 times; -4 groups; -5 their number; -6 no correction time; -7 to -14 of CorrectedProgress;
    /// -15 empty id; -16, -17 lines; -18 no place for the ship; -19 extent.
    int DrawAisProgress(const VoyInfo& voyage);
    /// Where the cursor is, in screen pixels; a clicked ship's card is shown there. Without it the card has a
    /// place of its own.
    using CursorSource = std::function<std::pair<int, int>()>;
    void SetCursorSource(CursorSource source) { cursor_ = std::move(source); }
    /// Called after a click on an alternative has changed the current stops.
    void SetRouteListener(std::function<void()> listener) { routeChosen_ = std::move(listener); }

  private:
    void BindClick(const char* name, Core::TEvent& delegate);
    void UnbindClick(const char* name, Core::TEvent& delegate);
    void* OnRoutePointClicked(void* id);
    void* OnAlternativeClicked(void* id);
    void* OnShipClicked(void* id);
    int ShowAlternatives(const std::string& id);
    int ChooseAlternative(const std::string& id);
    int ShowVesselCard(const std::string& vi);
    int FetchLeg(const VoyPortCall& from, const VoyPortCall& to, RouteLegCacheEntry& entry);
    int CachedLeg(const VoyPortCall& from, const VoyPortCall& to, RouteLegCacheEntry& entry);
    int StoreLeg(const VoyPortCall& from, const VoyPortCall& to, int fetchCode, int saveCode);
    int RequestRoute(const std::string& text, RouteStops& stops, int sendCode, int parseCode);
    int ShowProgress(const std::string& vi, const std::string& current, const PointTexts& sailed,
                     const PointTexts& remaining, int idCode);

    VoyageStore* store_;
    VoyageLayer layer_;
    RouteStops stops_;
    std::string clickedRoutePoint_;
    LegCache routeCache_;
    Util::_datetime_t cacheEpoch_{0, 0, 0, 1, 6, 2011};
    float cacheMaxAgeHours_ = 2160.0F;
    PointMap routePoints_;
    PointMap portPositions_;
    std::map<std::string, std::string> shipPositions_;  ///< "x,y" of each drawn voyage's icon
    CursorSource cursor_;
    std::function<void()> routeChosen_;
    Core::TEvent routePointClick_;
    Core::TEvent alternativeClick_;
    Core::TEvent shipClick_;
};

}  // namespace Tarvik::Seaplan
