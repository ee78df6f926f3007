// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "seaplan/panels/window/ChoicePopup.h"

namespace Tarvik::Seaplan {

/// The panel that chooses by what a category's voyages are sorted.
class VoyageTreeSortDlg {
  public:
    /// Sorts a category by a key; negative on failure.
    using Apply = std::function<int(const std::string& ci, int sortKey)>;

    VoyageTreeSortDlg(ChoicePopup& popup, Apply apply);

    void SetCategory(const std::string& ci) { ci_ = ci; }
    /// Ticks the line of a sort key; nothing for any other value.
    void SetSortKey(int sortKey);
    /// Shows the panel for a category at the pointer; one that shows already stays as it is.
    void Open(const std::string& ci, int sortKey);
    void Hide() { popup_.Hide(); }
    /// A line was pressed: sorts and hides, or stays when that fails. The result of sorting.
    int OnChosen(TextId id);
    /// Texts in the language in force.
    void ApplyLanguage() { SetSortKey(sortKey_); }

  private:
    ChoicePopup& popup_;
    Apply apply_;
    std::string ci_;
    int sortKey_ = 0;
};

}  // namespace Tarvik::Seaplan
