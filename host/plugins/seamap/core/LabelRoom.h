// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Tarvik::Seamap {

/// A place of a window in pixels, from its upper left corner.
struct LabelBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double Right() const { return left + width; }
    double Bottom() const { return top + height; }
    /// Whether both have a pixel in common; sides that touch do not.
    bool Meets(const LabelBox& other) const;
    bool Holds(const LabelBox& other) const;
};

/// The largest part of a window that none of the boxes covers, beside, above or below all of them; the whole
/// window when less than a quarter of it is left free that way.
LabelBox FreeRoom(const LabelBox& window, const std::vector<LabelBox>& covers);

/// The places of a window at which something stands already, so that texts keep off each other. Boxes are
/// sorted into cells of the window: a question looks only at its neighbours, however much is on the chart.
class LabelRoom {
  public:
    void Take(const LabelBox& box);
    bool IsFree(const LabelBox& box) const;

  private:
    std::unordered_map<std::int64_t, std::vector<LabelBox>> cells_;
};

}  // namespace Tarvik::Seamap
