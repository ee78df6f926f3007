// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/paste/PastedCells.h"

#include <algorithm>
#include <array>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/portcall/paste/PastedText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kMostSpeed = 100;
constexpr double kMostPercent = 99.4;  ///< more is told as 100%, at which no ship moves

std::string PurposeOf(const std::string& text) {
    for (const Interface::Purpose& purpose : Interface::kPurposes) {
        if (SmallLetters(text) == SmallLetters(purpose.code) ||
            SmallLetters(text) == SmallLetters(purpose.text)) {
            return purpose.code;
        }
    }
    return {};
}

std::string SpeedOf(const std::string& text) {
    const auto speed = PastedNumber(text, {"kn", "kt", "kts", "knots"});
    return speed && *speed > 0 && *speed <= kMostSpeed ? SpeedText(*speed) : std::string();
}

std::string WeatherOf(const std::string& text) {
    const auto percent = PastedNumber(text, {"%"});
    return percent && *percent <= kMostPercent ? PercentText(*percent) : std::string();
}

std::string StayOf(const std::string& text) {
    const auto stay = PastedNumber(text, {});
    return stay ? TwoDecimals(*stay) : std::string();
}

}  // namespace

std::string SmallLetters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

std::optional<double> PastedNumber(const std::string& text, std::initializer_list<std::string_view> endings) {
    std::size_t digits = 0;
    std::string number;
    while (digits < text.size() &&
           std::string_view("0123456789.,").find(text[digits]) != std::string_view::npos) {
        number.push_back(text[digits] == ',' ? '.' : text[digits]);
        ++digits;
    }
    std::string rest = SmallLetters(text.substr(digits));
    rest.erase(0, rest.find_first_not_of(' '));
    const bool ends = rest.empty() || std::find(endings.begin(), endings.end(), rest) != endings.end();
    if (!ends || number.empty() || number.front() == '.' ||
        std::count(number.begin(), number.end(), '.') > 1) {
        return std::nullopt;
    }
    return Util::StringUtl::ToDouble(number);
}

std::string PastedValue(int column, const std::string& text, const PortOfText& port) {
    switch (column) {
        case ColPort:
            return port(text);
        case ColPurpose:
            return PurposeOf(text);
        case ColSpeed:
            return SpeedOf(text);
        case ColWeather:
            return WeatherOf(text);
        case ColPortTime:
            return StayOf(text);
        case ColEta:
        case ColEtd:
            return ReadPastedTime(text).value_or("");
        default:
            return {};
    }
}

}  // namespace Tarvik::Seaplan
