// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookEditing.h"

#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

BookEditing::BookEditing(BookDesk& desk)
    : desk_(desk),
      edits_(desk),
      text_(desk.View().TextOver(), kMostTypedUnits, [this](const std::string& text) { TakeText(text); }),
      choices_(desk.View().ChoicesOver(),
               {[this](const std::string& track) { edits_.SetTrack(cell_.row, track); },
                [this](int step) { edits_.SetInterval(cell_.row, step); }}),
      picker_(desk.View().Picker(), [this](const Util::_datetime_t& time) { OnTimeChosen(time); }) {}

/// Takes what is open and puts a row in front; the cell, where it can be edited then.
std::optional<BookCellPlace> BookEditing::Reach(int row, int column) {
    // In front it stays the same place, though what was typed may bring rows into the list above it.
    OnRowSelected(row);
    if (!CommitEditors()) {
        return std::nullopt;
    }
    const BookCellPlace cell{desk_.Sheet().selected, column};
    return desk_.Sheet().IsEdited(cell.row, column) ? std::optional(cell) : std::nullopt;
}

void BookEditing::OnCellClicked(int row, int column) {
    const BookDesk::Report report(desk_);
    const bool again = choices_.IsVisible() && cell_ == BookCellPlace{row, column};
    const auto cell = Reach(row, column);
    if (cell && !again) {
        Open(*cell);
    }
}

bool BookEditing::OnTextTyped(const std::string& text, int row, int column) {
    const BookDesk::Report report(desk_);
    const auto cell = text == kBlankCell ? std::nullopt : Reach(row, column);
    if (!cell) {
        return false;
    }
    Open(*cell);
    if (text_.IsVisible()) {
        desk_.View().PutTyped(text);
        OnTyped(text);
    } else if (choices_.IsVisible()) {
        choices_.GoTo(text);
    } else if (picker_.Calendar().IsVisible()) {
        picker_.Calendar().OnTextTyped(text);
    }
    return true;
}

void BookEditing::OnRowSelected(int row) {
    const BookDesk::Report report(desk_);
    desk_.Sheet().selected = desk_.Sheet().IsRow(row) ? row : -1;
}

void BookEditing::CloseText() {
    if (text_.IsVisible()) {
        desk_.View().ShowEcho({});
        text_.Show(false);
    }
}

void BookEditing::TakeText(const std::string& text) {
    const BookRefusal refusal = edits_.TakeText(cell_.row, cell_.column, text);
    refused_ = refusal != BookRefusal::None;
    if (refused_) {
        CloseText();
        desk_.Refuse(refusal);
    }
}

bool BookEditing::CommitText() {
    const BookDesk::Report report(desk_);
    refused_ = false;
    if (text_.IsVisible() && !text_.Field().Untouched()) {
        TakeText(text_.Field().Text());
    }
    if (text_.IsVisible()) {
        Open({desk_.Sheet().selected, cell_.column});
    }
    return !refused_;
}

bool BookEditing::CommitEditors() {
    const BookDesk::Report report(desk_);
    refused_ = false;
    if (text_.IsVisible()) {
        desk_.View().ShowEcho({});
    }
    text_.OnDone();
    HideEditors();
    return !refused_;
}

void BookEditing::HideEditors() {
    CloseText();
    choices_.Show(false);
    picker_.Hide();
}

void BookEditing::OnTyped(const std::string& text) {
    text_.OnTyped(text);
    desk_.View().ShowEcho(edits_.EchoOf(cell_.row, cell_.column, text));
}

/// What is typed comes into all chosen rows; refused in its own row it comes into none.
void BookEditing::PutTextInChosen() {
    const std::string typed = text_.Field().Text();
    const std::vector<int> chosen = ChosenRows(desk_);
    BookSheet& sheet = desk_.Sheet();
    const int column = cell_.column;
    HideEditors();
    GeoPoint position;
    double kmh = 0;
    BookRefusal refusal = BookRefusal::None;
    if (column == BookSpeed) {
        refusal = CheckSpeed(typed, sheet.units.speed, kmh);
    } else if (column == BookLatitude || column == BookLongitude) {
        refusal = CheckPosition(typed, column == BookLatitude ? Axis::Latitude : Axis::Longitude, position);
    }
    if (refusal != BookRefusal::None) {
        return desk_.Refuse(refusal);
    }
    edits_.SetInRows(chosen, column, typed, TextIds::IDS_VIEW_EDITALL);
}

bool BookEditing::OnTextKey(KeyPress press) {
    const BookDesk::Report report(desk_);
    switch (press.key) {
        case Key::Enter:
            press.ctrl ? PutTextInChosen() : static_cast<void>(CommitEditors());
            return true;
        case Key::Tab:
            if (CommitEditors()) {
                OpenNextText();
            }
            return true;
        case Key::Escape:
            // What was typed stays; only an editor without a change closes.
            if (text_.Field().Untouched() || text_.Field().Text().empty()) {
                HideEditors();
            }
            return true;
        default:
            return false;
    }
}

void BookEditing::OnTextFocusLost() {
    if (text_.IsVisible()) {
        CommitEditors();
    }
}

void BookEditing::PutChoiceInChosen(int current) {
    const BookDesk::Report report(desk_);
    const std::string choice = choices_.TextAt(current);
    HideEditors();
    if (!choice.empty()) {
        edits_.SetInRows(ChosenRows(desk_), cell_.column, choice, TextIds::IDS_VIEW_EDITALL);
    }
}

bool BookEditing::OnChoiceKey(KeyPress press, int current) {
    if (press.key == Key::Enter && press.ctrl) {
        PutChoiceInChosen(current);
    } else if (press.key == Key::Enter) {
        OnChosen(current);
    } else if (press.key == Key::Escape) {
        HideEditors();
    } else {
        return false;
    }
    return true;
}

void BookEditing::OnChosen(int index) {
    const BookDesk::Report report(desk_);
    choices_.OnChosen(index);
}

void BookEditing::OnTimeChosen(const Util::_datetime_t& time) {
    const BookDesk::Report report(desk_);
    picker_.Hide();
    desk_.Refuse(edits_.SetTime(cell_.row, time));
}

}  // namespace Tarvik::Seaplan
