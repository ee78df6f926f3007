// SPDX-License-Identifier: MIT
/// A text is cut into its parts (CoordinateParts.h). Of one coordinate there are one to three numbers, of
/// which only the last has a fraction. A number without separators holds degrees with minutes, or with
/// seconds too, where it is too long or too great for degrees alone. A pair is tried at every place where it
/// can be cut, and must be legal in one way only, or in reading order. Cost: the square of the length, for
/// texts of a few dozen characters.
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <vector>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/TypedPosition.h>

#include "CoordinateParts.h"

namespace Tarvik::Util {

namespace {

constexpr double kMinutesPerDegree = 60;
constexpr double kSecondsPerDegree = 3600;
constexpr std::size_t kLongestText = 200;

double MostOf(Axis axis) {
    return axis == Axis::Latitude ? kMostLatitude : kMostLongitude;
}

char LetterOf(double degrees, Axis axis) {
    return axis == Axis::Latitude ? (degrees < 0 ? 'S' : 'N') : (degrees < 0 ? 'W' : 'E');
}

bool IsNumber(const std::string& number) {
    return number != "." && std::count(number.begin(), number.end(), '.') <= 1;
}

/// Degrees of up to three numbers: whole degrees and minutes, and less than sixty of the finer two.
std::optional<double> Sum(const std::vector<std::string>& numbers) {
    constexpr std::array<double, 3> kParts = {1, kMinutesPerDegree, kSecondsPerDegree};
    double degrees = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool last = i + 1 == numbers.size();
        const double value = StringUtl::ToDouble(numbers[i]);
        if (!IsNumber(numbers[i]) || (!last && numbers[i].find('.') != std::string::npos) ||
            (i > 0 && value >= kMinutesPerDegree)) {
            return std::nullopt;
        }
        degrees += value / kParts.at(i);
    }
    return degrees;
}

/// Degrees, minutes and, in a longer number, seconds that stand in one row of digits.
std::vector<std::string> Split(const std::string& number, Axis axis) {
    constexpr std::size_t kPair = 2;
    const std::size_t whole = std::min(number.find('.'), number.size());
    const std::size_t degreeDigits = axis == Axis::Latitude ? 2 : 3;
    const std::size_t parts = whole > degreeDigits + kPair ? 2 : 1;  // of two digits each
    const std::size_t head = whole - parts * kPair;
    std::vector<std::string> numbers = {number.substr(0, head)};
    if (parts == 2) {
        numbers.push_back(number.substr(head, kPair));
    }
    numbers.push_back(number.substr(whole - kPair));
    return numbers;
}

/// Degrees without sign, at most those of the axis.
std::optional<double> Magnitude(const CoordinateParts& parts, Axis axis) {
    if (parts.numbers.empty() || parts.numbers.size() > 3) {
        return std::nullopt;
    }
    const std::optional<double> degrees = Sum(parts.numbers);
    if (degrees && *degrees <= MostOf(axis)) {
        return degrees;
    }
    const std::string& only = parts.numbers.front();
    const std::size_t whole = std::min(only.find('.'), only.size());
    constexpr std::size_t kLeast = 3;
    constexpr std::size_t kMost = 7;
    if (parts.numbers.size() > 1 || whole < kLeast || whole > kMost || !IsNumber(only)) {
        return std::nullopt;
    }
    const std::optional<double> split = Sum(Split(only, axis));
    return split && *split <= MostOf(axis) ? split : std::nullopt;
}

std::optional<double> ReadParts(const CoordinateParts& parts, Axis axis) {
    const bool northSouth = parts.letter == 'N' || parts.letter == 'S';
    if (parts.letter != 0 && (northSouth != (axis == Axis::Latitude) || parts.negative)) {
        return std::nullopt;
    }
    const std::optional<double> degrees = Magnitude(parts, axis);
    const bool negative = parts.negative || parts.letter == 'S' || parts.letter == 'W';
    return degrees ? std::optional(negative && *degrees != 0 ? -*degrees : *degrees) : std::nullopt;
}

std::optional<TypedPosition> ReadPair(std::string_view first, std::string_view second) {
    const auto one = CutCoordinate(first);
    const auto two = CutCoordinate(second);
    if (!one || !two || (one->letter == 0) != (two->letter == 0)) {
        return std::nullopt;
    }
    const bool turned = one->letter == 'E' || one->letter == 'W';
    const auto y = ReadParts(turned ? *two : *one, Axis::Latitude);
    const auto x = ReadParts(turned ? *one : *two, Axis::Longitude);
    return y && x ? std::optional(TypedPosition{*x, *y}) : std::nullopt;
}

/// Where a pair with letters is cut: behind the first letter, or before the second where they lead.
std::optional<TypedPosition> ReadByLetters(const std::string& plain) {
    const auto first = std::find_if(plain.begin(), plain.end(), IsHemisphere);
    if (first == plain.end()) {
        return std::nullopt;
    }
    const auto second = std::find_if(first + 1, plain.end(), IsHemisphere);
    if (second == plain.end()) {
        return std::nullopt;
    }
    const bool leads = std::none_of(plain.begin(), first, IsDigit);
    const auto at = static_cast<std::size_t>((leads ? second : first + 1) - plain.begin());
    std::string_view head = Trimmed(std::string_view(plain).substr(0, at));
    std::string_view tail = Trimmed(std::string_view(plain).substr(at));
    constexpr std::string_view kBetween = ",;/ \t";
    while (!head.empty() && kBetween.find(head.back()) != std::string_view::npos) {
        head.remove_suffix(1);
    }
    while (!tail.empty() && kBetween.find(tail.front()) != std::string_view::npos) {
        tail.remove_prefix(1);
    }
    return ReadPair(head, tail);
}

}  // namespace

std::optional<double> ReadTypedDegrees(const std::string& text, Axis axis) {
    if (text.size() > kLongestText) {
        return std::nullopt;
    }
    const auto parts = CutCoordinate(PlainSigns(text));
    return parts ? ReadParts(*parts, axis) : std::nullopt;
}

std::optional<TypedPosition> ReadTypedPosition(const std::string& text) {
    if (text.size() > kLongestText) {
        return std::nullopt;
    }
    const std::string plain = PlainSigns(text);
    if (std::any_of(plain.begin(), plain.end(), IsHemisphere)) {
        return ReadByLetters(plain);
    }
    const std::string_view whole = Trimmed(plain);
    // The surer separators first: a comma may be a decimal one, a blank may stand before minutes.
    for (const std::string_view between : {";", "/", "\t", ", ", ",", " "}) {
        const std::size_t at = whole.find(between);
        if (at == std::string_view::npos) {
            continue;
        }
        if (whole.find(between, at + between.size()) != std::string_view::npos && between != " ") {
            continue;
        }
        const std::string_view tail = whole.substr(at + between.size());
        if (between == " " && Trimmed(tail).find(' ') != std::string_view::npos) {
            return std::nullopt;
        }
        if (const auto pair = ReadPair(whole.substr(0, at), tail)) {
            return pair;
        }
    }
    return std::nullopt;
}

std::string DegreesText(double degrees, Axis axis) {
    constexpr int kHundredths = 100;
    const auto all = std::llround(std::fabs(degrees) * kMinutesPerDegree * kHundredths);
    const long long perDegree = static_cast<long long>(kMinutesPerDegree) * kHundredths;
    return StringUtl::Format("%0*lld° %05.2f' %c", axis == Axis::Latitude ? 2 : 3, all / perDegree,
                             static_cast<double>(all % perDegree) / kHundredths, LetterOf(degrees, axis));
}

std::string SecondsText(double degrees, Axis axis) {
    constexpr auto kPerDegree = static_cast<long long>(kSecondsPerDegree);
    constexpr auto kPerMinute = static_cast<long long>(kSecondsPerDegree / kMinutesPerDegree);
    const auto all = std::llround(std::fabs(degrees) * kSecondsPerDegree);
    return StringUtl::Format("%0*lld°%02lld'%02lld\"%c", axis == Axis::Latitude ? 2 : 3, all / kPerDegree,
                             all % kPerDegree / kPerMinute, all % kPerMinute, LetterOf(degrees, axis));
}

}  // namespace Tarvik::Util
