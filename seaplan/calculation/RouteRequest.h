// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/data/RouteStop.h"

/// Request texts of the route commands.
namespace Tarvik::Seaplan {

/// Whole list: {"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"a#b"}.
std::string RouteRequestText(const std::vector<std::string>& pointIds);
/// Request that puts `newId` in the place of `oldId`. False when the old id is empty or no stop has a group
/// of it, or the group's stop has no segments; then `text` is left alone.
bool AlternativeRequestText(const RouteStops& stops, const std::string& oldId, const std::string& newId,
                            std::string& text);
/// {"nr_point":[x,y],"dest_port":id}
std::string NearestRequestText(const std::string& position, const std::string& portId);

}  // namespace Tarvik::Seaplan
