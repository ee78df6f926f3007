// SPDX-License-Identifier: MIT
#pragma once

/// Measures in pixels that all tables of the panels share.
namespace Tarvik::Seaplan {

inline constexpr int kTableRow = 20;     ///< height of a row
inline constexpr int kTableHeader = 34;  ///< height of the titles

}  // namespace Tarvik::Seaplan
