// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/data/Position.h"

using namespace Tarvik::Seaplan;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void CheckStop(const RouteStops& stops, std::size_t index) {
    for (const auto& group : stops[index].rp_groups) {
        Require(group.leg == static_cast<int>(index));
        std::string text;
        AlternativeRequestText(stops, group.rp_id, "1", text);
    }
    for (const auto& lock : stops[index].locks) {
        Require(lock.item.compare(0, lock.key.size() + 1, lock.key + "=") == 0);
    }
    for (const auto& segment : stops[index].routes) {
        float km = 0;
        Require(PointsetLength(segment.pointset, km) == 0);
    }
}

}  // namespace

// Any JSON gives a known code; a failure leaves no stops, and what a success gives is whole.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Tarvik::Util::Jsona reply;
    if (!reply.parse(std::string_view(reinterpret_cast<const char*>(data), size))) {
        return 0;
    }
    RouteStops stops;
    const int code = ParseRouteReply(reply, stops);
    Require(code <= 0 && code >= -6);
    Require((code == 0) == !stops.empty());
    for (std::size_t i = 0; i < stops.size(); ++i) {
        CheckStop(stops, i);
    }
    return 0;
}
