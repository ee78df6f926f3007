// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/Furniture.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "host/plugins/seamap/core/Graticule.h"
#include "host/plugins/seamap/widget/HaloTexts.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kTextSize = 11;
constexpr int kEdge = 6;
constexpr int kBarLength = 140;
constexpr int kBarHeight = 4;
constexpr int kBarInset = 16;
constexpr int kPlateHeight = 32;
constexpr int kPlateWidth = kBarLength + 32;  ///< at most
constexpr int kNamesWidth = 58;               ///< of the parallels

}  // namespace

void Furniture::Reserve(LabelRoom& room) const {
    const double height = view_.Height();
    if (graticule_) {
        room.Take({0, 0, double(view_.Width()), kTextSize + 2.0 * kEdge});
        room.Take({0, 0, kNamesWidth, height});
    }
    room.Take({0, height - kBarInset - kPlateHeight, kPlateWidth, kBarInset + kPlateHeight});
}

void Furniture::Draw(QPainter& painter) const {
    QFont font = painter.font();
    font.setPixelSize(kTextSize);
    painter.setFont(font);
    if (graticule_) {
        DrawNames(painter);
    }
    DrawScaleBar(painter);
}

void Furniture::DrawNames(QPainter& painter) const {
    const Graticule net(view_);
    const QFontMetricsF metrics(painter.font());
    const QColor text(palette_.secondaryText), halo(palette_.halo);
    const double row = metrics.ascent() + kEdge;
    for (const GraticuleLine& line : net.Meridians()) {
        const QString name = QString::fromStdString(line.label);
        const double half = metrics.horizontalAdvance(name) / 2;
        // A name that would be cut off, or that would touch those of the parallels, is left out.
        if (line.pixel - half < 48 || line.pixel + half > view_.Width() - kEdge) {
            continue;
        }
        texts_.Draw(painter, {std::round(line.pixel - half), row - 2}, name, text, halo);
    }
    for (const GraticuleLine& line : net.Parallels()) {
        const double base = std::round(line.pixel + metrics.ascent() / 2 - 1);
        if (base < row + 12 || base > view_.Height() - kBarInset - kPlateHeight - kEdge) {
            continue;
        }
        texts_.Draw(painter, {double(kEdge), base}, QString::fromStdString(line.label), text, halo);
    }
}

void Furniture::DrawScaleBar(QPainter& painter) const {
    const ScaleBar bar = ScaleBar::For(view_, kBarLength);
    if (bar.pixels < 1) {
        return;
    }
    const QFontMetricsF metrics(painter.font());
    const QString text = QString::fromStdString(bar.text);
    const double width = std::max(std::round(bar.pixels), metrics.horizontalAdvance(text)) + 16;
    const QRectF plate(kBarInset - 8, view_.Height() - kBarInset - kPlateHeight + 8, width, kPlateHeight);
    QColor ground(palette_.halo);
    ground.setAlpha(190);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(plate, 6, 6);
    painter.setPen(QColor(palette_.text));
    painter.drawText(QPointF(plate.left() + 8, plate.top() + 4 + metrics.ascent()), text);
    const QRect whole(int(plate.left()) + 8, int(plate.bottom()) - 6 - kBarHeight,
                      int(std::round(bar.pixels)), kBarHeight);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(whole, QColor(palette_.text));
    painter.fillRect(QRect(whole.center().x() + 1, whole.top() + 1, whole.right() - whole.center().x() - 1,
                           kBarHeight - 2),
                     QColor(palette_.halo));
}

}  // namespace Tarvik::Seamap
