// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ViewMotion.h"

#include <QEasingCurve>
#include <cmath>

namespace Tarvik::Seamap {

MercatorView ViewBetween(const MercatorView& from, const MercatorView& to, double share) {
    if (share >= 1) {
        return to;
    }
    const auto start = static_cast<double>(from.WorldSize());
    const auto end = static_cast<double>(to.WorldSize());
    const double size = start * std::pow(end / start, share);
    const double way = start == end ? share : (1 / size - 1 / start) / (1 / end - 1 / start);
    const WorldPoint a = from.Centre();
    WorldPoint b = to.Centre();
    b.x += std::round(a.x - b.x);
    MercatorView view = from;
    view.Show({a.x + (b.x - a.x) * way, a.y + (b.y - a.y) * way}, std::llround(size));
    return view;
}

ViewMotion::ViewMotion(std::function<void(const MercatorView&)> show) : show_(std::move(show)) {
    animation_.setDuration(kMilliseconds);
    animation_.setEasingCurve(QEasingCurve::OutCubic);
    animation_.setStartValue(0.0);
    animation_.setEndValue(1.0);
    QObject::connect(&animation_, &QVariantAnimation::valueChanged,
                     [this](const QVariant& share) { show_(ViewBetween(from_, to_, share.toDouble())); });
}

void ViewMotion::Start(const MercatorView& from, const MercatorView& to, bool animated) {
    animation_.stop();
    from_ = from;
    to_ = to;
    if (animated && from != to) {
        animation_.start();
    } else {
        show_(to);
    }
}

}  // namespace Tarvik::Seamap
