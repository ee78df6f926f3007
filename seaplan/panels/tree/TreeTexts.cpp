// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/tree/TreeBuilder.h"

namespace Tarvik::Seaplan {

namespace {

struct ItemTip {
    const char* item;
    TextId text;
};

constexpr ItemTip kCategoryTips[] = {{"Voyage_parent_rename", TextId::IDS_TREE_MODVOTCATENAME},
                                     {"Voyage.parent.svr3", TextId::IDS_ADDVOYAGE},
                                     {"Voyage.parent.svr6", TextId::IDS_TREE_SORT},
                                     {"Voyage.parent.svr6.desc", TextId::IDS_TREE_SORT},
                                     {"Voyage.parent.svr9", TextId::IDS_VIEW_SORTBY},
                                     {"Voyage.parent.svr7", TextId::IDS_TREE_CATEGORYDEL},
                                     {"Voyage.parent.svr2.non", TextId::IDS_TREE_CATEGORYDEST},
                                     {"Voyage.parent.svr2.exist", TextId::IDS_TREE_CATEGORYDEST}};
constexpr ItemTip kVoyageTips[] = {{"Voyage_child_rename", TextId::IDS_TREE_MODVOYNAME},
                                   {"Voyage.child.svr1.default", TextId::IDS_TREE_VOYAUTOPOS},
                                   {"Voyage.child.svr1.auto", TextId::IDS_TREE_VOYAUTOPOS},
                                   {"Voyage.child.svr3.non", TextId::IDS_TREE_VOYDEST},
                                   {"Voyage.child.svr3.exist", TextId::IDS_TREE_VOYDEST},
                                   {"Voyage.child.svr4", TextId::IDS_TREE_VOYPORTCALL},
                                   {"Voyage.child.svr5", TextId::IDS_TREE_VOYCONSUM},
                                   {"Voyage.child.svr6", TextId::IDS_TREE_VOYNOONREPORT},
                                   {"Voyage.child.svr8", TextId::IDS_TREE_VOYSHOWAIS},
                                   {"Voyage.child.svr10", TextId::IDS_TREE_VOYSHOWAIS},
                                   {"Voyage.child.svr9", TextId::IDS_TREE_VOYDEL},
                                   {"Voyage_modify", TextId::IDS_TREE_MODAISTRAC},
                                   {"Voyage_ReplaceShip", TextId::IDS_TREE_REPLACESHIP},
                                   {"Voyage_Alert", TextId::IDS_VIEW_ALERT}};

template <std::size_t N>
void ApplyTips(TreeWidget& tree, TreeRow row, const ItemTip (&tips)[N]) {
    for (const ItemTip& tip : tips) {
        tree.SetToolTipsOfEventItem(row, tip.item, Text(tip.text));
    }
}

}  // namespace

void TreeBuilder::ApplyTexts(TreeRow row) {
    const std::string style = c_.tree.GetItemStyle(row);
    if (style == kCategoryStyle) {
        return ApplyCategoryTexts(row);
    }
    if (style == kVoyageStyle) {
        return ApplyVoyageTexts(row);
    }
    ApplyDeletedTexts(row);
}

void TreeBuilder::ApplyCategoryTexts(TreeRow row) {
    ApplyTips(c_.tree, row, kCategoryTips);
}

void TreeBuilder::ApplyVoyageTexts(TreeRow row) {
    ApplyTips(c_.tree, row, kVoyageTips);
    TreeWidget& tree = c_.tree;
    tree.SetDrawItemValueOfEventItem(row, "Voyage_setPortCall", "setPortCall",
                                     Text(TextId::IDS_TREE_SETPORTCALL));
    tree.SetDrawItemValueOfEventItem(row, "Voyage_Date", "Sailing", Text(TextId::IDS_TREE_VOYSTARTDATA));
    tree.SetDrawItemValueOfEventItem(row, "Voyage_Date", "Ending", Text(TextId::IDS_TREE_VOYENDDATA));
    tree.SetDrawItemValueOfEventItem(row, "Voyage_AssignShip", "AssignShip", Text(TextId::IDS_TREE_ADDSHIP));
    tree.SetDrawItemValueOfEventItem(row, "Voyage_ShipInfo", "ShipInfo", Text(TextId::IDS_TREE_VOYSHIP));
}

void TreeBuilder::ApplyDeletedTexts(TreeRow row) {
    TreeWidget& tree = c_.tree;
    if (c_.IsCategoryRow(row)) {
        tree.SetToolTipsOfEventItem(row, "Voyage.parent.svr.recover", Text(TextId::IDS_TREE_CATEGORYRECOVER));
        tree.SetToolTipsOfEventItem(row, "Voyage.parent.svr.clear", Text(TextId::IDS_TREE_CATEGORYCLEAR));
    } else {
        tree.SetToolTipsOfEventItem(row, "Voyage.child.svr.recover", Text(TextId::IDS_TREE_VOYRECOVER));
        tree.SetToolTipsOfEventItem(row, "Voyage.child.svr.clear", Text(TextId::IDS_TREE_VOYCLEAR));
    }
}

void TreeBuilder::ApplyLanguage() {
    for (TreeRow row = c_.tree.GetRootItem(); row != kNoRow; row = c_.tree.GetNextSiblingItem(row)) {
        ApplyTexts(row);
        for (TreeRow child = c_.tree.GetChildItem(row); child != kNoRow;
             child = c_.tree.GetNextSiblingItem(child)) {
            ApplyTexts(child);
        }
    }
    for (const auto& [vi, status] : c_.voyageStatuses) {
        ShowStatus(vi);
    }
}

}  // namespace Tarvik::Seaplan
