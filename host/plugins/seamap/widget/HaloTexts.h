// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPixmap>
#include <QPointF>
#include <QString>
#include <unordered_map>

class QPainter;

namespace Tarvik::Seamap {

/// Height of the texts along lines, in pixels.
inline constexpr int kLineTextPixels = 12;

/// Texts with a rim, so that they can be read over land, sea and lines. Drawing the rim is slow, so each text
/// is drawn once and kept as a picture.
class HaloTexts {
  public:
    /// Draws a text in the painter's font from the start of its base line, which is brought to a whole pixel.
    void Draw(QPainter& painter, QPointF start, const QString& text, QColor colour, QColor halo);

  private:
    static constexpr std::size_t kMostKept = 1000;
    static constexpr int kRim = 3;  ///< logical pixels around the text

    static QPixmap Render(const QPainter& painter, const QString& text, QColor colour, QColor halo);

    std::unordered_map<std::string, QPixmap> kept_;
};

}  // namespace Tarvik::Seamap
