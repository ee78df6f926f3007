// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/paste/RowsPreview.h"
#include "seaplan/panels/window/PanelWindow.h"
#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

class BookSheet;
class DateTimeView;
class DropList;
class TextBox;

/// A cell of the book's table.
struct BookCellPlace {
    int row = 0;
    int column = 0;
    bool operator==(const BookCellPlace&) const = default;
};

/// The window of the position book. It shows what it is given and reports what the person does.
class BookView : public PanelWindow {
  public:
    virtual void ShowSheet(const BookSheet& sheet) = 0;
    virtual void BringRowIntoView(int row) = 0;
    /// Lines that are chosen in the table, in order.
    virtual std::vector<int> ChosenRows() const = 0;
    /// The text on the clipboard as UTF-8, cut where no more is read.
    virtual std::string ClipboardText() const = 0;
    /// Shows what a paste would do and waits for the answer: true for yes. `change` gives the preview of a
    /// column that is taken for another kind.
    virtual bool AskRows(const RowsPreview& preview, const ChangeColumn& change) = 0;
    /// Where a cell of the sheet on show stands on the screen; one below the table's bottom edge a row
    /// higher.
    virtual Rect PlaceOf(const BookCellPlace& cell) const = 0;
    /// The box and the list over a cell; both take places of the screen.
    virtual TextBox& TextOver() = 0;
    /// Another text in that box while it is open, the caret at its end.
    virtual void PutTyped(const std::string& text) = 0;
    virtual DropList& ChoicesOver() = 0;
    /// Tells below the open editor how its text is understood; an empty text tells nothing.
    virtual void ShowEcho(const std::string& text) = 0;
    /// Makes a cell the button of the date that is picked there.
    virtual void PutPicker(const BookCellPlace& cell) = 0;
    virtual DateTimeView& Picker() = 0;
    /// Posts to the client's main window that the book has closed.
    virtual void TellClosed() = 0;
};

}  // namespace Tarvik::Seaplan
