// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainterPath>
#include <QPointer>
#include <QVBoxLayout>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

namespace Tarvik::Skin {

int RunDialog(QDialog& dialog) {
    const QPointer<QWidget> before = QApplication::activeWindow();
    const int result = dialog.exec();
    if (!before.isNull() && before->isVisible()) {
        before->activateWindow();
    }
    return result;
}

void Describe(QWidget* widget, const QString& text) {
    widget->setAccessibleName(text);
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const QString keys =
        button == nullptr ? QString() : button->shortcut().toString(QKeySequence::NativeText);
    widget->setToolTip(keys.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, keys));
}

ToolWindow::ToolWindow(QWidget* parent, const QString& name)
    : QFrame(parent, Qt::Tool | Qt::FramelessWindowHint), watch_([this] { ApplySkin(); }) {
    setObjectName(name);
    setProperty("panel", true);
    // The look goes by one name for all panels, the object name stays each panel's own.
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("toolWindow"));
    outer->addWidget(frame);
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto* bar = new QFrame(frame);
    bar->setObjectName(QStringLiteral("captionBar"));
    bar->setFixedHeight(kCaptionHeight);
    captionRow_ = new QHBoxLayout(bar);
    captionRow_->setContentsMargins(2 * kGrid, 0, kGrid, 0);
    captionRow_->setSpacing(6);
    title_ = new QLabel(bar);
    title_->setObjectName(QStringLiteral("captionLabel"));
    changed_ = new QLabel(QStringLiteral("*"), bar);
    changed_->setObjectName(QStringLiteral("changedMark"));
    changed_->hide();
    captionRow_->addWidget(title_);
    captionRow_->addWidget(changed_);
    captionRow_->addStretch(1);
    rows->addWidget(bar);
    body_ = new QVBoxLayout();
    body_->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
    body_->setSpacing(2 * kGrid);
    rows->addLayout(body_, 1);
    setStyleSheet(StyleSheet());
}

void ToolWindow::SetCaption(const QString& text) {
    title_->setText(text);
    setWindowTitle(text);
    setAccessibleName(text);
}

void ToolWindow::SetChangedMark(bool shown, const QString& tip) {
    changed_->setVisible(shown);
    Describe(changed_, tip);
}

QToolButton* ToolWindow::AddCaptionButton(const char* name, const std::string& icon) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setFocusPolicy(Qt::TabFocus);
    captionRow_->addWidget(button);
    // A button without one is dressed by a name.
    if (!icon.empty()) {
        KeepIcon(button, icon);
    }
    return button;
}

void ToolWindow::KeepIcon(QAbstractButton* button, const std::string& icon) {
    button->setIcon(MakeIcon(icon));
    icons_.emplace_back(button, icon);
}

void ToolWindow::ApplySkin() {
    setStyleSheet(StyleSheet());
    for (const auto& [button, icon] : icons_) {
        button->setIcon(MakeIcon(icon));
    }
    DressAgain(*this);
}

void ToolWindow::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    QPainterPath outline;
    outline.addRoundedRect(rect(), kCornerRadius, kCornerRadius);
    setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

void ToolWindow::closeEvent(QCloseEvent* event) {
    CloseAsked();
    event->setAccepted(!isVisible());
}

void ToolWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return QFrame::mousePressEvent(event);
    }
    SurfacePressed();
    dragging_ = true;
    grip_ = event->globalPosition().toPoint() - frameGeometry().topLeft();
}

void ToolWindow::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_) {
        move(event->globalPosition().toPoint() - grip_);
    }
}

void ToolWindow::mouseReleaseEvent(QMouseEvent*) {
    dragging_ = false;
}

}  // namespace Tarvik::Skin
