// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "host/plugins/seamap/core/LabelRoom.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/widget/ViewMotion.h"

namespace Tarvik::Seamap {

/// The inhabited world, shown when there is nothing else.
inline constexpr Extent kInhabitedWorld{-180, -60, 180, 75};

/// Where the chart looks: the view, its way to the next one, and the extent that it keeps fitting until a
/// person moves it.
class ChartCamera {
  public:
    /// `changed` is called when the view has changed, but not for a new size.
    explicit ChartCamera(std::function<void()> changed);

    const MercatorView& View() const { return view_; }
    /// What is shown, or is about to be while a move is under way. Before there is a size: what will be
    /// fitted.
    Extent Shown() const;
    /// Whether a zoom that a person began is under way.
    bool IsZooming() const { return zooming_ && motion_.IsRunning(); }

    /// Fits the extent with a margin, again after every change of size, until a person moves the view.
    void Show(const Extent& extent, bool animated);
    /// Where a fit finds its place, asked at each fit; the whole window without one.
    void SetRoom(std::function<LabelBox()> room) { room_ = std::move(room); }
    /// Brings a place into the middle, with a world of at least so many pixels, at once.
    void CentreOn(GeoPoint place, std::int64_t leastWorld);
    void Resize(int width, int height);
    /// Zooms half an octave for each step, in when positive, and keeps the place under the anchor.
    void ZoomAround(PixelPoint anchor, int steps, bool animated);
    /// Moves the view by pixels, east and south positive.
    void Pan(int dx, int dy);

  private:
    void Fit(bool animated);

    std::function<void()> changed_;
    std::function<LabelBox()> room_;
    MercatorView view_;
    ViewMotion motion_;
    std::optional<Extent> fitted_ = kInhabitedWorld;  ///< empty once a person has moved the view
    bool zooming_ = false;                            ///< the motion under way was started by a person
};

}  // namespace Tarvik::Seamap
