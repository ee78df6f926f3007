// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/RowTexts.h"

#include <optional>

#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeContext.h"

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

constexpr ItemTip kCategoryTips[] = {{Item::kRenameCategory, TextIds::IDS_TREE_MODVOTCATENAME},
                                     {Item::kAddVoyage, TextIds::IDS_ADDVOYAGE},
                                     {Item::kAscending, TextIds::IDS_TREE_SORT},
                                     {Item::kDescending, TextIds::IDS_TREE_SORT},
                                     {Item::kSort, TextIds::IDS_VIEW_SORTBY},
                                     {Item::kDeleteCategory, TextIds::IDS_TREE_CATEGORYDEL},
                                     {Item::kCategoryNoRemark, TextIds::IDS_TREE_CATEGORYDEST},
                                     {Item::kCategoryRemark, TextIds::IDS_TREE_CATEGORYDEST}};
constexpr ItemTip kVoyageTips[] = {
    {Item::kRenameVoyage, TextIds::IDS_TREE_MODVOYNAME}, {Item::kUnpinned, TextIds::IDS_TREE_VOYAUTOPOS},
    {Item::kPinned, TextIds::IDS_TREE_VOYAUTOPOS},       {Item::kVoyageNoRemark, TextIds::IDS_TREE_VOYDEST},
    {Item::kVoyageRemark, TextIds::IDS_TREE_VOYDEST},    {Item::kPortCalls, TextIds::IDS_TREE_VOYPORTCALL},
    {Item::kConsumption, TextIds::IDS_TREE_VOYCONSUM},   {Item::kNoonReport, TextIds::IDS_TREE_VOYNOONREPORT},
    {Item::kAisOff, TextIds::IDS_TREE_VOYSHOWAIS},       {Item::kAisOn, TextIds::IDS_TREE_VOYSHOWAIS},
    {Item::kDeleteVoyage, TextIds::IDS_TREE_VOYDEL},     {Item::kModify, TextIds::IDS_TREE_MODAISTRAC},
    {Item::kReplaceShip, TextIds::IDS_TREE_REPLACESHIP}, {Item::kAlert, TextIds::IDS_VIEW_ALERT}};
constexpr ItemTip kDeletedCategoryTips[] = {{Item::kRecoverCategory, TextIds::IDS_TREE_CATEGORYRECOVER},
                                            {Item::kClearCategory, TextIds::IDS_TREE_CATEGORYCLEAR}};
constexpr ItemTip kDeletedVoyageTips[] = {{Item::kRecoverVoyage, TextIds::IDS_TREE_VOYRECOVER},
                                          {Item::kClearVoyage, TextIds::IDS_TREE_VOYCLEAR}};
constexpr ItemLabel kVoyageLabels[] = {
    {Item::kSetPortCall, ItemValue::kSetPortCall, TextIds::IDS_TREE_SETPORTCALL},
    {Item::kDates, ItemValue::kSailingLabel, TextIds::IDS_TREE_VOYSTARTDATA},
    {Item::kDates, ItemValue::kEndingLabel, TextIds::IDS_TREE_VOYENDDATA},
    {Item::kAssignShip, ItemValue::kAssignShip, TextIds::IDS_TREE_ADDSHIP},
    {Item::kShipInfo, ItemValue::kShipLabel, TextIds::IDS_TREE_VOYSHIP}};

template <std::size_t N>
std::vector<RowTexts::Tip> TipsOf(const ItemTip (&tips)[N]) {
    std::vector<RowTexts::Tip> texts;
    for (const ItemTip& tip : tips) {
        texts.push_back({tip.item, Text(tip.text)});
    }
    return texts;
}

std::vector<RowTexts::Label> LabelsOfVoyages() {
    std::vector<RowTexts::Label> texts;
    for (const ItemLabel& label : kVoyageLabels) {
        texts.push_back({label.item, label.value, Text(label.text)});
    }
    return texts;
}

void MarkVoyage(TreeContext& c, const VoyInfo& voyage) {
    if (voyage.vr != 1) {
        c.chartMarks[voyage.vi] = {0, OffChart};
    } else if (c.voyages.ShowVoyage(voyage.vi) == 0) {
        c.chartMarks[voyage.vi] = {1, OnChart};
    }
}

/// Voyages in use below a category's row, marked on the way when this is the first pass. None for a row
/// without a record.
std::optional<int> CountRows(TreeContext& c, TreeRow categoryRow, bool first) {
    int count = 0;
    for (TreeRow row = c.tree.GetChildItem(categoryRow); row != kNoRow;
         row = c.tree.GetNextSiblingItem(row)) {
        if (c.tree.GetItemStyle(row) != kVoyageStyle) {
            continue;
        }
        const VoyInfo* voyage = c.VoyageOf(row);
        if (voyage == nullptr || voyage->vi.empty()) {
            return std::nullopt;
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

RowTexts::RowTexts()
    : tips_{{kCategoryStyle, TipsOf(kCategoryTips)},
            {kVoyageStyle, TipsOf(kVoyageTips)},
            {kDeletedCategoryStyle, TipsOf(kDeletedCategoryTips)},
            {kDeletedVoyageStyle, TipsOf(kDeletedVoyageTips)}},
      labels_(LabelsOfVoyages()) {}

void RowTexts::Apply(TreeWidget& tree, TreeRow row) const {
    const std::string style = tree.GetItemStyle(row);
    const auto tips = tips_.find(style);
    if (tips == tips_.end()) {
        return;
    }
    for (const Tip& tip : tips->second) {
        tree.SetToolTipsOfEventItem(row, tip.item, tip.text);
    }
    if (style == kVoyageStyle) {
        for (const Label& label : labels_) {
            tree.SetDrawItemValueOfEventItem(row, label.item, label.value, label.text);
        }
    }
}

void RowTexts::ApplyToStyles(TreeWidget& tree) const {
    for (const auto& [style, tips] : tips_) {
        for (const Tip& tip : tips) {
            tree.SetToolTipsOfStyle(style, tip.item, tip.text);
        }
    }
    for (const Label& label : labels_) {
        tree.SetDrawItemValueOfStyle(kVoyageStyle, label.item, label.value, label.text);
    }
}

void ApplyAllRowTexts(TreeWidget& tree) {
    const RowTexts texts;
    texts.ApplyToStyles(tree);
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        texts.Apply(tree, row);
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            texts.Apply(tree, child);
        }
    }
}

std::string CountText(int count) {
    return Util::StringUtl::Format("  (%d)", count);
}

bool CountAndMark(TreeContext& c) {
    const bool first = c.chartMarks.empty();
    for (TreeRow row = c.tree.GetRootItem(); row != kNoRow; row = c.tree.GetNextSiblingItem(row)) {
        if (c.tree.GetItemStyle(row) != kCategoryStyle) {
            continue;
        }
        const std::optional<int> count = CountRows(c, row, first);
        if (!count) {
            return false;
        }
        c.tree.SetDrawItemValue(row, Item::kCount, CountText(*count));
    }
    return true;
}

bool RefreshCounts(TreeContext& c) {
    for (TreeRow row = c.tree.GetRootItem(); row != kNoRow; row = c.tree.GetNextSiblingItem(row)) {
        if (c.tree.GetItemStyle(row) != kCategoryStyle) {
            continue;
        }
        const VoyCategory* category = c.CategoryOf(row);
        if (category == nullptr) {
            return false;
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
    return true;
}

}  // namespace Tarvik::Seaplan
