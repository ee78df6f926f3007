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

void ChartWidget::BeginDrag() {
    press_.drags = true;
    const PixelPoint pixel{double(press_.start.x()), double(press_.start.y())};
    const auto met = scene_.At(pixel, View(), devicePixelRatioF());
    const bool object = drag_.Begin(met ? std::optional(met->key) : std::nullopt, press_.start);
    setCursor(object ? Qt::SizeAllCursor : Qt::ClosedHandCursor);
}

void ChartWidget::EndObjectDrag(bool tell) {
    const ObjectKey key = drag_.Key();
    const QPoint from = drag_.Start();
    drag_.End();
    press_.down = press_.drags = false;
    update();
    if (tell) {
        emit ObjectDragged(key, View().ToGeo({double(from.x()), double(from.y())}),
                           View().ToGeo({double(press_.last.x()), double(press_.last.y())}));
    }
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int way = (at - press_.start).manhattanLength();
    if (press_.down && !press_.drags && way >= QApplication::startDragDistance()) {
        BeginDrag();
    }
    if (drag_.IsUnderWay()) {
        drag_.MoveTo(at);
        press_.last = at;
        update();
    } else if (press_.drags) {
        camera_.Pan(press_.last.x() - at.x(), press_.last.y() - at.y());
        press_.last = at;
    }
    Point(PixelPoint{event->position().x(), event->position().y()});
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !press_.down) {
        return;
    }
    if (drag_.IsUnderWay()) {
        press_.last = event->position().toPoint();
        return EndObjectDrag(true);
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
    if (drag_.IsUnderWay() && event->key() == Qt::Key_Escape) {
        return EndObjectDrag(false);
    }
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
