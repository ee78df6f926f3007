// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// A box for one text over a part of a window. Whether it is open and what stands in it its panel keeps in a
/// TextField; the box reports what is typed, Enter, and that the keyboard has left it.
class TextBox {
  public:
    virtual ~TextBox() = default;
    /// Opens the box at a place, of its window where its owner tells no other: filled with the whole text,
    /// focused, all selected. At most `limit` UTF-16 units can be typed.
    virtual void Show(const Rect& place, const std::string& text, std::size_t limit) = 0;
    /// Closes it without a report.
    virtual void Hide() = 0;
};

}  // namespace Tarvik::Seaplan
