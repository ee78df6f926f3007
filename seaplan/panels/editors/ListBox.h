// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace Tarvik::Seaplan {

/// A list that drops from a field or a cell. Whether it is open, its rows and the one in front are told here;
/// the list on the screen shows them and reports presses.
class ListBox {
  public:
    /// Opens over a row of the table with its texts and the one in front, -1 for none.
    void Open(int row, std::vector<std::string> texts, int current = -1) {
        open_ = true;
        row_ = row;
        texts_ = std::move(texts);
        current_ = current;
    }
    void Close() { open_ = false; }
    /// Another text in front, at most the first or last one.
    void Move(int by) { current_ = std::clamp(current_ + by, 0, static_cast<int>(texts_.size()) - 1); }
    /// The text at this place in front; a place outside the list changes nothing.
    void SetCurrent(int index) {
        if (index >= 0 && index < static_cast<int>(texts_.size())) {
            current_ = index;
        }
    }

    bool IsOpen() const { return open_; }
    /// Row over which it opened last, -1 before.
    int Row() const { return row_; }
    const std::vector<std::string>& Texts() const { return texts_; }
    int Current() const { return current_; }
    /// Text in front, empty for none.
    std::string CurrentText() const { return current_ < 0 ? std::string() : texts_[current_]; }

  private:
    bool open_ = false;
    int row_ = -1;
    std::vector<std::string> texts_;
    int current_ = -1;
};

}  // namespace Tarvik::Seaplan
