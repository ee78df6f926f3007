// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookEditing.h"

#include <vector>

#include <tarvik/util/DateTimeUtl.h>

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kMostCharacters = 60;
constexpr int kMostInterval = 5;

/// The lists of a cell. A list of two offers ways of sailing, a longer one the waypoints' spacing.
std::vector<std::string> ChoicesOf(BookEditor editor) {
    std::vector<std::string> texts;
    if (editor == BookEditor::Track) {
        return {"GC", "RL"};
    }
    for (int interval = 1; interval <= kMostInterval; ++interval) {
        texts.push_back(std::to_string(interval));
    }
    return texts;
}

}  // namespace

BookEditing::BookEditing(BookDesk& desk)
    : desk_(desk),
      edits_(desk),
      text_(kMostCharacters),
      picker_(desk.View().Picker(), [this](const Util::_datetime_t& time) { OnTimeChosen(time); }) {}

void BookEditing::OnCellClicked(int row, int column) {
    const BookDesk::Report report(desk_);
    const bool again = choices_.IsOpen() && choices_.Row() == row && column_ == column;
    // In front it stays the same place, though what was typed may bring rows into the list above it.
    OnRowSelected(row);
    if (!CommitEditors()) {
        return;
    }
    row = desk_.Sheet().selected;
    if (!again && desk_.Sheet().IsEdited(row, column)) {
        Open(row, column);
    }
}

void BookEditing::OnRowSelected(int row) {
    const BookDesk::Report report(desk_);
    desk_.Sheet().selected = desk_.Sheet().IsRow(row) ? row : -1;
}

void BookEditing::Open(int row, int column) {
    desk_.Show();
    desk_.View().BringRowIntoView(row);
    column_ = column;
    switch (kBookColumns.at(static_cast<std::size_t>(column)).editor) {
        case BookEditor::Text:
            return OpenText(row, column);
        case BookEditor::Track:
        case BookEditor::Interval:
            return OpenChoices(row, column);
        case BookEditor::Time:
            return OpenPicker(row, column);
        case BookEditor::None:
            break;
    }
}

void BookEditing::OpenText(int row, int column) {
    text_.Open(row, edits_.TextToEdit(row, column));
    desk_.View().OpenText({row, column}, text_.Text(), text_.Limit());
}

void BookEditing::OpenChoices(int row, int column) {
    std::vector<std::string> texts = ChoicesOf(kBookColumns.at(static_cast<std::size_t>(column)).editor);
    const PosBookPlace& place = desk_.Sheet().PlaceAt(row);
    // Whatever is no great circle is sailed as a rhumb line.
    const int current = column == BookTrack ? (place.track == texts.front() ? 0 : 1) : place.interval - 1;
    choices_.Open(row, std::move(texts), current);
    desk_.View().OpenChoices({row, column}, choices_.Texts(), choices_.Current());
}

void BookEditing::OpenPicker(int row, int column) {
    const BookSheet& sheet = desk_.Sheet();
    const PosBookPlace& place = sheet.PlaceAt(row);
    dateRow_ = row;
    desk_.View().PutPicker({row, column});
    picker_.SetValue(
        Util::DateTimeUtl::ConvertFromUTC(column == BookEta ? place.eta : place.etd, sheet.zone));
    picker_.OnPressed();
}

void BookEditing::CloseText() {
    // A field that is hidden loses the focus, and that must not count as leaving an open one.
    text_.Close();
    desk_.View().ShowEcho({});
    desk_.View().HideText();
}

bool BookEditing::TakeText() {
    if (!text_.IsOpen() || text_.Untouched()) {
        return true;
    }
    const BookRefusal refusal = edits_.TakeText(text_.Row(), column_, text_.Text());
    if (refusal == BookRefusal::None) {
        return true;
    }
    CloseText();
    desk_.Refuse(refusal);
    return false;
}

bool BookEditing::CommitText() {
    const BookDesk::Report report(desk_);
    const bool taken = TakeText();
    if (taken && text_.IsOpen()) {
        const int row = desk_.Sheet().selected;
        text_.Open(row, edits_.TextToEdit(row, column_));
        desk_.View().OpenText({row, column_}, text_.Text(), text_.Limit());
    }
    return taken;
}

bool BookEditing::CommitEditors() {
    const BookDesk::Report report(desk_);
    const bool taken = TakeText();
    HideEditors();
    return taken;
}

void BookEditing::HideEditors() {
    if (text_.IsOpen()) {
        CloseText();
    }
    if (choices_.IsOpen()) {
        choices_.Close();
        desk_.View().HideChoices();
    }
    picker_.Hide();
}

void BookEditing::OnTyped(const std::string& text) {
    text_.SetText(text);
    desk_.View().ShowEcho(edits_.EchoOf(text_.Row(), column_, text));
}

bool BookEditing::OnTextKey(KeyPress press) {
    const BookDesk::Report report(desk_);
    switch (press.key) {
        case Key::Enter:
            CommitEditors();
            return true;
        case Key::Tab:
            if (CommitEditors()) {
                OpenNextText();
            }
            return true;
        case Key::Escape:
            // What was typed stays; only an editor without a change closes.
            if (text_.Untouched() || text_.Text().empty()) {
                HideEditors();
            }
            return true;
        default:
            return false;
    }
}

/// The next cell of the row that takes a text.
void BookEditing::OpenNextText() {
    const int row = desk_.Sheet().selected;
    for (int column = column_ + 1; column < static_cast<int>(kBookColumns.size()); ++column) {
        if (kBookColumns.at(static_cast<std::size_t>(column)).editor == BookEditor::Text &&
            desk_.Sheet().IsEdited(row, column)) {
            return Open(row, column);
        }
    }
}

void BookEditing::OnTextFocusLost() {
    if (text_.IsOpen()) {
        CommitEditors();
    }
}

bool BookEditing::OnChoiceKey(KeyPress press, int current) {
    if (press.key == Key::Enter) {
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
    if (!choices_.IsOpen() || index < 0 || index >= static_cast<int>(choices_.Texts().size())) {
        return;
    }
    const int row = choices_.Row();
    const bool tracks = choices_.Texts().size() <= 2;
    const std::string track = index == 0 ? "GC" : "RL";
    HideEditors();
    if (tracks) {
        edits_.SetTrack(row, track);
    } else {
        edits_.SetInterval(row, index + 1);
    }
}

void BookEditing::OnTimeChosen(const Util::_datetime_t& time) {
    const BookDesk::Report report(desk_);
    picker_.Hide();
    desk_.Refuse(edits_.SetTime(dateRow_, time));
}

}  // namespace Tarvik::Seaplan
