// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/Purposes.h"

namespace Tarvik::Seaplan {

// The units of all schedule work. A field or argument with a number of another unit names it.
using SpeedKnots = float;
using LengthNm = float;
using TimeHours = float;

/// One row of the port call table. Numbers are 32-bit floats: an expression runs in double and is rounded
/// once on storing. Standard units: knots, nautical miles, hours; times in the plan's reading (the user's
/// zone).
struct VoyPortCall {
    std::string ppi;              ///< port id
    std::string ppn;              ///< port name
    std::string pp = kDischarge;  ///< purpose code; kAisPurpose marks a position of the ship by AIS
    SpeedKnots psp = 10.0F;       ///< speed of the leg that ends here
    float pw = 0;  ///< weather factor, a fraction from 0 to 0.9999999, by which the speed is reduced
    TimeHours steamTime = 0;  ///< at sea on the leg that ends here
    TimeHours apt = 0;        ///< in port
    Util::_datetime_t eta;
    Util::_datetime_t etd;
    LengthNm distance = 0;  ///< length of the leg that ends here
};

using PortCallRows = std::vector<VoyPortCall>;

}  // namespace Tarvik::Seaplan
