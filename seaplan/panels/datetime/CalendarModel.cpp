// SPDX-License-Identifier: MIT
#include "seaplan/panels/datetime/CalendarModel.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};

Util::_datetime_t FirstOfMonth(const Util::_datetime_t& like, int month, int year) {
    return {like.second(), like.minute(), like.hour(), 1, month, year};
}

}  // namespace

void CalendarModel::SetValue(const Util::_datetime_t& value) {
    value_ = value;
    ShowMonth(value);
}

void CalendarModel::ShowMonth(const Util::_datetime_t& date) {
    shown_ = date;
    const Util::_date_t first(1, date.month(), date.year());
    const int weekDay = first.day_of_week();
    gridStart_ = first.to_days() - (weekDay == 0 ? 7 : weekDay);
    const int cell = date.date().to_days() - gridStart_;
    if (cell >= 0 && cell < kCells) {
        selectedCell_ = cell;
    }
    hour_ = date.hour();
    minute_ = date.minute();
}

void CalendarModel::StepYear(int years) {
    ShowMonth(FirstOfMonth(shown_, shown_.month(), shown_.year() + years));
}

void CalendarModel::StepMonth(int months) {
    const int count = shown_.year() * 12 + shown_.month() - 1 + months;
    ShowMonth(FirstOfMonth(shown_, count % 12 + 1, count / 12));
}

void CalendarModel::TypeHour(const std::string& text) {
    const int hour = Util::StringUtl::ToInt(text);
    if (hour >= 0 && hour <= 23) {
        hour_ = hour;
    }
}

void CalendarModel::TypeMinute(const std::string& text) {
    const int minute = Util::StringUtl::ToInt(text);
    if (minute >= 0 && minute <= 59) {
        minute_ = minute;
    }
}

bool CalendarModel::ClickCell(int cell) {
    if (cell < 0 || cell >= kCells) {
        return false;
    }
    selectedCell_ = cell;
    const int day = gridStart_ + cell;
    if (!dateOnly_ || day == value_.date().to_days()) {
        return false;
    }
    value_ = Util::_datetime_t::from_csecs_days(0, day);
    return true;
}

bool CalendarModel::Accept() {
    constexpr std::int64_t kCsecsPerMinute = 6000;
    // Seconds and below stay as they were.
    const std::int64_t rest = value_.time().to_csecs() % kCsecsPerMinute;
    const std::int64_t time = (hour_ * 60 + minute_) * kCsecsPerMinute + rest;
    const auto chosen = Util::_datetime_t::from_csecs_days(time, gridStart_ + selectedCell_);
    if (chosen == value_) {
        return false;
    }
    value_ = chosen;
    return true;
}

CalendarModel::CellLook CalendarModel::LookOfCell(int cell) const {
    const int day = gridStart_ + cell;
    if (day == Util::_datetime_t().date().to_days()) {
        return CellLook::Today;
    }
    const Util::_date_t date = Util::_date_t::from_days(day);
    const bool inMonth = date.month() == shown_.month() && date.year() == shown_.year();
    return inMonth ? CellLook::InMonth : CellLook::OutsideMonth;
}

std::string CalendarModel::Heading() const {
    return std::string(kMonths[shown_.month() - 1]) + "  " + std::to_string(shown_.year());
}

std::string CalendarModel::HourText() const {
    return Util::StringUtl::Format("%02d", hour_);
}

std::string CalendarModel::MinuteText() const {
    return Util::StringUtl::Format("%02d", minute_);
}

}  // namespace Tarvik::Seaplan
