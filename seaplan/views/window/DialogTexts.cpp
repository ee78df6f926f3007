// SPDX-License-Identifier: MIT
#include "seaplan/views/window/DialogTexts.h"

#include <QAction>
#include <QMenu>
#include <optional>

#include "seaplan/views/window/KeyAtOnce.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kNumber = "textNumber";

/// The text that a control, title or entry of a menu is tied to; nothing for one that keeps its own.
std::optional<QString> TiedText(const QObject& object) {
    const QVariant number = object.property(kNumber);
    const char* key = number.isValid() ? TextKeyOf(number.toInt()) : nullptr;
    return key == nullptr ? std::nullopt : std::optional(QString::fromStdString(TextOfKey(key)));
}

/// Labels, buttons and boxes of this window system keep what they show in a property of this name. A new text
/// takes a button's key away, which it gets back.
void PutText(QWidget& control, const QString& text) {
    auto* button = qobject_cast<QAbstractButton*>(&control);
    const QKeySequence key = button == nullptr ? QKeySequence() : button->shortcut();
    control.setProperty("text", text);
    if (!key.isEmpty()) {
        button->setShortcut(key);
    }
}

/// Entries keep their places; a sub-menu's own title is the text of its entry.
void ApplyTo(const QList<QAction*>& entries) {
    for (QAction* entry : entries) {
        if (const auto text = TiedText(*entry)) {
            entry->setText(*text);
        }
        if (entry->menu() != nullptr) {
            ApplyTo(entry->menu()->actions());
        }
    }
}

}  // namespace

void TieText(QWidget& control, TextId id) {
    control.setProperty(kNumber, static_cast<int>(id));
}

void TieKey(QAbstractButton& button, const QKeySequence& key) {
    button.setShortcut(key);
    if (button.findChild<QObject*>(QString::fromLatin1(KeyAtOnce::kName)) == nullptr) {
        new KeyAtOnce(button);
    }
}

void DialogTexts::ApplyLanguage(QWidget& window) {
    ApplyDialogTexts(window);
    ApplyMenuTexts(window);
    ApplyReservedTexts(window);
    ApplyReservedLooks(window);
    ApplyClassTexts(window);
    window.update();
    for (QWidget* child : window.findChildren<QWidget*>()) {
        child->update();
    }
}

void DialogTexts::ApplyDialogTexts(QWidget& window) {
    if (const auto title = TiedText(window)) {
        window.setWindowTitle(*title);
    }
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (const auto text = TiedText(*child)) {
            PutText(*child, *text);
        }
    }
}

void DialogTexts::ApplyMenuTexts(QWidget& window) {
    ApplyTo(window.actions());
}

}  // namespace Tarvik::Seaplan
