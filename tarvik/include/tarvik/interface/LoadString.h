// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Interface {

/// Texts of the language that the person chose; the client loads them from its language files.
class TARVIK_API LanguageSource {
  public:
    virtual ~LanguageSource();
    /// Text of `key` in the table `name` of `section`; nothing when the language has none.
    virtual std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& name,
                                               const std::u16string& key) const = 0;
    /// Client: puts a source in force (not owned); null takes it away.
    static void Set(const LanguageSource* source);
    /// The source in force; null without one.
    static const LanguageSource* Current();
};

/// Writes the text of `key` in the current language into `buffer`, or `fallback` when the key is unknown; at
/// most `capacity` - 1 UTF-16 units and a NUL.
TARVIK_API void TrvLoadString(const char16_t* section, const char16_t* name, const char16_t* key,
                              char16_t* buffer, const char16_t* fallback, std::size_t capacity);

}  // namespace Tarvik::Interface
