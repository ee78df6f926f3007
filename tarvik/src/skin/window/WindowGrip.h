// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QRubberBand>

#include <tarvik/skin/WindowPlace.h>

class QMouseEvent;

namespace Tarvik::Skin {

class WindowSeat;

/// The mouse on a panel's free surface: it drags the panel, by an edge or a corner it sizes it, and at an
/// edge of the main window it docks it; Ctrl keeps it from docking.
class WindowGrip {
  public:
    explicit WindowGrip(WindowSeat& seat) : seat_(seat) {}
    ~WindowGrip();
    WindowGrip(const WindowGrip&) = delete;
    WindowGrip& operator=(const WindowGrip&) = delete;

    void Press(const QMouseEvent& event);
    void Drag(const QMouseEvent& event);
    void Release();
    /// The pointer over a point of the window: its shape tells what a press would do.
    void Hover(const QPoint& point);

  private:
    Qt::Edges EdgesAt(const QPoint& point) const;
    void Size(const QPoint& by);
    void Move(const QPoint& pointer, bool docks);
    void ShowOutline();

    WindowSeat& seat_;
    Qt::Edges edges_;
    QPoint pressed_;  ///< on the screen
    QRect before_;    ///< the window when it was pressed
    Dock target_ = Dock::None;
    QPointer<QRubberBand> outline_;
    bool held_ = false;
    bool moved_ = false;
};

}  // namespace Tarvik::Skin
