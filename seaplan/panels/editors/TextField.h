// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace Tarvik::Seaplan {

/// A field for one line of text that opens over a cell or a row. Whether it is open and what stands in it is
/// told here; the field on the screen shows it and reports what is typed.
class TextField {
  public:
    /// At most `limit` UTF-16 units can be typed; a text that the program sets is shown whole.
    explicit TextField(std::size_t limit) : limit_(limit) {}

    /// Opens over a row with a text.
    void Open(int row, const std::string& text) {
        open_ = true;
        row_ = row;
        text_ = text;
        opened_ = text;
    }
    void Close() {
        open_ = false;
        text_.clear();
    }
    /// The text is now this, by the person or by the program.
    void SetText(const std::string& text) { text_ = text; }

    bool IsOpen() const { return open_; }
    const std::string& Text() const { return text_; }
    /// Row over which it opened last, -1 before.
    int Row() const { return row_; }
    std::size_t Limit() const { return limit_; }
    /// A text was shown at the opening, and it stands there still.
    bool Untouched() const { return !text_.empty() && text_ == opened_; }

  private:
    std::size_t limit_;
    bool open_ = false;
    int row_ = -1;
    std::string text_;
    std::string opened_;  ///< what stood there at the opening
};

}  // namespace Tarvik::Seaplan
