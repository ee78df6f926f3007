// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <sys/random.h>

#include <fmt/format.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <tarvik/util/StringUtl.h>

#include "CLocale.h"

namespace Tarvik::Util {

namespace {

bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Goes on behind blanks and a sign; whether that is a minus.
bool SkipSign(const char*& at, const char* end) {
    while (at != end && IsBlank(*at)) {
        ++at;
    }
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+')) {
        ++at;
    }
    return negative;
}

template <class Int>
Int ParseInteger(const std::string& text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    const bool negative = SkipSign(at, end);
    Int value = 0;
    for (; at != end && IsDigit(*at); ++at) {
        const Int digit = *at - '0';
        const bool overflow = __builtin_mul_overflow(value, Int{10}, &value) ||
                              __builtin_add_overflow(value, negative ? -digit : digit, &value);
        if (overflow) {
            return negative ? std::numeric_limits<Int>::min() : std::numeric_limits<Int>::max();
        }
    }
    return value;
}

// from_chars tells neither overflow from underflow nor gives a value for them.
double ParseOutOfRange(const std::string& number) {
    const double value = ::strtod_l(number.c_str(), nullptr, CLocale());
    return std::min(value, std::numeric_limits<double>::max());
}

void FillRandom(std::array<std::uint8_t, 16>& bytes) {
    if (::getrandom(bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size())) {
        return;
    }
    std::random_device device;
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(device());
    }
}

}  // namespace

locale_t CLocale() {
    static const locale_t locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

std::string FormatC(const char* format, std::va_list arguments) {
    const locale_t before = ::uselocale(CLocale());
    std::va_list again;
    va_copy(again, arguments);
    std::string text;
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    if (length > 0) {
        text.resize(static_cast<std::size_t>(length));
        std::vsnprintf(text.data(), text.size() + 1, format, again);
    }
    va_end(again);
    ::uselocale(before);
    return text;
}

std::u16string StringUtl::TranslateString(const std::string& narrow) {
    const icu::UnicodeString wide = icu::UnicodeString::fromUTF8(
        icu::StringPiece(narrow.data(), static_cast<std::int32_t>(narrow.size())));
    return {wide.getBuffer(), static_cast<std::size_t>(wide.length())};
}

std::string StringUtl::TranslateString(const std::u16string& wide) {
    std::string narrow;
    icu::UnicodeString(false, wide.data(), static_cast<std::int32_t>(wide.size())).toUTF8String(narrow);
    return narrow;
}

bool StringUtl::split(const std::string& text, const std::string& separator, std::vector<std::string>& out) {
    out.clear();
    if (separator.empty()) {
        return false;
    }
    if (text.empty()) {
        return true;
    }
    std::size_t begin = 0;
    for (std::size_t at = text.find(separator); at != std::string::npos; at = text.find(separator, begin)) {
        out.push_back(text.substr(begin, at - begin));
        begin = at + separator.size();
    }
    out.push_back(text.substr(begin));
    return true;
}

std::string StringUtl::IntToString(long long value) {
    return fmt::format("{}", value);
}

std::string StringUtl::GenGUID() {
    std::array<std::uint8_t, 16> bytes{};
    FillRandom(bytes);
    // Marks of a random id: version 4, variant 1.
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
    std::string id;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            id += '-';
        }
        id += fmt::format("{:02x}", bytes[i]);
    }
    return id;
}

std::string StringUtl::NumericalFormat(double value, const std::string& group, const std::string& point,
                                       int digits) {
    const std::string plain = fmt::format("{:.{}f}", value, std::clamp(digits, 0, 340));
    const std::size_t sign = plain.starts_with('-') ? 1 : 0;
    std::size_t dot = plain.find('.');
    if (dot == std::string::npos) {
        dot = plain.size();
    }
    if (plain.size() == sign || !IsDigit(plain[sign])) {
        return plain;
    }
    std::string out = plain.substr(0, sign);
    for (std::size_t i = sign; i < dot; ++i) {
        if (i > sign && (dot - i) % 3 == 0) {
            out += group;
        }
        out += plain[i];
    }
    if (dot < plain.size()) {
        out += point + plain.substr(dot + 1);
    }
    return out;
}

bool StringUtl::StringCopy(char* out, std::size_t capacity, const std::string& text) {
    if (out == nullptr || capacity == 0) {
        return false;
    }
    const std::size_t count = std::min(text.size(), capacity - 1);
    std::memcpy(out, text.data(), count);
    out[count] = 0;
    return count == text.size();
}

int StringUtl::ToInt(const std::string& text) {
    return ParseInteger<int>(text);
}

long long StringUtl::ToLong(const std::string& text) {
    return ParseInteger<long long>(text);
}

double StringUtl::ToDouble(const std::string& text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    const bool negative = SkipSign(at, end);
    const bool number = at != end && (IsDigit(*at) || (*at == '.' && at + 1 != end && IsDigit(at[1])));
    if (!number) {
        return 0;
    }
    double value = 0;
    const auto result = std::from_chars(at, end, value);
    if (result.ec == std::errc::result_out_of_range) {
        value = ParseOutOfRange({at, result.ptr});
    }
    return negative ? -value : value;
}

int StringUtl::Width(const std::u16string& wide) {
    int width = 0;
    for (const char16_t unit : wide) {
        width += unit < 128 ? 1 : 2;
    }
    return width;
}

int StringUtl::Width(const std::string& narrow) {
    return Width(TranslateString(narrow));
}

bool StringUtl::IsSpace(char32_t c) {
    return u_isUWhiteSpace(static_cast<UChar32>(c)) != 0;
}

// All white space lies in the basic plane, so units may be tested one by one.
std::u16string StringUtl::TrimLeft(const std::u16string& wide) {
    const auto first = std::find_if_not(wide.begin(), wide.end(), [](char16_t c) { return IsSpace(c); });
    return {first, wide.end()};
}

std::u16string StringUtl::Trim(const std::u16string& wide) {
    std::u16string text = TrimLeft(wide);
    while (!text.empty() && IsSpace(text.back())) {
        text.pop_back();
    }
    return text;
}

std::string StringUtl::Trim(const std::string& narrow) {
    return TranslateString(Trim(TranslateString(narrow)));
}

std::string StringUtl::Format(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::string text = FormatC(format, arguments);
    va_end(arguments);
    return text;
}

}  // namespace Tarvik::Util
