// SPDX-License-Identifier: MIT
#include "seaplan/panels/datetime/CTrvCalDlg.h"

#include <algorithm>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/paste/PastedText.h"
#include "seaplan/panels/texts/CommonTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// A typed date with its time, or a time alone of the day that is selected; nothing for another text.
std::optional<Util::_datetime_t> ReadTypedTime(const std::string& text, const CalendarModel& model) {
    const bool timeAlone = text.find(':') < 3 && std::all_of(text.begin(), text.end(), [](char c) {
                               return c == ':' || (c >= '0' && c <= '9');
                           });
    const auto day = Util::_datetime_t::from_csecs_days(0, model.GridStart() + model.SelectedCell());
    const auto read = ReadPastedTime(timeAlone ? day.fmt(Util::kDayFormat) + ' ' + text : text);
    return read ? Util::DateTimeUtl::Parse(*read) : std::nullopt;
}

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
    text_.reset();
    note_.clear();
    model_.SetValue(value);
    Show();
}

void CTrvCalDlg::Show() {
    CalendarState state = StateOf(model_, typing_);
    state.text = text_;
    state.note = note_;
    view_.ShowState(state);
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

void CTrvCalDlg::OnTextTyped(const std::string& text) {
    OnTypingDone();
    text_ = text.empty() ? std::nullopt : std::optional(text);
    const auto read = text_ ? ReadTypedTime(*text_, model_) : std::nullopt;
    note_ = read ? Text(TextIds::IDS_VIEW_READAS) + ' ' +
                       read->fmt(model_.IsDateOnly() ? Util::kDayFormat : Util::kMinuteFormat)
                 : std::string();
    Show();
}

/// Takes the text that is typed as day and time. False where it is none, which is told.
bool CTrvCalDlg::TakeText() {
    const auto read = ReadTypedTime(*text_, model_);
    if (!read) {
        note_ = Text(TextIds::IDS_VIEW_DATENOTREAD);
        Show();
        return false;
    }
    text_.reset();
    note_.clear();
    model_.ShowMonth(*read);
    model_.TypeHour(std::to_string(read->hour()));
    model_.TypeMinute(std::to_string(read->minute()));
    return true;
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
            if (text_ && !TakeText()) {
                return true;
            }
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
    if (text_ && !TakeText()) {
        return;
    }
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
