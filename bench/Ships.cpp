// SPDX-License-Identifier: MIT
#include "bench/Ships.h"

#include <random>
#include <string>

namespace Bench {

Tarvik::Interface::TrvMapShips SomeShips(int count) {
    constexpr int kFirstId = 200'000'000;
    std::mt19937 random(1);
    const auto from = [&random](double first, double last) {
        return std::uniform_real_distribution<double>(first, last)(random);
    };
    Tarvik::Interface::TrvMapShips ships{"AIS", {}};
    for (int i = 0; i < count; ++i) {
        ships.ships.push_back(
            {std::to_string(kFirstId + i), "", from(-180, 180), from(-60, 75), from(0, 360), 0x00A000});
    }
    return ships;
}

}  // namespace Bench
