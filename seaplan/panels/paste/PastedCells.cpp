// SPDX-License-Identifier: MIT
#include <algorithm>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/panels/paste/PastedText.h"

namespace Tarvik::Seaplan {

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

std::optional<double> PastedSpeed(const std::string& text) {
    return PastedNumber(text, {"kn", "kt", "kts", "knots"});
}

bool TellsOtherSpeedUnit(const std::string& text, std::string_view unit) {
    const std::string small = SmallLetters(text);
    const auto units = OfferedUnits(UnitKind::Speed);
    return std::any_of(units.begin(), units.end(), [&small, unit](std::string_view other) {
        const auto words = WordsOfSpeedUnit(other);
        return other != unit && std::any_of(words.begin(), words.end(), [&small](std::string_view word) {
                   return small.find(word) != std::string::npos;
               });
    });
}

}  // namespace Tarvik::Seaplan
