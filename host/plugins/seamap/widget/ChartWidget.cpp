// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartWidget.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kWheelStep = 120;  ///< eighths of a degree of one notch
constexpr int kArrowPan = 64;    ///< pixels
constexpr const char* kPictures = "pictures";

}  // namespace

ChartWidget::ChartWidget(ChartObjects& objects, QWidget* parent)
    : QWidget(parent),
      objects_(objects),
      scene_(objects),
      camera_([this] { OnMoved(); }),
      card_(new PortCard(this)) {
    setObjectName("chart");
    setAccessibleName(tr("Chart"));
    setAccessibleDescription(
        tr("Drag or use the arrow keys to move, the wheel or + and - to zoom, Home to show all."));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::OpenHandCursor);
    objects_.SetObserver([this] { update(); });
}

ChartWidget::~ChartWidget() {
    objects_.SetObserver({});
}

void ChartWidget::Change(const std::function<void(ChartScene&)>& change) {
    change(scene_);
    update();
}

void ChartWidget::OnMoved() {
    card_->hide();
    update();
}

void ChartWidget::ShowCard(const ChartName& port) {
    card_->ShowPort(port, View().ToScreen(port.position));
}

void ChartWidget::SetTheme(ChartPalette::Theme theme) {
    scene_.SetTheme(theme);
    card_->ApplyTheme(scene_.Palette());
    update();
}

bool ChartWidget::ShowExtent(const Extent& extent) {
    if (press_.drags || camera_.IsZooming()) {
        return false;
    }
    camera_.Show(extent, IsAnimated());
    return true;
}

void ChartWidget::FitAll() {
    ShowExtent(scene_.ExtentOfAll());
}

void ChartWidget::ZoomSteps(int steps) {
    camera_.ZoomAround({width() / 2.0, height() / 2.0}, steps, IsAnimated());
}

bool ChartWidget::IsAnimated() const {
    return isVisible() && !property(kPictures).toBool() && !qApp->property(kPictures).toBool();
}

bool ChartWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto met =
        scene_.At({double(help->pos().x()), double(help->pos().y())}, View(), devicePixelRatioF());
    const PixelPoint pixel{double(help->pos().x()), double(help->pos().y())};
    if (const ChartName* port = scene_.PortAt(pixel, View(), devicePixelRatioF())) {
        QToolTip::showText(help->globalPos(), PortCard::TextOf(*port), this);
    } else if (met) {
        QToolTip::showText(help->globalPos(), met->tip, this);
    } else {
        QToolTip::hideText();
    }
    return true;
}

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    scene_.Paint(painter, View(), devicePixelRatioF(), highlighted_ ? &*highlighted_ : nullptr);
    if (!byKeyboard_) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(scene_.Palette().accent), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ChartWidget::resizeEvent(QResizeEvent*) {
    camera_.Resize(width(), height());
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    byKeyboard_ = false;
    card_->hide();
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QPoint at = event->position().toPoint();
    press_ = {at, at, true, press_.drags};
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int way = (at - press_.start).manhattanLength();
    if (press_.down && !press_.drags && way >= QApplication::startDragDistance()) {
        press_.drags = true;
        setCursor(Qt::ClosedHandCursor);
    }
    if (press_.drags) {
        camera_.Pan(press_.last.x() - at.x(), press_.last.y() - at.y());
        press_.last = at;
    }
    Point(PixelPoint{event->position().x(), event->position().y()});
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !press_.down) {
        return;
    }
    const bool click = !press_.drags;
    press_.down = press_.drags = false;
    const PixelPoint pixel{event->position().x(), event->position().y()};
    Point(pixel);
    if (!click) {
        return;
    }
    if (const ChartName* port = scene_.PortAt(pixel, View(), devicePixelRatioF())) {
        emit PortClicked(*port);
    } else if (const auto met = scene_.At(pixel, View(), devicePixelRatioF())) {
        emit ObjectClicked(met->key);
    }
}

void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const PixelPoint pixel{event->position().x(), event->position().y()};
    camera_.ZoomAround(pixel, event->modifiers() & Qt::ShiftModifier ? -2 : 2, IsAnimated());
}

void ChartWidget::wheelEvent(QWheelEvent* event) {
    wheelRest_ += event->angleDelta().y();
    const int steps = wheelRest_ / kWheelStep;
    wheelRest_ -= steps * kWheelStep;
    camera_.ZoomAround({event->position().x(), event->position().y()}, steps, IsAnimated());
    event->accept();
}

void ChartWidget::keyPressEvent(QKeyEvent* event) {
    const int far = event->modifiers() & Qt::ShiftModifier ? 4 * kArrowPan : kArrowPan;
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return ZoomSteps(1);
        case Qt::Key_Minus:
            return ZoomSteps(-1);
        case Qt::Key_Left:
            return camera_.Pan(-far, 0);
        case Qt::Key_Right:
            return camera_.Pan(far, 0);
        case Qt::Key_Up:
            return camera_.Pan(0, -far);
        case Qt::Key_Down:
            return camera_.Pan(0, far);
        case Qt::Key_Home:
            return FitAll();
        case Qt::Key_Escape:
            return card_->hide();
        default:
            QWidget::keyPressEvent(event);
    }
}

void ChartWidget::leaveEvent(QEvent*) {
    Point(std::nullopt);
}

void ChartWidget::focusInEvent(QFocusEvent* event) {
    byKeyboard_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void ChartWidget::focusOutEvent(QFocusEvent*) {
    byKeyboard_ = false;
    update();
}

void ChartWidget::Point(std::optional<PixelPoint> pixel) {
    std::optional<ObjectKey> key;
    if (pixel && !press_.drags) {
        if (const auto met = scene_.At(*pixel, View(), devicePixelRatioF())) {
            key = met->key;
        }
    }
    const bool atPort =
        pixel && !press_.drags && scene_.PortAt(*pixel, View(), devicePixelRatioF()) != nullptr;
    if (!press_.drags) {
        setCursor(key || atPort ? Qt::PointingHandCursor : Qt::OpenHandCursor);
    }
    if (key != highlighted_) {
        highlighted_ = key;
        update();
    }
    if (!pixel) {
        return;
    }
    const GeoPoint place = View().ToGeo(*pixel);
    emit CursorMoved(place.x, place.y);
}

}  // namespace Tarvik::Seamap
