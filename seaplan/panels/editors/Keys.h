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
    Home,
    End,
    PageUp,
    PageDown,
    F2,
    F9,
    S,
    D,
    V
};

/// A key with the keys held beside it.
struct KeyPress {
    Key key = Key::Other;
    bool alt = false;
    bool ctrl = false;
};

/// Keys that mean the same over the cells of every table: Enter and F2 press the cell in front, Escape takes
/// what is typed and closes what is open. False for any other key.
template <class Editing>
bool OnCellKey(Editing& editing, KeyPress press, int row, int column) {
    switch (press.key) {
        case Key::Enter:
        case Key::F2:
            editing.OnCellClicked(row, column);
            return true;
        case Key::Escape:
            editing.CommitEditors();
            return true;
        default:
            return false;
    }
}

/// Whether a key that no control has taken closes a dialog, as its close button does.
inline bool ClosesDialog(KeyPress press) {
    return press.key == Key::Escape;
}

}  // namespace Tarvik::Seaplan
