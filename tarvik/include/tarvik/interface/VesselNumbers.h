// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The numbers that vessels go by, as every program of the system checks them. 0 stands for one that is not
/// known, and is no number.
namespace Tarvik::Interface {

/// Whether this can be a ship's MMSI: nine digits, of which the first three are a country's (201 to 775).
constexpr bool IsShipMmsi(std::int32_t number) {
    constexpr std::int32_t kFirst = 201000000;
    constexpr std::int32_t kLast = 775999999;
    return number >= kFirst && number <= kLast;
}

/// Whether this is an IMO number: seven digits, the last of which is the last digit of the sum of the others
/// times 7, 6, 5, 4, 3 and 2.
constexpr bool IsImoNumber(std::int32_t number) {
    constexpr std::int32_t kFirst = 1000000;
    constexpr std::int32_t kLast = 9999999;
    if (number < kFirst || number > kLast) {
        return false;
    }
    std::int32_t sum = 0;
    std::int32_t rest = number / 10;
    for (std::int32_t weight = 2; weight <= 7; ++weight) {
        sum += rest % 10 * weight;
        rest /= 10;
    }
    return sum % 10 == number % 10;
}

}  // namespace Tarvik::Interface
