// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"

#include "seaplan/panels/tree/RowTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// The command behind an item, null when neither table has one.
const TreeCommand* CommandOf(const std::string& item, const TreeCommands& one, const TreeCommands& other) {
    for (const TreeCommands* commands : {&one, &other}) {
        const auto found = commands->find(item);
        if (found != commands->end()) {
            return &found->second;
        }
    }
    return nullptr;
}

}  // namespace

SeaplanTreeCtrl::SeaplanTreeCtrl(const TreeCollaborators& given)
    : parts_(given),
      sortPanel_(given.sortPopup, [this](const std::string& ci, int key) { return SetSortKey(ci, key); }),
      categories_(parts_, sortPanel_, [this] { return ReloadTree(); }),
      voyages_(parts_),
      vessels_(parts_, given.vesselView),
      tracks_(parts_),
      notes_(parts_),
      keys_(given.tree,
            {[this](TreeRow row) { OnRowPressed(row); }, [this](TreeRow row) { OnRowPressed(row, true); },
             [this](TreeRow row, const std::string& item) { return OnItemClicked(row, item); },
             [this] { categories_.Add(categories_.NewName()); }, [this] { return undo_.Undo(); }}),
      undo_(parts_, {[this] { return ReloadTree(); },
                     [this](TreeRow row, const std::string& item) { return OnItemClicked(row, item); }}),
      commands_{categories_.Table(), voyages_.Table()} {
    commands_.ofVoyage.merge(vessels_.Table());
    commands_.ofVoyage.merge(tracks_.Table());
}

int SeaplanTreeCtrl::ReloadTree() {
    TreeContext& c = parts_.context;
    // The rows point into records that the load replaces.
    parts_.rename.Abandon();
    vessels_.Editor().Hide();
    std::string user;
    if (c.catalog.Connect(user) != 0) {
        return -1;
    }
    if (c.catalog.Load(user) < 0) {
        return -2;
    }
    c.categorySorts.clear();
    for (const auto& [ci, category] : c.store.categories) {
        c.categorySorts[ci] = {};
    }
    parts_.selection.Forget();
    if (parts_.builder.RebuildAll() != 0) {
        return -3;
    }
    if (CountAndMark(c) != 0) {
        return -4;
    }
    c.catalog.GetNameMaps(c.categoryNames, c.voyageNames);
    return 0;
}

void SeaplanTreeCtrl::OnViewShown(bool shown) {
    if (shown) {
        parts_.chart.MarkAll();
        tracks_.MarkAll();
        return;
    }
    CloseEditors();
    parts_.context.chartMarks.clear();
    parts_.context.voyages.ClearChart();
}

int SeaplanTreeCtrl::SetShowDeleted(bool shown) {
    parts_.context.showDeleted = shown;
    return ReloadTree();
}

int SeaplanTreeCtrl::SetSortKey(const std::string& ci, int sortKey) {
    if (ci.empty()) {
        return -1;
    }
    const auto sort = parts_.context.categorySorts.find(ci);
    if (sort == parts_.context.categorySorts.end()) {
        return -2;
    }
    sort->second.sortKey = sortKey;
    return RebuildCategory(ci) == 0 ? 0 : -3;
}

void SeaplanTreeCtrl::CloseEditors() {
    parts_.rename.Commit();
    sortPanel_.Hide();
    vessels_.Editor().Hide();
}

void SeaplanTreeCtrl::ForgetAfterLogout() {
    // The records that the rows point to are gone.
    parts_.context.tree.DeleteAllItems();
    parts_.context.categorySorts.clear();
    parts_.rename.Abandon();
    parts_.remark.Open(kNoRow);
    CloseEditors();
    parts_.context.chartMarks.clear();
    parts_.context.steps.Clear();
    parts_.context.Say({});
    parts_.selection.Forget();
}

void SeaplanTreeCtrl::ApplyLanguage() {
    ApplyAllRowTexts(parts_.context.tree);
    parts_.status.ShowKnown();
    sortPanel_.ApplyLanguage();
}

bool SeaplanTreeCtrl::HasCommand(const std::string& item) const {
    return CommandOf(item, commands_.ofCategory, commands_.ofVoyage) != nullptr ||
           CommandOf(item, notes_.OfCategory(), notes_.OfVoyage()) != nullptr;
}

void SeaplanTreeCtrl::OnRowPressed(TreeRow row, bool fold) {
    TreeContext& c = parts_.context;
    if (fold && c.IsCategoryRow(row)) {
        c.tree.Expand(row, !c.tree.IsItemExpanded(row));
    }
    parts_.selection.Press(row);
}

int SeaplanTreeCtrl::OnItemClicked(TreeRow row, const std::string& item) {
    if (const int failed = parts_.selection.Take(row); failed != 0) {
        return failed;
    }
    const bool isCategory = parts_.context.IsCategoryRow(row);
    if (PortCallOpener* panel = isCategory ? nullptr : parts_.PortCalls()) {
        panel->SetVoyage(parts_.selection.Voyage().vi);
    }
    const TreeCommand* command = isCategory ? CommandOf(item, commands_.ofCategory, notes_.OfCategory())
                                            : CommandOf(item, commands_.ofVoyage, notes_.OfVoyage());
    if (command == nullptr) {
        return 1;
    }
    const int result = (*command)();
    return result < 0 ? result : 1;
}

}  // namespace Tarvik::Seaplan
