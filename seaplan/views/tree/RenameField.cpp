// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/RenameField.h"

#include <QTimer>

#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/window/FloatingPanel.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

RenameField::RenameField(QWidget* surface) : RowField(surface) {
    setObjectName(QStringLiteral("renameEditor"));
    hide();
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (reports_.typed) {
            reports_.typed(text.toStdString());
        }
    });
}

void RenameField::Show(const Rect& place, const std::string& text, std::size_t limit) {
    PutWhole(*this, text, limit);
    setGeometry(ToQt(place));
    ++opening_;
    show();
    raise();
    setFocus();
    selectAll();
}

void RenameField::Hide() {
    hide();
    clear();
}

void RenameField::keyPressEvent(QKeyEvent* event) {
    if (reports_.key && reports_.key(PressOf(*event).key)) {
        reports_.leave();
    } else {
        RowField::keyPressEvent(event);
    }
}

void RenameField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (isHidden() || !reports_.done || LeftForItsMenu(*this, *event)) {
        return;
    }
    // Taking the name may put a message box up, which must not begin while the keyboard is on its way.
    QTimer::singleShot(0, this, [this, opening = opening_] {
        if (!isHidden() && opening == opening_) {
            reports_.done();
        }
    });
}

}  // namespace Tarvik::Seaplan
