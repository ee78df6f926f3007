// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace Tarvik::Seaplan {

/// A purpose of a port call: what the list shows and what goes into the cell.
struct Purpose {
    const char* text;
    const char* code;
};

inline constexpr std::array<Purpose, 10> kPurposes = {{{"1 Delivery on TC", "1"},
                                                       {"2 Redelivery onTC", "2"},
                                                       {"B (Ballast)", "B"},
                                                       {"C (Canal)", "C"},
                                                       {"D (Discharge)", "D"},
                                                       {"L (Load)", "L"},
                                                       {"O (Off hire)", "O"},
                                                       {"W (Waiting inoff)", "W"},
                                                       {"Y (YardOff hire)", "Y"},
                                                       {"Z (Bunkering)", "Z"}}};

/// Code of a list row, null outside the list.
inline const char* PurposeCode(int index) {
    return index < 0 || index >= static_cast<int>(kPurposes.size()) ? nullptr : kPurposes[index].code;
}

}  // namespace Tarvik::Seaplan
