// SPDX-License-Identifier: MIT
// How an editor of the position book opens over its cell.
#include <algorithm>
#include <vector>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/panels/book/BookEditing.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kMostInterval = 5;
/// A coordinate with its signs needs more than its column has.
constexpr int kLeastCoordinateWidth = 150;

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

BookEditor EditorOf(int column) {
    return kBookColumns.at(static_cast<std::size_t>(column)).editor;
}

}  // namespace

void BookEditing::Open(const BookCellPlace& cell) {
    cell_ = cell;
    desk_.Show();
    desk_.View().BringRowIntoView(cell.row);
    switch (EditorOf(cell.column)) {
        case BookEditor::Text:
            return OpenText();
        case BookEditor::Track:
        case BookEditor::Interval:
            return OpenChoices();
        case BookEditor::Time:
            return OpenPicker();
        case BookEditor::None:
            break;
    }
}

void BookEditing::OpenText() {
    Rect place = desk_.View().PlaceOf(cell_);
    if (cell_.column == BookLatitude || cell_.column == BookLongitude) {
        place.right = std::max(place.right, place.left + kLeastCoordinateWidth);
    }
    text_.Put(place);
    text_.SetText(edits_.TextToEdit(cell_.row, cell_.column));
    if (!text_.IsVisible()) {
        text_.Show(true);
    }
}

void BookEditing::OpenChoices() {
    const std::vector<std::string> texts = ChoicesOf(EditorOf(cell_.column));
    const PosBookPlace& waypoint = desk_.Sheet().PlaceAt(cell_.row);
    // Whatever is no great circle is sailed as a rhumb line.
    const int current =
        cell_.column == BookTrack ? (waypoint.track == texts.front() ? 0 : 1) : waypoint.interval - 1;
    choices_.Clear();
    for (const std::string& text : texts) {
        choices_.Add(text);
    }
    Rect place = desk_.View().PlaceOf(cell_);
    place.top = place.bottom;
    place.bottom += static_cast<int>(texts.size()) * kDroppedRow;
    choices_.Put(place, current);
    choices_.Show(true);
    choices_.TakeKeyboard();
}

void BookEditing::OpenPicker() {
    const BookSheet& sheet = desk_.Sheet();
    const PosBookPlace& place = sheet.PlaceAt(cell_.row);
    desk_.View().PutPicker(cell_);
    picker_.SetValue(
        Util::DateTimeUtl::ConvertFromUTC(cell_.column == BookEta ? place.eta : place.etd, sheet.zone));
    picker_.OnPressed();
}

/// The next cell of the row that takes a text.
void BookEditing::OpenNextText() {
    const int row = desk_.Sheet().selected;
    for (int column = cell_.column + 1; column < static_cast<int>(kBookColumns.size()); ++column) {
        if (EditorOf(column) == BookEditor::Text && desk_.Sheet().IsEdited(row, column)) {
            return Open({row, column});
        }
    }
}

}  // namespace Tarvik::Seaplan
