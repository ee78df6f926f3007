// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "seaplan/panels/datetime/CalendarView.h"
#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

/// The calendar that drops from a date: the month on view, the day and the time chosen in it, and whether it
/// is open. Its owner hears of a value that has changed, and nothing when it stays.
class CTrvCalDlg {
  public:
    using Chosen = std::function<void(const Util::_datetime_t&)>;

    CTrvCalDlg(CalendarView& view, Chosen chosen) : view_(view), chosen_(std::move(chosen)) {}

    /// Which form it has, and the value. In the date-only form a day is the choice, at midnight.
    void Setup(bool dateOnly, const Util::_datetime_t& value);
    /// Takes a value and shows its month; a part that is typed is dropped.
    void SetValue(const Util::_datetime_t& value);
    const Util::_datetime_t& Value() const { return model_.Value(); }
    /// Opens with the left top corner there on the screen.
    void Open(Point corner);
    /// Closes without a choice.
    void Hide();
    bool IsVisible() const { return open_; }

    void OnYear(int by);
    void OnMonth(int by);
    void OnDay(int cell);
    /// A press on hour or minute, which becomes an edit.
    void OnTimePressed(TimePart part);
    /// The edit's text is this now.
    void OnTyped(const std::string& text) { typed_ = text; }
    /// An arrow beside the edit, -1 or 1; both ends wrap.
    void OnStep(int by);
    /// A key in the edit: Enter ends the typing. False when the edit itself is to act on it.
    bool OnKey(Key key);
    /// A key anywhere else in the calendar: Enter takes the day and the time as OK does, without a time the
    /// day, and the page keys change the month. False when it means nothing here.
    bool OnWindowKey(Key key);
    /// A date with its time, typed as a text: in the forms of ReadPastedTime, or as a time of the selected
    /// day, "14:30". The note tells what it is read as. An empty text ends it.
    void OnTextTyped(const std::string& text);
    /// Enter in the edit, or a press outside it and its arrows: a text that is no such hour or minute is
    /// dropped.
    void OnTypingDone();
    void OnOk();
    /// The window system closed it: Escape, or a press outside.
    void OnClosed();

  private:
    void TakeTyped();
    bool TakeText();
    void FillEdit();
    void Show();

    CalendarView& view_;
    Chosen chosen_;
    CalendarModel model_;
    bool open_ = false;
    std::optional<TimePart> typing_;
    std::string typed_;
    std::optional<std::string> text_;
    std::string note_;
};

/// The button that shows a date and time; a press opens its calendar, and another one closes it. Its owner
/// hears of every value that the calendar has changed, when the button shows it already.
class CTrvDateTimeCtrl {
  public:
    using Changed = std::function<void(const Util::_datetime_t&)>;

    /// Shows the present time until it is given another.
    CTrvDateTimeCtrl(DateTimeView& view, Changed changed);

    void SetValue(const Util::_datetime_t& value);
    const Util::_datetime_t& Value() const { return value_; }
    /// How the value is printed, at first `kTimeFormat`.
    void SetFormat(const std::string& format);
    /// The calendar offers days without a time.
    void SetDateOnly(bool dateOnly) { dateOnly_ = dateOnly; }
    /// The button's look: 0, as at first, a date with its time, anything else the time of a track. It counts
    /// until the button is made.
    void SetTimeStyle(int timeStyle) { view_.SetTimeStyle(timeStyle); }
    /// The text on the button.
    std::string Text() const;
    /// Closes the calendar without a choice.
    void Hide() { calendar_.Hide(); }
    CTrvCalDlg& Calendar() { return calendar_; }

    /// The button was pressed. The calendar opens 10 left of its left edge and 25 below its top, in pixels.
    void OnPressed();

  private:
    DateTimeView& view_;
    Changed changed_;
    CTrvCalDlg calendar_;
    Util::_datetime_t value_;
    std::string format_;
    bool dateOnly_ = false;
};

}  // namespace Tarvik::Seaplan
