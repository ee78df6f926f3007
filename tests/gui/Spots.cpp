// SPDX-License-Identifier: MIT
#include <algorithm>
#include <sstream>
#include <utility>

#include "tests/gui/Picture.h"

namespace Tarvik::Programs {

namespace {

/// Which pixels of a picture have a colour.
struct Mask {
    int wide = 0;
    int high = 0;
    std::vector<char> set;

    bool Take(int x, int y) {
        if (x < 0 || y < 0 || x >= wide || y >= high) {
            return false;
        }
        return std::exchange(set[static_cast<std::size_t>(y) * static_cast<std::size_t>(wide) +
                                 static_cast<std::size_t>(x)],
                             0) != 0;
    }
};

Mask MaskOf(const std::string& picture, std::uint32_t colour) {
    Mask mask;
    std::istringstream head(picture);
    std::string kind;
    int most = 0;
    head >> kind >> mask.wide >> mask.high >> most;
    if (kind != "P6" || most != 255) {
        return {};
    }
    const std::string wanted{static_cast<char>(colour >> 16 & 0xFF), static_cast<char>(colour >> 8 & 0xFF),
                             static_cast<char>(colour & 0xFF)};
    const auto pixels = static_cast<std::size_t>(head.tellg()) + 1;
    const auto count = static_cast<std::size_t>(mask.wide) * static_cast<std::size_t>(mask.high);
    for (std::size_t i = 0; i < count; ++i) {
        mask.set.push_back(picture.compare(pixels + 3 * i, 3, wanted) == 0 ? 1 : 0);
    }
    return mask;
}

/// Takes a patch out of the mask, beginning at a pixel that was in it.
Spot TakePatch(Mask& mask, int x, int y) {
    std::vector<std::pair<int, int>> open{{x, y}};
    long sumX = 0;
    long sumY = 0;
    Spot spot;
    while (!open.empty()) {
        const auto [px, py] = open.back();
        open.pop_back();
        ++spot.pixels;
        sumX += px;
        sumY += py;
        for (const auto& [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
            if (mask.Take(px + dx, py + dy)) {
                open.emplace_back(px + dx, py + dy);
            }
        }
    }
    spot.x = static_cast<int>(sumX / spot.pixels);
    spot.y = static_cast<int>(sumY / spot.pixels);
    return spot;
}

}  // namespace

std::vector<Spot> SpotsOf(const std::string& picture, std::uint32_t colour, int least) {
    Mask mask = MaskOf(picture, colour);
    std::vector<Spot> spots;
    for (int y = 0; y < mask.high; ++y) {
        for (int x = 0; x < mask.wide; ++x) {
            if (!mask.Take(x, y)) {
                continue;
            }
            const Spot spot = TakePatch(mask, x, y);
            if (spot.pixels >= least) {
                spots.push_back(spot);
            }
        }
    }
    std::sort(spots.begin(), spots.end(), [](const Spot& a, const Spot& b) { return a.x < b.x; });
    return spots;
}

}  // namespace Tarvik::Programs
