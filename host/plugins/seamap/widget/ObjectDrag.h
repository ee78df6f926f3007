// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QPoint>
#include <functional>
#include <optional>

#include "host/plugins/seamap/core/ChartObjects.h"

namespace Tarvik::Seamap {

/// The drag of an object of the chart, from the place where it was pressed. The object stays where it is; a
/// ring and a line show where it would go.
class ObjectDrag {
  public:
    /// Asked when a drag begins: whether the object is dragged, and not the chart. Empty: none is.
    std::function<bool(const ObjectKey&)> isDragged;

    /// Begins at a pixel that met this object, or none. False where the chart is dragged.
    bool Begin(const std::optional<ObjectKey>& met, QPoint at) {
        key_ = met && isDragged && isDragged(*met) ? met : std::nullopt;
        start_ = last_ = at;
        return IsUnderWay();
    }
    bool IsUnderWay() const { return key_.has_value(); }
    void MoveTo(QPoint at) { last_ = at; }
    void End() { key_.reset(); }
    const ObjectKey& Key() const { return *key_; }
    QPoint Start() const { return start_; }
    /// Nothing while none is under way.
    void Paint(QPainter& painter, const QColor& colour) const {
        if (!IsUnderWay()) {
            return;
        }
        constexpr int kRing = 7;  // pixels
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colour, 2, Qt::DashLine));
        painter.drawLine(start_, last_);
        painter.setPen(QPen(colour, 2));
        painter.drawEllipse(last_, kRing, kRing);
    }

  private:
    std::optional<ObjectKey> key_;
    QPoint start_;
    QPoint last_;
};

}  // namespace Tarvik::Seamap
