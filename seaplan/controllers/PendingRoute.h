// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/data/RouteStop.h"
#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

/// The calculated route that no save has taken yet, with the voyage that it was calculated for, and what is
/// known of the schedule on show: its ports, whether its rows still are those of its route, and the voyage
/// last drawn with its ship. A route of no voyage is that of a table without one, and no voyage's save takes
/// it; whoever calculates for a voyage that is not there yet assigns the route when it is.
class PendingRoute {
    struct Route {
        RouteStops stops;
        std::string voyage;
        std::optional<Util::_datetime_t> knownSince;
        bool anew = false;
    };

  public:
    /// Leaves the route as it was at this object's making, unless Keep was called.
    class Rollback {
      public:
        /// Remembers the route that is pending now.
        explicit Rollback(PendingRoute& pending) : pending_(pending), before_(pending.route_) {}
        ~Rollback();
        Rollback(const Rollback&) = delete;
        Rollback& operator=(const Rollback&) = delete;
        /// The route that is pending at the end stays.
        void Keep() { kept_ = true; }

      private:
        PendingRoute& pending_;
        Route before_;
        bool kept_ = false;
    };

    /// A stop for each port; empty without a route.
    const RouteStops& Stops() const { return route_.stops; }
    /// Whether there is a route at all.
    bool IsThere() const { return !route_.stops.empty(); }
    /// Whether there is a route that a save of this voyage may take; an empty id asks for that of no voyage.
    bool IsFor(const std::string& vi) const;
    /// A newly calculated route; it belongs to no voyage until Assign names one. `knownSince` is set for a
    /// route of known legs, which the server was not there to confirm: the time of the oldest.
    void Take(RouteStops stops, std::optional<Util::_datetime_t> knownSince = std::nullopt) {
        route_ = {std::move(stops), "", knownSince, false};
    }
    /// As Take was told; nothing for a route that the server gave.
    const std::optional<Util::_datetime_t>& KnownSince() const { return route_.knownSince; }
    /// The route is that of voyage `vi` from now on.
    void Assign(const std::string& vi) { route_.voyage = vi; }
    /// The route was asked anew, in place of the legs of a saved voyage: until it is saved no calculation
    /// puts these back.
    void MarkAnew() { route_.anew = true; }
    bool IsAnewFor(const std::string& vi) const { return IsFor(vi) && route_.anew; }
    /// The same route by other points: whose it is stays.
    void Change(RouteStops stops) {
        route_.stops = std::move(stops);
        route_.knownSince.reset();
    }
    /// The route is again what it was in a copy, for voyage `vi`.
    void PutBack(const PendingRoute& earlier, const std::string& vi) {
        route_ = earlier.route_;
        route_.voyage = vi;
        isCurrent_ = earlier.isCurrent_;
    }
    /// There is no route any more.
    void Drop() { route_ = {}; }

    /// The schedule of `vi` was loaded with these rows: its own pending route goes, that of another stays.
    void NoteLoaded(const std::string& vi, const PortCallRows& rows);
    /// The rows on show are those of the route: it need not be calculated before the next save.
    void NoteSaved() {
        isCurrent_ = 1;
        route_.anew = false;
    }
    /// The schedule was only drawn, by the timer or a switch in the tree: no route goes.
    void NoteShown(const PortCallRows& rows);
    /// Rows were moved, deleted or cleared: the route is recalculated before the next save.
    void NoteRowsChanged() { isCurrent_ = -1; }
    /// `vi` is the voyage last drawn with its ship.
    void NoteDrawn(const std::string& vi) { drawnVoyage_ = vi; }
    /// Forgets the route and the ports of the schedule last loaded.
    void Forget();
    /// The table of this voyage is emptied: the ports go, and the route if it is its own.
    void ForgetFor(const std::string& vi);
    /// 1 after a schedule was loaded or saved, -1 at the start and after NoteRowsChanged.
    int IsCurrent() const { return isCurrent_; }
    /// Names of the ports of the schedule last loaded.
    const std::vector<std::string>& PortNames() const { return portNames_; }
    /// The voyage last drawn with its ship on the way, empty before the first.
    const std::string& DrawnVoyage() const { return drawnVoyage_; }

  private:
    Route route_;
    std::vector<std::string> portNames_;
    int isCurrent_ = -1;
    std::string drawnVoyage_;
};

}  // namespace Tarvik::Seaplan
