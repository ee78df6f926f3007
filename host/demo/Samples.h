// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

/// What a demonstration starts with: voyages in three categories and a fleet, all of them made up.
namespace Tarvik::Demo {

/// A vessel of the fleet.
struct SampleVessel {
    std::string_view name;
    std::int32_t mmsi = 0;
    std::int32_t imo = 0;
    std::string_view callSign;
    std::string_view type;
    double length = 0;  ///< metres
    double knots = 0;   ///< service speed
};

/// A voyage, told from the moment at which the demonstration begins.
struct SampleVoyage {
    std::string_view category;
    std::string_view name;
    std::array<std::string_view, 3> ports;  ///< UN/LOCODEs; the third may be missing
    double knots = 0;
    std::int64_t departure = 0;  ///< hours from now; negative ones are past
    std::string_view vessel;     ///< of the fleet; empty for none yet
    bool isUnderWay = false;     ///< its vessel sails and is followed
    bool isInBin = false;        ///< in the recycle bin
};

std::span<const SampleVessel> Vessels();
std::span<const SampleVoyage> Voyages();

}  // namespace Tarvik::Demo
