// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "host/plugins/seamap/core/Extent.h"
#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// A window of whole pixels on the Mercator world (sphere).
///
/// The world is a square of `WorldSize` whole pixels and the window's corner stands on a whole pixel of it,
/// so panning once round the world leads to the very same picture. East and west have no end; north and south
/// the view stops at the edges of the square, and a window higher than the world shows it in the middle.
class MercatorView {
  public:
    static constexpr std::int64_t kSmallestWorld = 256;  ///< pixels
    static constexpr std::int64_t kLargestWorld = std::int64_t{1} << 23;
    static constexpr int kStepsPerOctave = 4;

    /// World size of a zoom step: 256 pixels at step 0, twice as large every fourth step, rounded to whole
    /// pixels and kept within the limits.
    static std::int64_t StepSize(int step);
    static int LargestStep();

    /// Sets the window's size; the middle of the view stays where it is.
    void Resize(int width, int height);
    int Width() const { return width_; }
    int Height() const { return height_; }
    bool HasSize() const { return width_ > 0 && height_ > 0; }
    std::int64_t WorldSize() const { return size_; }
    /// The corner in pixels of the world: 0 <= Left < WorldSize.
    std::int64_t Left() const { return left_; }
    std::int64_t Top() const { return top_; }
    /// The zoom step whose size is nearest.
    int NearestStep() const;
    /// Smallest world that fills at least three fifths of the window's height.
    std::int64_t SmallestSize() const;

    /// Moves the window over the world, east and south positive.
    void PanBy(std::int64_t dx, std::int64_t dy);
    /// Changes the world's size and keeps the place under the pixel where it is, as far as the edges allow.
    void ZoomAt(PixelPoint anchor, std::int64_t size);
    void Show(WorldPoint centre, std::int64_t size);
    /// Shows the whole extent as large as possible with a free margin of `margin` pixels on each side, at
    /// most `largest` pixels of world size.
    void Fit(const Extent& extent, int margin, std::int64_t largest);

    WorldPoint Centre() const;
    /// A place of the projected world, moved `turn` turns to the east, in the window.
    PixelPoint ToScreen(WorldPoint point, int turn = 0) const;
    /// The copy of a place that is nearest to the middle of the window.
    PixelPoint ToScreen(GeoPoint point) const;
    WorldPoint ToWorld(PixelPoint point) const;
    GeoPoint ToGeo(PixelPoint point) const { return Unproject(ToWorld(point)); }
    /// What the window shows. Wider than one turn: -180 to 180. West lies in -180 to 180.
    Extent Visible() const;

    struct Turns {
        int first = 0;
        int last = -1;
    };
    /// The turns by which a thing between two x must be moved to appear in the window, widened by `margin`
    /// pixels.
    Turns TurnsOf(double minX, double maxX, int margin = 0) const;

    /// Nautical miles of one pixel at a latitude.
    double MilesPerPixel(double lat) const;

    bool operator==(const MercatorView&) const = default;

  private:
    void Settle();

    int width_ = 0;
    int height_ = 0;
    std::int64_t size_ = kSmallestWorld;
    std::int64_t left_ = 0;
    std::int64_t top_ = 0;
};

}  // namespace Tarvik::Seamap
