// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/texts/TextId.h"

namespace Tarvik::Seaplan {

/// Section, and name in it, of the plug-in's texts in the language files.
inline constexpr const char16_t* kTextSection = u"Seaplan";

/// Key of a number of the string table, null when the number has no entry.
const char* TextKeyOf(int number);
/// Text of string `number` in the language in force, UTF-8. False, with `out` the fallback, when the string
/// table has no such number or the language file no such key.
bool LoadText(std::string& out, int number, const std::string& fallback);
/// The text of `id`, or an empty text when the language file lacks it.
std::string Text(TextId id);
/// The same with "%1", "%2" and on replaced by these values.
std::string Text(TextId id, const std::vector<std::string>& values);
/// The text of a control or of a column's title by its key, as "IDS_PORTCALL_PORT": at most 2047 UTF-16
/// units, empty when the language file lacks the key.
std::string TextOfKey(const char* key);

}  // namespace Tarvik::Seaplan
