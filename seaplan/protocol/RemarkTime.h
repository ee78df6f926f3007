// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace Tarvik::Seaplan {

/// Seconds after 1970 UTC as local text of the zone that the host names; empty when it names none. An empty
/// format means "%Y-%m-%d %H:%M". Remark times are timer values, so no cut-over date applies.
std::string UtcTextToLocal(std::int64_t gmtTimer, const std::string& format);
/// Local present time; an empty format means "%Y-%m-%d".
std::string NowText(const std::string& format);

}  // namespace Tarvik::Seaplan
