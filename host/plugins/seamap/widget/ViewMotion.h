// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantAnimation>
#include <functional>

#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

/// A view on the way from one to another: both are joined by a zoom around the one place they share, so a
/// zoom around the pointer keeps the place under it in every picture.
MercatorView ViewBetween(const MercatorView& from, const MercatorView& to, double share);

/// Brings the view to a target within 120 ms: long enough to be followed, and what it ends is there 150 ms
/// after its cause.
class ViewMotion {
  public:
    static constexpr int kMilliseconds = 120;

    explicit ViewMotion(std::function<void(const MercatorView&)> show);
    /// At once when `animated` is false.
    void Start(const MercatorView& from, const MercatorView& to, bool animated);
    void Stop() { animation_.stop(); }
    bool IsRunning() const { return animation_.state() == QAbstractAnimation::Running; }
    const MercatorView& Target() const { return to_; }

  private:
    std::function<void(const MercatorView&)> show_;
    QVariantAnimation animation_;
    MercatorView from_;
    MercatorView to_;
};

}  // namespace Tarvik::Seamap
