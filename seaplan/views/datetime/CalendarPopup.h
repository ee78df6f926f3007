// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "seaplan/views/datetime/DayGrid.h"
#include "seaplan/views/datetime/TimeField.h"

namespace Tarvik::Seaplan {

/// The calendar that drops from a date: month grid, hour and minute, OK and Cancel. The window system closes
/// it at Escape and at a press outside.
class CalendarPopup final : public QFrame, public CalendarView {
  public:
    explicit CalendarPopup(QWidget* parent);
    /// What is done goes to this panel, which outlives the popup's use.
    void Attach(CTrvCalDlg* panel);
    /// The place on the screen that opens the calendar. A press there closes it and goes no further, or it
    /// would open it again.
    void SetAnchor(const QRect& screen) { anchor_ = screen; }
    /// Captions and hints in the language in force.
    void ApplyTexts();
    void ApplySkin();

    void ShowState(const CalendarState& state) override;
    void FillEdit(const std::string& text) override;
    void Open(Point corner) override;
    void Close() override { hide(); }

  protected:
    /// A press beside hour and minute ends their typing; one beside the calendar closes it.
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QLayout* MakeHead();
    QLayout* MakeTime();
    QLayout* MakeButtons();

    CTrvCalDlg* panel_ = nullptr;
    std::array<QToolButton*, 4> steps_{};  ///< year and month back, month and year on
    QLabel* heading_;
    DayGrid* days_;
    TimeField* hour_;
    TimeField* minute_;
    QLabel* colon_;
    struct {
        QPushButton* ok;
        QPushButton* cancel;
    } end_{};
    bool typingHour_ = true;
    QRect anchor_;
};

/// The cell of a table as the button of a date: it shows the text by itself, and the calendar tells it to
/// those who cannot see.
class DateCell final : public DateTimeView {
  public:
    /// `surface` is what cells are counted on, `window` owns the calendar.
    DateCell(QWidget& surface, QWidget& window);
    /// The cell that is the button from now on.
    void Put(const QRect& cell) { cell_ = cell; }
    CalendarPopup& Popup() { return *calendar_; }
    const CalendarPopup& Popup() const { return *calendar_; }

    void ShowText(const std::string& text) override;
    Rect PlaceOnScreen() const override;
    CalendarView& Calendar() override { return *calendar_; }

  private:
    QWidget& surface_;
    CalendarPopup* calendar_;
    QRect cell_;
};

}  // namespace Tarvik::Seaplan
