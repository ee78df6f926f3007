// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/RowTexts.h"

#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

namespace {

struct ItemTip {
    const char* item;
    TextId text;
};

struct ItemLabel {
    const char* item;
    const char* value;
    TextId text;
};

constexpr ItemTip kCategoryTips[] = {{Item::kRenameCategory, TextId::IDS_TREE_MODVOTCATENAME},
                                     {Item::kAddVoyage, TextId::IDS_ADDVOYAGE},
                                     {Item::kAscending, TextId::IDS_TREE_SORT},
                                     {Item::kDescending, TextId::IDS_TREE_SORT},
                                     {Item::kSort, TextId::IDS_VIEW_SORTBY},
                                     {Item::kDeleteCategory, TextId::IDS_TREE_CATEGORYDEL},
                                     {Item::kCategoryNoRemark, TextId::IDS_TREE_CATEGORYDEST},
                                     {Item::kCategoryRemark, TextId::IDS_TREE_CATEGORYDEST}};
constexpr ItemTip kVoyageTips[] = {
    {Item::kRenameVoyage, TextId::IDS_TREE_MODVOYNAME}, {Item::kUnpinned, TextId::IDS_TREE_VOYAUTOPOS},
    {Item::kPinned, TextId::IDS_TREE_VOYAUTOPOS},       {Item::kVoyageNoRemark, TextId::IDS_TREE_VOYDEST},
    {Item::kVoyageRemark, TextId::IDS_TREE_VOYDEST},    {Item::kPortCalls, TextId::IDS_TREE_VOYPORTCALL},
    {Item::kConsumption, TextId::IDS_TREE_VOYCONSUM},   {Item::kNoonReport, TextId::IDS_TREE_VOYNOONREPORT},
    {Item::kAisOff, TextId::IDS_TREE_VOYSHOWAIS},       {Item::kAisOn, TextId::IDS_TREE_VOYSHOWAIS},
    {Item::kDeleteVoyage, TextId::IDS_TREE_VOYDEL},     {Item::kModify, TextId::IDS_TREE_MODAISTRAC},
    {Item::kReplaceShip, TextId::IDS_TREE_REPLACESHIP}, {Item::kAlert, TextId::IDS_VIEW_ALERT}};
constexpr ItemTip kDeletedCategoryTips[] = {{Item::kRecoverCategory, TextId::IDS_TREE_CATEGORYRECOVER},
                                            {Item::kClearCategory, TextId::IDS_TREE_CATEGORYCLEAR}};
constexpr ItemTip kDeletedVoyageTips[] = {{Item::kRecoverVoyage, TextId::IDS_TREE_VOYRECOVER},
                                          {Item::kClearVoyage, TextId::IDS_TREE_VOYCLEAR}};
constexpr ItemLabel kVoyageLabels[] = {
    {Item::kSetPortCall, ItemValue::kSetPortCall, TextId::IDS_TREE_SETPORTCALL},
    {Item::kDates, ItemValue::kSailingLabel, TextId::IDS_TREE_VOYSTARTDATA},
    {Item::kDates, ItemValue::kEndingLabel, TextId::IDS_TREE_VOYENDDATA},
    {Item::kAssignShip, ItemValue::kAssignShip, TextId::IDS_TREE_ADDSHIP},
    {Item::kShipInfo, ItemValue::kShipLabel, TextId::IDS_TREE_VOYSHIP}};

template <std::size_t N>
void ApplyTips(TreeWidget& tree, TreeRow row, const ItemTip (&tips)[N]) {
    for (const ItemTip& tip : tips) {
        tree.SetToolTipsOfEventItem(row, tip.item, Text(tip.text));
    }
}

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

void ApplyRowTexts(TreeWidget& tree, TreeRow row) {
    const std::string style = tree.GetItemStyle(row);
    if (style == kCategoryStyle) {
        ApplyTips(tree, row, kCategoryTips);
    } else if (style == kDeletedCategoryStyle) {
        ApplyTips(tree, row, kDeletedCategoryTips);
    } else if (style == kDeletedVoyageStyle) {
        ApplyTips(tree, row, kDeletedVoyageTips);
    } else {
        ApplyTips(tree, row, kVoyageTips);
        for (const ItemLabel& label : kVoyageLabels) {
            tree.SetDrawItemValueOfEventItem(row, label.item, label.value, Text(label.text));
        }
    }
}

void ApplyAllRowTexts(TreeWidget& tree) {
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        ApplyRowTexts(tree, row);
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            ApplyRowTexts(tree, child);
        }
    }
}

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
