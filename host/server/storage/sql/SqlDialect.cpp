// SPDX-License-Identifier: MIT
#include "host/server/storage/sql/SqlDialect.h"

#include <algorithm>

#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

namespace {

/// What stands for one point, which comes without its braces.
std::string TextOfPoint(std::string_view point, std::span<const SqlPoint> points) {
    const std::size_t colon = std::min(point.find(':'), point.size());
    const std::string_view name = point.substr(0, colon);
    const auto known = std::find_if(points.begin(), points.end(),
                                    [name](const SqlPoint& candidate) { return candidate.name == name; });
    if (known == points.end()) {
        throw SqlError("a statement has the unknown point " + std::string(point));
    }
    const std::string_view argument = point.substr(std::min(colon + 1, point.size()));
    std::string text;
    for (const char sign : known->text) {
        if (sign == '%') {
            text += argument;
        } else {
            text += sign;
        }
    }
    return text;
}

}  // namespace

std::string WithPoints(std::string_view sql, std::span<const SqlPoint> points) {
    std::string text;
    while (true) {
        const std::size_t open = sql.find('{');
        text += sql.substr(0, open);
        if (open == std::string_view::npos) {
            return text;
        }
        const std::size_t close = sql.find('}', open);
        if (close == std::string_view::npos) {
            throw SqlError("a statement has a point without an end");
        }
        text += TextOfPoint(sql.substr(open + 1, close - open - 1), points);
        sql.remove_prefix(close + 1);
    }
}

}  // namespace Tarvik::Server
