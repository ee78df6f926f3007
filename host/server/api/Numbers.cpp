// SPDX-License-Identifier: MIT
#include "host/server/api/Numbers.h"

#include <array>
#include <charconv>
#include <chrono>
#include <system_error>

namespace Tarvik::Server {

namespace {

template <class Number, class... Form>
std::optional<Number> ParseWhole(std::string_view text, Number least, Number most, Form... form) {
    Number number{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, form...);
    if (error != std::errc() || stop != end || !(number >= least && number <= most)) {
        return std::nullopt;
    }
    return number;
}

}  // namespace

std::optional<std::int32_t> ParseInteger(std::string_view text, std::int32_t least, std::int32_t most) {
    return ParseWhole<std::int32_t>(text, least, most, 10);
}

std::optional<double> ParseDecimal(std::string_view text, double least, double most) {
    return ParseWhole<double>(text, least, most, std::chars_format::fixed);
}

std::string PrintDecimal(double number, int decimals) {
    std::array<char, 512> buffer{};
    const double plain = number == 0 ? 0.0 : number;  // no "-0"
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), plain, std::chars_format::fixed);
    std::string text(buffer.data(), result.ptr);
    const std::size_t point = text.find('.');
    const std::size_t present = point == std::string::npos ? 0 : text.size() - point - 1;
    if (point == std::string::npos) {
        text += '.';
    }
    if (present < static_cast<std::size_t>(decimals)) {
        text.append(static_cast<std::size_t>(decimals) - present, '0');
    }
    return text;
}

bool IsTimeText(std::string_view text) {
    constexpr std::string_view kForm = "0000-00-00 00:00:00";
    if (text.size() != kForm.size()) {
        return false;
    }
    for (std::size_t i = 0; i < kForm.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (kForm[i] == '0' ? !digit : text[i] != kForm[i]) {
            return false;
        }
    }
    const auto part = [&](std::size_t from, std::size_t count) {
        return *ParseInteger(text.substr(from, count), 0, 9999);
    };
    const std::chrono::year_month_day date{std::chrono::year(part(0, 4)),
                                           std::chrono::month(static_cast<unsigned>(part(5, 2))),
                                           std::chrono::day(static_cast<unsigned>(part(8, 2)))};
    return date.ok() && part(11, 2) < 24 && part(14, 2) < 60 && part(17, 2) < 60;
}

}  // namespace Tarvik::Server
