// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

#include <tarvik/skin/WindowPlace.h>

class QRect;
class QWidget;

namespace Tarvik::Skin {

class WindowSeat;

/// The middle of one main window and the panels that are docked there, in the order in which they came. It
/// moves and stretches them with the main window, each beside the ones before it.
class DockArea final : public QObject {
  public:
    /// That of a panel's main window, made when it is first asked for and owned by the main window.
    static DockArea& Of(QWidget& panel);

    /// All of the middle, on the screen.
    QRect Room() const;
    /// The edge near which a point of the screen is, None for a point that is near to none.
    Dock EdgeAt(const QPoint& pointer) const;
    /// Where a panel of this depth would stand that came now.
    QRect Preview(Dock dock, int depth) const;
    /// Puts the panel behind the others, or anew.
    void Add(WindowSeat& seat);
    void Remove(const WindowSeat& seat);
    /// Gives every docked panel on show its place.
    void LayOut();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    explicit DockArea(QWidget& main);
    /// What the docked panels leave of the middle.
    QRect Left() const;

    QWidget& main_;
    std::vector<WindowSeat*> seats_;
    QPointer<QObject> middle_;  ///< of which the size is watched
    bool laying_ = false;
};

}  // namespace Tarvik::Skin
