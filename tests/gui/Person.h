// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::Programs {

/// Mouse, keyboard and eyes of a person before a display. What is waited for in vain throws, so that a test
/// ends there.
class Person {
  public:
    explicit Person(std::string display) : display_(std::move(display)) {}

    /// The number of the visible window of a given title once it is there.
    std::string AwaitWindow(const std::string& title) const;
    /// Waits until so many visible windows have the title.
    void AwaitWindows(const std::string& title, long count) const;
    /// Waits until no visible window has the title.
    void AwaitGone(const std::string& title) const { AwaitWindows(title, 0); }
    /// Presses the left button at a place within a window.
    void PressAt(const std::string& window, int x, int y) const;
    /// The same, and waits until the window takes the keys. Not where the press opens another window.
    void Click(const std::string& window, int x, int y) const;
    /// Opens the menu of what is at a place within a window with the right button, and presses the left one
    /// at a part of the menu's height.
    void ChooseInMenu(const std::string& window, int x, int y, double part) const;
    /// Waits until a window takes the keys.
    void AwaitKeys(const std::string& window) const;
    /// Drags a panel by its caption until its corner stands at a place of the screen.
    void Drag(const std::string& window, int x, int y) const;
    /// Types into the window that takes the keys.
    void Type(const std::string& text) const;
    /// Presses keys one after the other, as "ctrl+a" or "Return".
    void Press(const std::vector<std::string>& keys) const;
    /// The pixels of a window as they are on the screen.
    std::string Look(const std::string& window) const;
    /// Waits until the pixels of a window are other than `before` and stay the same from one look to the
    /// next.
    std::string LookForChange(const std::string& window, const std::string& before) const;
    /// Writes what is on the screen to a PNG file.
    void Photograph(const std::string& file) const;

  private:
    std::string Xdotool(std::vector<std::string> words) const;
    std::string WindowAtPointer() const;

    std::string display_;
};

}  // namespace Tarvik::Programs
