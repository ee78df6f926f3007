// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeUndo.h"

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeParts.h"

namespace Tarvik::Seaplan {

std::string TreeUndo::NameOf(const TreeStep& step) const {
    const VoyageStore& store = p_.context.store;
    if (step.isVoyage) {
        const auto voyage = store.voyages.find(step.id);
        return voyage == store.voyages.end() ? step.name : voyage->second.vn;
    }
    const auto category = store.categories.find(step.id);
    return category == store.categories.end() ? step.name : category->second.cn;
}

Outcome<UndoStep> TreeUndo::Undo() {
    TreeContext& c = p_.context;
    // A name being typed is no change yet, and its box stands over a row that may go.
    p_.rename.Commit();
    if (c.steps.IsEmpty()) {
        c.Say(Text(TextIds::IDS_VIEW_TREENOUNDO));
        return UndoStep::Nothing;
    }
    const TreeStep step = c.steps.Last();
    const std::string before = NameOf(step);
    c.steps.DropLast();
    if (!TakeBack(step)) {
        c.steps.Note(step);
        c.Say(Text(TextIds::IDS_VIEW_UNDOFAILED, {before}));
        return UndoStep::Refused;
    }
    c.Say(ReportOf(step, before));
    return {};
}

bool TreeUndo::TakeBack(const TreeStep& step) {
    switch (step.kind) {
        case TreeStep::Kind::Rename:
            return Rename(step);
        case TreeStep::Kind::Delete:
            return step.isVoyage ? BringVoyage(step) : BringCategory(step);
        case TreeStep::Kind::Recover:
            return DeleteAgain(step);
    }
    return false;
}

std::string TreeUndo::ReportOf(const TreeStep& step, const std::string& nameBefore) const {
    if (step.kind == TreeStep::Kind::Rename) {
        return Text(TextIds::IDS_VIEW_UNDONERENAME, {nameBefore, step.name});
    }
    if (step.kind == TreeStep::Kind::Recover) {
        return Text(TextIds::IDS_VIEW_UNDONERECOVER, {nameBefore});
    }
    std::string report = Text(TextIds::IDS_VIEW_UNDONEDELETE, {nameBefore});
    if (!step.onChart.empty()) {
        report += Text(TextIds::IDS_VIEW_UNDONEROUTE);
    }
    if (step.traced) {
        report += Text(TextIds::IDS_VIEW_UNDONETRACK);
    }
    return report;
}

bool TreeUndo::Rename(const TreeStep& step) {
    TreeContext& c = p_.context;
    const int failed = step.isVoyage ? c.catalog.RenameVoyage(step.id, step.name)
                                     : c.catalog.RenameCategory(step.id, step.name);
    if (failed != 0) {
        return false;
    }
    (step.isVoyage ? c.voyageNames : c.categoryNames)[step.name] = InUse;
    const TreeRow row = step.isVoyage ? c.FindVoyageRow(step.id) : c.FindCategoryRow(step.id);
    if (row != kNoRow) {
        c.tree.SetItemText(row, step.name);
        c.tree.SetCursor(row);
    }
    c.TellNames();
    return true;
}

/// The deletion took the voyage off the chart and its vessel's track with it, on the server too.
bool TreeUndo::BringVoyage(const TreeStep& step) {
    TreeContext& c = p_.context;
    if (c.catalog.RecoverVoyage(step.category, step.id) != 0) {
        return false;
    }
    c.voyageNames[NameOf(step)] = InUse;
    if (!step.onChart.empty()) {
        c.catalog.OpenRoute(step.id);
    }
    if (step.traced) {
        c.catalog.OpenAis(step.id);
    }
    static_cast<void>(p_.builder.RebuildCategory(step.category));
    RefreshCounts(c);
    const TreeRow row = c.FindVoyageRow(step.id);
    if (row != kNoRow) {
        c.tree.Expand(c.tree.GetParentItem(row), true);
        c.tree.SetCursor(row);
        p_.selection.Press(row);
    }
    return true;
}

bool TreeUndo::BringCategory(const TreeStep& step) {
    TreeContext& c = p_.context;
    if (c.catalog.RecoverCategory(step.id) != 0) {
        return false;
    }
    c.categoryNames[NameOf(step)] = InUse;
    for (const std::string& vi : step.onChart) {
        c.catalog.OpenRoute(vi);
    }
    ways_.reload();
    for (const std::string& vi : step.onChart) {
        if (c.voyages.ShowVoyage(vi) == 0) {
            c.chartMarks[vi] = {1, OnChart};
        }
    }
    const TreeRow row = c.FindCategoryRow(step.id);
    if (row != kNoRow) {
        c.tree.SetCursor(row);
    }
    return true;
}

/// Through the command, so that chart, track and rows follow as they do at a click; its own step is none.
bool TreeUndo::DeleteAgain(const TreeStep& step) {
    TreeContext& c = p_.context;
    const TreeRow row = step.isVoyage ? c.FindVoyageRow(step.id) : c.FindCategoryRow(step.id);
    if (row == kNoRow) {
        return false;
    }
    ways_.click(row, step.isVoyage ? Item::kDeleteVoyage : Item::kDeleteCategory);
    // A command that failed behind the deletion has deleted all the same.
    if (c.steps.IsEmpty() || c.steps.Last().kind != TreeStep::Kind::Delete || c.steps.Last().id != step.id) {
        return false;
    }
    c.steps.DropLast();
    return true;
}

}  // namespace Tarvik::Seaplan
