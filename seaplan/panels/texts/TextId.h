// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// A text of the plug-in by its number in the string table. The numbers stand in the headers beside this one,
/// a header a panel, so that a new text builds the users of its own panel anew. Controls take their text by
/// their own number, so both share one space; the texts themselves stand in the language files.
enum class TextId : int {};

}  // namespace Tarvik::Seaplan

/// Makes the constant of one text, for the lists of the headers beside this one.
#define SEAPLAN_TEXT_ID(number, key) inline constexpr TextId key{number};
