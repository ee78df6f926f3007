// SPDX-License-Identifier: MIT
// The rim of a text is its ink widened by a disc: each pixel takes the most that an inked pixel within reach
// gives, less towards the disc's edge (a grey dilation). Stroking the text's outline gives the same rim to
// the eye and takes ten times as long. Cost: the pixels of the text times those of the disc.
#include "host/plugins/seamap/widget/HaloTexts.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace Tarvik::Seamap {

namespace {

constexpr int kRimAlpha = 210;  ///< of 255

/// A place beside a pixel and how much of its ink comes there, of 256.
struct Tap {
    int x, y, share;
};

/// The places within a disc around a pixel that is itself half a pixel wide to each side.
std::vector<Tap> DiscOf(double radius) {
    constexpr int kWhole = 256;
    const int reach = static_cast<int>(std::ceil(radius + 1));
    std::vector<Tap> taps;
    const std::size_t edge = 2 * static_cast<std::size_t>(reach) + 1;
    taps.reserve(edge * edge);
    for (int y = -reach; y <= reach; ++y) {
        for (int x = -reach; x <= reach; ++x) {
            const double covered = std::clamp(radius + 1 - std::hypot(x, y), 0.0, 1.0);
            if (covered > 0) {
                taps.push_back({x, y, static_cast<int>(covered * kWhole)});
            }
        }
    }
    return taps;
}

/// For each pixel the most ink that comes there, of 255.
std::vector<int> Spread(const QImage& ink, const std::vector<Tap>& taps) {
    const int width = ink.width(), height = ink.height();
    std::vector<int> most(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    for (int y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(ink.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            const int alpha = qAlpha(row[x]);
            if (alpha == 0) {
                continue;
            }
            for (const Tap& tap : taps) {
                const int atX = x + tap.x, atY = y + tap.y;
                if (atX >= 0 && atX < width && atY >= 0 && atY < height) {
                    int& here = most[static_cast<std::size_t>(atY) * static_cast<std::size_t>(width) +
                                     static_cast<std::size_t>(atX)];
                    here = std::max(here, alpha * tap.share / 256);
                }
            }
        }
    }
    return most;
}

/// The ink in another colour, wider by so many pixels to each side.
QImage Widened(const QImage& ink, double by, QColor colour) {
    QImage wide(ink.size(), QImage::Format_ARGB32_Premultiplied);
    const std::vector<int> most = Spread(ink, DiscOf(by));
    auto from = most.begin();
    for (int y = 0; y < wide.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(wide.scanLine(y));
        for (int x = 0; x < wide.width(); ++x) {
            row[x] = qPremultiply(
                qRgba(colour.red(), colour.green(), colour.blue(), colour.alpha() * *from++ / 255));
        }
    }
    return wide;
}

}  // namespace

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
    QImage ink((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    ink.setDevicePixelRatio(ratio);
    ink.fill(Qt::transparent);
    QPainter pen(&ink);
    pen.setFont(painter.font());
    pen.setPen(colour);
    pen.drawText(QPointF(kRim, kRim + std::ceil(metrics.ascent())), text);
    pen.end();
    halo.setAlpha(kRimAlpha);
    QImage picture = Widened(ink, kRim / 2.0 * ratio, halo);
    picture.setDevicePixelRatio(ratio);
    pen.begin(&picture);
    pen.drawImage(0, 0, ink);
    pen.end();
    return QPixmap::fromImage(std::move(picture));
}

}  // namespace Tarvik::Seamap
