// SPDX-License-Identifier: MIT
#include "seaplan/data/VoyInfo.h"

namespace Tarvik::Seaplan {

VoyageStatus StatusAt(const PortCallRows& portCalls, const Util::_datetime_t& now) {
    if (portCalls.empty() || portCalls.front().etd > now) {
        return VoyageStatus::Plan;
    }
    if (portCalls.front().etd < now && portCalls.back().eta > now) {
        return VoyageStatus::Underway;
    }
    return VoyageStatus::Finished;
}

}  // namespace Tarvik::Seaplan
