// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>

#include "seaplan/views/editors/QtKeys.h"

namespace Tarvik::Seaplan {

/// Reports the keys of one control before it sees them itself. What the panel has a meaning for goes no
/// further.
class KeyReport final : public QObject {
  public:
    /// True for a key that was taken.
    using Report = std::function<bool(KeyPress)>;

    /// Belongs to the control from then on.
    KeyReport(QWidget& control, Report report) : QObject(&control), report_(std::move(report)) {
        control.installEventFilter(this);
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        return event->type() == QEvent::KeyPress && report_(PressOf(*static_cast<QKeyEvent*>(event)));
    }

  private:
    Report report_;
};

}  // namespace Tarvik::Seaplan
