// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Tarvik::Programs {

/// A patch of one colour in a picture.
struct Spot {
    int x = 0;  ///< middle of the patch
    int y = 0;
    int pixels = 0;
};

/// The patches of at least `least` joined pixels of exactly the colour 0x00RRGGBB, in the form that
/// Person::Look gives, from left to right.
std::vector<Spot> SpotsOf(const std::string& picture, std::uint32_t colour, int least);

}  // namespace Tarvik::Programs
