// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "seaplan/data/VoyageStore.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/panels/tree/TreeSteps.h"
#include "seaplan/panels/tree/TreeWidget.h"
#include "seaplan/panels/window/Boxes.h"

namespace Tarvik::Seaplan {

class VoyCatalogController;
class VoyController;

/// Draw mode of a schedule that is only read.
inline constexpr int kWithoutDrawing = -1;

enum DrawState : int { OnChart = 2, OffChart = 3 };

/// Whether a voyage stands on the chart.
struct VoyChartMark {
    int routePinned = 0;  ///< copy of the voyage's `vr`
    int drawState = OffChart;
};

/// What the tree knows beside the store's records.
struct TreeState {
    bool showDeleted = false;
    std::map<std::string, TreeSortState> categorySorts;
    std::map<std::string, VoyChartMark> chartMarks;
    std::map<std::string, int> voyageStatuses;
    std::map<std::string, int> categoryNames;  ///< every name ever seen, with its deletion state
    std::map<std::string, int> voyageNames;
};

/// Collaborators and view state that the parts of the tree share.
struct TreeContext : TreeState {
    TreeContext(VoyageStore& records, VoyCatalogController& names, VoyController& schedules,
                TreeWidget& widget)
        : store(records), catalog(names), voyages(schedules), tree(widget), boxes(widget) {}

    VoyageStore& store;
    VoyCatalogController& catalog;
    VoyController& voyages;
    TreeWidget& tree;
    Boxes boxes;
    std::function<void()>
        namesChanged;                ///< hears that a voyage was renamed or is gone; empty where nobody cares
    std::function<void()> rowsMade;  ///< hears that rows were made anew; empty where nobody cares
    std::function<void(const std::string&)> line;  ///< shows one line below the rows; empty without a window
    TreeSteps steps;

    /// Says in one line what was done, or what can be done next; an empty text ends what was said.
    void Say(const std::string& text) const {
        if (line) {
            line(text);
        }
    }

    /// Tells those who show a voyage's name that it may have changed.
    void TellNames() const {
        if (namesChanged) {
            namesChanged();
        }
    }

    VoyCategory* CategoryOf(TreeRow row) const { return static_cast<VoyCategory*>(tree.GetItemData(row)); }
    VoyInfo* VoyageOf(TreeRow row) const { return static_cast<VoyInfo*>(tree.GetItemData(row)); }
    bool IsCategoryRow(TreeRow row) const { return tree.GetParentItem(row) == kNoRow; }
    /// Row of a category, kNoRow when it has none.
    TreeRow FindCategoryRow(const std::string& ci) const;
    /// Row of a voyage in any category, kNoRow when it has none.
    TreeRow FindVoyageRow(const std::string& vi) const;
    /// Fetches a voyage's port calls into its record, without drawing; one without any keeps none.
    void FetchPortCalls(const std::string& vi) const;
};

}  // namespace Tarvik::Seaplan
