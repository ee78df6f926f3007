// SPDX-License-Identifier: MIT
#include "seaplan/calculation/VesselCards.h"

#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/calculation/Pointset.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kEnglish = 1033;

/// Rows of a schedule have no port ids, the dictionary has.
std::string PortIdOf(const VoyPortCall& row) {
    return Interface::GetNameByValue("/points", row.ppn, kEnglish);
}

}  // namespace

Interface::VesselCard VesselCardOf(const VoyInfo& voyage, const std::string& position,
                                   const Util::_datetime_t& now) {
    Interface::VesselCard card;
    card.vi = voyage.vi;
    card.vsi = voyage.vsi;
    card.vsn = voyage.vsn;
    if (Position place; ReadPosition(position, 0, place)) {
        card.vessel.x = place.x;
        card.vessel.y = place.y;
    }
    card.vessel.time = GmtTimerOfPlanTime(now);
    if (!voyage.portCalls.empty()) {
        card.vessel.firstPortName = voyage.portCalls.front().ppn;
        card.vessel.firstPortId = PortIdOf(voyage.portCalls.front());
        card.vessel.lastPortName = voyage.portCalls.back().ppn;
        card.vessel.lastPortId = PortIdOf(voyage.portCalls.back());
    }
    return card;
}

}  // namespace Tarvik::Seaplan
