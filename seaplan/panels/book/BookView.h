// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "seaplan/data/PosBookData.h"
#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/datetime/CalendarView.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

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
    /// The text editor over a cell, all selected; at most `limit` UTF-16 units can be typed.
    virtual void OpenText(const BookCellPlace& cell, const std::string& text, std::size_t limit) = 0;
    virtual void HideText() = 0;
    /// Tells below the open editor how its text is understood; an empty text tells nothing.
    virtual void ShowEcho(const std::string& text) = 0;
    /// The list of texts over a cell, one of them in front.
    virtual void OpenChoices(const BookCellPlace& cell, const std::vector<std::string>& texts,
                             int current) = 0;
    virtual void HideChoices() = 0;
    /// Makes a cell the button of the date that is picked there.
    virtual void PutPicker(const BookCellPlace& cell) = 0;
    virtual DateTimeView& Picker() = 0;
    /// Posts to the client's main window that the book has closed.
    virtual void TellClosed() = 0;
};

/// Who opened the book, and cannot be used while it is open.
class BookOwner {
  public:
    virtual ~BookOwner() = default;
    /// Saves the shaped book of the voyage that it was opened for. 0 when it is saved; otherwise it is told.
    virtual int SavePositionBook(const PosBookData& book) = 0;
    virtual void SetBookOpen(bool open) = 0;
    /// Zone of the times that it shows, empty when nobody told.
    virtual std::string TableZone() const = 0;
};

}  // namespace Tarvik::Seaplan
