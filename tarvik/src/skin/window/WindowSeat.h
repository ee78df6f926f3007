// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <optional>

#include <tarvik/skin/WindowPlace.h>

namespace Tarvik::Skin {

class DockArea;

/// Where one panel stands: as the program wants until a person moves, sizes or docks it, then as the person
/// wants, also after the next start.
class WindowSeat {
  public:
    explicit WindowSeat(QWidget& window) : window_(window) {}
    ~WindowSeat();
    WindowSeat(const WindowSeat&) = delete;
    WindowSeat& operator=(const WindowSeat&) = delete;

    QWidget& Window() const { return window_; }
    /// A person may change its size.
    void SetResizable() { resizable_ = true; }
    bool IsResizable() const { return resizable_; }
    Dock Docked() const { return place_.dock; }
    /// How far it reaches from its edge when it is docked there, in pixels.
    int DepthAt(Dock dock) const;

    /// The program's place for it, kept on the screen. Nothing for a window that a person has placed.
    void PlaceByRule(const QRect& wanted);
    /// The same with the window's own size.
    void MoveByRule(const QPoint& corner);
    /// Before it is shown: the person's place, or the program's, wholly on the screen.
    void TakeSeat();
    /// A person puts the window there while the mouse or a key is held; Keep() ends it.
    void MoveTo(const QRect& wanted);
    /// Docks it by a person's wish; None lets it float where it floated before.
    void DockAt(Dock dock);
    /// A docked panel floats with its own size, its caption below the pointer that drags it. Where it is
    /// then.
    QRect TearOff(const QPoint& pointer);
    /// Writes down what the person has chosen.
    void Keep();
    /// Back to where the program wants it.
    void GoBackToRule();
    /// From the dock area: the window's place there.
    void Sit(const QRect& room);

  private:
    DockArea& Area();
    void Leave();
    /// With a size that the screen has room for, or its own where it cannot be changed.
    QRect Bounded(const QRect& wanted) const;

    QWidget& window_;
    QPointer<DockArea> area_;
    WindowPlace place_;
    std::optional<QRect> rule_;  ///< where the program wanted it last
    QSize usual_;                ///< its size when it was first shown
    bool resizable_ = false;
    bool chosen_ = false;  ///< by a person
    bool read_ = false;    ///< what was kept
};

}  // namespace Tarvik::Skin
