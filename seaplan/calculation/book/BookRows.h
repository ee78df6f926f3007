// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "seaplan/calculation/book/BookRecompute.h"
#include "seaplan/data/PosBookData.h"
#include "seaplan/data/Position.h"

/// The rows of the book's list, and the edits that add and remove waypoints.
namespace Tarvik::Seaplan {

/// Decimals of degrees that the book tells.
inline constexpr int kBookDecimals = 4;

/// What a row of the list shows: a port, or one waypoint of the leg that leads to it.
struct PosBookRowRef {
    static constexpr int kPort = -1;

    int port = 0;
    int sub = kPort;  ///< index in the port's leg, kPort for the port itself
    bool operator==(const PosBookRowRef&) const = default;
};

using BookRowRefs = std::vector<PosBookRowRef>;

/// Rows to show: all ports and named points, plain waypoints only where expanded.
BookRowRefs ListBookRows(const PosBookData& book);
/// The port or waypoint of a list row.
PosBookPlace& PlaceOf(PosBookData& book, const PosBookRowRef& ref);
const PosBookPlace& PlaceOf(const PosBookData& book, const PosBookRowRef& ref);

/// The place before another one on the way; null before the start.
const PosBookPlace* PlaceBefore(const PosBookData& book, const PosBookRowRef& ref);

/// List row of the first place behind the start with less than a speed (km/h), or of the row behind which it
/// is folded away; -1 where there is none.
int FirstSlowerRow(const PosBookData& book, double kmh);

/// Shows or hides the plain waypoints right behind a port or named point of the list. False, with nothing
/// changed, for a plain waypoint and for the last port, which has none behind it.
bool ToggleBookRow(PosBookData& book, BookRowRefs& refs, int listRow);
/// Puts the waypoints of a great circle into the way to list row `listRow`; with `addMidpoint` a leg that
/// needs none gets one half way, "A new wp". Waypoints of an earlier time stay. Returns how many came; times
/// and totals are the caller's to recompute when any did.
int RegenerateLeg(PosBookData& book, BookRowRefs& refs, int listRow, bool addMidpoint);

/// Puts a plain waypoint, "A new wp", into the way to list row `listRow`, which is sailed as before on both
/// sides of it. It takes that row's place in the list where the waypoints before it show. False, with nothing
/// changed, for the first port and no row.
bool InsertBookRow(PosBookData& book, BookRowRefs& refs, int listRow, const GeoPoint& position);
/// The end of the leg on which a place lies, or to which it is nearest; nothing in a book without legs. Cost:
/// a few distances a place of the book.
std::optional<PosBookRowRef> LegAt(const PosBookData& book, const GeoPoint& position);

/// What has to follow after a waypoint was deleted.
enum class BookDeletion {
    Refused,   ///< nothing was deleted
    Complete,  ///< the leg behind is a great circle without new waypoints: nothing is recomputed
    Recompute  ///< times and totals are to be recomputed
};
/// Deletes a plain waypoint that the ship has not passed, and its list row; a great circle behind it is cut
/// into waypoints anew.
BookDeletion DeleteBookRow(PosBookData& book, BookRowRefs& refs, const BookTotals& totals, int listRow);

}  // namespace Tarvik::Seaplan
