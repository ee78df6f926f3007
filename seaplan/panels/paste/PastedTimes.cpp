// SPDX-License-Identifier: MIT
/// Times as people write them: the numbers and the month's name are picked out
/// in order, and must make one of the known forms without a rest.
#include <array>
#include <string_view>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/paste/PastedText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kMostParts = 6;
constexpr int kMonths = 12;
constexpr int kYearDigits = 4;

/// A number with its count of digits, or a month by its name with none.
struct Part {
    int value = 0;
    int digits = 0;
};

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

char Small(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsLetter(char c) {
    return Small(c) >= 'a' && Small(c) <= 'z';
}

/// 1 to 12 for a month's English name or its first three letters, 0 for another
/// word.
int MonthOf(std::string_view word) {
    constexpr std::array<std::string_view, kMonths> kNames{"january",   "february", "march",    "april",
                                                           "may",       "june",     "july",     "august",
                                                           "september", "october",  "november", "december"};
    std::string small;
    for (const char c : word) {
        small.push_back(Small(c));
    }
    for (std::size_t month = 0; month < kNames.size(); ++month) {
        if (small == kNames.at(month) || small == kNames.at(month).substr(0, 3)) {
            return static_cast<int>(month) + 1;
        }
    }
    return 0;
}

/// The parts of a text and the marks between them; false for what no date has.
bool ReadParts(const std::string& text, std::vector<Part>& parts, std::string& marks) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t from = at;
        if (IsDigit(text[at])) {
            while (at < text.size() && IsDigit(text[at])) {
                ++at;
            }
            const int digits = static_cast<int>(at - from);
            if (digits > kYearDigits) {
                return false;
            }
            parts.push_back({Util::StringUtl::ToInt(text.substr(from, at - from)), digits});
        } else if (IsLetter(text[at])) {
            while (at < text.size() && IsLetter(text[at])) {
                ++at;
            }
            const std::string_view word = std::string_view(text).substr(from, at - from);
            if (word == "T" || word == "t") {
                continue;
            }
            parts.push_back({MonthOf(word), 0});
            if (parts.back().value == 0) {
                return false;
            }
        } else if (std::string_view(" -/.,:").find(text[at]) != std::string_view::npos) {
            marks.push_back(text[at++]);
        } else {
            return false;
        }
    }
    return parts.size() >= 3 && parts.size() <= kMostParts && parts.size() != 4;
}

/// Year, month and day of the first three parts; false where they are none, or
/// two days.
bool ReadDate(const std::vector<Part>& parts, char mark, std::array<int, 3>& date) {
    if (parts[0].digits == kYearDigits) {
        date = {parts[0].value, parts[1].value, parts[2].value};
        return true;
    }
    if (parts[2].digits != kYearDigits || parts[0].digits == 0) {
        return false;
    }
    date = {parts[2].value, parts[1].value, parts[0].value};
    const bool named = parts[1].digits == 0;
    const bool twoWays =
        parts[0].value <= kMonths && parts[1].value <= kMonths && parts[0].value != parts[1].value;
    // With slashes some write the month first.
    return named || mark != '/' || (!twoWays && parts[1].value <= kMonths);
}

}  // namespace

std::optional<std::string> ReadPastedTime(const std::string& text) {
    std::vector<Part> parts;
    std::string marks;
    std::array<int, 3> date{};
    if (!ReadParts(text, parts, marks) || marks.empty() || !ReadDate(parts, marks.front(), date)) {
        return std::nullopt;
    }
    for (std::size_t i = 3; i < parts.size(); ++i) {
        if (parts[i].digits == 0 || parts[i].digits > 2) {
            return std::nullopt;
        }
    }
    const auto clock = [&parts](std::size_t i) { return i < parts.size() ? parts[i].value : 0; };
    const std::string written = Util::StringUtl::Format("%04d-%02d-%02d %02d:%02d:%02d", date[0], date[1],
                                                        date[2], clock(3), clock(4), clock(5));
    return Util::DateTimeUtl::Parse(written) ? std::optional(written) : std::nullopt;
}

}  // namespace Tarvik::Seaplan
