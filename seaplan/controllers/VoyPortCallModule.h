// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/controllers/ChartClicks.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/ProgressDrawing.h"
#include "seaplan/controllers/RouteFinder.h"
#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

/// A voyage's schedule on the server, its route and its place on the chart: the facade of the classes in this
/// folder that do the work. Results: 0, or the negative number that the table named at the operation gives.
class VoyPortCallModule : public Core::TObject {
  public:
    VoyPortCallModule(VoyageStore* store, PortDirectory* ports);
    static VoyPortCallModule* Instance();

    // Server: the commands of the protocol, with their numbers.
    int LoadPortCalls(const std::string& vi, PortCallRows& rows) { return Seaplan::LoadPortCalls(vi, rows); }
    int LoadPositionBook(const std::string& vi, VoyPositionBook& book) {
        return Seaplan::LoadPositionBook(vi, book);
    }
    int EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id) {
        return Seaplan::EnsurePositionBook(vi, date, id);
    }
    int SetPositionBookDate(const std::string& id, const std::string& date) {
        return Seaplan::SetPositionBookDate(id, date);
    }
    int SavePositionBookRows(const std::string& id, const BookPoints& rows) {
        return Seaplan::SavePositionBookRows(id, rows);
    }
    int SavePortCalls(const std::string& vi, PortCallRows& rows) { return Seaplan::SavePortCalls(vi, rows); }
    int SaveFigures(const std::string& vi, const BunkerFigures& figures) {
        return Seaplan::SaveFigures(vi, figures);
    }

    // Routes
    /// RouteFinder::Find: kGetRouteCodes.
    int GetRoute(const PortCallRows& rows, PortCallRows& results, bool wholeList);
    /// A stop for each row, leg by leg; empty after a failure: kStopsByCacheCodes.
    int GetStopsByCache(const PortCallRows& rows, RouteStops& out);
    /// ReadCacheFile. 0.
    int LoadCache(const std::string& name, LegCache& cache);
    /// WriteCacheFile. 0, or -1 for an entry without two stops.
    int SaveCache(const std::string& name, const LegCache& cache) { return WriteCacheFile(name, cache); }
    PendingRoute& Pending() { return pending_; }
    /// Who finds routes, for those who must know which step failed.
    RouteFinder& Routes() { return routes_; }
    /// The server's way from a position to a port: kNearestRouteCodes.
    int RequestNearestRoute(const std::string& position, const std::string& portId,
                            std::vector<std::string>& points);
    /// Book rows of the pending route, empty after a failure: kBookOfRouteCodes.
    int BookFromCurrentStops(BookPoints& rows);
    /// Id, name and position of the rows' ports, in order: kPortPositionsCodes.
    int PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out);

    // Chart
    VoyageLayer& Layer() { return layer_; }
    /// The pending route with its labels; numbers of VoyageLayer::DrawRoute.
    int DrawCurrentRoute();
    /// The book as one line; numbers of VoyageLayer::DrawBook.
    int DrawBook(const VoyInfo& voyage);
    /// The voyage with the ship where the plan has it now: kPlannedProgressCodes.
    int DrawPlannedProgress(const VoyInfo& voyage);
    /// The same for a voyage corrected from AIS: kAisProgressCodes.
    int DrawAisProgress(const VoyInfo& voyage);
    /// Where a clicked ship's card is shown; without a source the card has a place of its own.
    void SetCursorSource(ChartClicks::CursorSource source) { clicks_.cursor = std::move(source); }
    /// Called after a click on an alternative has changed the pending route.
    void SetRouteListener(std::function<void()> listener) { clicks_.routeChosen = std::move(listener); }

  private:
    VoyageLayer layer_;
    PendingRoute pending_;
    RouteFinder routes_;
    ProgressDrawing drawing_;
    ChartClicks clicks_;
};

}  // namespace Tarvik::Seaplan
