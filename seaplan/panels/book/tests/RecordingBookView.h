// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/book/BookView.h"
#include "seaplan/panels/datetime/CalendarView.h"
#include "seaplan/panels/editors/DropList.h"
#include "seaplan/panels/tests/RecordingCalendar.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"
#include "seaplan/panels/window/TextBox.h"

namespace Tarvik::Seaplan {

/// A position book's window that only remembers what it was told. Its cells are places of one pixel.
class RecordingBookView final : public RecordingPanelWindow<BookView> {
  public:
    BookSheet sheet;
    std::optional<BookCellPlace> textCell;  ///< of the open text editor
    std::string text;
    std::string echo;
    std::optional<BookCellPlace> choiceCell;  ///< of the open list
    std::vector<std::string> choices;
    int choice = -1;
    BookCellPlace pickerCell;
    RecordingCalendar calendar;
    int toldClosed = 0;
    std::vector<int> chosen;
    std::string clipboard;
    std::vector<RowsPreview> pastes;  ///< that were shown
    bool takesPaste = true;           ///< the answer to the next
    /// What the person takes a column as before the answer: column and kind.
    std::optional<std::pair<std::size_t, std::size_t>> changedColumn;
    std::function<void()> whileAsked;

    void ShowSheet(const BookSheet& shown) override { sheet = shown; }
    void BringRowIntoView(int) override {}
    std::vector<int> ChosenRows() const override { return chosen; }
    Rect PlaceOf(const BookCellPlace& cell) const override {
        return {cell.column, cell.row, cell.column + 1, cell.row + 1};
    }
    TextBox& TextOver() override { return box_; }
    std::string ClipboardText() const override { return clipboard; }
    bool AskRows(const RowsPreview& preview, const ChangeColumn& change) override {
        pastes.push_back(preview);
        if (changedColumn) {
            pastes.push_back(change(changedColumn->first, changedColumn->second));
        }
        if (whileAsked) {
            whileAsked();
        }
        return takesPaste;
    }
    void PutTyped(const std::string& typed) override { text = typed; }
    DropList& ChoicesOver() override { return list_; }
    void ShowEcho(const std::string& shown) override { echo = shown; }
    void PutPicker(const BookCellPlace& cell) override { pickerCell = cell; }
    DateTimeView& Picker() override { return calendar; }
    void TellClosed() override { ++toldClosed; }

  private:
    class Box final : public TextBox {
      public:
        explicit Box(RecordingBookView& view) : view_(view) {}
        void Show(const Rect& place, const std::string& filled, std::size_t) override {
            view_.textCell = {place.top, place.left};
            view_.text = filled;
        }
        void Hide() override { view_.textCell.reset(); }

      private:
        RecordingBookView& view_;
    };
    class List final : public DropList {
      public:
        explicit List(RecordingBookView& view) : view_(view) {}
        void ShowList(const Rect& place, const std::vector<std::string>& texts, int current) override {
            // It drops below its cell.
            view_.choiceCell = {place.top - 1, place.left};
            view_.choices = texts;
            view_.choice = current;
        }
        void HideList() override { view_.choiceCell.reset(); }
        void FocusList(int row) override { view_.choice = row; }

      private:
        RecordingBookView& view_;
    };
    Box box_{*this};
    List list_{*this};
};

}  // namespace Tarvik::Seaplan
