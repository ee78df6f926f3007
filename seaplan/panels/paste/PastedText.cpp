// SPDX-License-Identifier: MIT
/// One pass over the characters, with one state for cells in quotes. Cost:
/// linear in the text, which is cut at its limit first.
#include "seaplan/panels/paste/PastedText.h"

#include <algorithm>
#include <utility>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

/// Control characters, marks of direction, and what has no width.
bool IsUnseen(char16_t c) {
    return c < u' ' || (c >= 0x7F && c < 0xA0) || (c >= 0x200B && c <= 0x200F) ||
           (c >= 0x2028 && c <= 0x202E) || (c >= 0x2060 && c <= 0x206F) || c == 0xFEFF;
}

class CellReader {
  public:
    explicit CellReader(std::u16string text) : text_(std::move(text)) {}

    PastedText Read() {
        for (at_ = 0; at_ < text_.size() && !full_; ++at_) {
            Take(text_[at_]);
        }
        EndRow();
        for (auto& row : out_.rows) {
            row.resize(width_);
        }
        return std::move(out_);
    }

  private:
    void Take(char16_t c) {
        if (quoted_) {
            TakeQuoted(c);
        } else if (c == u'"' && cell_.empty()) {
            quoted_ = true;
        } else if (c == u'\t') {
            EndCell();
        } else if (c == u'\n' || c == u'\r') {
            EndRow();
        } else {
            Put(c);
        }
    }
    void TakeQuoted(char16_t c) {
        if (c != u'"') {
            return Put(c);
        }
        if (at_ + 1 < text_.size() && text_[at_ + 1] == u'"') {
            ++at_;
            return Put(c);
        }
        quoted_ = false;
    }
    void Put(char16_t c) {
        if (cell_.size() < kMostPastedUnits) {
            cell_.push_back(IsUnseen(c) ? u' ' : c);
        } else {
            out_.cut = true;
        }
    }
    void EndCell() {
        // A pair of units that the limit has parted would be no text.
        if (!cell_.empty() && cell_.back() >= 0xD800 && cell_.back() < 0xDC00) {
            cell_.pop_back();
        }
        const std::u16string trimmed = Util::StringUtl::Trim(cell_);
        cell_.clear();
        if (row_.size() < kMostPastedColumns) {
            row_.push_back(Util::StringUtl::TranslateString(trimmed));
        } else {
            out_.cut = out_.cut || !trimmed.empty();
        }
    }
    void EndRow() {
        EndCell();
        const std::vector<std::string> row = std::exchange(row_, {});
        if (std::all_of(row.begin(), row.end(), [](const std::string& cell) { return cell.empty(); })) {
            return;
        }
        // The heads are one row more.
        if (out_.rows.size() > kMostPastedRows) {
            out_.cut = true;
            full_ = true;
            return;
        }
        width_ = std::max(width_, row.size());
        out_.rows.push_back(row);
    }

    std::u16string text_;
    std::u16string cell_;
    std::vector<std::string> row_;
    PastedText out_;
    std::size_t at_ = 0;
    std::size_t width_ = 0;
    bool quoted_ = false;
    bool full_ = false;
};

}  // namespace

PastedText ReadPastedText(const std::string& text) {
    const bool cut = text.size() > kMostPastedBytes;
    PastedText read = CellReader(Util::StringUtl::TranslateString(text.substr(0, kMostPastedBytes))).Read();
    read.cut = read.cut || cut;
    return read;
}

}  // namespace Tarvik::Seaplan
