// SPDX-License-Identifier: MIT
#include "seaplan/calculation/book/BookRows.h"

#include <cmath>
#include <iterator>
#include <utility>

#include <tarvik/util/Geodesy.h>

namespace Tarvik::Seaplan {

namespace {

using Rows = std::vector<PosBookRow>;

constexpr const char* kNewWaypoint = "A new wp";

bool IsInList(const BookRowRefs& refs, int listRow) {
    return listRow >= 0 && listRow < static_cast<int>(refs.size());
}

PosBookPortRow& PortOf(PosBookData& book, const PosBookRowRef& ref) {
    return book.ports[static_cast<std::size_t>(ref.port)];
}

/// Whether a leg has a waypoint of this index and it is a plain one.
bool IsPlain(const Rows& leg, int sub) {
    return sub < static_cast<int>(leg.size()) && leg[static_cast<std::size_t>(sub)].kind == PlainPoint;
}

/// A waypoint between two places, sailed as the way to the second is.
PosBookRow RowBetween(const PosBookPlace& before, const PosBookPlace& to, double x, double y) {
    PosBookRow row;
    row.x = Util::UnitUtl::DataFormat(x, kBookDecimals);
    row.y = Util::UnitUtl::DataFormat(y, kBookDecimals);
    row.speed = to.speed;
    row.weather = to.weather;
    row.interval = to.interval;
    row.track = to.track;
    row.expanded = before.expanded;
    return row;
}

Util::_SPointF PointOf(const PosBookPlace& place) {
    return {static_cast<float>(place.x), static_cast<float>(place.y)};
}

/// Half way between two longitudes by the short way round: what is sailed across the date line never has its
/// middle on the other side of the world.
double LongitudeBetween(double x1, double x2) {
    constexpr double kHalfTurn = 180.0;
    const double middle = (x1 + x2) / 2.0;
    if (std::abs(x2 - x1) <= kHalfTurn) {
        return middle;
    }
    return middle > 0 ? middle - kHalfTurn : middle + kHalfTurn;
}

/// What lies between two places: the waypoints of a great circle, or one half way when there are none and it
/// is wanted.
Rows RowsBetween(const PosBookPlace& before, const PosBookPlace& to, bool addMidpoint) {
    Rows rows;
    if (to.track == "GC") {
        const auto points = Util::CircleLineUtl::Caculate(PointOf(before), PointOf(to), to.interval);
        for (std::size_t i = 1; i + 1 < points.size(); ++i) {
            rows.push_back(
                RowBetween(before, to, static_cast<double>(points[i].x), static_cast<double>(points[i].y)));
        }
    }
    if (rows.empty() && addMidpoint) {
        rows.push_back(RowBetween(before, to, LongitudeBetween(before.x, to.x), (before.y + to.y) / 2.0));
        rows.back().name = kNewWaypoint;
    }
    return rows;
}

/// Moves the waypoint indices of a port's list rows from `listRow` on.
void ShiftRefs(BookRowRefs& refs, int listRow, int port, int by) {
    for (std::size_t i = static_cast<std::size_t>(listRow); i < refs.size() && refs[i].port == port; ++i) {
        if (refs[i].sub != PosBookRowRef::kPort) {
            refs[i].sub += by;
        }
    }
}

/// Plain waypoints show only where their leg is expanded; the row before in the list tells.
void ListNewRows(const PosBookData& book, BookRowRefs& refs, int listRow, PosBookRowRef first, int count) {
    if (listRow == 0 || !PlaceOf(book, refs[static_cast<std::size_t>(listRow) - 1]).expanded) {
        return;
    }
    BookRowRefs added;
    for (int k = 0; k < count; ++k) {
        added.push_back({first.port, first.sub + k});
    }
    refs.insert(refs.begin() + listRow, added.begin(), added.end());
}

/// Puts rows into the way to a list row. Returns how many.
int AddRows(PosBookData& book, BookRowRefs& refs, int listRow, Rows added) {
    const PosBookRowRef ref = refs[static_cast<std::size_t>(listRow)];
    const int count = static_cast<int>(added.size());
    Rows& leg = PortOf(book, ref).rows;
    const int first = ref.sub == PosBookRowRef::kPort ? static_cast<int>(leg.size()) : ref.sub;
    leg.insert(leg.begin() + first, std::make_move_iterator(added.begin()),
               std::make_move_iterator(added.end()));
    ShiftRefs(refs, listRow, ref.port, count);
    ListNewRows(book, refs, listRow, {ref.port, first}, count);
    return count;
}

}  // namespace

const PosBookPlace* PlaceBefore(const PosBookData& book, const PosBookRowRef& ref) {
    const Rows& leg = book.ports[static_cast<std::size_t>(ref.port)].rows;
    const auto sub = ref.sub == PosBookRowRef::kPort ? leg.size() : static_cast<std::size_t>(ref.sub);
    if (sub > 0) {
        return &leg[sub - 1];
    }
    return ref.port > 0 ? &book.ports[static_cast<std::size_t>(ref.port) - 1] : nullptr;
}

BookRowRefs ListBookRows(const PosBookData& book) {
    BookRowRefs refs;
    for (int p = 0; p < static_cast<int>(book.ports.size()); ++p) {
        const Rows& leg = book.ports[static_cast<std::size_t>(p)].rows;
        for (int s = 0; s < static_cast<int>(leg.size()); ++s) {
            const PosBookRow& row = leg[static_cast<std::size_t>(s)];
            if (row.kind != PlainPoint || row.expanded) {
                refs.push_back({p, s});
            }
        }
        refs.push_back({p, PosBookRowRef::kPort});
    }
    return refs;
}

const PosBookPlace& PlaceOf(const PosBookData& book, const PosBookRowRef& ref) {
    const PosBookPortRow& port = book.ports[static_cast<std::size_t>(ref.port)];
    if (ref.sub == PosBookRowRef::kPort) {
        return port;
    }
    return port.rows[static_cast<std::size_t>(ref.sub)];
}

PosBookPlace& PlaceOf(PosBookData& book, const PosBookRowRef& ref) {
    return const_cast<PosBookPlace&>(PlaceOf(std::as_const(book), ref));
}

int FirstSlowerRow(const PosBookData& book, double kmh) {
    int row = 0;
    for (std::size_t port = 1; port < book.ports.size(); ++port) {
        for (const PosBookRow& waypoint : book.ports[port].rows) {
            row += waypoint.kind != PlainPoint || waypoint.expanded ? 1 : 0;
            if (waypoint.speed < kmh) {
                return row;
            }
        }
        ++row;
        if (book.ports[port].speed < kmh) {
            return row;
        }
    }
    return -1;
}

bool ToggleBookRow(PosBookData& book, BookRowRefs& refs, int listRow) {
    if (!IsInList(refs, listRow)) {
        return false;
    }
    const PosBookRowRef ref = refs[static_cast<std::size_t>(listRow)];
    const bool isPort = ref.sub == PosBookRowRef::kPort;
    const auto next = static_cast<std::size_t>(ref.port) + (isPort ? 1 : 0);
    if (next == book.ports.size() || (!isPort && IsPlain(PortOf(book, ref).rows, ref.sub))) {
        return false;
    }
    PosBookPlace& place = PlaceOf(book, ref);
    place.expanded = !place.expanded;
    Rows& leg = book.ports[next].rows;
    for (int s = isPort ? 0 : ref.sub + 1; IsPlain(leg, s); ++s) {
        leg[static_cast<std::size_t>(s)].expanded = place.expanded;
    }
    refs = ListBookRows(book);
    return true;
}

int RegenerateLeg(PosBookData& book, BookRowRefs& refs, int listRow, bool addMidpoint) {
    if (!IsInList(refs, listRow)) {
        return 0;
    }
    const PosBookRowRef ref = refs[static_cast<std::size_t>(listRow)];
    const PosBookPlace* before = PlaceBefore(book, ref);
    if (before == nullptr) {
        return 0;
    }
    Rows added = RowsBetween(*before, PlaceOf(book, ref), addMidpoint);
    if (added.empty()) {
        return 0;
    }
    return AddRows(book, refs, listRow, std::move(added));
}

bool InsertBookRow(PosBookData& book, BookRowRefs& refs, int listRow, const GeoPoint& position) {
    const PosBookPlace* before =
        IsInList(refs, listRow) ? PlaceBefore(book, refs[static_cast<std::size_t>(listRow)]) : nullptr;
    if (before == nullptr) {
        return false;
    }
    const PosBookPlace& to = PlaceOf(book, refs[static_cast<std::size_t>(listRow)]);
    Rows added{RowBetween(*before, to, position.x, position.y)};
    added.back().name = kNewWaypoint;
    AddRows(book, refs, listRow, std::move(added));
    return true;
}

BookDeletion DeleteBookRow(PosBookData& book, BookRowRefs& refs, const BookTotals& totals, int listRow) {
    if (!IsInList(refs, listRow)) {
        return BookDeletion::Refused;
    }
    const PosBookRowRef ref = refs[static_cast<std::size_t>(listRow)];
    if (ref.sub == PosBookRowRef::kPort || IsPassed(totals, ref.port, ref.sub)) {
        return BookDeletion::Refused;
    }
    Rows& leg = PortOf(book, ref).rows;
    if (!IsPlain(leg, ref.sub)) {
        return BookDeletion::Refused;
    }
    leg.erase(leg.begin() + ref.sub);
    refs.erase(refs.begin() + listRow);
    ShiftRefs(refs, listRow, ref.port, -1);
    if (!IsInList(refs, listRow) || PlaceOf(book, refs[static_cast<std::size_t>(listRow)]).track != "GC") {
        return BookDeletion::Recompute;
    }
    return RegenerateLeg(book, refs, listRow, false) > 0 ? BookDeletion::Recompute : BookDeletion::Complete;
}

}  // namespace Tarvik::Seaplan
