// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "seaplan/controllers/CachedLegs.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

enum class FindStep { TooFewRows, Send, Parse, Legs, Count };
/// Numbers of GetRoute.
inline constexpr CodeTable kGetRouteCodes{
    Code{FindStep::TooFewRows, -1},    // fewer than two rows
    Code{FindStep::Send, -2},          // no exchange
    Code{FindStep::Parse, -3},         // the reply is no route
    Code{FindStep::Legs, kOwnNumber},  // by the leg cache: kStopsByCacheCodes
    Code{FindStep::Count, -5},         // the route has not one stop for each row
};

enum class BookStep { Points, Rows };
/// Numbers of a book that is made from the pending route.
inline constexpr CodeTable kBookOfRouteCodes{
    Code{BookStep::Points, -2},        // the table of points cannot be read
    Code{BookStep::Rows, kOwnNumber},  // as BookFromStops
};

enum class PlaceStep { Points, Unknown };
/// Numbers of PortPositions.
inline constexpr CodeTable kPortPositionsCodes{
    Code{PlaceStep::Points, -1},   // the table of points cannot be read
    Code{PlaceStep::Unknown, -2},  // a port that it does not hold; the ports before it are in the list
};

/// Finds the sea route between the rows' ports and keeps it as the pending one.
class RouteFinder {
  public:
    /// Keeps its collaborators, which outlive it.
    RouteFinder(PendingRoute& pending, PortDirectory& ports) : pending_(pending), ports_(ports) {}

    /// The route of the rows, by one request for the whole list or leg by leg through the cache. Each result
    /// takes id and distance from its stop, the rest from its row. Legs that the server gave for a whole list
    /// are kept. After a failure `results` is empty and the pending route is what it was.
    Outcome<FindStep> Find(const PortCallRows& rows, PortCallRows& results, bool wholeList);
    /// The same of legs that are known, whatever their age, for when the server cannot be reached. False,
    /// with `results` empty and the pending route as it was, when one is not known.
    bool FindKnown(const PortCallRows& rows, PortCallRows& results);
    /// Book rows of the pending route; empty after a failure.
    Outcome<BookStep> BookOfRoute(BookPoints& rows);
    /// Id, name and position of the rows' ports, in order.
    Outcome<PlaceStep> PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out);
    /// The leg cache's part of Find: a stop for each row.
    Outcome<LegStep> StopsByCache(const PortCallRows& rows, RouteStops& out) {
        return legs_.StopsOf(rows, out);
    }
    /// The route that Find found last, until it is saved or dropped.
    PendingRoute& Pending() { return pending_; }
    /// Route points and ports by id.
    PortDirectory& Ports() { return ports_; }

  private:
    Outcome<FindStep> Stops(const PortCallRows& rows, bool wholeList, RouteStops& stops);
    Outcome<FindStep> WholeList(const PortCallRows& rows, RouteStops& stops);

    PendingRoute& pending_;
    PortDirectory& ports_;
    CachedLegs legs_;
};

}  // namespace Tarvik::Seaplan
