// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/panels/editors/DropList.h"
#include "seaplan/panels/editors/TextField.h"
#include "seaplan/panels/window/TextBox.h"

/// What opens over the cells of the position book. Neither owns data: each gets its place and its text and
/// hands the result back.
namespace Tarvik::Seaplan {

/// The list over a cell. With up to two rows it offers the kinds of track, with more the steps of a row.
class CComboxDlg {
  public:
    /// Who hears of the choice.
    struct Reports {
        std::function<void(const std::string& track)> track;  ///< "GC" or "RL"
        std::function<void(int step)> step;                   ///< from 1
    };
    CComboxDlg(DropList& view, Reports reports) : view_(view), reports_(std::move(reports)) {}

    void Clear() { texts_.clear(); }
    void Add(const std::string& text) { texts_.push_back(text); }
    /// Where it shows next on the screen, in at least kLeastWidth pixels, and which text stands in front, -1
    /// for none.
    void Put(const Rect& screen, int current);
    /// Shows or hides it; a list without texts stays hidden.
    void Show(bool on);
    bool IsVisible() const { return open_; }
    /// A row's text, empty for none.
    std::string TextAt(int row) const;
    /// The keyboard goes to the list on show, and its row in front stays there.
    void TakeKeyboard();
    /// The first text with the letter or digit that this one begins with, in either case, comes to the front;
    /// the row in front stays where there is none.
    void GoTo(const std::string& start);
    /// A click on a row, or Enter in the list with this row in front: it is told, and the list hides. A row
    /// that is none does nothing.
    void OnChosen(int row);

    static constexpr int kLeastWidth = 43;

  private:
    DropList& view_;
    Reports reports_;
    std::vector<std::string> texts_;
    Rect place_;
    int current_ = -1;
    bool open_ = false;
};

/// The text editor over a cell.
class CEditDlg {
  public:
    using Commit = std::function<void(const std::string& text)>;
    CEditDlg(TextBox& view, std::size_t limit, Commit commit)
        : view_(view), field_(limit), commit_(std::move(commit)) {}

    /// Where it shows next.
    void Put(const Rect& place) { place_ = place; }
    /// Shows it with its text, or hides it without taking that.
    void Show(bool on);
    /// The text of the cell; shown whole and all selected.
    void SetText(const std::string& text);
    bool IsVisible() const { return field_.IsOpen(); }
    const TextField& Field() const { return field_; }
    void OnTyped(const std::string& text) { field_.SetText(text); }
    /// Enter, or the keyboard has left: hides it and hands the text over, once. A text that was shown and
    /// stands there still stays where it is.
    void OnDone();

  private:
    TextBox& view_;
    TextField field_;
    Commit commit_;
    Rect place_;
    std::string text_;
};

}  // namespace Tarvik::Seaplan
