// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

namespace Tarvik::Seaplan {

/// Disables a window, or a part of one, while a box is up. The window system takes the keyboard away from
/// whatever is disabled and does not bring it back; this does.
class KeptFocus {
  public:
    /// False when the keyboard was in `widget` and cannot return to where it was: that is gone or off.
    bool SetEnabled(QWidget& widget, bool enabled);

  private:
    QPointer<QWidget> focus_;
    bool kept_ = false;
};

}  // namespace Tarvik::Seaplan
