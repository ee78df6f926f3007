// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

/// Adds the good lines of a cache file, "" for the usual one; a file that is missing, or too large to be a
/// cache, adds none.
void ReadCacheFile(const std::string& name, LegCache& cache);
/// Writes a whole cache file anew. 0, or -1 with the entries before it written, for an entry without two
/// stops.
int WriteCacheFile(const std::string& name, const LegCache& cache);

enum class LegStep { TooFewRows, Fetch, Store, Age, FetchAgain, StoreAgain, Stops, Pointset };
/// Numbers of GetStopsByCache. -2, a cache that cannot be read, is free: such a file counts as empty.
inline constexpr CodeTable kStopsByCacheCodes{
    Code{LegStep::TooFewRows, -1},  // fewer than two rows
    Code{LegStep::Fetch, -3},       // the server gives no route for a leg that is not known
    Code{LegStep::Store, -4},       // it was fetched, the file cannot be written
    Code{LegStep::Age, -5},         // the oldest good time cannot be computed
    Code{LegStep::FetchAgain, -6},  // as -3 for a leg that has grown old
    Code{LegStep::StoreAgain, -7},  // as -4 for such a leg
    Code{LegStep::Stops, -8},       // a leg without two stops
    Code{LegStep::Pointset, -9},    // a leg whose points do not parse
};

/// Routes put together leg by leg from the file `Ports.dat`, so that a voyage over known legs needs no
/// server.
class CachedLegs {
  public:
    /// One stop for each row; a leg that is missing or older than 90 days is fetched and the
    /// file written at once. After a failure `out` is empty; legs that came before it stay in the file.
    Outcome<LegStep> StopsOf(const PortCallRows& rows, RouteStops& out);

    /// Keeps the legs of the server's answer to a whole list, with the present time: those that no choice of
    /// a person has changed. A file that cannot be written is none.
    void Keep(const PortCallRows& rows, const RouteStops& stops);
    /// A stop for each row of legs that are known, whatever their age, and the time of the oldest. Nothing,
    /// with `out` as it was, when one is not known.
    std::optional<Util::_datetime_t> Known(const PortCallRows& rows, RouteStops& out);

  private:
    enum class FetchStep { Ask, Write };

    Outcome<FetchStep> Fetch(const VoyPortCall& from, const VoyPortCall& to);
    void Open();
    bool KeepLeg(const VoyPortCall& from, const VoyPortCall& to, const RouteStop& start,
                 const RouteStop& end);
    Outcome<LegStep> Leg(const VoyPortCall& from, const VoyPortCall& to, RouteStops& leg);

    LegCache legs_;
};

}  // namespace Tarvik::Seaplan
