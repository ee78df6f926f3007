// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Tarvik::Programs {

/// The pixels of a rectangle out of a picture in the form that Person::Look gives; empty when the rectangle
/// does not lie within it.
std::string Cut(const std::string& picture, int left, int top, int width, int height);

/// Writes a picture to the folder that the environment's SEAPLAN_TEST_PICTURES names, if it does.
void Keep(const std::string& name, const std::string& picture);

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
