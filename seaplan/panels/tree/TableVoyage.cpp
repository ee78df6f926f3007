// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeParts.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/TreeRules.h"

namespace Tarvik::Seaplan {

namespace {

/// Why a name is taken. Its first letter tells an English text from the others, whose addition is Chinese.
std::string TakenText(int state) {
    std::string text = Text(TextIds::IDS_VOYTREE_SAMENAME_WARN_FORDISTAB);
    if (state == InRecycleBin) {
        text += text.starts_with('T') ? "(have been delete)" : "(已被删除)";
    }
    return text;
}

TreeRow RowOfCategory(const TreeContext& c, const std::string& name) {
    for (TreeRow row = c.tree.GetRootItem(); row != kNoRow; row = c.tree.GetNextSiblingItem(row)) {
        const VoyCategory* category = c.CategoryOf(row);
        if (category != nullptr && category->cn == name && c.tree.GetItemStyle(row) == kCategoryStyle) {
            return row;
        }
    }
    return kNoRow;
}

/// A new category's row, kNoRow when the server does not make it.
TreeRow NewCategory(TreeParts& parts, const std::string& name) {
    TreeContext& c = parts.context;
    std::string ci;
    if (c.catalog.AddCategory(name, ci) != 0) {
        return kNoRow;
    }
    const auto made = c.store.categories.find(ci);
    if (made == c.store.categories.end()) {
        return kNoRow;
    }
    c.categorySorts[ci] = {};
    c.categoryNames[name] = InUse;
    return parts.builder.AddCategoryRow(made->second);
}

}  // namespace

Outcome<TableVoyageStep> CreateVoyageFromTable(TreeParts& parts, const std::string& typedCategory,
                                               const std::string& typedVoyage, TableVoyage& out) {
    TreeContext& c = parts.context;
    out = {};
    const std::string voyage = NormalizeName(typedVoyage);
    const std::string category = NormalizeName(typedCategory);
    if (category.empty() || voyage.empty()) {
        c.boxes.Notice(TextIds::IDS_PORTDISTAB_NOINFWARN);
        return TableVoyageStep::Names;
    }
    // Another client may have stored the category's name as it is typed.
    TreeRow row = RowOfCategory(c, typedCategory);
    row = row == kNoRow ? RowOfCategory(c, category) : row;
    if (!IsWidthAccepted(c, voyage, kVoyageNameWidth) ||
        (row == kNoRow && !IsWidthAccepted(c, category, kCategoryNameWidth))) {
        return TableVoyageStep::Names;
    }
    const auto known = c.voyageNames.find(voyage);
    if (known != c.voyageNames.end() && known->second != Destroyed) {
        c.boxes.NoticeText(TakenText(known->second));
        return TableVoyageStep::Taken;
    }
    row = row == kNoRow ? NewCategory(parts, category) : row;
    if (row == kNoRow) {
        return TableVoyageStep::Category;
    }
    out.ci = c.CategoryOf(row)->ci;
    if (c.catalog.AddVoyage(voyage, out.ci, out.vi) != 0) {
        return TableVoyageStep::Voyage;
    }
    c.voyageNames[voyage] = InUse;
    static_cast<void>(parts.builder.AddVoyageRow(row, out.vi));
    return RefreshCounts(c) ? Outcome<TableVoyageStep>() : TableVoyageStep::Counts;
}

}  // namespace Tarvik::Seaplan
