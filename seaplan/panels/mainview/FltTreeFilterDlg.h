// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "seaplan/panels/window/ChoicePopup.h"

namespace Tarvik::Seaplan {

class SeaplanTreeCtrl;

/// The panel below the filter button, by which the recycle bin is shown. It keeps its tick while it is
/// hidden.
class FltTreeFilterDlg {
  public:
    /// `recoverAll` takes everything out of the recycle bin; negative on failure.
    FltTreeFilterDlg(ChoicePopup& popup, SeaplanTreeCtrl& tree, std::function<int()> recoverAll);

    /// The filter button: shows the panel, or hides the one on show.
    void Toggle();
    void Hide() { popup_.Hide(); }
    /// A line was pressed. -2 when the tree could not be loaded, with the tick as it was pressed; or what
    /// `recoverAll` answers.
    int OnChosen(TextId id);
    /// Texts in the language in force.
    void ApplyLanguage() { ShowChoices(); }

  private:
    void ShowChoices();

    ChoicePopup& popup_;
    SeaplanTreeCtrl& tree_;
    std::function<int()> recoverAll_;
    bool showDeleted_ = false;
};

}  // namespace Tarvik::Seaplan
