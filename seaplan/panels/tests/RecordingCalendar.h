// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "seaplan/panels/datetime/CalendarView.h"

namespace Tarvik::Seaplan {

/// A date's button with its calendar, as they were told to look.
class RecordingCalendar final : public CalendarView, public DateTimeView {
  public:
    CalendarState state;
    std::string edit;             ///< filled into the open edit last
    std::optional<Point> corner;  ///< of the open calendar, nothing while it is closed
    int closed = 0;               ///< how often it was
    std::string text;             ///< on the button
    Rect button{100, 200, 260, 224};

    void ShowState(const CalendarState& shown) override { state = shown; }
    void FillEdit(const std::string& filled) override { edit = filled; }
    void Open(Point at) override { corner = at; }
    void Close() override {
        corner.reset();
        ++closed;
    }
    void ShowText(const std::string& shown) override { text = shown; }
    int timeStyle = 0;
    void SetTimeStyle(int style) override { timeStyle = style; }
    Rect PlaceOnScreen() const override { return button; }
    CalendarView& Calendar() override { return *this; }
};

}  // namespace Tarvik::Seaplan
