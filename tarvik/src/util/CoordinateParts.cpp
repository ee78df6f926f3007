// SPDX-License-Identifier: MIT
/// A text is cut into numbers, letters of a hemisphere and separators; whatever else stands in it makes it no
/// coordinate. Signs and words are told from a table, longer ones first. Cost: the length times the table's.
#include "CoordinateParts.h"

#include <algorithm>
#include <iterator>

namespace Tarvik::Util {

namespace {

/// What stands in for what in typed and pasted texts; longer ones first.
struct Spelling {
    std::string_view typed;
    std::string_view meant;
};
constexpr Spelling kSpellings[] = {
    {"degrees", " "}, {"minutes", " "}, {"seconds", " "}, {"deg", " "},    {"min", " "},    {"sec", " "},
    {"north", "N"},   {"south", "S"},   {"east", "E"},    {"west", "W"},   {"°", " "},      {"º", " "},
    {"˚", " "},       {"′", " "},       {"″", " "},       {"’", " "},      {"‘", " "},      {"“", " "},
    {"”", " "},       {"＇", " "},      {"＂", " "},      {"\u00A0", " "}, {"\u3000", " "}, {"\u2212", "-"},
    {"\u2013", "-"},  {"'", " "},       {"\"", " "},      {":", " "},      {"北纬", "N"},   {"南纬", "S"},
    {"东经", "E"},    {"西经", "W"},    {"北緯", "N"},    {"南緯", "S"},   {"東經", "E"},   {"西經", "W"},
    {"度", " "},      {"分", " "},      {"秒", " "}};

/// Takes the letter at one end, which stands there once.
bool TakeLetter(std::string_view& text, CoordinateParts& parts) {
    for (const bool front : {true, false}) {
        if (!text.empty() && IsHemisphere(front ? text.front() : text.back())) {
            if (parts.letter != 0) {
                return false;
            }
            parts.letter = front ? text.front() : text.back();
            text = Trimmed(front ? text.substr(1) : text.substr(0, text.size() - 1));
        }
    }
    return true;
}

}  // namespace

std::string PlainSigns(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size();) {
        const auto known =
            std::find_if(std::begin(kSpellings), std::end(kSpellings), [&](const Spelling& one) {
                return text.size() - i >= one.typed.size() &&
                       std::equal(one.typed.begin(), one.typed.end(),
                                  text.begin() + static_cast<std::ptrdiff_t>(i),
                                  [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b + 32 : b); });
            });
        if (known != std::end(kSpellings)) {
            plain += known->meant;
            i += known->typed.size();
            continue;
        }
        const char c = text[i++];
        plain += c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c == '\n' || c == '\r' ? '\t' : c;
    }
    return plain;
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    const auto last = text.find_last_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first, last - first + 1);
}

std::optional<CoordinateParts> CutCoordinate(std::string_view text) {
    CoordinateParts parts;
    text = Trimmed(text);
    if (!TakeLetter(text, parts)) {
        return std::nullopt;
    }
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        parts.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    bool open = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (IsDigit(c) || c == '.' || c == ',') {
            if (!open) {
                parts.numbers.emplace_back();
                open = true;
            }
            parts.numbers.back() += c == ',' ? '.' : c;
        } else if (c == ' ' || (c == '-' && open && i + 1 < text.size() && IsDigit(text[i + 1]))) {
            open = false;
        } else {
            return std::nullopt;
        }
    }
    return parts;
}

}  // namespace Tarvik::Util
