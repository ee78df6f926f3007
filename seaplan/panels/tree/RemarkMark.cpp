// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/RemarkMark.h"

#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

void RemarkMark::Set(TreeRow row, bool on) {
    if (row_ == kNoRow) {
        return;
    }
    const TreeRow marked = row == kNoRow ? row_ : row;
    if (c_.tree.GetItemData(marked) == nullptr) {
        return;
    }
    const bool category = c_.IsCategoryRow(marked);
    (category ? c_.CategoryOf(marked)->crk : c_.VoyageOf(marked)->vrk) = on ? 1 : 0;
    c_.tree.SetDrawItemVisibleEx(marked, category ? Item::kCategoryNoRemark : Item::kVoyageNoRemark, !on);
    c_.tree.SetDrawItemVisibleEx(marked, category ? Item::kCategoryRemark : Item::kVoyageRemark, on);
}

}  // namespace Tarvik::Seaplan
