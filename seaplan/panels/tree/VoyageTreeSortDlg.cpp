// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VoyageTreeSortDlg.h"

#include <utility>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

VoyageTreeSortDlg::VoyageTreeSortDlg(ChoicePopup& popup, Apply apply)
    : popup_(popup), apply_(std::move(apply)) {
    SetSortKey(SortByName);
}

void VoyageTreeSortDlg::SetSortKey(int sortKey) {
    sortKey_ = sortKey;
    popup_.SetChoices({{TextIds::IDS_VOY_SORTBYNAME, sortKey == SortByName},
                       {TextIds::IDS_VOY_SORTBYDATE, sortKey == SortByDate}});
}

void VoyageTreeSortDlg::Open(const std::string& ci, int sortKey) {
    constexpr int kHeight = 60;
    if (popup_.IsVisible()) {
        return;
    }
    SetCategory(ci);
    SetSortKey(sortKey);
    popup_.Show(kChoiceWidth, kHeight);
}

int VoyageTreeSortDlg::OnChosen(TextId id) {
    const int sortKey = id == TextIds::IDS_VOY_SORTBYNAME ? SortByName : SortByDate;
    const int result = apply_(ci_, sortKey);
    if (result == 0) {
        popup_.Hide();
    }
    return result;
}

}  // namespace Tarvik::Seaplan
