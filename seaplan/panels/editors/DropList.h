// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// Width of the one column of a list that drops from a field or a cell, in pixels.
inline constexpr int kDropListColumn = 130;
/// Height of one of its rows.
inline constexpr int kDroppedRow = 23;

/// A small borderless list of one column without a heading, which drops from a field or a cell. It never
/// takes the keyboard by itself. What it holds its panel class tells; it reports a click on a row, and Enter.
class DropList {
  public:
    virtual ~DropList() = default;
    /// Shows the texts at a place of the screen, one of them in front, -1 for none. A list with more rows
    /// than have room scrolls.
    virtual void ShowList(const Rect& screen, const std::vector<std::string>& texts, int current) = 0;
    virtual void HideList() = 0;
    /// Gives the keyboard to the list on show, with this row in front.
    virtual void FocusList(int row) = 0;
};

}  // namespace Tarvik::Seaplan
