// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace Tarvik::Seaplan {

/// Place of each figure; dialog and wire keep this order.
enum BunkerIndex : int { Vfn = 0, Vff, Vfa, Vdn, Vda, Vwn, Vwa, BunkerFigureCount };

/// Daily consumption in kg/day: fuel oil in ballast, laden, in port; diesel oil under way, in port; fresh
/// water under way, in port.
using BunkerFigures = std::array<int, BunkerFigureCount>;

}  // namespace Tarvik::Seaplan
