// SPDX-License-Identifier: MIT
#include "seaplan/chart/LineSplit.h"

#include <algorithm>
#include <iterator>

/// A line is cut by walking its points once, in order: a point whose text begins with 180 or -180 closes the
/// piece that has something to close. The test is on text, as the points come from the server, so no
/// rounding decides where a line ends. Cost: one pass.
namespace Tarvik::Seaplan {

namespace {

/// The point just before the date line on the same side, its latitude as it stands; empty for a point
/// elsewhere.
std::string AtDateLine(const std::string& point) {
    const auto comma = point.find(',');
    const std::string tail = comma == std::string::npos ? "" : point.substr(comma);
    if (point.starts_with("180")) {
        return "179.99" + tail;
    }
    if (point.starts_with("-180")) {
        return "-179.99" + tail;
    }
    return "";
}

}  // namespace

int SplitAtDateLine(const PointTexts& points, std::vector<PointTexts>& pieces) {
    pieces.clear();
    if (points.size() < 2) {
        return -1;
    }
    std::vector<PointTexts> all(1);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i + 1 < points.size() && points[i] == points[i + 1]) {
            continue;
        }
        const std::string cut = AtDateLine(points[i]);
        all.back().push_back(cut.empty() ? points[i] : cut);
        // A piece that only begins at the date line stays open.
        if (!cut.empty() && all.back().size() > 1) {
            all.emplace_back();
        }
    }
    for (auto& piece : all) {
        if (piece.size() >= 2) {
            pieces.push_back(std::move(piece));
        }
    }
    return 0;
}

PointTexts JoinTracks(const PointTexts& first, const PointTexts& second) {
    PointTexts joined;
    for (const auto* list : {&first, &second}) {
        std::unique_copy(list->begin(), list->end(), std::back_inserter(joined));
    }
    return joined;
}

}  // namespace Tarvik::Seaplan
