// SPDX-License-Identifier: MIT
// What mouse and keyboard do to the chart.
#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "host/plugins/seamap/widget/ChartTools.h"
#include "host/plugins/seamap/widget/ChartWidget.h"
#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kWheelStep = 120;  ///< eighths of a degree of one notch
constexpr int kArrowPan = 64;    ///< pixels

}  // namespace

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
    const ChartName* port = scene_.PortAt(pixel, View(), devicePixelRatioF());
    if (tools_->TakeClick(port != nullptr ? port->position : View().ToGeo(pixel))) {
        return;
    }
    if (port != nullptr) {
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

void ChartWidget::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QPoint at = byMouse ? event->pos() : rect().center();
    tools_->OpenMenu(View().ToGeo({double(at.x()), double(at.y())}), mapToGlobal(at));
}

void ChartWidget::keyPressEvent(QKeyEvent* event) {
    if (tools_->TakeKey(event->key())) {
        return;
    }
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
        return tools_->TakePointer(std::nullopt);
    }
    const GeoPoint place = View().ToGeo(*pixel);
    tools_->TakePointer(place);
    emit CursorMoved(place.x, place.y);
}

}  // namespace Tarvik::Seamap
