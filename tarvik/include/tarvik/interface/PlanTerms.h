// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// What a person chooses from in a plan, as client, server and plug-ins know it.
namespace Tarvik::Interface {

/// A purpose of a port call: what the list shows and what goes into the row.
struct Purpose {
    const char* text;  ///< begins with the code
    const char* code;  ///< one character, no small letter
};

inline constexpr auto kPurposes = std::to_array<Purpose>({{"1 Delivery on TC", "1"},
                                                          {"2 Redelivery onTC", "2"},
                                                          {"B (Ballast)", "B"},
                                                          {"C (Canal)", "C"},
                                                          {"D (Discharge)", "D"},
                                                          {"L (Load)", "L"},
                                                          {"O (Off hire)", "O"},
                                                          {"W (Waiting inoff)", "W"},
                                                          {"Y (YardOff hire)", "Y"},
                                                          {"Z (Bunkering)", "Z"}});

/// The units on offer, that of a fresh table first. Seaplan converts them (Units.cpp).
inline constexpr auto kSpeedUnits = std::to_array<const char*>({"kts", "KPH"});
inline constexpr auto kDistanceUnits = std::to_array<const char*>({"NM", "KM"});
inline constexpr auto kTimeUnits = std::to_array<const char*>({"day", "hour"});

/// Whether the text is the code of a purpose; an empty or blank one is not.
constexpr bool IsPurposeCode(std::string_view text) {
    return std::any_of(kPurposes.begin(), kPurposes.end(),
                       [text](const Purpose& purpose) { return text == purpose.code; });
}

/// All codes in the order of the list, with `between` between any two.
inline std::string PurposeCodes(std::string_view between) {
    std::string codes;
    for (const Purpose& purpose : kPurposes) {
        codes.append(codes.empty() ? std::string_view() : between).append(purpose.code);
    }
    return codes;
}

/// The slowest speed, in knots, that a plan takes and that a schedule is worked out with after an edit.
inline constexpr double kLeastKnots = 0.01;

/// A weather factor from this one on is sent, and read again, as 1, at which no ship moves: neither client
/// nor server takes it. A row's factor is a float, and the one next to the boundary itself counts as above,
/// whichever way it rounds.
inline constexpr double kLeastFullWeather = static_cast<double>(0.9995F);

/// Ids of the ports and route points that are shipped have at most this many digits, those of a user's own
/// ports have more.
inline constexpr std::size_t kShippedIdDigits = 5;

/// The units as they are typed in small letters, "kts or kph, nm or km, day or hour", with `inner` between
/// the units of one quantity and `outer` between quantities.
inline std::string UnitChoices(std::string_view inner, std::string_view outer) {
    std::string choices;
    const auto tell = [&](const auto& units) {
        for (const char* unit : units) {
            choices.append(choices.empty() ? std::string_view() : unit == units[0] ? outer : inner);
            for (const char letter : std::string_view(unit)) {
                choices += static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter + ('a' - 'A') : letter);
            }
        }
    };
    tell(kSpeedUnits);
    tell(kDistanceUnits);
    tell(kTimeUnits);
    return choices;
}

}  // namespace Tarvik::Interface
