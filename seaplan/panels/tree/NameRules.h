// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

/// Greatest widths of names; the editor takes as many UTF-16 units.
inline constexpr int kCategoryNameWidth = 30;
inline constexpr int kVoyageNameWidth = 20;

/// A typed name as it is kept: white space trimmed at both ends, apostrophe, quotation mark, backslash and
/// ampersand replaced by their fullwidth forms. Empty when nothing visible is left.
std::string NormalizeName(const std::string& typed);

}  // namespace Tarvik::Seaplan
