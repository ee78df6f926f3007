// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Reading positions "x,y" and lists of them.
namespace Tarvik::Seaplan {

/// Longitude and latitude in degrees.
struct Position {
    double x = 0;
    double y = 0;
};

/// Positions as texts "x,y", longitude first, in degrees.
using PointTexts = std::vector<std::string>;

/// Points of "x,y|x,y|..." without the empty ones. False when the text cannot be split.
bool SplitPointset(const std::string& pointset, std::vector<std::string>& points);
/// Reads "x,y" with the comma at index `leastComma` or behind; a part that is no number reads as 0.
bool ReadPosition(const std::string& text, std::size_t leastComma, Position& out);

}  // namespace Tarvik::Seaplan
