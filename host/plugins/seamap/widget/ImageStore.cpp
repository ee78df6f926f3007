// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ImageStore.h"

#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>

#include <tarvik/skin/Colours.h>
#include <tarvik/util/FileUtl.h>

namespace Tarvik::Seamap {

namespace {

QPixmap Blank(QSize size, qreal ratio) {
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

QPixmap FromVector(const QString& path, qreal ratio) {
    QSvgRenderer renderer(path);
    if (!renderer.isValid()) {
        return {};
    }
    const QSize natural = renderer.defaultSize().isEmpty() ? QSize(1, 1) : renderer.defaultSize();
    const QSize size = natural.scaled(ImageStore::kVectorSide, ImageStore::kVectorSide, Qt::KeepAspectRatio);
    QPixmap picture = Blank(size, ratio);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(0, 0), size));
    return picture;
}

QPixmap FromPixels(const QString& path, qreal ratio) {
    const QImage image(path);
    if (image.isNull()) {
        return {};
    }
    const int longer = std::max(image.width(), image.height());
    const QSize size = image.size().scaled(std::min(longer, ImageStore::kLargestSide),
                                           std::min(longer, ImageStore::kLargestSide), Qt::KeepAspectRatio);
    QPixmap picture = Blank(size, ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(0, 0), size), image);
    return picture;
}

/// A ship seen from above, bow to the north-east.
QPixmap StandIn(qreal ratio) {
    constexpr int kSide = 22;
    QPixmap picture = Blank({kSide, kSide}, ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kSide / 2.0, kSide / 2.0);
    painter.rotate(45);
    QPainterPath hull(QPointF(0, -9));
    hull.quadTo(4, -5, 4, 0);
    hull.lineTo(3.5, 8);
    hull.lineTo(-3.5, 8);
    hull.lineTo(-4, 0);
    hull.quadTo(-4, -5, 0, -9);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(QColor(Skin::ColourOf(Skin::Role::Underway, Skin::Theme::Light)));
    painter.drawPath(hull);
    return picture;
}

QPixmap Load(const std::string& file, qreal ratio) {
    if (file.empty()) {
        return StandIn(ratio);
    }
    const QString path = QString::fromStdString(Util::FileUtl::NativePath(file));
    QPixmap picture =
        path.endsWith(".svg", Qt::CaseInsensitive) ? FromVector(path, ratio) : FromPixels(path, ratio);
    return picture.isNull() ? StandIn(ratio) : picture;
}

QPixmap ByNight(const QPixmap& picture, const ChartPalette& palette) {
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qGray(line[x]);
            line[x] = palette.ObjectColour(grey << 16 | grey << 8 | grey) | qAlpha(line[x]) << 24;
        }
    }
    return QPixmap::fromImage(image);
}

}  // namespace

void ImageStore::SetPalette(const ChartPalette& palette) {
    if (palette_ != &palette) {
        entries_.clear();
    }
    palette_ = &palette;
}

const QPixmap& ImageStore::Picture(const std::string& name, const std::string& path, qreal pixelRatio) {
    Entry& entry = entries_[name];
    if (entry.picture.isNull() || entry.path != path || entry.pixelRatio != pixelRatio) {
        const QPixmap picture = Load(path, pixelRatio);
        const bool night = palette_->theme == ChartPalette::Theme::Night;
        entry = {path, pixelRatio, night ? ByNight(picture, *palette_) : picture};
    }
    return entry.picture;
}

PixelPoint ImageStore::HalfSize(const std::string& name, const std::string& path, qreal pixelRatio) {
    const QSizeF size = Picture(name, path, pixelRatio).deviceIndependentSize();
    return {size.width() / 2.0, size.height() / 2.0};
}

}  // namespace Tarvik::Seamap
