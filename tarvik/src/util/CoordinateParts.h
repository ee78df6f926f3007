// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What people write in coordinates, cut into its parts.
namespace Tarvik::Util {

inline bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
/// Of a hemisphere, in capitals.
inline bool IsHemisphere(char c) {
    return c == 'N' || c == 'S' || c == 'E' || c == 'W';
}

/// One coordinate.
struct CoordinateParts {
    std::vector<std::string> numbers;  ///< digits and "."
    char letter = 0;                   ///< of the hemisphere, 0 for none
    bool negative = false;
};

/// The text in capital letters, with blanks for signs and words of degrees, minutes and seconds.
std::string PlainSigns(const std::string& text);
/// Without blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);
/// A plain text of one coordinate in its parts; nothing where anything else stands in it, or two letters.
std::optional<CoordinateParts> CutCoordinate(std::string_view text);

}  // namespace Tarvik::Util
