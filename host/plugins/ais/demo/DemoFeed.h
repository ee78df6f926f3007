// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "host/plugins/ais/demo/DemoShip.h"

namespace Tarvik::Ais {

/// Sentences of ships as a receiver would hear them: positions with some metres of noise, names now and then,
/// and gaps in which a ship is not heard. The same seed gives the same feed.
class DemoFeed {
  public:
    /// Seconds of the demonstration's time in which each ship is heard or not.
    static constexpr std::int64_t kGapLength = 1800;

    DemoFeed(std::vector<DemoShip> ships, unsigned seed) : ships_(std::move(ships)), random_(seed) {}

    /// What is heard at a time of the demonstration: a position of each ship that is not in a gap, and in
    /// every tenth call its name. Lines with their ends.
    std::string Next(std::int64_t time);

  private:
    bool IsHeard(const DemoShip& ship, std::int64_t time) const;
    double Noise(double spread);

    std::vector<DemoShip> ships_;
    std::mt19937 random_;
    unsigned calls_ = 0;
};

}  // namespace Tarvik::Ais
