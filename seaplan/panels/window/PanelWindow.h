// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/window/BoxOwner.h"
#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// What every floating panel asks of its window; a panel's own interface adds what is in the window. Where a
/// window stands is the panel's rule. It reports to its panel: help, closing, and a press on its surface.
class PanelWindow : public BoxOwner {
  public:
    virtual bool IsVisible() const = 0;
    /// Shows the window on top of the others, with the keyboard in its first control.
    virtual void Show() = 0;
    virtual void Hide() = 0;
    /// Moves the window to a rectangle of the screen.
    virtual void Place(const Rect& screen) = 0;
    /// Moves the window, which keeps its size, to a left top corner on the screen.
    virtual void MoveTo(Point corner) = 0;
    virtual Rect PlaceOnScreen() const = 0;
    /// `changed` puts the mark of unsaved changes behind the text.
    virtual void SetCaption(const std::string& text, bool changed) = 0;
    /// Captions, hints and titles in the language in force; everything is drawn anew.
    virtual void ApplyTexts() = 0;
    /// Asks the host's main window for a help topic in a window of this size, in pixels.
    virtual void RequestHelp(const std::string& topic, int width, int height) = 0;
};

/// Size in pixels of the help window of the voyage panel and of the port call panel.
inline constexpr int kHelpWidth = 370;
inline constexpr int kHelpHeight = 440;

/// Where a panel stands that opens beside the tree, which covers `tree` of the screen.
constexpr Point BesideTree(const Rect& tree) {
    constexpr int kGap = 9;
    constexpr int kBelowTop = 30;
    return {tree.right + kGap, tree.top + kBelowTop};
}

/// Left top corner of a window of this size in the middle of a place.
constexpr Point Centred(const Rect& place, const Rect& window) {
    return {place.left + (place.right - place.left - (window.right - window.left)) / 2,
            place.top + (place.bottom - place.top - (window.bottom - window.top)) / 2};
}

}  // namespace Tarvik::Seaplan
