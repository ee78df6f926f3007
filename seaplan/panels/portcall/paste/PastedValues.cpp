// SPDX-License-Identifier: MIT
#include <tarvik/interface/PlanTerms.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/paste/PastedText.h"
#include "seaplan/panels/portcall/paste/PastedColumns.h"

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
    const auto speed = PastedSpeed(text);
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
