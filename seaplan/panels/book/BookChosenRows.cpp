// SPDX-License-Identifier: MIT
/// Commands over the chosen rows of the book.
#include <algorithm>

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/BookPaste.h"
#include "seaplan/panels/editors/ChosenRows.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

void BookCommands::OnDelete() {
    const BookDesk::Report report(desk_);
    if (!editing_.CommitEditors()) {
        return;
    }
    BookSheet& sheet = desk_.Sheet();
    const std::vector<int> chosen = ChosenRows(desk_);
    if (chosen.size() < 2) {
        if (sheet.CanDelete()) {
            DeleteRow(sheet.selected);
        }
        return;
    }
    std::vector<int> kept;
    desk_.Together([&] {
        // A great circle behind a deleted waypoint is cut anew below it: the rows above keep their numbers.
        for (auto row = chosen.rbegin(); row != chosen.rend(); ++row) {
            if (!sheet.CanDelete(*row) || !DeleteRow(*row)) {
                kept.insert(kept.begin(), *row);
            }
        }
        sheet.selected = std::min(chosen.front(), sheet.RowCount() - 1);
        return EditOfRows(TextIds::IDS_VIEW_EDITDELETEROWS, chosen.size() - kept.size());
    });
    TellInStatusLine(RowsText(TextIds::IDS_VIEW_WAYPOINTSKEPT, kept));
}

void BookCommands::Fill(int from, const std::vector<int>& rows, int column, TextId edit) {
    BookEdits edits(desk_);
    const BookEditor editor = kBookColumns.at(static_cast<std::size_t>(column)).editor;
    const bool canFill = editor != BookEditor::None && editor != BookEditor::Time;
    const std::string text =
        canFill && desk_.Sheet().IsRow(from) ? edits.TextToEdit(from, column) : std::string();
    if (text.empty()) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_NOTHINGTOFILL));
    }
    edits.SetInRows(rows, column, text, edit);
}

void BookCommands::OnFillDown(int column) {
    const BookDesk::Report report(desk_);
    if (!editing_.CommitEditors()) {
        return;
    }
    const std::vector<int> rows = ChosenRows(desk_);
    if (rows.empty()) {
        return;
    }
    const FilledRows filled = RowsToFill(rows);
    Fill(filled.from, filled.rows, column, TextIds::IDS_VIEW_EDITFILL);
}

void BookCommands::OnPutInChosen(int column) {
    const BookDesk::Report report(desk_);
    if (!editing_.CommitEditors()) {
        return;
    }
    std::vector<int> rows = ChosenRows(desk_);
    std::erase(rows, desk_.Sheet().selected);
    if (!rows.empty()) {
        Fill(desk_.Sheet().selected, rows, column, TextIds::IDS_VIEW_EDITALL);
    }
}

/// Keys over all that is chosen, and over what comes from elsewhere.
bool BookCommands::OnChosenKey(KeyPress press, int column) {
    if (press.key == Key::Delete) {
        OnDelete();
    } else if (BelongsToTable(press)) {
        OnFillDown(column);
    } else if (press.ctrl && press.key == Key::Enter) {
        OnPutInChosen(column);
    } else if (press.ctrl && press.key == Key::V) {
        BookPaste(desk_, editing_).OnPaste();
    } else {
        return false;
    }
    return true;
}

}  // namespace Tarvik::Seaplan
