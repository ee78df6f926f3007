// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <functional>
#include <utility>

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
    /// Told when the calendar has opened, and when it has closed for whatever reason.
    void SetShown(std::function<void(bool)> shown) { shown_ = std::move(shown); }
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
    /// Keys that no control has taken.
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QLayout* MakeHead();
    void MakeText(QVBoxLayout& rows);
    void ShowText(const CalendarState& state);
    QLayout* MakeTime();
    QLayout* MakeButtons();

    CTrvCalDlg* panel_ = nullptr;
    std::array<QToolButton*, 4> steps_{};  ///< year and month back, month and year on
    QLabel* heading_;
    /// A date that is typed whole, and how it is understood.
    struct {
        QLineEdit* text;
        QLabel* note;
    } whole_{};
    DayGrid* days_;
    struct {
        TimeField* hour;
        QLabel* colon;
        TimeField* minute;
    } time_{};
    struct {
        QPushButton* ok;
        QPushButton* cancel;
    } end_{};
    bool typingHour_ = true;
    QRect anchor_;
    std::function<void(bool)> shown_;
};

}  // namespace Tarvik::Seaplan
