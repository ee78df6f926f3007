// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "seaplan/panels/texts/TextId.h"

namespace Tarvik::Seaplan {

/// One line of a choice popup; its text's number is also its id.
struct Choice {
    TextId id{};
    bool ticked = false;
    bool operator==(const Choice&) const = default;
};

/// Width of every choice popup in pixels.
inline constexpr int kChoiceWidth = 180;

/// A small borderless window with check or radio buttons, in the place that belongs to it: below its button,
/// or at the pointer. It hides by itself when it loses the activation, and reports what is pressed.
class ChoicePopup {
  public:
    virtual ~ChoicePopup() = default;
    /// Shows the choices, or renews those on show, in the language in force.
    virtual void SetChoices(const std::vector<Choice>& choices) = 0;
    /// `width` and `height` in pixels.
    virtual void Show(int width, int height) = 0;
    virtual void Hide() = 0;
    virtual bool IsVisible() const = 0;
};

}  // namespace Tarvik::Seaplan
