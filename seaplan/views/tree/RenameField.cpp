// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/RenameField.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>
#include <utility>

#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

RenameField::RenameField(QWidget* surface) : QLineEdit(surface) {
    setObjectName(QStringLiteral("renameEditor"));
    hide();
}

void RenameField::SetReports(std::function<void()> done, std::function<void()> leave) {
    done_ = std::move(done);
    leave_ = std::move(leave);
}

void RenameField::Show(const Rect& place, const std::string& text, int maxUnits) {
    setMaxLength(maxUnits);
    setText(QString::fromStdString(text));
    setGeometry(ToQt(place));
    open_ = true;
    ++opening_;
    show();
    raise();
    setFocus();
    selectAll();
}

void RenameField::Hide() {
    open_ = false;
    hide();
    clear();
}

void RenameField::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !done_) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    done_();
    leave_();
}

void RenameField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (!open_ || !done_ || event->reason() == Qt::PopupFocusReason) {
        return;
    }
    // Taking the name may put a message box up, which must not begin while the keyboard is on its way.
    QTimer::singleShot(0, this, [this, opening = opening_] {
        if (open_ && opening == opening_) {
            done_();
        }
    });
}

}  // namespace Tarvik::Seaplan
