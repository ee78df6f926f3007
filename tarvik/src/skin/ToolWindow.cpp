// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHoverEvent>
#include <QPainterPath>
#include <QPointer>
#include <QShortcut>
#include <QToolTip>
#include <QVBoxLayout>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>
#include <tarvik/skin/Words.h>

#include "skin/window/WindowGrip.h"
#include "skin/window/WindowMenu.h"
#include "skin/window/WindowSeat.h"

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
    : QFrame(parent, Qt::Tool | Qt::FramelessWindowHint),
      watch_([this] { ApplySkin(); }),
      seat_(std::make_unique<WindowSeat>(*this)),
      grip_(std::make_unique<WindowGrip>(*seat_)) {
    setObjectName(name);
    setAttribute(Qt::WA_Hover);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F10), this), &QShortcut::activated, this,
            [this] { OpenWindowMenu(*seat_, mapToGlobal(QPoint(0, kCaptionHeight))); });
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

ToolWindow::~ToolWindow() = default;

void ToolWindow::SetResizable() {
    seat_->SetResizable();
}

void ToolWindow::PlaceByRule(const QRect& wanted) {
    seat_->PlaceByRule(wanted);
}

void ToolWindow::MoveByRule(const QPoint& corner) {
    seat_->MoveByRule(corner);
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

bool ToolWindow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::HoverMove:
            grip_->Hover(static_cast<QHoverEvent*>(event)->position().toPoint());
            break;
        case QEvent::ToolTip:
            if (const auto* help = static_cast<QHelpEvent*>(event); help->pos().y() < kCaptionHeight) {
                QToolTip::showText(help->globalPos(), Word("Window", "CAPTION_TIP"), this);
                return true;
            }
            break;
        default:
            break;
    }
    return QFrame::event(event);
}

void ToolWindow::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        seat_->TakeSeat();
    }
    QFrame::showEvent(event);
}

void ToolWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return QFrame::mousePressEvent(event);
    }
    SurfacePressed();
    grip_->Press(*event);
}

void ToolWindow::mouseMoveEvent(QMouseEvent* event) {
    grip_->Drag(*event);
}

void ToolWindow::mouseReleaseEvent(QMouseEvent* /*event*/) {
    grip_->Release();
}

void ToolWindow::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || event->position().y() >= kCaptionHeight) {
        return QFrame::mouseDoubleClickEvent(event);
    }
    grip_->Release();
    seat_->DockAt(seat_->Docked() == Dock::Whole || !seat_->IsResizable() ? Dock::None : Dock::Whole);
}

void ToolWindow::contextMenuEvent(QContextMenuEvent* event) {
    if (event->pos().y() >= kCaptionHeight) {
        return QFrame::contextMenuEvent(event);
    }
    OpenWindowMenu(*seat_, event->globalPos());
}

}  // namespace Tarvik::Skin
