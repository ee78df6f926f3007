// SPDX-License-Identifier: MIT
#pragma once

#include <QGridLayout>
#include <QToolButton>
#include <array>
#include <functional>

#include "seaplan/panels/datetime/CalendarView.h"

namespace Tarvik::Seaplan {

/// The days of the calendar: seven names, and a button for each cell of the month's grid.
class DayGrid final : public QGridLayout {
  public:
    explicit DayGrid(QWidget* calendar);
    /// Told of the cell that was pressed.
    void SetReport(std::function<void(int)> pressed) { pressed_ = std::move(pressed); }
    void Show(const CalendarState& state);
    /// Gives the keyboard to the chosen day, from where arrows lead to the others.
    void FocusChosen();

  private:
    std::array<QToolButton*, CalendarModel::kCells> cells_{};
    std::function<void(int)> pressed_;
};

}  // namespace Tarvik::Seaplan
