// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "seaplan/data/PosBookData.h"
#include "seaplan/data/VoyInfo.h"

/// The position book between its stored form (knots, plan's zone) and the panel's (km/h, UTC).
namespace Tarvik::Seaplan {

/// The book of a voyage as ports with their waypoints. `aisSpeeds` (knots) go to the points of the AIS track
/// in order, while they last. 0; -1 fewer than two ports; -2 groups and ports differ in number; -3 a port
/// without rows; -4 a port without position; -5 a waypoint without position. On failure `out` is as it was.
int BookToPanel(const VoyInfo& voyage, PosBookData& out, const std::vector<float>& aisSpeeds);
/// Replaces the voyage's port calls and book rows by what the panel holds; positions are printed with four
/// decimals for ports and three for waypoints. 0; -1 fewer than two ports, with `out` as it was.
int PanelToBook(const PosBookData& in, VoyInfo& out);
/// Whether the book has points both east of 179 and west of -179 degrees.
bool CrossesDateLine(const PosBookData& book);

}  // namespace Tarvik::Seaplan
