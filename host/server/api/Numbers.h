// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Tarvik::Server {

/// A whole decimal number between the limits, with nothing else in the text; independent of the locale.
std::optional<std::int32_t> ParseInteger(std::string_view text, std::int32_t least, std::int32_t most);

/// A decimal number with or without fraction between the limits, with nothing else in the text.
std::optional<double> ParseDecimal(std::string_view text, double least, double most);

/// Prints without exponent, with as many decimals as the number needs to read back equal and at least
/// `decimals`.
std::string PrintDecimal(double number, int decimals);

/// Whether the text is a time "YYYY-MM-DD hh:mm:ss" whose date exists.
bool IsTimeText(std::string_view text);

}  // namespace Tarvik::Server
