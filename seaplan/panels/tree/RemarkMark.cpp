// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/RemarkMark.h"

#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

void RemarkMark::Open(TreeRow row) {
    id_.clear();
    if (c_.tree.GetItemData(row) != nullptr) {
        isCategory_ = c_.IsCategoryRow(row);
        id_ = isCategory_ ? c_.CategoryOf(row)->ci : c_.VoyageOf(row)->vi;
    }
}

TreeRow RemarkMark::OpenRow() const {
    return isCategory_ ? c_.FindCategoryRow(id_) : c_.FindVoyageRow(id_);
}

/// The mark of a record without a row, which shows it as soon as it has one again.
void RemarkMark::SetRecord(bool on) {
    if (isCategory_) {
        const auto category = c_.store.categories.find(id_);
        if (category != c_.store.categories.end()) {
            category->second.crk = on ? 1 : 0;
        }
    } else if (VoyInfo* voyage = c_.store.FindVoyage(id_)) {
        voyage->vrk = on ? 1 : 0;
    }
}

void RemarkMark::Set(TreeRow row, bool on) {
    if (id_.empty()) {
        return;
    }
    const TreeRow marked = row == kNoRow ? OpenRow() : row;
    if (marked == kNoRow) {
        return SetRecord(on);
    }
    if (c_.tree.GetItemData(marked) == nullptr) {
        return;
    }
    const bool category = c_.IsCategoryRow(marked);
    (category ? c_.CategoryOf(marked)->crk : c_.VoyageOf(marked)->vrk) = on ? 1 : 0;
    c_.tree.SetDrawItemVisibleEx(marked, category ? Item::kCategoryNoRemark : Item::kVoyageNoRemark, !on);
    c_.tree.SetDrawItemVisibleEx(marked, category ? Item::kCategoryRemark : Item::kVoyageRemark, on);
}

}  // namespace Tarvik::Seaplan
