// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

/// Kind of a position book row, as stored in `pst`.
enum PointKind : int {
    PlainPoint = 0,
    LongIdRoutePoint = 2,
    ShortIdRoutePoint = 3,
    AisTrackPoint = 4,
    PortPoint = 5
};

/// One row of the position book.
struct PosBookPoint {
    std::string pointId;
    std::string psn;       ///< name
    std::string position;  ///< "x,y", longitude first, degrees
    std::string psr =
        "GC";     ///< how the leg to this row is sailed: "GC" great circle, any other text rhumb line
    int pli = 5;  ///< degrees of arc between the intermediate points of a great-circle leg
    SpeedKnots psp = 10.0F;  ///< speed to this row
    float course = 0;        ///< course from the previous row, degrees
    Util::_datetime_t eta;
    Util::_datetime_t etd;
    int pst = PlainPoint;
};

using BookPoints = std::vector<PosBookPoint>;

/// Header and rows of a voyage's waypoint list.
struct VoyPositionBook {
    std::string pbi;        ///< book id, called `psb` in commands; empty without a book on the server
    Util::_datetime_t eta;  ///< start time of the first row
    BookPoints points;
};

}  // namespace Tarvik::Seaplan
