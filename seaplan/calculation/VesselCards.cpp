// SPDX-License-Identifier: MIT
#include "seaplan/calculation/VesselCards.h"

#include "seaplan/calculation/Pointset.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

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
        // Rows of a schedule have no port ids, the dictionary has.
        card.vessel.firstPortName = voyage.portCalls.front().ppn;
        card.vessel.firstPortId = PortIdOf(voyage.portCalls.front().ppn);
        card.vessel.lastPortName = voyage.portCalls.back().ppn;
        card.vessel.lastPortId = PortIdOf(voyage.portCalls.back().ppn);
    }
    return card;
}

}  // namespace Tarvik::Seaplan
