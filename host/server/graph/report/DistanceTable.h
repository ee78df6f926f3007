// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/CsvTable.h"
#include "host/server/graph/RouteEngine.h"

namespace Tarvik::Server {

/// Passages by the names that route points have.
struct StatedPassages {
    std::vector<std::string> through;
    std::vector<std::string> without;
};

/// The passages that a remark in a table of distances names, as in "via Tsugaru-Kaikyo and south of Aleutian
/// Islands". Words that name no passage of ours are passed over.
StatedPassages PassagesOf(const std::string& remark);

/// A pair of ports with our distance, and the published one where the table has it.
struct DistanceLine {
    std::string from;
    std::string to;
    std::string via;                  ///< the table's remark about the routing
    std::optional<double> published;  ///< nautical miles
    double nm = 0.0;                  ///< ours by the passages that the remark names; 0 when `fault` is set
    double usualNm = 0.0;             ///< ours where no passage is asked for
    std::string fault;                ///< why there is no distance

    /// How far ours lies from the published distance, as a share of it.
    double Error() const { return nm / *published - 1.0; }
};

/// Measures all pairs of a table with the columns `from_unlocode` and `to_unlocode` (or `from` and `to`:
/// code, name or id of a port), and where it has them `nm` and `via`.
std::vector<DistanceLine> MeasureDistances(const SeaNetwork& network, const RouteEngine& engine,
                                           const Data::CsvTable& table);

/// The lines as a text of comma-separated values.
std::string DistanceText(const std::vector<DistanceLine>& lines);

/// How our distances lie to the published ones, by length and by routing; of the entries of one pair the
/// nearest counts. Empty when nothing was published.
std::string DistanceStatistics(const std::vector<DistanceLine>& lines);

}  // namespace Tarvik::Server
