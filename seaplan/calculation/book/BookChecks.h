// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/util/TypedPosition.h>

#include "seaplan/calculation/book/BookRecompute.h"
#include "seaplan/data/PosBookData.h"
#include "seaplan/data/Position.h"

/// Checks of what a person types into the position book.
namespace Tarvik::Seaplan {

using Util::Axis;

/// Why a value is refused; each has a message of its own.
enum class BookRefusal { None, NotANumber, Latitude, Longitude, Speed, Date };

/// Whether a text is one leading "-" at most, then digits, commas and at most one ".". Legal: "", "-", "12",
/// "-1.5", "1,5" (which reads as 1). Illegal: ".", "-.", "1.2.3", " 1", "1e3", "+1", 1024 characters behind
/// the sign or more.
bool IsNumberText(const std::string& text);
/// Degrees above -90 and below 90 of latitude, above -180 and below 180 of longitude.
BookRefusal CheckDegrees(double degrees, Axis axis);
/// The same of a text: what counts as a number is read as it says, another one as ReadTypedDegrees does;
/// `value` is set when nothing is wrong.
BookRefusal CheckDegreesText(const std::string& text, Axis axis, double& value);
/// A text typed into one coordinate of a position, or a whole position there; the other coordinate stays
/// where only one is told. `position` is set when nothing is wrong.
BookRefusal CheckPosition(const std::string& text, Axis axis, GeoPoint& position);
/// A speed in the unit on show, above 0 and up to 50 knots or 92.6 km/h; `value` is in km/h.
BookRefusal CheckSpeed(const std::string& text, BookSpeedUnit unit, double& value);
/// Takes `time` (UTC) as the port's departure: its stay becomes what lies between arrival and `time`.
/// Refused, with the port as it was, for a time before the arrival.
BookRefusal ChangeDeparture(const Util::_datetime_t& time, PosBookPortRow& port);

}  // namespace Tarvik::Seaplan
