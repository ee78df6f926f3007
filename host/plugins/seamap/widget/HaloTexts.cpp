// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/HaloTexts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace Tarvik::Seamap {

void HaloTexts::Draw(QPainter& painter, QPointF start, const QString& text, QColor colour, QColor halo) {
    const std::string key = text.toStdString() + '\n' + painter.font().key().toStdString() + '\n' +
                            std::to_string(colour.rgb()) + '\n' + std::to_string(halo.rgb()) + '\n' +
                            std::to_string(painter.device()->devicePixelRatioF());
    auto found = kept_.find(key);
    if (found == kept_.end()) {
        if (kept_.size() >= kMostKept) {
            kept_.clear();
        }
        found = kept_.emplace(key, Render(painter, text, colour, halo)).first;
    }
    const double ascent = std::ceil(QFontMetricsF(painter.font()).ascent());
    painter.drawPixmap(QPointF(std::round(start.x()) - kRim, std::round(start.y()) - ascent - kRim),
                       found->second);
}

QPixmap HaloTexts::Render(const QPainter& painter, const QString& text, QColor colour, QColor halo) {
    const QFontMetricsF metrics(painter.font());
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QSizeF size(std::ceil(metrics.horizontalAdvance(text)) + 2 * kRim,
                      std::ceil(metrics.ascent()) + std::ceil(metrics.descent()) + 2 * kRim);
    QPixmap picture((size * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    const QPointF start(kRim, kRim + std::ceil(metrics.ascent()));
    QPainterPath outline;
    outline.addText(start, painter.font(), text);
    QPainter pen(&picture);
    pen.setFont(painter.font());
    pen.setRenderHint(QPainter::Antialiasing, true);
    halo.setAlpha(210);
    pen.strokePath(outline, QPen(halo, kRim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pen.setPen(colour);
    pen.drawText(start, text);
    return picture;
}

}  // namespace Tarvik::Seamap
