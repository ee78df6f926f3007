// SPDX-License-Identifier: MIT
#include "seaplan/panels/datetime/CTrvCalDlg.h"

#include <tarvik/util/DateTimeUtl.h>

namespace Tarvik::Seaplan {

namespace {

CalendarState StateOf(const CalendarModel& model, const std::optional<TimePart>& typing) {
    CalendarState state;
    state.dateOnly = model.IsDateOnly();
    state.heading = model.Heading();
    for (int i = 0; i < CalendarModel::kCells; ++i) {
        const auto day = Util::_datetime_t::from_csecs_days(0, model.GridStart() + i);
        state.cells[static_cast<std::size_t>(i)] = {model.DayOfCell(i), model.LookOfCell(i),
                                                    day.fmt(Util::kDayFormat)};
    }
    state.selectedCell = model.SelectedCell();
    state.hour = model.HourText();
    state.minute = model.MinuteText();
    state.typing = typing;
    return state;
}

}  // namespace

void CTrvCalDlg::Setup(bool dateOnly, const Util::_datetime_t& value) {
    model_ = CalendarModel(dateOnly);
    SetValue(value);
}

void CTrvCalDlg::SetValue(const Util::_datetime_t& value) {
    typing_.reset();
    model_.SetValue(value);
    Show();
}

void CTrvCalDlg::Show() {
    view_.ShowState(StateOf(model_, typing_));
}

void CTrvCalDlg::Open(Point corner) {
    open_ = true;
    view_.Open(corner);
}

void CTrvCalDlg::Hide() {
    if (open_) {
        open_ = false;
        view_.Close();
    }
}

void CTrvCalDlg::OnClosed() {
    open_ = false;
}

void CTrvCalDlg::OnYear(int by) {
    OnTypingDone();
    model_.StepYear(by);
    Show();
}

void CTrvCalDlg::OnMonth(int by) {
    OnTypingDone();
    model_.StepMonth(by);
    Show();
}

void CTrvCalDlg::OnDay(int cell) {
    OnTypingDone();
    const bool changed = model_.ClickCell(cell);
    Show();
    if (!model_.IsDateOnly()) {
        return;
    }
    Hide();
    if (changed) {
        chosen_(model_.Value());
    }
}

void CTrvCalDlg::OnTimePressed(TimePart part) {
    OnTypingDone();
    typing_ = part;
    Show();
    FillEdit();
}

void CTrvCalDlg::FillEdit() {
    typed_ = typing_ == TimePart::Hour ? model_.HourText() : model_.MinuteText();
    view_.FillEdit(typed_);
}

void CTrvCalDlg::TakeTyped() {
    if (typing_ == TimePart::Hour) {
        model_.TypeHour(typed_);
    } else {
        model_.TypeMinute(typed_);
    }
}

void CTrvCalDlg::OnStep(int by) {
    if (!typing_) {
        return;
    }
    TakeTyped();
    if (typing_ == TimePart::Hour) {
        model_.StepHour(by);
    } else {
        model_.StepMinute(by);
    }
    FillEdit();
}

bool CTrvCalDlg::OnKey(Key key) {
    if (key != Key::Enter) {
        return false;
    }
    OnTypingDone();
    return true;
}

bool CTrvCalDlg::OnWindowKey(Key key) {
    switch (key) {
        case Key::Enter:
            if (model_.IsDateOnly()) {
                OnDay(model_.SelectedCell());
            } else {
                OnOk();
            }
            return true;
        case Key::PageUp:
            OnMonth(-1);
            return true;
        case Key::PageDown:
            OnMonth(1);
            return true;
        default:
            return false;
    }
}

void CTrvCalDlg::OnTypingDone() {
    if (!typing_) {
        return;
    }
    TakeTyped();
    typing_.reset();
    Show();
}

void CTrvCalDlg::OnOk() {
    OnTypingDone();
    Hide();
    if (model_.Accept()) {
        chosen_(model_.Value());
    }
}

CTrvDateTimeCtrl::CTrvDateTimeCtrl(DateTimeView& view, Changed changed)
    : view_(view),
      changed_(std::move(changed)),
      calendar_(view.Calendar(),
                [this](const Util::_datetime_t& value) {
                    SetValue(value);
                    changed_(value_);
                }),
      format_(Util::kTimeFormat) {
    calendar_.SetValue(value_);
    view_.ShowText(Text());
}

void CTrvDateTimeCtrl::SetValue(const Util::_datetime_t& value) {
    value_ = value;
    view_.ShowText(Text());
}

void CTrvDateTimeCtrl::SetFormat(const std::string& format) {
    format_ = format;
    view_.ShowText(Text());
}

std::string CTrvDateTimeCtrl::Text() const {
    return Util::DateTimeUtl::Format(value_, format_);
}

void CTrvDateTimeCtrl::OnPressed() {
    constexpr int kLeftOfButton = 10;
    constexpr int kBelowTop = 25;
    if (calendar_.IsVisible()) {
        calendar_.Hide();
        return;
    }
    calendar_.Setup(dateOnly_, value_);
    const Rect button = view_.PlaceOnScreen();
    calendar_.Open({button.left - kLeftOfButton, button.top + kBelowTop});
}

}  // namespace Tarvik::Seaplan
