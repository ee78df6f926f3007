// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/MercatorView.h"

#include <algorithm>
#include <cmath>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kWorldMiles = 360.0 * 60.0;
constexpr double kLeastHeightShare = 0.6;

}  // namespace

std::int64_t MercatorView::StepSize(int step) {
    const double size = static_cast<double>(kSmallestWorld) * std::exp2(step / double{kStepsPerOctave});
    return std::clamp(static_cast<std::int64_t>(std::llround(std::min(size, 1e12))), kSmallestWorld,
                      kLargestWorld);
}

int MercatorView::LargestStep() {
    return static_cast<int>(std::lround(kStepsPerOctave * std::log2(double{kLargestWorld} / kSmallestWorld)));
}

void MercatorView::Resize(int width, int height) {
    left_ += (width_ - width) / 2;
    top_ += (height_ - height) / 2;
    width_ = std::max(width, 0);
    height_ = std::max(height, 0);
    if (size_ < SmallestSize()) {
        Show(Centre(), SmallestSize());
    } else {
        Settle();
    }
}

int MercatorView::NearestStep() const {
    return static_cast<int>(
        std::lround(kStepsPerOctave * std::log2(static_cast<double>(size_) / double{kSmallestWorld})));
}

std::int64_t MercatorView::SmallestSize() const {
    return std::clamp(static_cast<std::int64_t>(std::ceil(height_ * kLeastHeightShare)), kSmallestWorld,
                      kLargestWorld);
}

void MercatorView::PanBy(std::int64_t dx, std::int64_t dy) {
    left_ += dx;
    top_ += dy;
    Settle();
}

void MercatorView::ZoomAt(PixelPoint anchor, std::int64_t size) {
    const WorldPoint place = ToWorld(anchor);
    size_ = std::clamp(size, SmallestSize(), kLargestWorld);
    left_ = std::llround(place.x * static_cast<double>(size_) - anchor.x);
    top_ = std::llround(place.y * static_cast<double>(size_) - anchor.y);
    Settle();
}

void MercatorView::Show(WorldPoint centre, std::int64_t size) {
    size_ = std::clamp(size, SmallestSize(), kLargestWorld);
    left_ = std::llround(centre.x * static_cast<double>(size_) - width_ / 2.0);
    top_ = std::llround(centre.y * static_cast<double>(size_) - height_ / 2.0);
    Settle();
}

void MercatorView::Fit(const Extent& extent, int margin, std::int64_t largest) {
    const WorldPoint upper = Project({extent.west, std::min(extent.north, kMaxLatitude)});
    const WorldPoint lower = Project({extent.east, std::max(extent.south, -kMaxLatitude)});
    const double freeWidth = std::max(width_ - 2 * margin, 1);
    const double freeHeight = std::max(height_ - 2 * margin, 1);
    double size = static_cast<double>(std::min(largest, kLargestWorld));
    if (lower.x > upper.x) {
        size = std::min(size, freeWidth / (lower.x - upper.x));
    }
    if (lower.y > upper.y) {
        size = std::min(size, freeHeight / (lower.y - upper.y));
    }
    Show({(upper.x + lower.x) / 2.0, (upper.y + lower.y) / 2.0}, static_cast<std::int64_t>(std::floor(size)));
}

WorldPoint MercatorView::Centre() const {
    return ToWorld({width_ / 2.0, height_ / 2.0});
}

PixelPoint MercatorView::ToScreen(WorldPoint point, int turn) const {
    const auto size = static_cast<double>(size_);
    return {(point.x + turn) * size - static_cast<double>(left_), point.y * size - static_cast<double>(top_)};
}

PixelPoint MercatorView::ToScreen(GeoPoint point) const {
    const WorldPoint world = Project(point);
    return ToScreen(world, static_cast<int>(std::lround(Centre().x - world.x)));
}

WorldPoint MercatorView::ToWorld(PixelPoint point) const {
    const auto size = static_cast<double>(size_);
    return {(point.x + static_cast<double>(left_)) / size, (point.y + static_cast<double>(top_)) / size};
}

Extent MercatorView::Visible() const {
    const GeoPoint upper = ToGeo({0, 0});
    const GeoPoint lower = ToGeo({0, static_cast<double>(height_)});
    Extent extent{-Util::kMostLongitude, lower.y, Util::kMostLongitude, upper.y};
    if (width_ < size_) {
        extent.west = upper.x;
        extent.east = upper.x + 360.0 * width_ / static_cast<double>(size_);
    }
    return extent;
}

MercatorView::Turns MercatorView::TurnsOf(double minX, double maxX, int margin) const {
    const auto size = static_cast<double>(size_);
    const double west = static_cast<double>(left_ - margin) / size;
    const double east = static_cast<double>(left_ + width_ + margin) / size;
    return {static_cast<int>(std::ceil(west - maxX)), static_cast<int>(std::floor(east - minX))};
}

double MercatorView::MilesPerPixel(double lat) const {
    return kWorldMiles * std::cos(lat * Server::kDegree) / static_cast<double>(size_);
}

void MercatorView::Settle() {
    left_ %= size_;
    if (left_ < 0) {
        left_ += size_;
    }
    if (height_ >= size_) {
        top_ = -((height_ - size_) / 2);
    } else {
        top_ = std::clamp<std::int64_t>(top_, 0, size_ - height_);
    }
}

}  // namespace Tarvik::Seamap
