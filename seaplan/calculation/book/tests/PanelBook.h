// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "seaplan/data/PosBookData.h"

/// Short forms for books as the panel holds them.
namespace Tarvik::Seaplan::Testing {

/// A waypoint on the equator unless a latitude is given, sailed by rhumb line at 18.52 km/h.
inline PosBookRow Waypoint(double x, double y = 0, int kind = PlainPoint) {
    PosBookRow row;
    row.x = x;
    row.y = y;
    row.track = "RL";
    row.kind = kind;
    return row;
}

inline PosBookPortRow PortAt(double x, double y = 0, std::vector<PosBookRow> rows = {}) {
    PosBookPortRow port;
    port.x = x;
    port.y = y;
    port.track = "RL";
    port.name = "P" + std::to_string(static_cast<int>(x));
    port.rows = std::move(rows);
    return port;
}

/// A book that starts at noon UTC on the first of March 2026.
inline PosBookData BookOf(std::vector<PosBookPortRow> ports) {
    PosBookData book;
    book.ports = std::move(ports);
    if (!book.ports.empty()) {
        book.ports.front().eta = Util::_datetime_t(0, 0, 12, 1, 3, 2026);
        book.ports.front().etd = book.ports.front().eta;
    }
    return book;
}

}  // namespace Tarvik::Seaplan::Testing
