// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Units.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kKnots = "kts";
constexpr const char* kNauticalMiles = "NM";
constexpr const char* kHours = "hour";
constexpr auto kKmPerMile = static_cast<float>(Util::kKmPerNauticalMile);

struct Factor {
    std::string_view from;
    std::string_view to;
    float multiplier;
    float divisor;
    UnitKind quantity;
};

// The three speed factors are independent of each other: knots to MPH over KPH is not the direct way.
constexpr auto kFactors = std::to_array<Factor>({
    {"KPH", "kts", 1, kKmPerMile, UnitKind::Speed},
    {"kts", "KPH", kKmPerMile, 1, UnitKind::Speed},
    {"KPH", "MPH", 1, 1.61F, UnitKind::Speed},
    {"MPH", "KPH", 1.61F, 1, UnitKind::Speed},
    {"kts", "MPH", 1.15F, 1, UnitKind::Speed},
    {"MPH", "kts", 1, 1.15F, UnitKind::Speed},
    {"KM", "NM", 1, kKmPerMile, UnitKind::Distance},
    {"NM", "KM", kKmPerMile, 1, UnitKind::Distance},
    {"day", "hour", 24, 1, UnitKind::Time},
    {"hour", "day", 1, 24, UnitKind::Time},
});

struct SpeedWords {
    std::string_view unit;
    std::array<std::string_view, 3> words;
};

constexpr SpeedWords kSpeedWords[] = {{"kts", {"kt", "kn", "节"}}, {"KPH", {"kph", "km", "公里"}}};
static_assert(std::size(kSpeedWords) == Interface::kSpeedUnits.size(), "each unit on offer has its words");

float Changed(float value, const Factor& factor) {
    return static_cast<float>(static_cast<double>(value) * static_cast<double>(factor.multiplier) /
                              static_cast<double>(factor.divisor));
}

void Change(VoyPortCall& row, const Factor& factor) {
    switch (factor.quantity) {
        case UnitKind::Speed:
            row.psp = Changed(row.psp, factor);
            break;
        case UnitKind::Distance:
            row.distance = Changed(row.distance, factor);
            break;
        case UnitKind::None:
            break;
        case UnitKind::Time:
            row.steamTime = Changed(row.steamTime, factor);
            row.apt = Changed(row.apt, factor);
            break;
    }
}

/// Converts in place; equal units need no factor.
bool Convert(PortCallRows& rows, const std::string& from, const std::string& to) {
    if (from == to) {
        return true;
    }
    PortCallRows result;
    if (ConvertRows(rows, from, to, result) != 0) {
        return false;
    }
    rows = std::move(result);
    return true;
}

int ConvertAll(const PortCallRows& rows, const UnitSet& from, const UnitSet& to, PortCallRows& out) {
    PortCallRows result = rows;
    int code = 0;
    if (rows.empty()) {
        code = -1;
    } else if (!Convert(result, from.speed, to.speed)) {
        code = -2;
    } else if (!Convert(result, from.distance, to.distance)) {
        code = -3;
    } else if (!Convert(result, from.time, to.time)) {
        code = -4;
    }
    if (code != 0) {
        result.clear();
    }
    out = std::move(result);
    return code;
}

const UnitSet& StandardUnits() {
    static const UnitSet units{kKnots, kNauticalMiles, kHours};
    return units;
}

}  // namespace

const std::string& UnitOf(const UnitSet& units, UnitKind kind) {
    return kind == UnitKind::Speed ? units.speed : kind == UnitKind::Distance ? units.distance : units.time;
}

std::string& UnitOf(UnitSet& units, UnitKind kind) {
    return kind == UnitKind::Speed ? units.speed : kind == UnitKind::Distance ? units.distance : units.time;
}

std::string UnitLabel(const UnitSet& units, UnitKind kind) {
    if (kind == UnitKind::None) {
        return {};
    }
    return UnitOf(units, kind) + (kind == UnitKind::Time ? "s" : "");
}

std::span<const char* const> OfferedUnits(UnitKind kind) {
    switch (kind) {
        case UnitKind::Speed:
            return Interface::kSpeedUnits;
        case UnitKind::Distance:
            return Interface::kDistanceUnits;
        default:
            return Interface::kTimeUnits;
    }
}

std::span<const std::string_view> WordsOfSpeedUnit(std::string_view unit) {
    for (const SpeedWords& known : kSpeedWords) {
        if (known.unit == unit) {
            return known.words;
        }
    }
    return {};
}

int ConvertRows(const PortCallRows& rows, const std::string& from, const std::string& to, PortCallRows& out) {
    const auto factor = std::find_if(kFactors.begin(), kFactors.end(),
                                     [&](const Factor& f) { return f.from == from && f.to == to; });
    if (rows.empty() || factor == kFactors.end()) {
        const int code = rows.empty() ? -2 : -1;
        out.clear();
        return code;
    }
    PortCallRows result = rows;
    for (auto& row : result) {
        Change(row, *factor);
    }
    out = std::move(result);
    return 0;
}

int ConvertUnitValue(const PortCallRows& rows, const std::string& from, const std::string& to,
                     PortCallRows& out) {
    if (rows.empty()) {
        out.clear();
        return -1;
    }
    if (from == to) {
        out.clear();
        return -2;
    }
    return ConvertRows(rows, from, to, out) == 0 ? 0 : -3;
}

int ToStandardUnits(const PortCallRows& rows, const UnitSet& units, PortCallRows& out) {
    return ConvertAll(rows, units, StandardUnits(), out);
}

int FromStandardUnits(const PortCallRows& rows, const UnitSet& units, PortCallRows& out) {
    return ConvertAll(rows, StandardUnits(), units, out);
}

using Util::StringUtl;

bool IsBlankCell(const std::string& text) {
    return text.empty() || text == kBlankCell;
}

void ReadTextCell(const std::string& cell, std::string& field) {
    if (!IsBlankCell(cell)) {
        field = cell;
    }
}

void ReadNumberCell(const std::string& cell, float& field) {
    if (!IsBlankCell(cell)) {
        field = static_cast<float>(StringUtl::ToDouble(cell));
    }
}

void ReadPercentCell(const std::string& cell, float& field) {
    if (!IsBlankCell(cell)) {
        field = static_cast<float>(StringUtl::ToDouble(cell.substr(0, cell.size() - 1)) / 100);
    }
}

void ReadTimeCell(const std::string& cell, Util::_datetime_t& field) {
    if (const auto time = ReadTimeText(cell)) {
        field = *time;
    }
}

std::string SpeedText(double speed) {
    return TwoDecimals(speed);
}

std::string WeatherText(double fraction) {
    return PercentText(fraction * 100);
}

std::string PercentText(double percent) {
    return StringUtl::Format("%.0f%%", percent);
}

std::string TwoDecimals(double value) {
    return StringUtl::Format("%.2f", value);
}

std::string OneDecimal(double value) {
    return StringUtl::Format("%.1f", value);
}

std::string TimeCell(const Util::_datetime_t& time) {
    return time.fmt(kTimeFormat);
}

}  // namespace Tarvik::Seaplan
