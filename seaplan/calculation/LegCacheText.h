// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <map>
#include <string>

#include "seaplan/data/RouteStop.h"

/// The text format of the leg cache, one leg a line; see docs for its separators.
namespace Tarvik::Seaplan {

/// Key "from-to" of port names; direction matters.
using LegCache = std::map<std::string, RouteLegCacheEntry>;

std::string LegCacheKey(const std::string& from, const std::string& to);
/// 0, or the code of what is wrong: -1 empty line; -2 section split; -3 not four sections; -4 head split; -5
/// head without five fields; -6 stamp not of 19 characters or no date; -7 segment list; -8 segment; -9
/// segment without four fields; -10 group list; -11 group; -12 group without three fields; -13 alternatives.
int ParseCacheLine(const std::string& line, RouteLegCacheEntry& out);
/// Adds every good line of a stream; bad lines are skipped.
void ReadCache(std::istream& in, LegCache& cache);
/// Writes entries in key order. -1, with the entries before it written, for an entry without two stops.
int WriteCache(std::ostream& out, const LegCache& cache);
/// Whether an entry must be fetched again: stamped before the epoch or strictly older than `maxAgeHours` at
/// `now`. -5 when the limit cannot be computed, 0 fresh, 1 stale.
int IsStale(const RouteLegCacheEntry& entry, const Util::_datetime_t& epoch, float maxAgeHours,
            const Util::_datetime_t& now);

}  // namespace Tarvik::Seaplan
