// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

/// The window system's key as panels know keys.
inline KeyPress PressOf(const QKeyEvent& event) {
    constexpr struct {
        int qt;
        Key key;
    } kKeys[] = {
        {Qt::Key_Tab, Key::Tab},       {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},
        {Qt::Key_Escape, Key::Escape}, {Qt::Key_Up, Key::Up},         {Qt::Key_Down, Key::Down},
        {Qt::Key_Left, Key::Left},     {Qt::Key_Right, Key::Right},   {Qt::Key_Home, Key::Home},
        {Qt::Key_End, Key::End},       {Qt::Key_PageUp, Key::PageUp}, {Qt::Key_PageDown, Key::PageDown},
        {Qt::Key_Space, Key::Space},   {Qt::Key_Insert, Key::Insert}, {Qt::Key_F2, Key::F2},
        {Qt::Key_F9, Key::F9},         {Qt::Key_Delete, Key::Delete}, {Qt::Key_Backspace, Key::Backspace},
        {Qt::Key_S, Key::S},           {Qt::Key_D, Key::D},           {Qt::Key_V, Key::V}};
    const auto beside = event.modifiers() & ~Qt::KeypadModifier;
    KeyPress press{.key = event.matches(QKeySequence::Undo) ? Key::Undo : Key::Other,
                   .alt = beside.testFlag(Qt::AltModifier),
                   .ctrl = beside == Qt::ControlModifier,
                   .ctrlShift = beside == (Qt::ControlModifier | Qt::ShiftModifier),
                   .held = event.isAutoRepeat(),
                   .shift = beside == Qt::ShiftModifier};
    for (const auto& known : kKeys) {
        if (known.qt == event.key()) {
            press.key = known.key;
        }
    }
    return press;
}

/// Whether a key closes a dialog: a report of its window.
inline bool KeyClosesDialog(const QKeyEvent& event) {
    return ClosesDialog(PressOf(event));
}

/// The printable text of a key, empty for a key that begins a command or has none.
inline QString TextOf(const QKeyEvent& event) {
    const bool command =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString text = event.text();
    return command || text.isEmpty() || !text.front().isPrint() ? QString() : text;
}

}  // namespace Tarvik::Seaplan
