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
    V,
    Undo  ///< what the window system has for it, Ctrl+Z
};

/// A key with the keys held beside it.
struct KeyPress {
    Key key = Key::Other;
    bool alt = false;
    bool ctrl = false;       ///< alone
    bool ctrlShift = false;  ///< these two alone
    bool held = false;       ///< pressed before, and not let go since
    bool shift = false;      ///< alone
};

/// Whether a key is a table's while that has the keyboard, though the client has a command under it as well:
/// Ctrl+D fills a column down, and opens the port distance table from everywhere else.
inline bool BelongsToTable(KeyPress press) {
    return press.ctrl && press.key == Key::D;
}

/// Where a key leads while rows of a table are chosen: to the row above or below the one in front, up to
/// which all are chosen then from the row where choosing began. None for a key that chooses nothing.
enum class ChoosingStep { None, Above, Below };
inline ChoosingStep StepOfChoosing(KeyPress press) {
    if (press.shift && press.key == Key::Up) {
        return ChoosingStep::Above;
    }
    return press.shift && press.key == Key::Down ? ChoosingStep::Below : ChoosingStep::None;
}

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

/// What a key does in a choice popup: goes to the line before or behind, or presses the line with the
/// keyboard.
enum class ChoiceStep { None, Before, Behind, Press };
inline ChoiceStep StepOfKey(Key key) {
    switch (key) {
        case Key::Up:
        case Key::Left:
            return ChoiceStep::Before;
        case Key::Down:
        case Key::Right:
            return ChoiceStep::Behind;
        case Key::Enter:
            return ChoiceStep::Press;
        default:
            return ChoiceStep::None;
    }
}

}  // namespace Tarvik::Seaplan
