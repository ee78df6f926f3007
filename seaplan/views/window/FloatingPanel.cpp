// SPDX-License-Identifier: MIT
#include "seaplan/views/window/FloatingPanel.h"

#include <QApplication>
#include <QTimer>

#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/panels/texts/CommonTexts.h"

namespace Tarvik::Seaplan {

QRect ToQt(const Rect& rect) {
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

Rect OnScreen(const QWidget& widget) {
    const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
    return {corner.x(), corner.y(), corner.x() + widget.width(), corner.y() + widget.height()};
}

FloatingPanel::FloatingPanel(QWidget* mainView, const QString& name, const Hints& hints)
    : Skin::ToolWindow(mainView, name), hints_(hints) {}

void FloatingPanel::SkinPanel(const char* dialog, int flag, const char* title) {
    Skin::SkinWindow(*this, Skin::ControlClass::Dialog, dialog, flag);
    const std::pair<const char*, const char*> labels[] = {{"captionLabel", title},
                                                          {"changedMark", "Caption_static"}};
    for (const auto& [name, skin] : labels) {
        Skin::SkinWindow(*findChild<QLabel*>(QString::fromLatin1(name)), Skin::ControlClass::StaticText,
                         skin);
    }
}

QToolButton* FloatingPanel::AddSkinButton(const char* name, const char* skin) {
    QToolButton* button = AddCaptionButton(name, {});
    Skin::SkinWindow(*button, Skin::ControlClass::PushButton, skin);
    return button;
}

void FloatingPanel::AddHelpAndClose() {
    help_ = AddSkinButton("helpButton", "trv_help_btn");
    TieText(*help_, hints_.help);
    TieKey(*help_, QKeySequence(Qt::Key_F1));
    QObject::connect(help_, &QToolButton::clicked, this, [this] {
        if (reports_.help) {
            reports_.help();
        }
    });
    AddClose();
}

void FloatingPanel::AddClose() {
    close_ = AddSkinButton("closeButton", "trv_close_btn");
    TieText(*close_, hints_.close);
    TieKey(*close_, QKeySequence(Qt::CTRL | Qt::Key_W));
    QObject::connect(close_, &QToolButton::clicked, this, [this] { CloseAsked(); });
}

void FloatingPanel::DescribeHelpAndClose() {
    if (help_ != nullptr) {
        Skin::Describe(help_, ViewText(hints_.help));
    }
    Skin::Describe(close_, ViewText(hints_.close));
}

void FloatingPanel::Raise() {
    // A panel that waits for another one stays behind it, and leaves it the keyboard.
    if (!isEnabled()) {
        return show();
    }
    if (!isActiveWindow()) {
        before_ = QApplication::activeWindow();
    }
    show();
    raise();
    // A window manager leaves the keyboard where it was unless it is asked.
    activateWindow();
    FocusFirst();
}

void FloatingPanel::Vanish() {
    const bool active = isActiveWindow();
    hide();
    // A window manager would give the keyboard to the main window.
    if (active && !before_.isNull() && before_->isVisible()) {
        before_->activateWindow();
    }
}

void FloatingPanel::ShowCaption(const std::string& text, bool changed) {
    Skin::ToolWindow::SetCaption(QString::fromStdString(text));
    SetChangedMark(changed, ViewText(TextIds::IDS_VIEW_CHANGED));
}

void FloatingPanel::SendHelp(const std::string& topic, int width, int height) {
    Skin::SendHelpRequest(parentWidget(), topic, width, height);
}

void FloatingPanel::Enable(bool enabled) {
    if (!keyboard_.SetEnabled(*this, enabled)) {
        FocusFirst();
    }
}

void FloatingPanel::SurfacePressed() {
    if (reports_.surfacePressed) {
        reports_.surfacePressed();
    }
}

void FloatingPanel::CloseAsked() {
    if (reports_.close) {
        reports_.close();
    }
}

void FloatingPanel::keyPressEvent(QKeyEvent* event) {
    if (reports_.closes && reports_.closes(*event)) {
        // A question about what is not saved must not come up inside the key.
        QTimer::singleShot(0, this, [this] { CloseAsked(); });
    } else {
        Skin::ToolWindow::keyPressEvent(event);
    }
}

}  // namespace Tarvik::Seaplan
