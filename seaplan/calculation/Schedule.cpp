// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Schedule.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <tarvik/interface/PlanTerms.h>

#include "seaplan/data/Outcome.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

using Util::kCsecsPerDay;
constexpr double kLongestSpan = 1e8;  // hours, more than ten thousand years
constexpr double kLeastBuildSpeed = 0.000001;
constexpr float kDefaultSpeed = 10.0F;
constexpr double kLeastTotalTime = 0.0001;

enum class EditStep { Weather, Speed, Time };
using EditOutcome = Outcome<EditStep>;
/// Numbers of RecomputeSchedule.
constexpr CodeTable kRecomputeCodes{Code{EditStep::Weather, -1}, Code{EditStep::Speed, -2},
                                    Code{EditStep::Time, -3}};

/// A departure row: no leg ends there.
bool StartAt(const Util::_datetime_t& start, VoyPortCall& row) {
    row.psp = 0;
    row.steamTime = 0;
    row.eta = start;
    row.etd = start;
    return AddHours(row.apt, row.etd) == 0;
}

/// Times of a row whose leg begins at `departure`.
bool SailFrom(const Util::_datetime_t& departure, VoyPortCall& row) {
    row.steamTime = static_cast<float>(SteamTime(row.distance, row.psp, row.pw));
    row.eta = departure;
    if (AddHours(row.steamTime, row.eta) != 0) {
        return false;
    }
    row.etd = row.eta;
    return AddHours(row.apt, row.etd) == 0;
}

bool IsWeather(double weather) {
    return weather >= 0 && weather <= kMostWeather;
}

/// One row of RecomputeSchedule behind `previous`, null for the first.
EditOutcome RecomputeRow(const VoyPortCall* previous, VoyPortCall& row) {
    if (!IsWeather(row.pw)) {
        return EditStep::Weather;
    }
    if (previous == nullptr) {
        return StartAt(row.eta, row) ? EditOutcome() : EditStep::Time;
    }
    if (static_cast<double>(row.psp) < Interface::kLeastKnots) {
        return EditStep::Speed;
    }
    return SailFrom(previous->etd, row) ? EditOutcome() : EditStep::Time;
}

}  // namespace

double SteamTime(double distance, double speed, double weather) {
    return distance / ((1 - weather) * speed);
}

double SpeedForSteamTime(double distance, double hours, double weather) {
    return distance / ((1 - weather) * hours);
}

int BuildSchedule(const Util::_datetime_t& start, const PortCallRows& rows, PortCallRows& out) {
    PortCallRows result;
    result.reserve(rows.size());
    for (VoyPortCall row : rows) {
        bool timed = false;
        if (result.empty()) {
            row.pp = kLoad;
            row.pw = 0;
            timed = StartAt(start, row);
        } else {
            if (static_cast<double>(row.psp) < kLeastBuildSpeed) {
                row.psp = kDefaultSpeed;
            }
            timed = SailFrom(result.back().etd, row);
        }
        if (!timed) {
            out.clear();
            return -1;
        }
        result.push_back(std::move(row));
    }
    out = std::move(result);
    return 0;
}

int RecomputeSchedule(const PortCallRows& rows, PortCallRows& out) {
    PortCallRows result;
    result.reserve(rows.size());
    for (VoyPortCall row : rows) {
        row.ppi.clear();
        const auto timed = RecomputeRow(result.empty() ? nullptr : &result.back(), row);
        if (timed.Failed()) {
            out.clear();
            return kRecomputeCodes.Of(timed);
        }
        result.push_back(std::move(row));
    }
    out = std::move(result);
    return 0;
}

// A span holds 32 bits of centiseconds, so a long one would go in steps of 500 hours. Every such step is a
// whole number of centiseconds and the product below is exact, hence one truncation at the end gives the same
// time.
int AddHours(float hours, Util::_datetime_t& time) {
    if (!std::isfinite(hours) || std::fabs(static_cast<double>(hours)) > kLongestSpan) {
        return -1;
    }
    const auto span =
        static_cast<std::int64_t>(static_cast<double>(hours) * static_cast<double>(Util::kCsecsPerHour));
    const std::int64_t total = time.total_csecs() + span;
    const std::int64_t ofDay = (total % kCsecsPerDay + kCsecsPerDay) % kCsecsPerDay;
    const std::int64_t days = (total - ofDay) / kCsecsPerDay;
    static const int firstDay = Util::_date_t(1, 1, 1).to_days();
    static const int lastDay = Util::_date_t(31, 12, 9999).to_days();
    if (days < firstDay || days > lastDay) {
        return -1;
    }
    time = Util::_datetime_t::from_csecs_days(ofDay, static_cast<int>(days));
    return 0;
}

int HoursBetween(const std::string& a, const std::string& b, float& hours) {
    const auto later = ReadTimeFields(a);
    const auto earlier = ReadTimeFields(b);
    if (!later || !earlier) {
        return -1;
    }
    int days = Util::_date_t(later->day, later->month, later->year).year_julian() -
               Util::_date_t(earlier->day, earlier->month, earlier->year).year_julian();
    int seconds = (later->hour - earlier->hour) * 3600 + (later->minute - earlier->minute) * 60 +
                  (later->second - earlier->second);
    if (seconds < 0) {
        seconds = 86400 - std::abs(seconds);
        --days;
    }
    hours = static_cast<float>(static_cast<double>(static_cast<float>(seconds)) / 3600.0 +
                               static_cast<double>(static_cast<float>(days * 24)));
    return 0;
}

bool TotalsOf(const PortCallRows& rows, ScheduleTotals& out) {
    if (rows.size() < 2) {
        return false;
    }
    double portTime = 0;
    double steamTime = 0;
    double distance = 0;
    for (const auto& row : rows) {
        portTime += static_cast<double>(row.apt);
        steamTime += static_cast<double>(row.steamTime);
        distance += static_cast<double>(row.distance);
    }
    out = {static_cast<float>(portTime), static_cast<float>(steamTime), static_cast<float>(distance),
           rows.front().eta, rows.back().etd};
    return true;
}

bool SummaryOf(const PortCallRows& rows, ScheduleSummary& out) {
    if (rows.size() < 2) {
        return false;
    }
    double time = 0;
    double distance = 0;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        time += static_cast<double>(rows[i].steamTime) + static_cast<double>(rows[i].apt);
        distance += static_cast<double>(rows[i].distance);
    }
    if (time < kLeastTotalTime) {
        return false;
    }
    out = {static_cast<float>(distance / time), static_cast<float>(time), static_cast<float>(distance)};
    return true;
}

}  // namespace Tarvik::Seaplan
