// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeCounts.h"

#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

namespace {

void MarkVoyage(TreeContext& c, const VoyInfo& voyage) {
    if (voyage.vr != 1) {
        c.chartMarks[voyage.vi] = {0, OffChart};
    } else if (c.voyages.ShowVoyage(voyage.vi) == 0) {
        c.chartMarks[voyage.vi] = {1, OnChart};
    }
}

/// Voyages in use below a category's row, marked on the way when this is the first pass. -1 for a row without
/// a record.
int CountRows(TreeContext& c, TreeRow categoryRow, bool first) {
    int count = 0;
    for (TreeRow row = c.tree.GetChildItem(categoryRow); row != kNoRow;
         row = c.tree.GetNextSiblingItem(row)) {
        if (c.tree.GetItemStyle(row) != kVoyageStyle) {
            continue;
        }
        const VoyInfo* voyage = c.VoyageOf(row);
        if (voyage == nullptr || voyage->vi.empty()) {
            return -1;
        }
        if (first) {
            MarkVoyage(c, *voyage);
        }
        // A pinned voyage that could not be drawn stays uncounted until the next RefreshCounts.
        if (!first || c.chartMarks.contains(voyage->vi)) {
            ++count;
        }
    }
    return count;
}

}  // namespace

std::string CountText(int count) {
    return Util::StringUtl::Format("  (%d)", count);
}

int CountAndMark(TreeContext& c) {
    const bool first = c.chartMarks.empty();
    for (TreeRow row = c.tree.GetRootItem(); row != kNoRow; row = c.tree.GetNextSiblingItem(row)) {
        if (c.tree.GetItemStyle(row) != kCategoryStyle) {
            continue;
        }
        const int count = CountRows(c, row, first);
        if (count < 0) {
            return -1;
        }
        c.tree.SetDrawItemValue(row, Item::kCount, CountText(count));
    }
    return 0;
}

int RefreshCounts(TreeContext& c) {
    for (TreeRow row = c.tree.GetRootItem(); row != kNoRow; row = c.tree.GetNextSiblingItem(row)) {
        if (c.tree.GetItemStyle(row) != kCategoryStyle) {
            continue;
        }
        const VoyCategory* category = c.CategoryOf(row);
        if (category == nullptr) {
            return -1;
        }
        const auto voyages = c.store.categoryVoyages.find(category->ci);
        if (voyages == c.store.categoryVoyages.end()) {
            continue;
        }
        int count = 0;
        for (const auto& [vi, state] : voyages->second) {
            count += state == InUse ? 1 : 0;
        }
        c.tree.SetDrawItemValue(row, Item::kCount, CountText(count));
    }
    return 0;
}

}  // namespace Tarvik::Seaplan
