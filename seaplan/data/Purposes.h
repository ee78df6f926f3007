// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The purposes of a port call that a rule names; all of them stand in tarvik/interface/PlanTerms.h.
namespace Tarvik::Seaplan {

inline constexpr const char* kBallast = "B";
inline constexpr const char* kDischarge = "D";
inline constexpr const char* kLoad = "L";
/// In the place of a purpose: the row stands for a position of the ship by AIS.
inline constexpr const char* kAisPurpose = " ";

/// Whether a row says nothing of its purpose: empty, or the blank of a position.
constexpr bool IsPurposeMissing(std::string_view code) {
    return code.empty() || code == kAisPurpose;
}

}  // namespace Tarvik::Seaplan
