// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// A rectangle in pixels; right and bottom lie outside.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const Rect&) const = default;
};

/// A point in pixels.
struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

}  // namespace Tarvik::Seaplan
