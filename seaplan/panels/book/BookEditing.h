// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "seaplan/panels/book/BookEdits.h"
#include "seaplan/panels/datetime/CTrvCalDlg.h"
#include "seaplan/panels/editors/BookEditors.h"
#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

/// The text editor, the list and the calendar over the cells of the book: what opens where, and what is taken
/// when one closes. At most one of them is open.
class BookEditing {
  public:
    explicit BookEditing(BookDesk& desk);

    /// A press on a cell: what is open is taken, the row comes to the front, and what the column has opens. A
    /// second press on the cell of an open list closes it.
    void OnCellClicked(int row, int column);
    /// A text typed on a cell where nothing is open: it takes the cell's place in the editor, goes to the
    /// choice that begins so, or begins a date in the calendar. An empty one is still being composed. False
    /// where nothing opens; a blank opens nothing.
    bool OnTextTyped(const std::string& text, int row, int column);
    /// Another row came to the front, by the keyboard.
    void OnRowSelected(int row);
    /// The text in the editor changed by the person's hand.
    void OnTyped(const std::string& text);
    /// A key in the editor; false when it means nothing there and the field takes it. Ctrl with Enter puts
    /// what is typed into all chosen rows, in the list too.
    bool OnTextKey(KeyPress press);
    void OnTextFocusLost();
    /// A key in the list; false when it means nothing there.
    bool OnChoiceKey(KeyPress press, int current);
    void OnChosen(int index);

    /// Takes what is typed and closes all. False when it was refused.
    bool CommitEditors();
    /// Takes what is typed and leaves its editor open. False when it was refused, which closes it.
    bool CommitText();
    /// Closes all and drops what is typed.
    void HideEditors();
    /// The date over a cell of the times.
    CTrvDateTimeCtrl& Picker() { return picker_; }

  private:
    std::optional<BookCellPlace> Reach(int row, int column);
    void Open(const BookCellPlace& cell);
    void OpenText();
    void OpenChoices();
    void OpenPicker();
    void OpenNextText();
    void TakeText(const std::string& text);
    void PutTextInChosen();
    void PutChoiceInChosen(int current);
    void OnTimeChosen(const Util::_datetime_t& time);
    void CloseText();

    BookDesk& desk_;
    BookEdits edits_;
    CEditDlg text_;
    CComboxDlg choices_;
    CTrvDateTimeCtrl picker_;
    BookCellPlace cell_{-1, 0};  ///< over which an editor opened last
    bool refused_ = false;       ///< the text that was handed over last
};

}  // namespace Tarvik::Seaplan
