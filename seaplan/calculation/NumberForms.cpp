// SPDX-License-Identifier: MIT
#include "seaplan/calculation/NumberForms.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

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

}  // namespace Tarvik::Seaplan
