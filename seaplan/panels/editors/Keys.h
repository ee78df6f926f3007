// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// A key that a window reports; what it means, the panel decides.
enum class Key {
    Other,
    Tab,
    Enter,
    Escape,
    Backspace,
    Delete,
    Insert,
    Space,
    Up,
    Down,
    Left,
    Right,
    F2,
    F9,
    S
};

/// A key with the keys held beside it.
struct KeyPress {
    Key key = Key::Other;
    bool alt = false;
    bool ctrl = false;
};

}  // namespace Tarvik::Seaplan
