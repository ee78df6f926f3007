// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/LabelRoom.h"

#include <algorithm>
#include <array>
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

LabelBox FreeRoom(const LabelBox& window, const std::vector<LabelBox>& covers) {
    constexpr double kLeastShare = 0.25;
    LabelBox room = window;
    for (const LabelBox& cover : covers) {
        if (!room.Meets(cover)) {
            continue;
        }
        const double right = std::min(cover.Right(), room.Right());
        const double bottom = std::min(cover.Bottom(), room.Bottom());
        const double left = std::max(cover.left, room.left);
        const double top = std::max(cover.top, room.top);
        const std::array<LabelBox, 4> sides{{{room.left, room.top, left - room.left, room.height},
                                             {right, room.top, room.Right() - right, room.height},
                                             {room.left, room.top, room.width, top - room.top},
                                             {room.left, bottom, room.width, room.Bottom() - bottom}}};
        room = *std::max_element(sides.begin(), sides.end(), [](const LabelBox& a, const LabelBox& b) {
            return a.width * a.height < b.width * b.height;
        });
    }
    return room.width * room.height < kLeastShare * window.width * window.height ? window : room;
}

}  // namespace Tarvik::Seamap
