// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/core/TObject.h>

#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

class PendingRoute;
class PortDirectory;
class RouteFinder;
struct RouteLegCacheEntry;
struct RoutePointRow;
struct RouteStop;
class VoyageLayer;
class VoyageStore;

/// A voyage's schedule on the server, its route and its place on the chart: the facade of the classes in this
/// folder that do the work. Results: 0, or the negative number that the table named at the operation gives.
class VoyPortCallModule : public Core::TObject {
  public:
    /// Keeps its collaborators, which outlive it, and binds to the chart's clicks.
    VoyPortCallModule(VoyageStore* store, PortDirectory* ports);
    ~VoyPortCallModule() override;
    /// The one of the plug-in; CompositionRoot makes it.
    static VoyPortCallModule* Instance();

    // Server: the commands of the protocol, with their numbers.
    /// Command 10: rows in the order of their numbers, speeds in knots. 0; -1 empty id; -2 no exchange, or no
    /// list; -3 none stored; -4 an element without number.
    int LoadPortCalls(const std::string& vi, PortCallRows& rows);
    /// Command 7: appends the stored rows. 0; -1 empty id; -2 no exchange, or no list; -3 no book (kNoBook);
    /// -4 the date is not converted; -5 a row does not parse.
    int LoadPositionBook(const std::string& vi, VoyPositionBook& book);
    /// Command 7, and 8 where there is no book yet; `id` becomes the book's. 0; -1 empty voyage id; -2 no
    /// exchange, or no list; -3 the date is not converted; -4 no exchange; -5 refused; -6 no id came back.
    int EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id);
    /// Command 14: the start of a book, by its id. 0; -1 empty id; -2 the date is not converted; -3 no
    /// exchange; -4 refused.
    int SetPositionBookDate(const std::string& id, const std::string& date);
    /// Command 9, from 100 rows on in blocks; blocks sent before a failure stay on the server. 0; -1 empty
    /// id; in one request -2 a bad position, -3 no exchange, -4 refused; in blocks -5, -6, -7.
    int SavePositionBookRows(const std::string& id, const BookPoints& rows);
    /// Command 11; rows without port id get it by name first. 0; -1 empty id or fewer than two rows; -2 no
    /// exchange; -3 refused.
    int SavePortCalls(const std::string& vi, PortCallRows& rows);
    /// Command 6: the seven consumption figures in kg/day. 0; -1 empty id; -2 no exchange; -3 refused.
    int SaveFigures(const std::string& vi, const BunkerFigures& figures);

    // Routes
    /// RouteFinder::Find: kGetRouteCodes.
    int GetRoute(const PortCallRows& rows, PortCallRows& results, bool wholeList);
    /// A stop for each row, leg by leg; empty after a failure: kStopsByCacheCodes.
    int GetStopsByCache(const PortCallRows& rows, std::vector<RouteStop>& out);
    /// ReadCacheFile. 0.
    int LoadCache(const std::string& name, std::map<std::string, RouteLegCacheEntry>& cache);
    /// WriteCacheFile. 0, or -1 for an entry without two stops.
    int SaveCache(const std::string& name, const std::map<std::string, RouteLegCacheEntry>& cache);
    /// The route calculated last, until it is saved or dropped.
    PendingRoute& Pending();
    /// Who finds routes, for those who must know which step failed.
    RouteFinder& Routes();
    /// The server's way from a position to a port: kNearestRouteCodes.
    int RequestNearestRoute(const std::string& position, const std::string& portId,
                            std::vector<std::string>& points);
    /// Book rows of the pending route, empty after a failure: kBookOfRouteCodes.
    int BookFromCurrentStops(BookPoints& rows);
    /// Id, name and position of the rows' ports, in order: kPortPositionsCodes.
    int PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out);

    // Chart
    /// The plug-in's layer on the chart.
    VoyageLayer& Layer();
    /// The pending route with its labels; numbers of VoyageLayer::DrawRoute.
    int DrawCurrentRoute();
    /// The book as one line; numbers of VoyageLayer::DrawBook.
    int DrawBook(const VoyInfo& voyage);
    /// The voyage with the ship where the plan has it now: kPlannedProgressCodes.
    int DrawPlannedProgress(const VoyInfo& voyage);
    /// The same for a voyage corrected from AIS: kAisProgressCodes.
    int DrawAisProgress(const VoyInfo& voyage);
    /// Where a clicked ship's card is shown; without a source the card has a place of its own.
    void SetCursorSource(std::function<std::pair<int, int>()> source);
    /// Called after a click on an alternative has changed the pending route.
    void SetRouteListener(std::function<void()> listener);

  private:
    struct Parts;

    std::unique_ptr<Parts> parts_;
};

}  // namespace Tarvik::Seaplan
