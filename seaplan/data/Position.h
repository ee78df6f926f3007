// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <tarvik/util/GeoPoint.h>

/// Places, and their texts "x,y": longitude first, in degrees.
namespace Tarvik::Seaplan {

using Util::GeoPoint;

/// Places as texts.
using PointTexts = std::vector<std::string>;

/// Reads "x,y" with the comma at index `leastComma` or behind; a part that is no number reads as 0. False,
/// with `out` as it was, for another text.
bool ReadPosition(const std::string& text, std::size_t leastComma, GeoPoint& out);
/// "x,y" with as many decimals each; the plan tells its places with three.
std::string PositionText(const GeoPoint& position, int decimals = 3);
/// Points of "x,y|x,y|..." without the empty ones. False when the text cannot be split.
bool SplitPointset(const std::string& pointset, PointTexts& points);
/// Length of a point set in km, summed in 32-bit float; points behind the first that have no comma are left
/// out. 0; -2 no points; -3 first point without comma. An empty text has length 0.
int PointsetLength(const std::string& pointset, float& km);

}  // namespace Tarvik::Seaplan
