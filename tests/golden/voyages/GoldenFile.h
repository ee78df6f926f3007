// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Golden {

/// Whether the tests write the golden files anew instead of comparing: SEAPLAN_WRITE_GOLDEN=1.
bool Writing();
/// Compares a text with a file of a voyage's folder byte by byte, or writes it. Empty when they are equal or
/// it is written, else words that name the file and the first line that differs.
std::string CompareOrWrite(const std::string& voyage, const std::string& file, const std::string& text);

}  // namespace Tarvik::Golden
