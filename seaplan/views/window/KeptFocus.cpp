// SPDX-License-Identifier: MIT
#include "seaplan/views/window/KeptFocus.h"

#include <utility>

namespace Tarvik::Seaplan {

bool KeptFocus::SetEnabled(QWidget& widget, bool enabled) {
    if (!enabled && widget.isEnabled()) {
        QWidget* focus = widget.window()->focusWidget();
        kept_ = focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
        focus_ = kept_ ? focus : nullptr;
    }
    widget.setEnabled(enabled);
    if (!enabled || !std::exchange(kept_, false)) {
        return true;
    }
    if (focus_.isNull() || !focus_->isVisible() || !focus_->isEnabled()) {
        return false;
    }
    focus_->setFocus();
    return true;
}

}  // namespace Tarvik::Seaplan
