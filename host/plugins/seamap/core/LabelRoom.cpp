// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/LabelRoom.h"

#include <algorithm>
#include <cmath>

namespace Tarvik::Seamap {

namespace {

constexpr double kCell = 64;  ///< pixels: about the width of a name

std::int64_t CellOf(double pixel) {
    return static_cast<std::int64_t>(std::floor(pixel / kCell));
}

/// Visits the cells of a box until a visit answers true; whether one did.
template <typename Visit>
bool EachCell(const LabelBox& box, Visit visit) {
    for (std::int64_t row = CellOf(box.top); row <= CellOf(box.Bottom()); ++row) {
        for (std::int64_t column = CellOf(box.left); column <= CellOf(box.Right()); ++column) {
            if (visit(row * (std::int64_t{1} << 32) + column)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool LabelBox::Meets(const LabelBox& other) const {
    return left < other.Right() && other.left < Right() && top < other.Bottom() && other.top < Bottom();
}

bool LabelBox::Holds(const LabelBox& other) const {
    return left <= other.left && top <= other.top && other.Right() <= Right() && other.Bottom() <= Bottom();
}

void LabelRoom::Take(const LabelBox& box) {
    EachCell(box, [this, &box](std::int64_t cell) {
        cells_[cell].push_back(box);
        return false;
    });
}

bool LabelRoom::IsFree(const LabelBox& box) const {
    return !EachCell(box, [this, &box](std::int64_t cell) {
        const auto found = cells_.find(cell);
        return found != cells_.end() &&
               std::any_of(found->second.begin(), found->second.end(),
                           [&box](const LabelBox& other) { return other.Meets(box); });
    });
}

}  // namespace Tarvik::Seamap
