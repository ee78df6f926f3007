// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartWidget.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include "host/plugins/seamap/core/HitTest.h"
#include "host/plugins/seamap/widget/Furniture.h"
#include "host/plugins/seamap/widget/ObjectPainter.h"

namespace Tarvik::Seamap {

namespace {

constexpr Extent kWorld{-180, -60, 180, 75};   ///< the inhabited world, shown when there is nothing else
constexpr int kFitMargin = 32;                 ///< pixels
constexpr std::int64_t kLargestFit = 1 << 17;  ///< a fit on one point still shows its surroundings
constexpr int kWheelStep = 120;                ///< eighths of a degree of one notch
constexpr int kStepsPerZoom = 2;               ///< zoom steps of one notch or key: half an octave
constexpr int kArrowPan = 64;                  ///< pixels
constexpr const char* kPictures = "pictures";

}  // namespace

ChartWidget::ChartWidget(ChartObjects& objects, QWidget* parent)
    : QWidget(parent),
      objects_(objects),
      palette_(&ChartPalette::Of(ChartPalette::Theme::Light)),
      motion_([this](const MercatorView& view) {
          view_ = view;
          update();
      }),
      fitted_(kWorld) {
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

void ChartWidget::SetLand(CoastData land) {
    base_.SetLand(std::move(land));
    update();
}

void ChartWidget::SetTheme(ChartPalette::Theme theme) {
    palette_ = &ChartPalette::Of(theme);
    images_.SetPalette(*palette_);
    update();
}

Extent ChartWidget::Shown() const {
    if (!view_.HasSize()) {
        return fitted_.value_or(kWorld);
    }
    return (motion_.IsRunning() ? motion_.Target() : view_).Visible();
}

bool ChartWidget::ShowExtent(const Extent& extent) {
    if (IsPersonMoving()) {
        return false;
    }
    fitted_ = extent;
    if (view_.HasSize()) {
        Fit(IsAnimated());
    }
    return true;
}

void ChartWidget::FitAll() {
    ShowExtent(Extent::Around(objects_.Points()).value_or(kWorld));
}

void ChartWidget::ZoomSteps(int steps) {
    ZoomAround({width() / 2.0, height() / 2.0}, steps);
}

bool ChartWidget::IsAnimated() const {
    return isVisible() && !property(kPictures).toBool() && !qApp->property(kPictures).toBool();
}

bool ChartWidget::IsPersonMoving() const {
    return dragging_ || (zooming_ && motion_.IsRunning());
}

void ChartWidget::Fit(bool animated) {
    MercatorView target = view_;
    target.Fit(*fitted_, kFitMargin, kLargestFit);
    zooming_ = false;
    motion_.Start(view_, target, animated);
}

void ChartWidget::ZoomAround(PixelPoint anchor, int steps) {
    if (!view_.HasSize() || steps == 0) {
        return;
    }
    const MercatorView& goal = motion_.IsRunning() ? motion_.Target() : view_;
    const int step = goal.NearestStep() + steps * kStepsPerZoom;
    MercatorView target = view_;
    target.ZoomAt(anchor, MercatorView::StepSize(std::min(step, MercatorView::LargestStep())));
    fitted_.reset();
    zooming_ = true;
    motion_.Start(view_, target, IsAnimated());
}

void ChartWidget::Pan(int dx, int dy) {
    motion_.Stop();
    fitted_.reset();
    view_.PanBy(dx, dy);
    update();
}

bool ChartWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const ChartObject* object = ObjectAt({double(help->pos().x()), double(help->pos().y())});
    if (object) {
        QToolTip::showText(help->globalPos(), TipOf(*object), this);
    } else {
        QToolTip::hideText();
    }
    return true;
}

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, base_.Picture(view_, *palette_, devicePixelRatioF()));
    ObjectPainter(painter, view_, *palette_, images_, texts_, devicePixelRatioF())
        .Draw(objects_, highlighted_ ? &*highlighted_ : nullptr);
    Furniture(view_, *palette_, texts_).Draw(painter);
    if (!byKeyboard_) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(palette_->accent), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ChartWidget::resizeEvent(QResizeEvent*) {
    motion_.Stop();
    view_.Resize(width(), height());
    if (fitted_ && view_.HasSize()) {
        Fit(false);
    }
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    byKeyboard_ = false;
    if (event->button() != Qt::LeftButton) {
        return;
    }
    pressed_ = true;
    pressedAt_ = draggedFrom_ = event->position().toPoint();
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (pressed_ && !dragging_ && (at - pressedAt_).manhattanLength() >= QApplication::startDragDistance()) {
        dragging_ = true;
        setCursor(Qt::ClosedHandCursor);
    }
    if (dragging_) {
        Pan(draggedFrom_.x() - at.x(), draggedFrom_.y() - at.y());
        draggedFrom_ = at;
    }
    Point(PixelPoint{event->position().x(), event->position().y()});
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed_) {
        return;
    }
    const bool click = !dragging_;
    pressed_ = dragging_ = false;
    const PixelPoint pixel{event->position().x(), event->position().y()};
    Point(pixel);
    if (!click) {
        return;
    }
    if (const ChartObject* object = ObjectAt(pixel)) {
        // The one who hears of the click may remove the object.
        const ObjectKey key = object->key;
        emit ObjectClicked(key);
    }
}

void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const PixelPoint pixel{event->position().x(), event->position().y()};
    ZoomAround(pixel, event->modifiers() & Qt::ShiftModifier ? -2 : 2);
}

void ChartWidget::wheelEvent(QWheelEvent* event) {
    wheelRest_ += event->angleDelta().y();
    const int steps = wheelRest_ / kWheelStep;
    wheelRest_ -= steps * kWheelStep;
    ZoomAround({event->position().x(), event->position().y()}, steps);
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
            return Pan(-far, 0);
        case Qt::Key_Right:
            return Pan(far, 0);
        case Qt::Key_Up:
            return Pan(0, -far);
        case Qt::Key_Down:
            return Pan(0, far);
        case Qt::Key_Home:
            return FitAll();
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
    const ChartObject* object = pixel && !dragging_ ? ObjectAt(*pixel) : nullptr;
    const std::optional<ObjectKey> key = object ? std::optional(object->key) : std::nullopt;
    if (!dragging_) {
        setCursor(key ? Qt::PointingHandCursor : Qt::OpenHandCursor);
    }
    if (key != highlighted_) {
        highlighted_ = key;
        update();
    }
    if (!pixel) {
        return;
    }
    const GeoPoint place = view_.ToGeo(*pixel);
    emit CursorMoved(place.x, place.y);
}

const ChartObject* ChartWidget::ObjectAt(PixelPoint pixel) {
    const auto halfSize = [this](const std::string& name) {
        return images_.HalfSize(name, objects_.ImagePath(name), devicePixelRatioF());
    };
    return HitTest(objects_, view_, halfSize).At(pixel);
}

QString ChartWidget::TipOf(const ChartObject& object) const {
    if (const auto* label = std::get_if<ChartLabel>(&object.shape)) {
        const QString place = QString::fromStdString(FormatPosition(label->position));
        return label->text.empty() ? place : QString::fromStdString(label->text) + "\n" + place;
    }
    if (const auto* image = std::get_if<ChartImage>(&object.shape)) {
        return QString::fromStdString(FormatPosition(image->position));
    }
    return {};
}

}  // namespace Tarvik::Seamap
