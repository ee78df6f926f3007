// SPDX-License-Identifier: MIT
#include "tests/gui/Picture.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace Tarvik::Programs {

std::string Cut(const std::string& picture, int left, int top, int width, int height) {
    std::istringstream head(picture);
    std::string kind;
    int wide = 0;
    int high = 0;
    int most = 0;
    head >> kind >> wide >> high >> most;
    if (kind != "P6" || most != 255 || left < 0 || top < 0 || left + width > wide || top + height > high) {
        return {};
    }
    const auto pixels = static_cast<std::size_t>(head.tellg()) + 1;
    std::string cut;
    for (int y = top; y < top + height; ++y) {
        const auto at = pixels + 3U * (static_cast<std::size_t>(y) * static_cast<std::size_t>(wide) +
                                       static_cast<std::size_t>(left));
        cut += picture.substr(at, 3U * static_cast<std::size_t>(width));
    }
    return cut;
}

void Keep(const std::string& name, const std::string& picture) {
    const char* folder = std::getenv("SEAPLAN_TEST_PICTURES");
    if (folder != nullptr) {
        std::ofstream(std::string(folder) + "/" + name, std::ios::binary) << picture;
    }
}

}  // namespace Tarvik::Programs
