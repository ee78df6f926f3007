// SPDX-License-Identifier: MIT
#include "seaplan/panels/editors/CVoyageListDlg.h"

#include <algorithm>
#include <iterator>

namespace Tarvik::Seaplan {

std::vector<std::string> NamesBeginning(const std::vector<std::string>& names, const std::string& typed) {
    std::vector<std::string> kept;
    std::copy_if(names.begin(), names.end(), std::back_inserter(kept),
                 [&](const std::string& name) { return name.starts_with(typed); });
    return kept;
}

int CVoyageListDlg::HeightOf(std::size_t names) {
    constexpr std::size_t kFullHeightRows = 6;
    return static_cast<int>(std::min(names, kFullHeightRows)) * kDroppedRow;
}

int CVoyageListDlg::ShowNames(const std::vector<std::string>& names, const Rect& rect) {
    if (names.empty()) {
        return -1;
    }
    names_ = names;
    open_ = true;
    view_.ShowList({rect.left, rect.top, rect.right, rect.top + HeightOf(names_.size())}, names_, -1);
    return 0;
}

void CVoyageListDlg::Hide() {
    if (open_) {
        open_ = false;
        view_.HideList();
    }
}

bool CVoyageListDlg::TakeKeyboard() {
    if (open_) {
        view_.FocusList(0);
    }
    return open_;
}

void CVoyageListDlg::OnChosen(int row) {
    if (!open_ || row < 0 || row >= static_cast<int>(names_.size())) {
        return;
    }
    const std::string name = names_[static_cast<std::size_t>(row)];
    chosen_(name);
    Hide();
}

}  // namespace Tarvik::Seaplan
