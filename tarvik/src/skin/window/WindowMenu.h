// SPDX-License-Identifier: MIT
#pragma once

class QPoint;

namespace Tarvik::Skin {

class WindowSeat;

/// Opens the menu of a panel's place at a point of the screen, without waiting for it: docks, floats, moves
/// and sizes it by the keyboard, and brings it back to its usual place.
void OpenWindowMenu(WindowSeat& seat, const QPoint& at);

/// Leaves the window to the arrow keys, which move it, and with Shift size it, until Enter keeps the place,
/// Escape gives the former one back, or the window loses the keyboard.
void MoveByKeys(WindowSeat& seat);

}  // namespace Tarvik::Skin
