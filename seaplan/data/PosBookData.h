// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/Purposes.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

/// What a waypoint and a port of the book have in common, as the panel holds them: km, km/h, hours and UTC.
struct PosBookPlace {
    double x = 0;  ///< longitude, degrees
    double y = 0;  ///< latitude, degrees
    std::string id;
    std::string name;
    double course = 0;     ///< degrees, from the place before
    double speed = 18.52;  ///< km/h, on the way to this place
    double weather = 0;    ///< fraction by which the speed is reduced
    int interval = 5;      ///< degrees of arc between the waypoints of a great circle, 1 to 5
    std::string track = "GC";
    Util::_datetime_t eta = Util::_datetime_t::gmt_now();
    Util::_datetime_t etd = Util::_datetime_t::gmt_now();
    bool expanded = false;  ///< the plain waypoints behind this place are shown in the list
};

/// One waypoint on the way to a port.
struct PosBookRow : PosBookPlace {
    int kind = PlainPoint;
    double aisSpeed = 0;  ///< km/h, only on points of the AIS track
};

/// One port with the waypoints that lead to it from the port before; the port itself is not among them.
struct PosBookPortRow : PosBookPlace {
    std::string purpose = kBallast;
    double portTime = 0;  ///< hours
    std::vector<PosBookRow> rows;
};

/// The position book as the panel works on it.
struct PosBookData {
    std::vector<PosBookPortRow> ports;
    bool crossesDateLine = false;
};

}  // namespace Tarvik::Seaplan
