// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/data/builder/Land.h"
#include "host/geo/LandIndex.h"

namespace Tarvik::Data {

/// Where ships turn often: half-degree cells around ports and passages. The network is fine there and coarse
/// elsewhere.
class BusyWaters {
  public:
    /// Marks every cell whose middle lies within `nm` nautical miles of a place.
    BusyWaters(const std::vector<GeoPoint>& places, double nm);

    bool Contains(GeoPoint p) const;

  private:
    std::vector<char> cells_;
};

/// A turning point of ways around land: a cape moved seaward. `toPrevious` and `toNext` point along the coast
/// (east, north in equal units); ways worth having at this point leave both on one side.
struct Corner {
    GeoPoint at;
    GeoPoint toPrevious;
    GeoPoint toNext;
    bool shared = false;  ///< stands for several capes, whose directions differ
};

/// How finely the coast is followed.
struct Waters {
    BusyWaters busy;  ///< narrow water counts and every cape
    BusyWaters used;  ///< every cape with room to pass; elsewhere only the great ones
};

/// The capes of the land: 12 nautical miles off in open water, 6 on coasts in use, 0.2 to 0.8 in narrow
/// water, half as far where there is no room, and those between them that would hide one from the next.
std::vector<Corner> FindCorners(const std::vector<Polygon>& land, const Server::LandIndex& index,
                                const Waters& waters);

}  // namespace Tarvik::Data
