// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/graph/RouteTypes.h"

namespace Tarvik::Server {

class SeaNetwork;

/// The distances between all ports.
class PortTable {
  public:
    /// Reckons them under limits with so many threads, at least one.
    PortTable(const SeaNetwork& network, const RouteLimits& limits, unsigned threads);

    /// Nautical miles between the ports of two numbers in the network's order; negative where there is no
    /// way, 0 from a port to itself.
    double Nm(std::size_t a, std::size_t b) const {
        return a < b ? below_[RowStart(b) + a] : b < a ? below_[RowStart(a) + b] : 0.0;
    }

    /// Comma-separated: a line of the ports' codes (ids where a port has none), then for each port its code
    /// and the miles to all, with one decimal, empty where there is no way.
    std::string Text(const SeaNetwork& network) const;

  private:
    static std::size_t RowStart(std::size_t row) { return row * (row - 1) / 2; }

    std::size_t ports_;
    std::vector<float> below_;  ///< row after row, each port to those before it
};

}  // namespace Tarvik::Server
