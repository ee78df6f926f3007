// SPDX-License-Identifier: MIT
#include "seaplan/calculation/WhatIf.h"

#include <cmath>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/Schedule.h"

/// Each answer changes start or speeds of a copy and works the schedule out anew, by the same pass as any
/// edit: so what is told is what the table shows when the answer is taken. Sums run in double; linear in the
/// rows.
namespace Tarvik::Seaplan {

namespace {

bool IsTarget(const PortCallRows& rows, std::size_t target) {
    return target >= 1 && target < rows.size();
}

WhatIfAnswer Schedule(const PortCallRows& rows, PortCallRows& out) {
    return RecomputeSchedule(rows, out) == 0 ? WhatIfAnswer::Found : WhatIfAnswer::NoSchedule;
}

}  // namespace

WhatIfAnswer LatestDeparture(const PortCallRows& rows, std::size_t target, const Util::_datetime_t& arrival,
                             PortCallRows& out) {
    out.clear();
    if (!IsTarget(rows, target)) {
        return WhatIfAnswer::NoSuchRow;
    }
    PortCallRows moved = rows;
    const std::int64_t shift = arrival.total_csecs() - rows[target].eta.total_csecs();
    moved.front().eta = Util::_datetime_t::from_csecs_days(rows.front().eta.total_csecs() + shift, 0);
    return Schedule(moved, out);
}

WhatIfAnswer OneSpeedFor(const PortCallRows& rows, std::size_t target, const Util::_datetime_t& arrival,
                         PortCallRows& out) {
    out.clear();
    if (!IsTarget(rows, target)) {
        return WhatIfAnswer::NoSuchRow;
    }
    double hours = Util::DateTimeUtl::Diff(arrival, rows.front().etd);
    double miles = 0;
    for (std::size_t i = 1; i <= target; ++i) {
        miles += static_cast<double>(rows[i].distance) / (1 - static_cast<double>(rows[i].pw));
        hours -= i < target ? static_cast<double>(rows[i].apt) : 0;
    }
    if (!(hours > 0) || !(miles > 0) || !std::isfinite(miles)) {
        return WhatIfAnswer::NoTime;
    }
    PortCallRows sailed = rows;
    for (std::size_t i = 1; i <= target; ++i) {
        sailed[i].psp = static_cast<float>(miles / hours);
    }
    return Schedule(sailed, out);
}

WhatIfAnswer WithOtherSpeeds(const PortCallRows& rows, std::size_t target, double knots, PortCallRows& out) {
    out.clear();
    if (!IsTarget(rows, target)) {
        return WhatIfAnswer::NoSuchRow;
    }
    PortCallRows sailed = rows;
    for (std::size_t i = 1; i <= target; ++i) {
        if (sailed[i].distance > 0) {
            sailed[i].psp = static_cast<float>(static_cast<double>(sailed[i].psp) + knots);
        }
    }
    return Schedule(sailed, out);
}

}  // namespace Tarvik::Seaplan
