// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <utility>

#include "seaplan/views/editors/QtKeys.h"

namespace Tarvik::Seaplan {

/// Reports keys that no control of some windows has taken. A shortcut of the same key would be ambiguous with
/// that of a panel over the main window, whose shortcuts count in its panels as well.
class KeysOfWindows final : public QObject {
  public:
    /// `key` answers whether the key meant something. A null window counts for nothing.
    KeysOfWindows(std::initializer_list<QWidget*> windows, std::function<bool(KeyPress)> key)
        : key_(std::move(key)) {
        for (QWidget* window : windows) {
            if (window != nullptr) {
                window->installEventFilter(this);
            }
        }
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        return (event->type() == QEvent::KeyPress && key_(PressOf(*static_cast<QKeyEvent*>(event)))) ||
               QObject::eventFilter(watched, event);
    }

  private:
    std::function<bool(KeyPress)> key_;
};

}  // namespace Tarvik::Seaplan
