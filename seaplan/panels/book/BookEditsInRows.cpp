// SPDX-License-Identifier: MIT
/// One value in several rows of the book.
#include <cstdlib>

#include "seaplan/panels/book/BookEdits.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

bool BookEdits::Put(int row, int column, const std::string& text) {
    if (!desk_.Sheet().IsEdited(row, column)) {
        return false;
    }
    switch (kBookColumns.at(static_cast<std::size_t>(column)).editor) {
        case BookEditor::Text:
            return TakeText(row, column, text) == BookRefusal::None;
        case BookEditor::Track:
            SetTrack(row, text);
            return true;
        case BookEditor::Interval:
            SetInterval(row, std::atoi(text.c_str()));
            return true;
        case BookEditor::Time:
        case BookEditor::None:
            break;
    }
    return false;
}

void BookEdits::SetInRows(const std::vector<int>& rows, int column, const std::string& text, TextId edit) {
    std::vector<int> refused;
    desk_.Together([&] {
        // A great circle brings rows in above the one that is edited: from the last on the others keep their
        // numbers.
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
            if (!Put(*row, column, text)) {
                refused.insert(refused.begin(), *row);
            }
        }
        return EditOfRows(edit, rows.size() - refused.size());
    });
    TellInStatusLine(RowsText(TextIds::IDS_VIEW_ROWSREFUSED, refused));
}

}  // namespace Tarvik::Seaplan
