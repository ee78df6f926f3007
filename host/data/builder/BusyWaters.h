// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Data {

using Server::GeoPoint;

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

}  // namespace Tarvik::Data
