// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QToolButton>
#include <array>
#include <functional>

#include "seaplan/panels/datetime/CalendarModel.h"

class QPushButton;

namespace Tarvik::Seaplan {

/// The calendar that drops from a date: month grid, hour and minute, OK and Cancel. A press outside hides it
/// and leaves the value.
class CalendarPopup final : public QFrame {
  public:
    explicit CalendarPopup(QWidget* parent);
    /// Called with the new value when OK has changed it.
    void SetChosen(std::function<void(const Util::_datetime_t&)> chosen) { chosen_ = std::move(chosen); }
    void SetValue(const Util::_datetime_t& value);
    void ApplyTexts();
    void ApplySkin();

  protected:
    /// A press beside hour and minute ends their typing.
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Hour or minute: a text that turns into an editor with two arrows at a click.
    struct TimeField {
        QToolButton* shown = nullptr;
        QLineEdit* edit = nullptr;
        QToolButton* minus = nullptr;
        QToolButton* plus = nullptr;
    };
    QLayout* MakeHead();
    QLayout* MakeDays();
    QLayout* MakeTime();
    QLayout* MakeButtons();
    QToolButton* Button(const char* name, const QString& text, std::function<void()> action);
    TimeField MakeTimeField(const char* name, bool hour);
    void BeginTyping(TimeField& field);
    void EndTyping(TimeField& field, bool hour);
    void Step(TimeField& field, bool hour, int by);
    void Accept();
    void ShowModel();

    CalendarModel model_;
    std::function<void(const Util::_datetime_t&)> chosen_;
    QToolButton* previousYear_;
    QToolButton* nextYear_;
    QToolButton* previousMonth_;
    QToolButton* nextMonth_;
    QLabel* heading_;
    std::array<QToolButton*, CalendarModel::kCells> cells_{};
    TimeField hour_;
    TimeField minute_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

}  // namespace Tarvik::Seaplan
