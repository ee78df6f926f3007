// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>

#include "seaplan/panels/datetime/CalendarModel.h"
#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// The two parts of a time of day that can be typed.
enum class TimePart { Hour, Minute };

/// One cell of the month's grid.
struct CalendarCell {
    int day = 0;  ///< of its month
    CalendarModel::CellLook look = CalendarModel::CellLook::InMonth;
    std::string date;  ///< "2024-03-21"
    bool operator==(const CalendarCell&) const = default;
};

/// All that a calendar shows.
struct CalendarState {
    bool dateOnly = false;  ///< without the time, OK and Cancel
    std::string heading;    ///< "March  2015"
    std::array<CalendarCell, CalendarModel::kCells> cells;
    int selectedCell = 0;
    std::string hour;                 ///< "08"
    std::string minute;               ///< the same
    std::optional<TimePart> typing;   ///< the part that is an edit between two arrows
    std::optional<std::string> text;  ///< a date with its time that is typed as a text
    std::string note;                 ///< what that is read as, or why it is not taken
    bool operator==(const CalendarState&) const = default;
};

/// The calendar on the screen. It shows what it is told and reports to CTrvCalDlg what a person does.
class CalendarView {
  public:
    virtual ~CalendarView() = default;
    virtual void ShowState(const CalendarState& state) = 0;
    /// Puts a text into the open edit, all selected, with the keyboard in it.
    virtual void FillEdit(const std::string& text) = 0;
    /// Shows the calendar in its own size with its left top corner there on the screen.
    virtual void Open(Point corner) = 0;
    virtual void Close() = 0;
};

/// The button of a date on the screen: a button of its own, or the cell of a table.
class DateTimeView {
  public:
    virtual ~DateTimeView() = default;
    virtual void ShowText(const std::string& text) = 0;
    /// Which look the button gets when it is made: 0 a date with its time, anything else the time of a track.
    virtual void SetTimeStyle(int timeStyle) = 0;
    virtual Rect PlaceOnScreen() const = 0;
    /// What drops from the button.
    virtual CalendarView& Calendar() = 0;
};

}  // namespace Tarvik::Seaplan
