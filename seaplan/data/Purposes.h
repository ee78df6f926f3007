// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

/// Purposes of a port call: their codes, and what a person chooses from.
namespace Tarvik::Seaplan {

/// What the list shows and what goes into the row.
struct Purpose {
    const char* text;
    const char* code;
};

inline constexpr const char* kBallast = "B";
inline constexpr const char* kDischarge = "D";
inline constexpr const char* kLoad = "L";
/// In the place of a purpose: the row stands for a position of the ship by AIS.
inline constexpr const char* kAisPurpose = " ";

inline constexpr std::array<Purpose, 10> kPurposes = {{{"1 Delivery on TC", "1"},
                                                       {"2 Redelivery onTC", "2"},
                                                       {"B (Ballast)", kBallast},
                                                       {"C (Canal)", "C"},
                                                       {"D (Discharge)", kDischarge},
                                                       {"L (Load)", kLoad},
                                                       {"O (Off hire)", "O"},
                                                       {"W (Waiting inoff)", "W"},
                                                       {"Y (YardOff hire)", "Y"},
                                                       {"Z (Bunkering)", "Z"}}};

/// Code of a list row, null outside the list.
constexpr const char* PurposeCode(int index) {
    return index < 0 || index >= static_cast<int>(kPurposes.size())
               ? nullptr
               : kPurposes[static_cast<std::size_t>(index)].code;
}

/// Whether a row says nothing of its purpose: empty, or the blank of a position.
constexpr bool IsPurposeMissing(std::string_view code) {
    return code.empty() || code == kAisPurpose;
}

}  // namespace Tarvik::Seaplan
