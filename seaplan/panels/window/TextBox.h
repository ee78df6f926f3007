// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// A box for one text over a part of a window.
class TextBox {
  public:
    virtual ~TextBox() = default;
    /// Opens the box at a place of its window: filled, focused, all selected. It takes at most `maxUnits`
    /// UTF-16 units.
    virtual void Show(const Rect& place, const std::string& text, int maxUnits) = 0;
    virtual void Hide() = 0;
    virtual bool IsVisible() const = 0;
    virtual std::string Text() const = 0;
};

}  // namespace Tarvik::Seaplan
