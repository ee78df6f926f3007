// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/tests/PanelDesk.h"

/// The sea and the voyages that a walk begins with.
namespace Tarvik::Seaplan::Walk {

/// Names that a person types, the last of which no port has.
const std::vector<std::string>& TypedPorts();
/// Nautical miles of the way between two ports; no two ways are equally long. 0 for names of no way.
double MilesBetween(const std::string& from, const std::string& to);
/// Nautical miles by the route point that can be chosen instead, 0 where there is no choice.
double OtherMilesBetween(const std::string& from, const std::string& to);
/// Whether two names stand for one place.
bool IsOnePlace(const std::string& one, const std::string& other);
/// The ports that a calculation keeps: a neighbour at the same place as the row above goes. Indexes.
std::vector<std::size_t> KeptPorts(const std::vector<std::string>& names);

/// Puts a category with four voyages on the server: one without port calls, and three with some, of which one
/// is on the chart and one has a vessel at sea.
void Arrange(PanelDesk& desk);

}  // namespace Tarvik::Seaplan::Walk
