// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VoyageCommands.h"

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/PortCallOpener.h"
#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeParts.h"

namespace Tarvik::Seaplan {

namespace {

/// How many rows of its category stand above a voyage's.
int PlaceOf(const TreeWidget& tree, TreeRow voyage) {
    int place = 0;
    TreeRow row = tree.GetChildItem(tree.GetParentItem(voyage));
    for (; row != voyage && row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        ++place;
    }
    return place;
}

/// The row of a category with so many above it, or its last; the category's own where it is empty.
TreeRow RowAt(const TreeWidget& tree, TreeRow category, int place) {
    TreeRow found = category;
    TreeRow row = tree.GetChildItem(category);
    for (; row != kNoRow && place >= 0; row = tree.GetNextSiblingItem(row), --place) {
        found = row;
    }
    return found;
}

}  // namespace

TreeCommands VoyageCommands::Table() {
    return {{Item::kUnpinned, [this] { return Pin(); }},
            {Item::kPinned, [this] { return Unpin(); }},
            {Item::kPortCalls, [this] { return OpenPortCalls(); }},
            {Item::kSetPortCall, [this] { return OpenEmptyPortCalls(); }},
            {Item::kNoonReport, [this] { return NoonReport(); }},
            {Item::kRenameVoyage, [this] { return Rename(); }},
            {Item::kDeleteVoyage, [this] { return Delete(); }},
            {Item::kRecoverVoyage, [this] { return Recover(); }},
            {Item::kClearVoyage, [this] { return Clear(); }},
            {Item::kDuplicate, [this] { return Duplicate(); }}};
}

ItemOutcome VoyageCommands::Pin() {
    if (p_.chart.SetPinned(p_.selection.Voyage().vi, true).Failed()) {
        p_.context.boxes.Notice(TextIds::IDS_TREE_AUTOTRACKWARN);
        return ItemStep::Pin;
    }
    return {};
}

ItemOutcome VoyageCommands::Unpin() {
    return p_.chart.SetPinned(p_.selection.Voyage().vi, false).Failed() ? ItemStep::Unpin : ItemOutcome();
}

ItemOutcome VoyageCommands::OpenPortCalls() {
    PortCallOpener* panel = p_.PortCalls();
    if (panel == nullptr || panel->FillForVoyage(-1) < 0) {
        return ItemStep::FillPortCalls;
    }
    panel->ShowBesideTree();
    // Filling has emptied the chart; the panel is in its place by now, which the route keeps clear of.
    p_.chart.DrawAgain(p_.selection.Voyage().vi);
    return {};
}

ItemOutcome VoyageCommands::OpenEmptyPortCalls() {
    PortCallOpener* panel = p_.PortCalls();
    if (panel == nullptr) {
        return ItemStep::PortCallPanel;
    }
    panel->Reset();
    panel->ShowBesideTree();
    p_.chart.DrawAgain(p_.selection.Voyage().vi);
    return {};
}

ItemOutcome VoyageCommands::NoonReport() {
    p_.context.boxes.Notice(TextIds::IDS_TREE_NOONREPORTWARN);
    return {};
}

ItemOutcome VoyageCommands::Rename() {
    p_.rename.Begin(p_.selection.VoyageRow(), true);
    return {};
}

ItemOutcome VoyageCommands::Duplicate() {
    // What is copied is what was saved, so changes on show are saved or given up first.
    PortCallOpener* panel = p_.PortCalls();
    if (panel != nullptr && !panel->AskToLeave()) {
        return {};
    }
    TreeContext& c = p_.context;
    const std::string ci = p_.selection.Category().ci;
    const std::string name = p_.selection.Voyage().vn;
    std::string vi;
    const CopyFault fault = DuplicateVoyage(c, ci, p_.selection.Voyage().vi, vi);
    if (fault != CopyFault::None) {
        c.boxes.Notice(
            TextIds::IDS_VIEW_COPYFAILED,
            Text(fault == CopyFault::NotRead ? TextIds::IDS_VIEW_COPYNOTREAD : TextIds::IDS_VIEW_COPYNOTSAVED,
                 {name}));
        return ItemStep::Copy;
    }
    if (p_.builder.RebuildCategory(ci).Failed()) {
        return ItemStep::CopyRow;
    }
    RefreshCounts(c);
    const TreeRow row = c.FindVoyageRow(vi);
    c.tree.SetCursor(row);
    p_.selection.Press(row);
    p_.rename.Begin(row, true);
    return {};
}

/// The keyboard goes to the row that comes into the place of the one that goes.
ItemOutcome VoyageCommands::DropRow() {
    const std::string ci = p_.selection.Category().ci;
    TreeWidget& tree = p_.context.tree;
    const TreeRow category = p_.selection.CategoryRow();
    const int place = PlaceOf(tree, p_.selection.VoyageRow());
    p_.selection.DropVoyageRow();
    if (p_.builder.RebuildCategory(ci).Failed()) {
        return ItemStep::DropRow;
    }
    tree.SetCursor(RowAt(tree, category, place));
    return RefreshCounts(p_.context) ? ItemOutcome() : ItemStep::DropCounts;
}

ItemOutcome VoyageCommands::Delete() {
    TreeContext& c = p_.context;
    const VoyInfo& voyage = p_.selection.Voyage();
    TreeStep step{TreeStep::Kind::Delete, true, voyage.vi, p_.selection.Category().ci, voyage.vn};
    step.traced = voyage.va == 1;
    if (voyage.vr == 1) {
        step.onChart.insert(voyage.vi);
    }
    if (c.catalog.DeleteVoyage(step.category, voyage.vi) != 0) {
        return ItemStep::DeleteVoyage;
    }
    c.steps.Note(std::move(step));
    if (c.voyages.RemoveVoyageObjects(voyage.vi) != 0) {
        return ItemStep::Drawing;
    }
    if (c.catalog.CloseRoute(voyage.vi) != 0) {
        return ItemStep::CloseRoute;
    }
    if (p_.chart.SetAisShown(voyage.vi, false).Failed()) {
        return ItemStep::TrackOfDeleted;
    }
    const ItemOutcome dropped = DropRow();
    if (!dropped.Failed()) {
        c.voyageNames[voyage.vn] = InRecycleBin;
        c.Say(Text(TextIds::IDS_VIEW_CANUNDELETE, {voyage.vn}));
    }
    return dropped;
}

ItemOutcome VoyageCommands::Recover() {
    const VoyInfo& voyage = p_.selection.Voyage();
    if (p_.context.catalog.RecoverVoyage(p_.selection.Category().ci, voyage.vi) != 0) {
        return ItemStep::RecoverVoyage;
    }
    p_.context.voyageNames[voyage.vn] = InUse;
    p_.context.steps.Note({TreeStep::Kind::Recover, true, voyage.vi, p_.selection.Category().ci, voyage.vn});
    const ItemOutcome dropped = DropRow();
    p_.context.tree.SetCursor(p_.context.FindVoyageRow(voyage.vi));
    return dropped;
}

ItemOutcome VoyageCommands::Clear() {
    const VoyInfo& voyage = p_.selection.Voyage();
    if (!p_.context.boxes.Question(TextIds::IDS_TREE_CLEARVOYORCATE,
                                   Text(TextIds::IDS_VIEW_LOSTVOYAGE, {voyage.vn}))) {
        return {};
    }
    if (p_.context.catalog.DestroyVoyage(p_.selection.Category().ci, voyage.vi) != 0) {
        return ItemStep::DestroyVoyage;
    }
    p_.context.voyageNames[voyage.vn] = Destroyed;
    p_.context.steps.Forget(voyage.vi, true);
    p_.context.TellNames();
    return DropRow();
}

}  // namespace Tarvik::Seaplan
