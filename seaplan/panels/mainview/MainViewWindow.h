// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/Rect.h"

namespace Tarvik::Seaplan {

/// The window of the voyage panel, with its filter popup.
class MainViewWindow {
  public:
    virtual ~MainViewWindow() = default;
    virtual bool IsVisible() const = 0;
    /// Moves the window to a rectangle of the screen.
    virtual void Place(const Rect& screen) = 0;
    virtual void Show() = 0;
    virtual void Hide() = 0;
    /// Sets caption and tool tips in the language in force and draws everything anew.
    virtual void ApplyTexts() = 0;
    /// Filter popup under its button.
    virtual bool FilterVisible() const = 0;
    virtual void ShowFilter(bool showDeleted) = 0;
    virtual void HideFilter() = 0;
    /// Asks the host's main window for a help topic in a window of this size.
    virtual void RequestHelp(const std::string& topic, int width, int height) = 0;
};

}  // namespace Tarvik::Seaplan
