// SPDX-License-Identifier: MIT
#include "host/plugins/ais/services/ShipLayer.h"

#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Ais {

namespace {

constexpr double kMoves = 0.5;                   ///< knots from which the course says where the bow is
constexpr std::int32_t kOtherColour = 0x606060;  ///< 0x00BBGGRR
/// Colours by the tens of the ship type: passengers, cargo, tankers, fast craft; 0x00BBGGRR.
constexpr std::pair<int, std::int32_t> kColours[] = {
    {4, 0x00A5D0}, {6, 0xB06020}, {7, 0x3C8C3C}, {8, 0x2828B4}};

std::int32_t ColourOf(int shipType) {
    for (const auto& [tens, colour] : kColours) {
        if (shipType / 10 == tens) {
            return colour;
        }
    }
    return kOtherColour;
}

double BowOf(const Fix& fix) {
    if (fix.heading >= 0) {
        return fix.heading;
    }
    return fix.speed >= kMoves ? fix.course : -1;
}

}  // namespace

std::string TitleOf(const Vessel& vessel) {
    return vessel.particulars.name.empty() ? std::to_string(vessel.mmsi) : vessel.particulars.name;
}

Interface::TrvMapShip ShipOf(const Vessel& vessel) {
    Interface::TrvMapShip ship;
    ship.id = std::to_string(vessel.mmsi);
    ship.tip = TitleOf(vessel);
    if (vessel.last.speed >= 0) {
        ship.tip += Util::StringUtl::Format("\n%.1f kn", vessel.last.speed);
    }
    if (vessel.last.course >= 0) {
        ship.tip += Util::StringUtl::Format(" %03.0f°", vessel.last.course);
    }
    ship.x = vessel.last.longitude;
    ship.y = vessel.last.latitude;
    ship.heading = BowOf(vessel.last);
    ship.colour = ColourOf(vessel.particulars.shipType);
    return ship;
}

void ShipLayer::Show(bool shown, std::int64_t now) {
    const bool hides = shown_ && !shown;
    shown_ = shown;
    if (hides) {
        const Interface::TrvMapShips none{kType, {}};
        Interface::Call(Interface::Bus::MapSetShips, &none);
    }
    Draw(now);
}

void ShipLayer::Draw(std::int64_t now) {
    if (!shown_) {
        return;
    }
    Interface::TrvMapShips ships{kType, {}};
    for (const Vessel& vessel : traffic_.HeardSince(now - kLongestSilence)) {
        ships.ships.push_back(ShipOf(vessel));
    }
    Interface::Call(Interface::Bus::MapSetShips, &std::as_const(ships));
}

}  // namespace Tarvik::Ais
