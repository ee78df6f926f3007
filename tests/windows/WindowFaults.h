// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace Tarvik::WindowTesting {

/// What a person would see wrong in a window that is on show, a line each: controls by their object names.
struct WindowFaults {
    /// Whether all of the window is on its screen.
    static QStringList OffScreen(const QWidget& window);
    /// Texts of labels, buttons, fields' hints and titles of columns that their control shows in part only,
    /// and no tool tip tells whole.
    static QStringList CutTexts(const QWidget& window);
    /// Controls that take the keyboard and look the same with it. Gives the keyboard to each of them in turn,
    /// in a window that must be the active one; work of the event loop is done meanwhile.
    static QStringList UnseenFocus(QWidget& window);
};

}  // namespace Tarvik::WindowTesting
