// SPDX-License-Identifier: MIT
#include "seaplan/panels/mainview/FltTreeFilterDlg.h"

#include <utility>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

namespace Tarvik::Seaplan {

FltTreeFilterDlg::FltTreeFilterDlg(ChoicePopup& popup, SeaplanTreeCtrl& tree, std::function<int()> recoverAll)
    : popup_(popup), tree_(tree), recoverAll_(std::move(recoverAll)) {
    ShowChoices();
}

/// Recovering everything has its action, but no line until one is wanted.
void FltTreeFilterDlg::ShowChoices() {
    popup_.SetChoices({{TextIds::IDS_TREEVIEW_RECOVER, showDeleted_}});
}

void FltTreeFilterDlg::Toggle() {
    constexpr int kHeight = 35;
    if (popup_.IsVisible()) {
        popup_.Hide();
        return;
    }
    ShowChoices();
    popup_.Show(kChoiceWidth, kHeight);
}

int FltTreeFilterDlg::OnChosen(TextId id) {
    if (id == TextIds::IDS_TREEVIEW_RECOVERALL) {
        return recoverAll_();
    }
    showDeleted_ = !showDeleted_;
    ShowChoices();
    return tree_.SetShowDeleted(showDeleted_) == 0 ? 0 : -2;
}

}  // namespace Tarvik::Seaplan
