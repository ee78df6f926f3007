// SPDX-License-Identifier: MIT
#include "seaplan/panels/editors/BookEditors.h"

#include <algorithm>
#include <cctype>

namespace Tarvik::Seaplan {

void CComboxDlg::Put(const Rect& screen, int current) {
    place_ = screen;
    place_.right = std::max(place_.right, place_.left + kLeastWidth);
    current_ = current;
}

void CComboxDlg::Show(bool on) {
    if (on && !texts_.empty()) {
        open_ = true;
        view_.ShowList(place_, texts_, current_);
    } else if (open_) {
        open_ = false;
        view_.HideList();
    }
}

void CComboxDlg::TakeKeyboard() {
    if (open_) {
        view_.FocusList(current_);
    }
}

void CComboxDlg::GoTo(const std::string& start) {
    const int wanted = start.empty() ? 0 : std::toupper(static_cast<unsigned char>(start.front()));
    const auto found = std::find_if(texts_.begin(), texts_.end(),
                                    [wanted](const std::string& text) { return text.front() == wanted; });
    if (open_ && found != texts_.end()) {
        view_.FocusList(static_cast<int>(found - texts_.begin()));
    }
}

std::string CComboxDlg::TextAt(int row) const {
    const auto at = static_cast<std::size_t>(row);
    return row >= 0 && at < texts_.size() ? texts_[at] : std::string();
}

void CComboxDlg::OnChosen(int row) {
    constexpr std::size_t kMostTracks = 2;
    if (!open_ || row < 0 || row >= static_cast<int>(texts_.size())) {
        return;
    }
    if (texts_.size() <= kMostTracks) {
        reports_.track(row == 0 ? "GC" : "RL");
    } else {
        reports_.step(row + 1);
    }
    Show(false);
}

void CEditDlg::SetText(const std::string& text) {
    text_ = text;
    if (field_.IsOpen()) {
        Show(true);
    }
}

void CEditDlg::Show(bool on) {
    if (on) {
        field_.Open(0, text_);
        view_.Show(place_, text_, field_.Limit());
    } else if (field_.IsOpen()) {
        field_.Close();
        view_.Hide();
    }
}

void CEditDlg::OnDone() {
    if (!field_.IsOpen()) {
        return;
    }
    // Hiding takes the keyboard away, which is reported too.
    const bool untouched = field_.Untouched();
    const std::string text = field_.Text();
    Show(false);
    if (!untouched) {
        commit_(text);
    }
}

}  // namespace Tarvik::Seaplan
