// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Seaplan {

/// The month on view and the choice in it. Weeks begin on Sunday, and the grid always shows at least one day
/// of the month before.
class CalendarModel {
  public:
    static constexpr int kCells = 42;
    enum class CellLook { OutsideMonth, InMonth, Today };

    explicit CalendarModel(bool dateOnly = false) : dateOnly_(dateOnly) {}
    bool IsDateOnly() const { return dateOnly_; }

    /// Takes a value and shows its month.
    void SetValue(const Util::_datetime_t& value);
    const Util::_datetime_t& Value() const { return value_; }
    /// Shows the month of `date` and selects its day.
    void ShowMonth(const Util::_datetime_t& date);
    void StepYear(int years);
    void StepMonth(int months);
    /// Up counts down and down counts up; both wrap.
    void StepHour(int by) { hour_ = (hour_ + by + 24) % 24; }
    void StepMinute(int by) { minute_ = (minute_ + by + 60) % 60; }
    /// Typed text; anything outside 0 to 23 or 0 to 59 leaves the old value.
    void TypeHour(const std::string& text);
    void TypeMinute(const std::string& text);
    /// A click on a cell. True when it is the choice and changes the value (date only).
    bool ClickCell(int cell);
    /// Takes the selected day with hour and minute. True when the value changed.
    bool Accept();

    int GridStart() const { return gridStart_; }
    int SelectedCell() const { return selectedCell_; }
    int DayOfCell(int cell) const { return Util::_date_t::from_days(gridStart_ + cell).day(); }
    CellLook LookOfCell(int cell) const;
    /// "March  2015"
    std::string Heading() const;
    std::string HourText() const;
    std::string MinuteText() const;

  private:
    bool dateOnly_;
    Util::_datetime_t value_;
    Util::_datetime_t shown_;
    int gridStart_ = 0;
    int selectedCell_ = 0;
    int hour_ = 0;
    int minute_ = 0;
};

}  // namespace Tarvik::Seaplan
