// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// Text helpers. Narrow text is UTF-8, wide text UTF-16; nothing depends on the process locale.
class TARVIK_API StringUtl {
  public:
    ///@{
    /// Narrow text as wide text, and back; bad sequences become U+FFFD.
    static std::u16string TranslateString(const std::string& narrow);
    static std::string TranslateString(const std::u16string& wide);
    ///@}
    /// Splits at every `separator`, keeping empty pieces; an empty text gives no piece. False for an empty
    /// separator.
    static bool split(const std::string& text, const std::string& separator, std::vector<std::string>& out);
    /// Decimal digits, with "-" before a negative number.
    static std::string IntToString(long long value);
    /// A new random id in the form 8-4-4-4-12 of hexadecimal digits.
    static std::string GenGUID();
    /// `value` with `digits` decimals, thousands grouped by `group` and `point` as decimal sign.
    static std::string NumericalFormat(double value, const std::string& group, const std::string& point,
                                       int digits);
    /// Copies at most capacity - 1 bytes and ends with NUL; false when the text was cut.
    static bool StringCopy(char* out, std::size_t capacity, const std::string& text);

    ///@{
    /// atoi, atol, atof of the system: blanks, sign, digits (fraction, exponent); overflow clamps; nan, inf
    /// and hexadecimal read as 0.
    static int ToInt(const std::string& text);
    static long long ToLong(const std::string& text);
    static double ToDouble(const std::string& text);
    ///@}
    ///@{
    /// Width of a text: a UTF-16 unit below 128 counts 1, every other 2.
    static int Width(const std::u16string& wide);
    static int Width(const std::string& narrow);
    ///@}
    /// Unicode white space, whatever the locale.
    static bool IsSpace(char32_t c);
    /// Without white space at both ends.
    static std::u16string Trim(const std::u16string& wide);
    /// The same of UTF-8.
    static std::string Trim(const std::string& narrow);
    /// Without white space at the beginning.
    static std::u16string TrimLeft(const std::u16string& wide);
    /// printf in the C locale.
    static std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
};

}  // namespace Tarvik::Util
