// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tarvik/Export.h>

namespace Tarvik::Util {

struct JsonaDocument;

/// A JSON value, read from strict JSON or from the looser form with bare keys and raw control characters in
/// texts.
///
/// Legal beyond strict JSON: {a:"x",_b$1:2} (keys of letters, digits, "_", "$", not beginning with a digit)
/// and raw control characters inside quoted texts. Illegal: trailing commas, single quotes, comments, text
/// behind the root, bad escapes, lone surrogates, bad UTF-8, more than 64 levels, an empty or blank text.
/// Values are cheap handles that keep their document alive. Nothing throws; a missing value reads as the
/// default.
class TARVIK_API Jsona {
  public:
    /// What a value is; None is the missing one.
    enum class Kind : std::uint8_t { None, Null, False, True, Integer, Real, Text, Array, Object };

    Jsona() = default;
    /// Replaces this value by the text's root. False, with this value empty and ErrorOffset set, for a bad
    /// text.
    bool parse(std::string_view text);
    /// Byte offset at which the last text was bad.
    std::size_t ErrorOffset() const { return errorOffset_; }
    /// What was wrong there, in English.
    const char* ErrorText() const { return errorText_; }

    /// What this value is.
    Kind kind() const;
    /// Items of an array, members of an object (equal keys count once, the later value wins), 0 for anything
    /// else.
    int size() const;
    /// Whether an object has a member of this key.
    bool has(std::string_view key) const;
    ///@{
    /// Member by key; an empty value when there is none.
    Jsona get(std::string_view key) const;
    Jsona get(const char* key) const { return get(std::string_view(key)); }
    ///@}
    /// Item of an array, or member of an object in order; an empty value outside.
    Jsona get(int index) const;
    /// Key of member `index` of an object.
    std::string key(int index) const;

    ///@{
    /// Text of a text member; anything else gives the default.
    std::string getv(std::string_view key, const char* fallback) const;
    std::string getv(std::string_view key, const std::string& fallback) const;
    ///@}
    /// An integer that fits 32 bits; anything else gives the default.
    int getv(std::string_view key, int fallback) const;
    /// A number written with a fraction or exponent; anything else gives the default.
    double getv(std::string_view key, double fallback) const;
    ///@{
    /// The same of an item of an array, or of a member in order.
    std::string getv(int index, const char* fallback) const;
    std::string getv(int index, const std::string& fallback) const;
    int getv(int index, int fallback) const;
    double getv(int index, double fallback) const;
    ///@}

    ///@{
    /// This value itself, by the same rules.
    std::string text(const std::string& fallback = {}) const;
    int integer(int fallback) const;
    double real(double fallback) const;
    ///@}

  private:
    Jsona(std::shared_ptr<const JsonaDocument> document, std::uint32_t node);
    std::shared_ptr<const JsonaDocument> document_;
    std::uint32_t node_ = 0;
    std::size_t errorOffset_ = 0;
    const char* errorText_ = "";
};

}  // namespace Tarvik::Util
