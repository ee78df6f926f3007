// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "seaplan/data/VoyPortCall.h"

/// The questions of an estimator about a schedule that stands: each gives the rows as they would be. Rows are
/// in knots, nautical miles and hours with the distances of their legs; `target` is the row whose arrival is
/// asked about, from 1 to the last. The answers have no port ids. After a failure `out` is empty.
namespace Tarvik::Seaplan {

enum class WhatIfAnswer {
    Found,
    NoSuchRow,  ///< `target` is none
    NoTime,     ///< the stays before it leave no time to sail
    NoSchedule  ///< the speeds or times make no schedule
};

/// The latest start with which `target` is reached at `arrival` when all speeds and stays hold:
/// start' = start + (arrival - ETA of target). All times move by that.
WhatIfAnswer LatestDeparture(const PortCallRows& rows, std::size_t target, const Util::_datetime_t& arrival,
                             PortCallRows& out);
/// One speed s in knots for all legs up to `target` with which it is reached at `arrival`, the stays and
/// weather factors w of its legs as they are:
/// s = sum(distance / (1 - w)) / (arrival - departure - sum(stays between)). Legs behind it keep theirs.
WhatIfAnswer OneSpeedFor(const PortCallRows& rows, std::size_t target, const Util::_datetime_t& arrival,
                         PortCallRows& out);
/// The rows with the speed of each leg up to `target` changed by so many knots; legs without distance keep
/// theirs.
WhatIfAnswer WithOtherSpeeds(const PortCallRows& rows, std::size_t target, double knots, PortCallRows& out);

}  // namespace Tarvik::Seaplan
