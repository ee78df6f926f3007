// SPDX-License-Identifier: MIT
// Zones by the offsets of ZoneTable.h, a search among a zone's changes each. Sums are whole centiseconds in
// 64 bits and stay at the ends of their range.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include <tarvik/util/DateTimeUtl.h>

#include "Saturate.h"
#include "ZoneTable.h"

namespace Tarvik::Util {

namespace {

double Milliseconds(const _datetime_t& value) {
    return static_cast<double>(value.total_csecs()) * 10;
}

_datetime_t Shifted(const _datetime_t& value, std::int64_t csecs) {
    return _datetime_t::from_csecs_days(SaturatedAdd(value.total_csecs(), csecs), 0);
}

/// Two or four digits at `at`, or -1.
int Digits(const std::string& text, std::size_t at, std::size_t count) {
    int value = 0;
    for (std::size_t i = at; i < at + count; ++i) {
        if (text[i] < '0' || text[i] > '9') {
            return -1;
        }
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

}  // namespace

_datetime_t DateTimeUtl::ConvertToUTC(const _datetime_t& local, const std::string& zone) {
    return Shifted(local, -(ZoneTable::OffsetAtLocal(zone, Milliseconds(local)) / 10));
}

_datetime_t DateTimeUtl::ConvertFromUTC(const _datetime_t& utc, const std::string& zone) {
    return Shifted(utc, ZoneTable::OffsetAtUtc(zone, Milliseconds(utc)) / 10);
}

std::string DateTimeUtl::Format(const _datetime_t& value, const std::string& format) {
    return value.fmt(format.c_str());
}

std::optional<_datetime_t> DateTimeUtl::Parse(const std::string& text) {
    if (text.size() != kTimeTextLength) {
        return std::nullopt;
    }
    if (text[4] != '-' || text[7] != '-' || text[10] != ' ' || text[13] != ':' || text[16] != ':') {
        return std::nullopt;
    }
    const int year = Digits(text, 0, 4);
    const int month = Digits(text, 5, 2);
    const int day = Digits(text, 8, 2);
    const int hour = Digits(text, 11, 2);
    const int minute = Digits(text, 14, 2);
    const int second = Digits(text, 17, 2);
    if (year < 0 || month < 1 || month > 12 || day < 1 || day > _date_t(1, month, year).month_days()) {
        return std::nullopt;
    }
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) {
        return std::nullopt;
    }
    return _datetime_t(second, minute, hour, day, month, year);
}

_datetime_t DateTimeUtl::AddHour(const _datetime_t& value, double hours) {
    if (!std::isfinite(hours)) {
        return value;
    }
    // A date-time keeps centiseconds: the whole milliseconds are rounded once more.
    const double milliseconds = std::round(std::clamp(hours * 3'600'000.0, -9e18, 9e18));
    return Shifted(value, std::llround(milliseconds / 10));
}

double DateTimeUtl::Diff(const _datetime_t& a, const _datetime_t& b) {
    return static_cast<double>(SaturatedSubtract(a.total_csecs(), b.total_csecs())) /
           static_cast<double>(kCsecsPerHour);
}

bool DateTimeUtl::IsKnownZone(const std::string& zone) {
    return ZoneTable::IsKnown(zone);
}

}  // namespace Tarvik::Util
