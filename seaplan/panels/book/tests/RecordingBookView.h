// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seaplan/panels/book/BookView.h"
#include "seaplan/panels/tests/RecordingCalendar.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"

namespace Tarvik::Seaplan {

/// A position book's window that only remembers what it was told.
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

    void ShowSheet(const BookSheet& shown) override { sheet = shown; }
    void BringRowIntoView(int) override {}
    void OpenText(const BookCellPlace& cell, const std::string& filled, std::size_t) override {
        textCell = cell;
        text = filled;
    }
    void HideText() override { textCell.reset(); }
    void ShowEcho(const std::string& shown) override { echo = shown; }
    void OpenChoices(const BookCellPlace& cell, const std::vector<std::string>& texts, int current) override {
        choiceCell = cell;
        choices = texts;
        choice = current;
    }
    void HideChoices() override { choiceCell.reset(); }
    void PutPicker(const BookCellPlace& cell) override { pickerCell = cell; }
    DateTimeView& Picker() override { return calendar; }
    void TellClosed() override { ++toldClosed; }
};

}  // namespace Tarvik::Seaplan
