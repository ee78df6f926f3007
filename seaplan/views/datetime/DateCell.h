// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QToolButton>

#include "seaplan/views/datetime/CalendarPopup.h"

namespace Tarvik::Seaplan {

/// A date over the cell of a table: a button with the date's text that covers the cell while its calendar is
/// open. A press on it closes the calendar again.
class DateCell final : public DateTimeView {
  public:
    /// `surface` is what cells are counted on, `window` owns the calendar.
    DateCell(QWidget& surface, QWidget& window);
    /// Ties button and calendar to the date, which outlives their use.
    void Attach(CTrvDateTimeCtrl& date);
    /// The cell that the button covers from now on.
    void Put(const QRect& cell);
    CalendarPopup& Popup() { return *calendar_; }
    const CalendarPopup& Popup() const { return *calendar_; }

    void ShowText(const std::string& text) override;
    void SetTimeStyle(int timeStyle) override { timeStyle_ = timeStyle; }
    Rect PlaceOnScreen() const override;
    CalendarView& Calendar() override { return *calendar_; }

  private:
    void MakeButton();

    QWidget& surface_;
    CalendarPopup* calendar_;
    QPointer<QToolButton> button_;
    CTrvDateTimeCtrl* date_ = nullptr;
    QString text_;
    int timeStyle_ = 0;
};

}  // namespace Tarvik::Seaplan
