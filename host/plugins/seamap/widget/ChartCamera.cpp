// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartCamera.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tarvik::Seamap {

namespace {

constexpr int kFitMargin = 32;                 ///< pixels
constexpr std::int64_t kLargestFit = 1 << 17;  ///< a fit on one point still shows its surroundings
constexpr int kStepsPerZoom = 2;               ///< zoom steps of one notch or key: half an octave

}  // namespace

ChartCamera::ChartCamera(std::function<void()> changed)
    : changed_(std::move(changed)), motion_([this](const MercatorView& view) {
          view_ = view;
          changed_();
      }) {}

Extent ChartCamera::Shown() const {
    if (!view_.HasSize()) {
        return fitted_.value_or(kInhabitedWorld);
    }
    return (motion_.IsRunning() ? motion_.Target() : view_).Visible();
}

void ChartCamera::Show(const Extent& extent, bool animated) {
    fitted_ = extent;
    if (view_.HasSize()) {
        Fit(animated);
    }
}

void ChartCamera::Fit(bool animated) {
    const double width = view_.Width();
    const double height = view_.Height();
    const LabelBox room = room_ ? room_() : LabelBox{0, 0, width, height};
    MercatorView inside;
    inside.Resize(static_cast<int>(room.width), static_cast<int>(room.height));
    inside.Fit(*fitted_, kFitMargin, kLargestFit);
    MercatorView target = view_;
    target.Show(inside.Centre(), inside.WorldSize());
    target.PanBy(std::lround(width / 2 - room.left - room.width / 2),
                 std::lround(height / 2 - room.top - room.height / 2));
    zooming_ = false;
    motion_.Start(view_, target, animated);
}

void ChartCamera::Resize(int width, int height) {
    motion_.Stop();
    view_.Resize(width, height);
    if (fitted_ && view_.HasSize()) {
        Fit(false);
    }
}

void ChartCamera::ZoomAround(PixelPoint anchor, int steps, bool animated) {
    if (!view_.HasSize() || steps == 0) {
        return;
    }
    const MercatorView& goal = motion_.IsRunning() ? motion_.Target() : view_;
    const int step = goal.NearestStep() + steps * kStepsPerZoom;
    MercatorView target = view_;
    target.ZoomAt(anchor, MercatorView::StepSize(std::min(step, MercatorView::LargestStep())));
    fitted_.reset();
    zooming_ = true;
    motion_.Start(view_, target, animated);
}

void ChartCamera::CentreOn(GeoPoint place, std::int64_t leastWorld) {
    if (!view_.HasSize()) {
        return;
    }
    motion_.Stop();
    fitted_.reset();
    view_.Show(Project(place), std::max(view_.WorldSize(), leastWorld));
    changed_();
}

void ChartCamera::Pan(int dx, int dy) {
    motion_.Stop();
    fitted_.reset();
    view_.PanBy(dx, dy);
    changed_();
}

}  // namespace Tarvik::Seamap
