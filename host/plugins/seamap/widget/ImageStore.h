// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <map>
#include <string>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// Pictures of the registered images, from PNG, SVG or any other file the image readers know. A file is read
/// again only when the path changes; a ship's outline stands in for a file that cannot be read.
class ImageStore {
  public:
    static constexpr int kLargestSide = 40;  ///< logical pixels; larger pictures are scaled down
    static constexpr int kVectorSide = 24;   ///< size at which a vector picture is drawn

    const QPixmap& Picture(const std::string& name, const std::string& path, qreal pixelRatio);
    /// From now on pictures come in the palette's shades: by night in red only, otherwise as they are.
    void SetPalette(const ChartPalette& palette);
    PixelPoint HalfSize(const std::string& name, const std::string& path, qreal pixelRatio);

  private:
    struct Entry {
        std::string path;
        qreal pixelRatio = 0;
        QPixmap picture;
    };
    const ChartPalette* palette_ = &ChartPalette::Of(ChartPalette::Theme::Light);
    std::map<std::string, Entry> entries_;
};

}  // namespace Tarvik::Seamap
