// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <tarvik/skin/SkinNames.h>

namespace Tarvik::Seaplan {

/// A field that opens over a row of a table or a tree. A key that it has no use for goes no further: to the
/// rows below it the same key means another row, a new one or the end of this one.
class RowField : public QLineEdit {
  public:
    explicit RowField(QWidget* surface) : QLineEdit(surface) {
        Skin::SkinWindow(*this, Skin::ControlClass::EditField, "voyageEdit");
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QLineEdit::keyPressEvent(event);
        event->accept();
    }
};

/// Whether a widget is `part`, stands in it, or is a menu that opened from it.
inline bool BelongsTo(const QWidget& part, const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr; at = at->parentWidget()) {
        const bool leavesItsWindow = at->isWindow() && at->windowType() != Qt::Popup;
        if (at == &part || leavesItsWindow) {
            return at == &part;
        }
    }
    return false;
}

/// Whether the keyboard only went to a menu of the field, from which it comes back.
inline bool LeftForItsMenu(const QWidget& field, const QFocusEvent& event) {
    const QWidget* menu = QApplication::activePopupWidget();
    return event.reason() == Qt::PopupFocusReason || (menu != nullptr && BelongsTo(field, *menu));
}

}  // namespace Tarvik::Seaplan
