// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace Tarvik::Util {

/// Offsets of named zones, from the zone data base of ICU; zones are opened once. May be used on any thread.
class ZoneTable {
  public:
    /// Whether `zone` is a host's zone name ("China Standard Time") or one of the zone data base
    /// ("Asia/Shanghai").
    static bool IsKnown(const std::string& zone);
    /// Offset from UTC in milliseconds at a UTC time in milliseconds after 1970; 0 for an unknown zone.
    static std::int64_t OffsetAtUtc(const std::string& zone, double utcMs);
    /// Offset at a local time; one that does not exist or exists twice takes the offset before the change.
    static std::int64_t OffsetAtLocal(const std::string& zone, double localMs);
};

}  // namespace Tarvik::Util
