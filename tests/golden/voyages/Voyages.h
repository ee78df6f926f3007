// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Golden {

/// A port of a voyage as a person types it.
struct Call {
    std::string port;
    float speed = 14.0F;  ///< knots on the leg that ends here
    float weather = 0;    ///< fraction by which the speed is reduced
    float stay = 0;       ///< hours in port
    /// Length of the leg in nautical miles as printed distance tables give it; 0 where none is compared.
    float tableDistance = 0;
};

/// A click on a route point of the calculated route, and on one of its alternatives.
struct Choice {
    std::string RoutePoint;
    std::string alternative;
};

/// A voyage to plan, save and draw.
struct Voyage {
    std::string name;  ///< of its folder
    std::vector<Call> calls;
    Util::_datetime_t start;    ///< arrival at the first port
    Util::_datetime_t drawnAt;  ///< present moment when the ship is placed
    std::vector<Choice> choices;
};

/// For messages of tests.
void PrintTo(const Voyage& voyage, std::ostream* out);

/// All golden voyages, every one over real ports.
const std::vector<Voyage>& AllVoyages();

}  // namespace Tarvik::Golden
