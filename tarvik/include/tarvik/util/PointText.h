// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tarvik/Export.h>
#include <tarvik/util/GeoPoint.h>

/// Places as texts "x,y", longitude first, as messages, files and chart records hold them. What people type
/// is read by TypedPosition.h.
namespace Tarvik::Util {

/// The halves of "x,y" as they stand; they see into the text.
struct PointHalves {
    std::string_view x;
    std::string_view y;
};

/// Cuts at the first comma; nothing without one.
TARVIK_API std::optional<PointHalves> SplitPoint(std::string_view text);
/// Reads "x,y" as the server's messages are read: a half that is no number is 0. Nothing without a comma.
TARVIK_API std::optional<GeoPoint> ReadPoint(std::string_view text);
/// Reads "x,y" with a point as decimal sign; blanks around the numbers are allowed. Nothing for anything
/// else: a missing comma or number, trailing text, values that are not finite. Limits are the caller's.
TARVIK_API std::optional<GeoPoint> ParsePoint(std::string_view text);
/// "x,y" with as many decimals each.
TARVIK_API std::string PointText(const GeoPoint& point, int decimals);
/// The same with as few decimals as tell the number so rounded, and never "-0".
TARVIK_API std::string ShortPointText(const GeoPoint& point, int mostDecimals);

}  // namespace Tarvik::Util
