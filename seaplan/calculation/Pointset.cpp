// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Pointset.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

bool SplitPointset(const std::string& pointset, std::vector<std::string>& points) {
    points.clear();
    if (!Util::StringUtl::split(pointset, "|", points)) {
        return false;
    }
    std::erase_if(points, [](const std::string& point) { return point.empty(); });
    return true;
}

bool ReadPosition(const std::string& text, std::size_t leastComma, Position& out) {
    const auto comma = text.find(',');
    if (comma == std::string::npos || comma < leastComma) {
        return false;
    }
    out.x = Util::StringUtl::ToDouble(text.substr(0, comma));
    out.y = Util::StringUtl::ToDouble(text.substr(comma + 1));
    return true;
}

}  // namespace Tarvik::Seaplan
